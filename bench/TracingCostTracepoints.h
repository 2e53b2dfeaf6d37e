// The tracepoint tracing_cost_bench compares with the example's bench_route: the same
// fields under the same names, with lengths known when it compiles instead of
// ORVANE_FIELD's length functions.
#undef LTTNG_UST_TRACEPOINT_PROVIDER
#define LTTNG_UST_TRACEPOINT_PROVIDER orvane_bench

#undef LTTNG_UST_TRACEPOINT_INCLUDE
#define LTTNG_UST_TRACEPOINT_INCLUDE "TracingCostTracepoints.h"

#ifndef ORVANE_TRACING_COST_SIZES_H
#define ORVANE_TRACING_COST_SIZES_H
#include <cstdint>

/// The sizes of the benchmark's values: "PGO" 10.1.16.0/20, "BPK" 10.0.0.1%et1 and
/// "BNH" <ip:10.0.0.1, routerMac:001c.73aa.bbcc> (L3-vrfId:2).
enum : std::uint16_t { kPrefixSize = 5, kPeerSize = 10, kNextHopSize = 16 };
#endif // ORVANE_TRACING_COST_SIZES_H

#if !defined(ORVANE_TRACING_COST_TRACEPOINTS_H) || defined(LTTNG_UST_TRACEPOINT_HEADER_MULTI_READ)
#define ORVANE_TRACING_COST_TRACEPOINTS_H

#include <lttng/tracepoint.h>

// clang-format off
LTTNG_UST_TRACEPOINT_EVENT(orvane_bench, constant,
  LTTNG_UST_TP_ARGS(const unsigned char*, prefix, const unsigned char*, peer,
                    const unsigned char*, nexthop, uint64_t, sequence),
  LTTNG_UST_TP_FIELDS(lttng_ust_field_sequence(uint8_t, prefix__PGO, prefix, uint16_t, kPrefixSize)
                      lttng_ust_field_sequence(uint8_t, peer__BPK, peer, uint16_t, kPeerSize)
                      lttng_ust_field_sequence(uint8_t, nexthop__BNH, nexthop, uint16_t, kNextHopSize)
                      lttng_ust_field_integer(uint64_t, sequence, sequence)))
// clang-format on

#endif // ORVANE_TRACING_COST_TRACEPOINTS_H

#include <lttng/tracepoint-event.h>
