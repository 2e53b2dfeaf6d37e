// ovfmt --describe ID: the per-id reference, from the loaded plug-ins.
#pragma once

#include <ostream>
#include <string>

namespace Orvane::ovfmt {

/// Writes the reference of `id` on `out`, as the first loaded plug-in that describes
/// ids and supplies `id` gives it. Returns the exit status: 0 when written, 1 (with a
/// line on `err`) when no loaded plug-in describes `id`.
int describe(const std::string& id, std::ostream& out, std::ostream& err);

} // namespace Orvane::ovfmt
