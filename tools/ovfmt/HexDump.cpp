#include "tools/ovfmt/HexDump.h"

#include "tools/ovfmt/Hex.h"

#include <cctype>
#include <charconv>
#include <optional>

namespace Orvane::ovfmt {
namespace {

// One line of a dump: its offset and where its bytes are written.
struct DumpLine {
  std::size_t offset = 0;
  std::string_view hex;
  std::size_t hexColumn = 1; ///< where `hex` starts in the line
};

// Splits `line` into its offset and its hex; nullopt when it starts with no offset.
std::optional<DumpLine> splitDumpLine(std::string_view line, std::string& error) {
  std::size_t digits = 0;
  while (digits < line.size() && std::isxdigit(static_cast<unsigned char>(line[digits]))) ++digits;
  DumpLine split;
  const auto failed = std::from_chars(line.data(), line.data() + digits, split.offset, 16).ec;
  const bool xxd = digits < line.size() && line[digits] == ':';
  if (digits == 0 || failed != std::errc() ||
      (!xxd && digits < line.size() && line[digits] != ' ')) {
    error = "not a line of xxd, hexdump -C or od -A x -t x1 (an offset in hex first)";
    return std::nullopt;
  }
  const std::size_t start = digits + xxd;
  // The text column: after two blanks in xxd's lines, between bars in hexdump -C's.
  const std::size_t textColumn = line.find(xxd ? "  " : "|", start);
  split.hex =
      line.substr(start, textColumn == std::string_view::npos ? textColumn : textColumn - start);
  split.hexColumn = start + 1;
  return split;
}

std::string hexNumber(std::size_t n) {
  char digits[20];
  const auto end = std::to_chars(digits, digits + sizeof digits, n, 16).ptr;
  return "0x" + std::string(digits, end);
}

// Repeats `previous` after `bytes` up to `offset`, for the "*" line before it.
bool repeatUpTo(std::size_t offset, const std::vector<unsigned char>& previous,
                std::vector<unsigned char>& bytes) {
  if (previous.empty() || offset < bytes.size() || (offset - bytes.size()) % previous.size())
    return false;
  while (bytes.size() < offset) bytes.insert(bytes.end(), previous.begin(), previous.end());
  return true;
}

} // namespace

bool readHexDump(std::string_view dump, std::vector<unsigned char>& bytes, std::string& error) {
  std::vector<unsigned char> previous;
  bool repeat = false;
  std::size_t number = 0;
  auto failAt = [&](const std::string& problem) {
    error = "line " + std::to_string(number) + ": " + problem;
    return false;
  };
  for (std::size_t from = 0; from < dump.size();) {
    const std::size_t newline = dump.find('\n', from);
    std::string_view line = dump.substr(from, newline - from);
    from = newline == std::string_view::npos ? dump.size() : newline + 1;
    ++number;
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line.find_first_not_of(' ') == std::string_view::npos) continue;
    if (line == "*") {
      repeat = true;
      continue;
    }
    std::string problem;
    const auto split = splitDumpLine(line, problem);
    if (!split) return failAt(problem);
    if (repeat && !repeatUpTo(split->offset, previous, bytes))
      return failAt("the copies '*' stands for do not end at this line's offset");
    repeat = false;
    if (split->offset != bytes.size())
      return failAt("offset " + hexNumber(split->offset) + " where the bytes before end at " +
                    hexNumber(bytes.size()));
    previous.resize(maxHexBytes(split->hex));
    std::size_t written = 0;
    if (!parseHexInto(split->hex, previous.data(), written, problem, split->hexColumn))
      return failAt(problem);
    previous.resize(written);
    bytes.insert(bytes.end(), previous.begin(), previous.end());
  }
  if (repeat) return failAt("'*' with no offset after it");
  return true;
}

} // namespace Orvane::ovfmt
