// Splitting one line of a batch file ("ID HEX...") into its id and its hex.
#pragma once

#include <optional>
#include <string_view>

namespace Orvane::ovfmt {

/// The two parts of a value line; both view the line they came from.
struct BatchLine {
  std::string_view id;
  std::string_view hex; ///< everything after the id, a trailing '\r' dropped
};

/// Splits `line` at the first blank after the id. Returns nullopt for a blank line or a
/// '#' comment, which carry no value.
std::optional<BatchLine> splitBatchLine(std::string_view line);

} // namespace Orvane::ovfmt
