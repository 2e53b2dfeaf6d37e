#include "tools/ovfmt/Hex.h"

#include "registry/HexDigits.h"

#include <array>

namespace Orvane::ovfmt {
namespace {

// What each character is: a digit's value (0..15), a separator, or neither. One load per
// character instead of a chain of range tests.
constexpr signed char kSeparator = 16, kNotHex = -1;
constexpr std::array<signed char, 256> kCharClass = [] {
  std::array<signed char, 256> values{};
  values.fill(kNotHex);
  for (int c = '0'; c <= '9'; ++c) values[c] = static_cast<signed char>(c - '0');
  for (int c = 'a'; c <= 'f'; ++c) values[c] = static_cast<signed char>(c - 'a' + 10);
  for (int c = 'A'; c <= 'F'; ++c) values[c] = static_cast<signed char>(c - 'A' + 10);
  for (char c : {' ', '\t', ':'}) values[static_cast<unsigned char>(c)] = kSeparator;
  return values;
}();

int classOf(char c) { return kCharClass[static_cast<unsigned char>(c)]; }

std::string describe(char c) {
  const auto byte = static_cast<unsigned char>(c);
  if (byte >= 0x20 && byte < 0x7f) return std::string("'") + c + "'";
  char digits[2];
  writeHexByte(byte, digits);
  return "byte 0x" + std::string(digits, 2);
}

std::string badCharacter(char c, std::size_t index) {
  return "bad hex: " + describe(c) + " at column " + std::to_string(index + 1);
}

// What is wrong with the pair at `i` whose character classes are `high` and `low`.
std::string pairProblem(std::string_view text, std::size_t i, int high, int low) {
  if (high == kNotHex) return badCharacter(text[i], i);
  if (low == kSeparator)
    return "bad hex: odd number of digits at column " + std::to_string(i + 1) +
           " (bytes are pairs of hex digits)";
  return badCharacter(text[i + 1], i + 1);
}

} // namespace

bool parseHexInto(std::string_view text, unsigned char* out, std::size_t& written,
                  std::string& error) {
  // Locals, not `written` and `text`: a store through `out` (a char pointer) could alias
  // them and would force the compiler to reload them for every byte.
  const char* chars = text.data();
  const std::size_t size = text.size();
  std::size_t bytes = 0, i = 0;
  while (i < size) {
    const int high = classOf(chars[i]);
    if (high == kSeparator) {
      ++i;
      continue;
    }
    const int low = i + 1 < size ? classOf(chars[i + 1]) : kSeparator;
    if ((high | low) & ~0xf) { // not two digits
      written = bytes;
      error = pairProblem(text, i, high, low);
      return false;
    }
    out[bytes++] = static_cast<unsigned char>(high << 4 | low);
    i += 2;
  }
  written = bytes;
  return true;
}

std::optional<std::vector<unsigned char>> parseHex(std::string_view text, std::string& error) {
  std::vector<unsigned char> bytes(maxHexBytes(text));
  std::size_t written = 0;
  if (!parseHexInto(text, bytes.data(), written, error)) return std::nullopt;
  bytes.resize(written);
  return bytes;
}

} // namespace Orvane::ovfmt
