// The per-id reference, generated from the id table and the composites' tables.
//
// For one id: what the value holds; its bytes, from the tables its functions use: for
// a key written as a table, its fields in order with their offsets (while the fields
// before have fixed sizes) and sizes, and for a value with a layout (ValueLayout.h) its
// parts and the codes that pick what it prints; how its size is found; and its example
// with the text that formatting the example prints, all as Markdown:
//
//   $ ovfmt --describe MVP
//   ### MVP: MAC and VLAN
//   | Offset | Text before | Field | Size in bytes |
//   ...
//   Example: `MVP 00 1c 73 a1 b2 c3 0a 00` prints `[001c.73a1.b2c3,10]`
//
// docs/ids.md is every id's reference, in the id table's families.
#pragma once

#include "registry/Export.h"

#include <ostream>

namespace Orvane {

/// Writes the reference of the type id `id` on `os` and returns true; for an id the
/// plug-in does not supply (or a null pointer), writes nothing and returns false. The
/// example's text is formatted afresh, on a stream in a new stream's state.
ORVANE_API bool describeId(const char* id, std::ostream& os);

} // namespace Orvane
