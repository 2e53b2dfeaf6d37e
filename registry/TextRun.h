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
#pragma once

#include <cstddef>
#include <cstring>
#include <ostream>
#include <string_view>

namespace Orvane {

/// Gathers literal text for one `<<` on a stream. Call flush() before anything else
/// writes to the stream and once at the end; pieces still pending are not written.
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

  /// Inserts the pending text, if any, and returns the stream for what follows it.
  std::ostream& flush() {
    if (size_ > 0) {
      os_ << std::string_view(text_, size_);
      size_ = 0;
    }
    return os_;
  }

private:
  static constexpr std::size_t kCapacity = 128;
  std::ostream& os_;
  std::size_t size_ = 0;
  char text_[kCapacity];
};

} // namespace Orvane
