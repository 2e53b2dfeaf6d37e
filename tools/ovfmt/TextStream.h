// An output stream whose text accumulates in one reusable buffer, so that formatting
// value after value allocates nothing once the buffer is large enough.
#pragma once

#include <climits>
#include <ostream>
#include <streambuf>
#include <string_view>
#include <vector>

namespace Orvane::ovfmt {

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
  /// Forgets everything printed; keeps the buffer's capacity.
  void clear() { buffer_.reset(); }

private:
  // The put area is the unused capacity of `chars_`; overflow() doubles it.
  class Buffer : public std::streambuf {
  public:
    Buffer();
    std::size_t size() const { return static_cast<std::size_t>(pptr() - pbase()); }
    std::string_view view(std::size_t from, std::size_t to) const {
      return {pbase() + from, to - from};
    }
    void reset() { setp(chars_.data(), chars_.data() + chars_.size()); }

  protected:
    int_type overflow(int_type c) override;
    /// One copy when the text fits, instead of the base class's general loop.
    std::streamsize xsputn(const char* text, std::streamsize count) override;

  private:
    /// Makes room for at least `count` more characters.
    void grow(std::size_t count);
    /// Moves the put position `count` characters on.
    void advance(std::size_t count) {
      if (count <= INT_MAX) pbump(static_cast<int>(count));
      else advanceFar(count);
    }
    void advanceFar(std::size_t count);

    std::vector<char> chars_;
  };

  Buffer buffer_;
  std::ostream stream_;
};

} // namespace Orvane::ovfmt
