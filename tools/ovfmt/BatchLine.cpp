#include "tools/ovfmt/BatchLine.h"

namespace Orvane::ovfmt {

std::optional<BatchLine> splitBatchLine(std::string_view line) {
  constexpr std::string_view kBlanks = " \t\r";
  const auto start = line.find_first_not_of(kBlanks);
  if (start == std::string_view::npos || line[start] == '#') return std::nullopt;
  const auto idEnd = line.find_first_of(kBlanks, start);
  BatchLine parts{line.substr(start, idEnd == std::string_view::npos ? idEnd : idEnd - start),
                  idEnd == std::string_view::npos ? std::string_view() : line.substr(idEnd)};
  if (!parts.hex.empty() && parts.hex.back() == '\r') parts.hex.remove_suffix(1);
  return parts;
}

} // namespace Orvane::ovfmt
