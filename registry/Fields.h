// Walking the fields of a composite value.
//
// A composite key is a frame of literal text around fields printed by existing
// formatters. Each field starts at the running sum of the counts the earlier fields
// returned, and the composite returns the final sum. formatFields() and measureFields()
// do that walk so keys are written as a list instead of hand-rolled offset sums:
//
//   unsigned formatRibViaKey(const unsigned char* p, std::ostream& os) {
//     return formatFields(p, os, "(id:", formatU64, ", vrfId:", formatU32, ...);
//   }
//
// Sums are unsigned 32-bit and wrap; a field after an invalid one (0xFFFFFFFF) is read
// where at() puts it, and the wrapped total is returned unrepaired.
#pragma once

#include "registry/Bytes.h"
#include "registry/Formatter.h"

#include <ostream>

namespace Orvane {
namespace detail {

inline void formatPart(const unsigned char*, std::ostream& os, unsigned&, const char* text) {
  os << text;
}
inline void formatPart(const unsigned char* p, std::ostream& os, unsigned& off, FormatPtr field) {
  off += field(at(p, off), os);
}
inline void measurePart(const unsigned char* p, unsigned& off, LengthPtr field) {
  off += field(at(p, off));
}
inline void measurePart(const unsigned char*, unsigned& off, unsigned fixedSize) {
  off += fixedSize;
}

} // namespace detail

/// Prints `parts` in order: a `const char*` is written as it is, a format function
/// prints the field at the running offset and advances it. Returns the final offset.
template <class... Parts>
unsigned formatFields(const unsigned char* p, std::ostream& os, const Parts&... parts) {
  unsigned off = 0;
  (detail::formatPart(p, os, off, parts), ...);
  return off;
}

/// Sums `parts` in order: a length function measures the field at the running offset,
/// an unsigned is a fixed field size. Returns the total.
template <class... Parts> unsigned measureFields(const unsigned char* p, const Parts&... parts) {
  unsigned off = 0;
  (detail::measurePart(p, off, parts), ...);
  return off;
}

} // namespace Orvane
