#include "tools/ovfmt/BatchLine.h"

namespace Orvane::ovfmt {
namespace {

// Plain tests rather than find_first_of(" \t\r"), which searches the set once per
// character: this runs for every line of a trace.
bool isBlank(char c) { return c == ' ' || c == '\t' || c == '\r'; }

} // namespace

std::optional<BatchLine> splitBatchLine(std::string_view line) {
  std::size_t start = 0;
  while (start < line.size() && isBlank(line[start])) ++start;
  if (start == line.size() || line[start] == '#') return std::nullopt;
  std::size_t idEnd = start;
  while (idEnd < line.size() && !isBlank(line[idEnd])) ++idEnd;
  BatchLine parts{line.substr(start, idEnd - start), line.substr(idEnd)};
  if (!parts.hex.empty() && parts.hex.back() == '\r') parts.hex.remove_suffix(1);
  return parts;
}

} // namespace Orvane::ovfmt
