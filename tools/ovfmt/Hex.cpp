#include "tools/ovfmt/Hex.h"

#include "registry/HexDigits.h"

namespace Orvane::ovfmt {
namespace {

int digitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool isSeparator(char c) { return c == ' ' || c == '\t' || c == ':'; }

std::string describe(char c) {
  const auto byte = static_cast<unsigned char>(c);
  if (byte >= 0x20 && byte < 0x7f) return std::string("'") + c + "'";
  char digits[2];
  writeHexByte(byte, digits);
  return "byte 0x" + std::string(digits, 2);
}

} // namespace

std::optional<std::vector<unsigned char>> parseHex(std::string_view text, std::string& error) {
  std::vector<unsigned char> bytes;
  std::size_t i = 0;
  while (i < text.size()) {
    if (isSeparator(text[i])) {
      ++i;
      continue;
    }
    const int high = digitValue(text[i]);
    if (high < 0) {
      error = "bad hex: " + describe(text[i]) + " at column " + std::to_string(i + 1);
      return std::nullopt;
    }
    const bool pairEnds = i + 1 == text.size() || isSeparator(text[i + 1]);
    const int low = pairEnds ? -1 : digitValue(text[i + 1]);
    if (!pairEnds && low < 0) {
      error = "bad hex: " + describe(text[i + 1]) + " at column " + std::to_string(i + 2);
      return std::nullopt;
    }
    if (low < 0) {
      error = "bad hex: odd number of digits at column " + std::to_string(i + 1) +
              " (bytes are pairs of hex digits)";
      return std::nullopt;
    }
    bytes.push_back(static_cast<unsigned char>(high << 4 | low));
    i += 2;
  }
  return bytes;
}

} // namespace Orvane::ovfmt
