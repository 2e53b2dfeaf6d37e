// "did you mean PGO?": the known ids nearest to one that is not known.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace Orvane::ovfmt {

/// The ids of `known` nearest to `id`, ignoring case, joined by " or ": those that differ
/// from it in case only, else those one edit away (two for an id of five characters or
/// more), at most three, in the order of `known`. Empty when none is that near.
std::string nearestIds(std::string_view id, const std::vector<std::string>& known);

} // namespace Orvane::ovfmt
