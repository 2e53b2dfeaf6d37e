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
// Literal text and the fields that have an append form (TextRun.h) gather into one
// insertion where that prints exactly what separate insertions would; a field printed
// by a format function on the stream (the host's base formatters) is an insertion of
// its own.
//
// Sums are unsigned 32-bit and wrap; a field after an invalid one (0xFFFFFFFF) is read
// where at() puts it, and the wrapped total is returned unrepaired.
#pragma once

#include "registry/Bytes.h"
#include "registry/Formatter.h"
#include "registry/TextRun.h"

#include <ostream>
#include <string_view>
#include <tuple>
#include <type_traits>

namespace Orvane {
namespace detail {

// Whether the run is inserted right after a literal followed by `Rest`: at the end, and
// before a field that prints on the stream itself.
template <class... Rest> constexpr bool flushesNext() {
  if constexpr (sizeof...(Rest) == 0)
    return true;
  else
    return std::is_convertible_v<const std::tuple_element_t<0, std::tuple<Rest...>>&, FormatPtr>;
}

template <class Part, class... Rest>
void formatParts(const unsigned char* p, TextRun& text, unsigned& off, const Part& part,
                 const Rest&... rest) {
  if constexpr (std::is_array_v<Part>) {
    const std::string_view literal(part, std::extent_v<Part> - 1);
    if constexpr (flushesNext<Rest...>())
      text.flushWith(literal);
    else
      text.join(literal);
  } else if constexpr (std::is_convertible_v<const Part&, AppendPtr>) {
    off += static_cast<AppendPtr>(part)(at(p, off), text);
  } else {
    off += static_cast<FormatPtr>(part)(at(p, off), text.flush());
  }
  if constexpr (sizeof...(Rest) > 0) formatParts(p, text, off, rest...);
}

inline void measurePart(const unsigned char* p, unsigned& off, LengthPtr field) {
  off += field(at(p, off));
}
inline void measurePart(const unsigned char*, unsigned& off, unsigned fixedSize) {
  off += fixedSize;
}

} // namespace detail

/// Prints `parts` in order: a string literal is written as it is, a format or append
/// function prints the field at the running offset and advances it. Returns the final
/// offset.
template <class... Parts>
unsigned formatFields(const unsigned char* p, std::ostream& os, const Parts&... parts) {
  unsigned off = 0;
  TextRun text(os);
  detail::formatParts(p, text, off, parts...);
  text.flush();
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
