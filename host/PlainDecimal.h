// Unsigned numbers printed by converting their digits here, when that gives exactly
// what the stream's own insertion would.
//
// `os << n` goes through the locale's number formatting: a virtual call, the
// punctuation cache, a check for digit grouping and padding. Under a decimal base, no
// width and the classic locale, all of that yields n's plain decimal digits, so they
// can be converted with std::to_chars and written directly. In any other state the
// value is inserted with `<<` as usual.
#pragma once

#include <charconv>
#include <ostream>
#include <type_traits>

namespace Orvane::host {

/// True when inserting an unsigned number into `os` prints just its decimal digits:
/// the base is decimal with neither showpos nor showbase set, the width is 0 and the
/// stream's locale is the classic one. The locale check is remembered in the stream
/// (an iword) and forgotten when the stream is imbued or copyfmt'ed, so it costs a full
/// comparison only once per stream.
bool insertsPlainDecimal(std::ostream& os);

/// Has the same effect on `os` as `os << value`: the same characters, the same
/// state afterwards, badbit when the stream buffer takes fewer characters than given.
template <class Unsigned> void insertUnsigned(std::ostream& os, Unsigned value) {
  static_assert(std::is_unsigned_v<Unsigned>);
  if (!insertsPlainDecimal(os)) {
    os << value;
    return;
  }
  char digits[20];
  const char* end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  // With the width 0 there is no padding to do and nothing to reset: an insertion is
  // then a sentry, one sputn and badbit on a short write, which is what write() does.
  os.write(digits, end - digits);
}

} // namespace Orvane::host
