// An output stream whose text accumulates in one reusable buffer, so that formatting
// value after value allocates nothing once the buffer is large enough.
#pragma once

#include <climits>
#include <memory>
#include <ostream>
#include <streambuf>
#include <string_view>

namespace Orvane::decoding {

/// A std::ostream over a growable character buffer. Texts printed one after another
/// stay side by side in the buffer until clear(); each is found by the size() taken
/// before and after printing it.
class TextStream {
public:
  TextStream();
  TextStream(const TextStream&) = delete;
  TextStream& operator=(const TextStream&) = delete;

  /// The stream in a new stream's state: decimal, blank fill, no width, precision 6,
  /// no error flag. Formatters may leave any of these changed; what they printed stays.
  std::ostream& fresh();

  /// Characters printed since the last clear().
  std::size_t size() const { return buffer_.size(); }
  /// The characters at [from, to) of what was printed since the last clear(); valid
  /// until the next print or clear().
  std::string_view text(std::size_t from, std::size_t to) const { return buffer_.view(from, to); }
  /// Everything printed since the last clear(); valid until the next print or clear().
  std::string_view text() const { return buffer_.view(0, size()); }

  /// Adds `text` as it is, whatever the stream's state (width, error flags).
  void append(std::string_view text) { buffer_.put(text); }
  /// Adds one character as it is.
  void append(char c) { buffer_.sputc(c); }
  /// Forgets what was printed after the first `size` characters.
  void truncate(std::size_t size) { buffer_.truncate(size); }
  /// Forgets everything printed; keeps the buffer's capacity.
  void clear() { buffer_.truncate(0); }

private:
  // The put area is the unused capacity of `chars_`; overflow() doubles it. The
  // characters are not zero-filled: only those printed are ever read.
  class Buffer : public std::streambuf {
  public:
    Buffer();
    std::size_t size() const { return static_cast<std::size_t>(pptr() - pbase()); }
    std::string_view view(std::size_t from, std::size_t to) const {
      return {pbase() + from, to - from};
    }
    void put(std::string_view text) {
      xsputn(text.data(), static_cast<std::streamsize>(text.size()));
    }
    void truncate(std::size_t size) {
      setp(chars_.get(), chars_.get() + capacity_);
      advance(size);
    }

  protected:
    int_type overflow(int_type c) override;
    /// One copy when the text fits, instead of the base class's general loop.
    std::streamsize xsputn(const char* text, std::streamsize count) override;

  private:
    /// Makes room for at least `count` more characters.
    void grow(std::size_t count);
    /// Moves the put position `count` characters on.
    void advance(std::size_t count) {
      if (count <= INT_MAX)
        pbump(static_cast<int>(count));
      else
        advanceFar(count);
    }
    void advanceFar(std::size_t count);

    std::size_t capacity_ = 256;
    std::unique_ptr<char[]> chars_ = std::make_unique_for_overwrite<char[]>(capacity_);
  };

  Buffer buffer_;
  std::ostream stream_;
};

} // namespace Orvane::decoding
