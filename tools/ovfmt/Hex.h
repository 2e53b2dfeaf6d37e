// Parsing the HEX arguments of ovfmt.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::ovfmt {

/// Parses pairs of hex digits; blanks and ':' may stand between pairs (not inside one).
/// On failure returns nullopt and sets `error` to what is wrong and where.
std::optional<std::vector<unsigned char>> parseHex(std::string_view text, std::string& error);

} // namespace Orvane::ovfmt
