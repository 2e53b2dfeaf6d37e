#include "decoding/TextStream.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

namespace Orvane::decoding {
namespace {

// Copies `n` characters. Most texts a formatter inserts (a label, a number, an address)
// are short: those are copied with a few fixed-size moves, which the compiler inlines,
// the two of each size overlapping as far as needed, instead of a call per text.
void copyChars(char* to, const char* from, std::size_t n) {
  auto both = [&](auto size) {
    std::memcpy(to, from, size);
    std::memcpy(to + n - size, from + n - size, size);
  };
  if (n > 16)
    std::memcpy(to, from, n);
  else if (n >= 8)
    both(std::integral_constant<std::size_t, 8>());
  else if (n >= 4)
    both(std::integral_constant<std::size_t, 4>());
  else if (n >= 2)
    both(std::integral_constant<std::size_t, 2>());
  else if (n == 1)
    *to = *from;
}

} // namespace

TextStream::Buffer::Buffer() { truncate(0); }

void TextStream::Buffer::advanceFar(std::size_t count) {
  // pbump() takes an int: a text past 2 GiB is advanced in steps.
  while (count > 0) {
    const auto step = static_cast<int>(std::min<std::size_t>(count, INT_MAX));
    pbump(step);
    count -= static_cast<std::size_t>(step);
  }
}

void TextStream::Buffer::grow(std::size_t count) {
  const std::size_t used = size();
  capacity_ = std::max(2 * capacity_, used + count);
  auto larger = std::make_unique_for_overwrite<char[]>(capacity_);
  std::memcpy(larger.get(), chars_.get(), used);
  chars_ = std::move(larger);
  truncate(used);
}

TextStream::Buffer::int_type TextStream::Buffer::overflow(int_type c) {
  if (traits_type::eq_int_type(c, traits_type::eof())) return traits_type::not_eof(c);
  grow(1);
  *pptr() = traits_type::to_char_type(c);
  pbump(1);
  return c;
}

std::streamsize TextStream::Buffer::xsputn(const char* text, std::streamsize count) {
  if (count <= 0) return 0;
  const auto n = static_cast<std::size_t>(count);
  if (n > static_cast<std::size_t>(epptr() - pptr())) grow(n);
  copyChars(pptr(), text, n);
  advance(n);
  return count;
}

TextStream::TextStream() : stream_(&buffer_) {}

std::ostream& TextStream::fresh() {
  if (!stream_.good()) stream_.clear();
  stream_.flags(std::ios_base::dec | std::ios_base::skipws);
  stream_.fill(' ');
  stream_.width(0);
  stream_.precision(6);
  return stream_;
}

} // namespace Orvane::decoding
