// Literal pieces of a composite's text, gathered into one stream insertion.
//
// A composite prints literal pieces (labels, separators, names from the code tables)
// between fields that other formatters print. Every insertion costs a sentry and a
// stream buffer call whatever its length, so pieces that follow one another are
// gathered here and reach the stream together:
//
//   TextRun text(os);
//   text << " RouteKey<(" << afiName << "/" << safiName << ") (";
//   formatField(p, text.flush()); // inserts the gathered text, then the field prints
//   text << ")> ";
//   text.flush();                 // the end: nothing may stay behind
//
// The gathered text is inserted with `<<`, so a width the caller set applies to it
// as a whole, as it applied to the first of the pieces before. An empty run inserts
// nothing.
//
// Text that would otherwise be an insertion of its own, a field's text or a number,
// joins the run through join() and number() only where that cannot be seen: when the
// stream has no width at that point (and, for a number, prints plain decimal digits).
// Otherwise the run is inserted first and the text after it, alone, exactly as an
// insertion of its own would print. Formatters of the plug-in's own fields have an
// append form (AppendPtr) that adds their text to a run this way. One trace remains
// of the joining, on a stream whose buffer refuses text: the stream goes bad as before,
// but one insertion fails where several did, so it lacks the failbit that the sentries
// of the later ones would have added.
#pragma once

#include "registry/PlainDecimal.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <ostream>
#include <string_view>
#include <type_traits>

namespace Orvane {

/// Gathers literal text for one `<<` on a stream. Call flush() before anything else
/// writes to the stream or changes its format, and once at the end; pieces still
/// pending are not written.
class TextRun {
public:
  explicit TextRun(std::ostream& os) : os_(os) {}
  TextRun(const TextRun&) = delete;
  TextRun& operator=(const TextRun&) = delete;

  /// Appends `piece` to the pending text. Text that does not fit is flushed first, so
  /// a run of any length comes out whole.
  TextRun& operator<<(std::string_view piece) {
    if (piece.empty())
      return *this;
    if (piece.size() > kCapacity - size_) {
      flush();
      if (piece.size() > kCapacity) {
        os_ << piece;
        return *this;
      }
    }
    std::memcpy(text_ + size_, piece.data(), piece.size());
    size_ += piece.size();
    return *this;
  }

  /// Appends the C string `piece`. A null pointer is inserted as it would be alone
  /// (the stream then reports the error: badbit), after the pending text.
  TextRun& operator<<(const char* piece) {
    if (!piece) {
      flush() << piece;
      return *this;
    }
    return *this << std::string_view(piece);
  }

  /// Prints `value` as `os << value` would at this point. Its digits join the pending
  /// text when the stream has no width and prints plain decimal digits; otherwise the
  /// pending text is inserted and then the number on its own.
  TextRun& number(uint64_t value);

  /// Prints `piece` as `os << piece` would at this point: it joins the pending text
  /// when the stream has no width, and is otherwise inserted on its own (padded to the
  /// width) after the pending text.
  TextRun& join(std::string_view piece) {
    if (hasNoWidth()) return *this << piece;
    flush() << piece;
    return *this;
  }

  /// `*this << piece` and then flush(), without copying `piece` when nothing is pending:
  /// the pending text and `piece` are one insertion.
  std::ostream& flushWith(std::string_view piece) {
    if (size_ > 0 || piece.empty()) return (*this << piece).flush();
    plainDecimal_ = kNotChecked;
    return os_ << piece;
  }

  /// Inserts the pending text, if any, and returns the stream for what follows it.
  std::ostream& flush() {
    plainDecimal_ = kNotChecked; // whoever gets the stream may change its format
    if (size_ > 0) {
      os_ << std::string_view(text_, size_);
      size_ = 0;
    }
    return os_;
  }

private:
  // True when the stream has no width at this point. A width the caller set belongs to
  // the pending text, which is inserted first to consume it; a width that remains (the
  // run was empty, or the stream refused it) is for the next insertion alone.
  bool hasNoWidth() {
    if (os_.width() != 0) flush();
    return os_.width() == 0;
  }

  // Orvane::formatsPlainDecimal() for the stream, checked once until the next flush():
  // the stream's format cannot change while only this run writes to it.
  bool formatsPlainDecimal() {
    if (plainDecimal_ == kNotChecked)
      plainDecimal_ = Orvane::formatsPlainDecimal(os_) ? kPlain : kNotPlain;
    return plainDecimal_ == kPlain;
  }

  static constexpr std::size_t kCapacity = 128;
  enum PlainDecimal : unsigned char { kNotChecked, kPlain, kNotPlain };
  std::ostream& os_;
  std::size_t size_ = 0;
  PlainDecimal plainDecimal_ = kNotChecked;
  char text_[kCapacity];
};

/// The stream form of a printer that gathers its text into a TextRun: `print(text)` on a
/// run of its own over `os`, inserted before returning. Returns what `print` returns (a
/// count), or `os` when it returns nothing.
template <class Print> decltype(auto) printThroughRun(std::ostream& os, Print print) {
  TextRun text(os);
  if constexpr (std::is_void_v<std::invoke_result_t<Print&, TextRun&>>) {
    print(text);
    return text.flush();
  } else {
    auto result = print(text);
    text.flush();
    return result;
  }
}

/// A formatter's append form: adds the text of the value at `p` to `text` (through
/// join() and number(), so that it prints as the format form would) and returns the
/// value's size, as the format form does.
using AppendPtr = unsigned (*)(const unsigned char* p, TextRun& text);

/// The format form of an append function: the value's text on a run of its own,
/// inserted before returning.
template <AppendPtr Append> unsigned formatThroughRun(const unsigned char* p, std::ostream& os) {
  return printThroughRun(os, [p](TextRun& text) { return Append(p, text); });
}

} // namespace Orvane
