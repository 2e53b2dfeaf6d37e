// Typed values in LTTng-UST tracepoints: ORVANE_FIELD for a provider's field list.
//
//   LTTNG_UST_TRACEPOINT_EVENT(speaker, route,
//       LTTNG_UST_TP_ARGS(const unsigned char*, hop),
//       LTTNG_UST_TP_FIELDS(ORVANE_FIELD(BNH, nexthop, hop)))
//
// records the field `nexthop__BNH`: a sequence of uint8_t holding the value's bytes, as
// many as the id's length function reports, after the uint16_t length field LTTng-UST
// puts in front of every sequence (`_nexthop__BNH_length`). Readers show it as `nexthop`,
// printed by the id's formatter (docs/traces.md).
//
// The contract:
//   * The provider (the source file that defines LTTNG_UST_TRACEPOINT_CREATE_PROBES and
//     includes the tracepoint header) compiles as C++20 and links
//     Orvane::KaMessageFormatter, whose length functions the probe calls, and lttng-ust.
//   * The id is looked up when the provider compiles: an id the plug-in does not supply
//     does not compile, and the probe calls its length function directly.
//   * VALUE points to a whole value, as for any length function: at least as many
//     readable bytes as the length function reports. A null pointer records an empty
//     value. VALUE is evaluated more than once: pass a plain pointer.
//   * The length function runs once per recorded event: LTTng-UST evaluates a sequence's
//     length expression while it sizes the event, keeps the result, and writes the length
//     field and the bytes from that kept count. An event with a filter, or a trigger that
//     captures fields, evaluates it once more before the filter runs.
//   * A value whose length function reports kInvalidLength, or more than
//     kMaxTracedValueSize bytes, is recorded empty. No id encodes a value in zero bytes,
//     so readers report an empty typed value as invalid; a trace never copies more than
//     kMaxTracedValueSize bytes for one value, whatever the bytes say.
#pragma once

#include "registry/Formatter.h"
#include "registry/IdTable.h"

#include <cstdint>
#include <limits>

namespace Orvane::Tracing {

/// The most bytes one typed field records: what its uint16_t length field can say. The
/// largest value any registered id encodes is a few KiB.
inline constexpr unsigned kMaxTracedValueSize = std::numeric_limits<std::uint16_t>::max();

/// The number of bytes to record for the value at `value`: what `length` reports, or 0
/// for a null pointer, an invalid encoding or a size above kMaxTracedValueSize.
template <LengthPtr length> inline std::uint16_t tracedSize(const void* value) {
  if (value == nullptr) return 0;
  const unsigned size = length(static_cast<const unsigned char*>(value));
  return size > kMaxTracedValueSize ? 0 : static_cast<std::uint16_t>(size);
}

} // namespace Orvane::Tracing

/// A field named FIELD holding the bytes at VALUE, as many as tracedSize<LENGTH> gives.
/// ORVANE_FIELD names the field and finds LENGTH from the id; this form serves a length
/// function of one's own.
#define ORVANE_FIELD_WITH_LENGTH(FIELD, VALUE, LENGTH)                                             \
  lttng_ust_field_sequence(uint8_t, FIELD, (VALUE), uint16_t,                                      \
                           ::Orvane::Tracing::tracedSize<LENGTH>(VALUE))

/// The typed field NAME__ID holding the value of type id ID at VALUE (see above).
#define ORVANE_FIELD(ID, NAME, VALUE)                                                              \
  ORVANE_FIELD_WITH_LENGTH(NAME##__##ID, VALUE, ::Orvane::idEntry(#ID).length)
