#include "tools/ovfmt/Hex.h"

#include "registry/HexDigits.h"

#include <array>
#include <cstdint>

namespace Orvane::ovfmt {
namespace {

// What each character is: a digit's value, a separator, or neither. kLow holds the value
// as the low half of a byte and kHigh as the high half, so that a pair of characters is
// a byte after one OR, and one test says whether both were digits.
constexpr std::uint16_t kNotHex = 0x100, kSeparator = 0x200;
constexpr std::array<std::uint16_t, 256> charTable(int shift) {
  std::array<std::uint16_t, 256> values{};
  values.fill(kNotHex);
  auto digits = [&](char first, char last, int value) {
    for (int c = first; c <= last; ++c) values[c] = static_cast<std::uint16_t>(value++ << shift);
  };
  digits('0', '9', 0);
  digits('a', 'f', 10);
  digits('A', 'F', 10);
  for (char c : {' ', '\t', ':', '-', '.'}) values[static_cast<unsigned char>(c)] = kSeparator;
  return values;
}
constexpr auto kLow = charTable(0), kHigh = charTable(4);

unsigned classOf(char c) { return kLow[static_cast<unsigned char>(c)]; }
unsigned highOf(char c) { return kHigh[static_cast<unsigned char>(c)]; }

std::string describe(char c) {
  const auto byte = static_cast<unsigned char>(c);
  if (byte >= 0x20 && byte < 0x7f) return std::string("'") + c + "'";
  char digits[2];
  writeHexByte(byte, digits);
  return "byte 0x" + std::string(digits, 2);
}

std::string badCharacter(char c, std::size_t column) {
  return "bad hex: " + describe(c) + " at column " + std::to_string(column);
}

// What is wrong with the pair at `i` whose character classes are `high` and `low`; text[0]
// is at `firstColumn`.
std::string pairProblem(std::string_view text, std::size_t i, unsigned high, unsigned low,
                        std::size_t firstColumn) {
  const std::size_t column = firstColumn + i;
  if (high == kNotHex) return badCharacter(text[i], column);
  if (low == kSeparator)
    return "bad hex: odd number of digits at column " + std::to_string(column) +
           " (bytes are pairs of hex digits)";
  if (text[i] == '0' && (text[i + 1] == 'x' || text[i + 1] == 'X'))
    return badCharacter(text[i + 1], column + 1) + " (drop the 0x: bytes are pairs of hex digits)";
  return badCharacter(text[i + 1], column + 1);
}

} // namespace

bool parseHexInto(std::string_view text, unsigned char* out, std::size_t& written,
                  std::string& error, std::size_t firstColumn) {
  // Locals, not `written` and `text`: a store through `out` (a char pointer) could alias
  // them and would force the compiler to reload them for every byte.
  const char* chars = text.data();
  const std::size_t size = text.size();
  std::size_t bytes = 0, i = 0;
  while (i < size) {
    // The usual shape, a pair and one separator ("0a 01 ..."), a byte per step. It reads
    // exactly what the general step below would, so it ends where that one would be.
    for (; i + 2 < size; i += 3) {
      const unsigned byte = highOf(chars[i]) | classOf(chars[i + 1]);
      if (byte >= kNotHex || classOf(chars[i + 2]) != kSeparator) break;
      out[bytes++] = static_cast<unsigned char>(byte);
    }
    if (i == size) break;
    const unsigned high = classOf(chars[i]);
    if (high == kSeparator) {
      ++i;
      continue;
    }
    const unsigned low = i + 1 < size ? classOf(chars[i + 1]) : kSeparator;
    if ((high | low) & ~0xfu) { // not two digits
      written = bytes;
      error = pairProblem(text, i, high, low, firstColumn);
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
