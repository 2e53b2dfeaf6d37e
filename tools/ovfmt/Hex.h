// Parsing the HEX arguments of ovfmt.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::ovfmt {

/// The most bytes `text` can hold: one per two characters.
inline std::size_t maxHexBytes(std::string_view text) { return text.size() / 2; }

/// Parses pairs of hex digits into `out`, which must have room for maxHexBytes(text);
/// blanks, ':', '-' and '.' may stand between pairs (not inside one), so that a MAC
/// reads as 00:1c:73:aa:bb:cc, 00-1c-73-aa-bb-cc or 001c.73aa.bbcc. Sets `written` to
/// the bytes stored, also on failure. On failure returns false and sets `error` to what
/// is wrong and its column, counted from `firstColumn` for text[0] (where the text
/// starts in its line); a "0x" says to drop it.
bool parseHexInto(std::string_view text, unsigned char* out, std::size_t& written,
                  std::string& error, std::size_t firstColumn = 1);

/// parseHexInto() into a vector of its own; nullopt on failure.
std::optional<std::vector<unsigned char>> parseHex(std::string_view text, std::string& error);

} // namespace Orvane::ovfmt
