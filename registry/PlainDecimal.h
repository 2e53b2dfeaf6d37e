// Unsigned numbers printed by converting their digits here, when that gives exactly
// what the stream's own insertion would.
//
// `os << n` goes through the locale's number formatting: a virtual call, the
// punctuation cache, a check for digit grouping and padding. Under a decimal base, no
// width and the classic locale, all of that yields n's plain decimal digits, so they
// can be converted with std::to_chars and written directly. In any other state the
// value is inserted with `<<` as usual.
//
// Compiled into the host library and into the plug-in alike, each with a copy of its
// own that neither exports: the plug-in must not depend on a host that has it.
#pragma once

#include <charconv>
#include <cstddef>
#include <ostream>
#include <type_traits>

namespace Orvane {

/// Room for the decimal digits of any 64-bit unsigned number.
inline constexpr std::size_t kMaxDecimalDigits = 20;

/// True when `os` formats an unsigned number as just its decimal digits, padding
/// aside: the base is decimal with neither showpos nor showbase set and the stream's
/// locale is the classic one. The locale check is remembered in the stream (an iword)
/// and forgotten when the stream is imbued or copyfmt'ed, so it costs a full comparison
/// only once per stream.
bool formatsPlainDecimal(std::ostream& os);

/// True when inserting an unsigned number into `os` prints just its decimal digits:
/// formatsPlainDecimal() and a width of 0.
inline bool insertsPlainDecimal(std::ostream& os) {
  return os.width() == 0 && formatsPlainDecimal(os);
}

/// Has the same effect on `os` as `os << value`: the same characters, the same
/// state afterwards, badbit when the stream buffer takes fewer characters than given.
template <class Unsigned> void insertUnsigned(std::ostream& os, Unsigned value) {
  static_assert(std::is_unsigned_v<Unsigned>);
  if (!insertsPlainDecimal(os)) {
    os << value;
    return;
  }
  char digits[kMaxDecimalDigits];
  const char* end = std::to_chars(digits, digits + sizeof digits, value).ptr;
  // With the width 0 there is no padding to do and nothing to reset: an insertion is
  // then a sentry, one sputn and badbit on a short write, which is what write() does.
  os.write(digits, end - digits);
}

} // namespace Orvane
