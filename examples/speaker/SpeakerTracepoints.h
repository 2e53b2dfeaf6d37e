// The simulated BGP speaker's tracepoints (provider orvane_speaker). Every typed value
// is an ORVANE_FIELD, so the trace holds each value's bytes under NAME__ID; `router`
// names the speaker, so that traces of a fleet can be told apart once merged.
#undef LTTNG_UST_TRACEPOINT_PROVIDER
#define LTTNG_UST_TRACEPOINT_PROVIDER orvane_speaker

#undef LTTNG_UST_TRACEPOINT_INCLUDE
#define LTTNG_UST_TRACEPOINT_INCLUDE "speaker/SpeakerTracepoints.h"

#if !defined(ORVANE_SPEAKER_TRACEPOINTS_H) || defined(LTTNG_UST_TRACEPOINT_HEADER_MULTI_READ)
#define ORVANE_SPEAKER_TRACEPOINTS_H

#include "tracing/TypedField.h"

#include <lttng/tracepoint.h>

// One field per line, as LTTng-UST lays field lists out.
// clang-format off
/// A session came up: the peer's key, its addresses and MAC, its AS.
LTTNG_UST_TRACEPOINT_EVENT(orvane_speaker, peer_up,
  LTTNG_UST_TP_ARGS(const char*, router, const unsigned char*, peer, const unsigned char*,
                    address, const unsigned char*, address6, const unsigned char*, mac,
                    uint32_t, peer_as),
  LTTNG_UST_TP_FIELDS(lttng_ust_field_string(router, router)
                      ORVANE_FIELD(BPK, peer, peer)
                      ORVANE_FIELD(I, address, address)
                      ORVANE_FIELD(I6, address6, address6)
                      ORVANE_FIELD(E, mac, mac)
                      lttng_ust_field_integer(uint32_t, peer_as, peer_as)))

/// A VPN route learnt from a peer: route key, prefix, AS path, next hop, label, RD.
LTTNG_UST_TRACEPOINT_EVENT(orvane_speaker, route_update,
  LTTNG_UST_TP_ARGS(const char*, router, const unsigned char*, route, const unsigned char*,
                    prefix, const unsigned char*, as_path, const unsigned char*, nexthop,
                    const unsigned char*, label, const unsigned char*, rd),
  LTTNG_UST_TP_FIELDS(lttng_ust_field_string(router, router)
                      ORVANE_FIELD(BRY, route, route)
                      ORVANE_FIELD(PGO, prefix, prefix)
                      ORVANE_FIELD(US, as_path, as_path)
                      ORVANE_FIELD(BNH, nexthop, nexthop)
                      ORVANE_FIELD(ML, label, label)
                      ORVANE_FIELD(RD, rd, rd)))

/// A unicast route withdrawn, with an IPv6 prefix of the same peer withdrawn alongside.
LTTNG_UST_TRACEPOINT_EVENT(orvane_speaker, route_withdraw,
  LTTNG_UST_TP_ARGS(const char*, router, const unsigned char*, route, const unsigned char*,
                    prefix6),
  LTTNG_UST_TP_FIELDS(lttng_ust_field_string(router, router)
                      ORVANE_FIELD(BRK, route, route)
                      ORVANE_FIELD(PG, prefix6, prefix6)))

/// A label operation programmed for a prefix.
LTTNG_UST_TRACEPOINT_EVENT(orvane_speaker, label_program,
  LTTNG_UST_TP_ARGS(const char*, router, const unsigned char*, prefix, const unsigned char*,
                    operation),
  LTTNG_UST_TP_FIELDS(lttng_ust_field_string(router, router)
                      ORVANE_FIELD(PGO, prefix, prefix)
                      ORVANE_FIELD(LO, operation, operation)))

/// An EVPN MAC/IP route with its layer-2 attributes.
LTTNG_UST_TRACEPOINT_EVENT(orvane_speaker, evpn_mac,
  LTTNG_UST_TP_ARGS(const char*, router, const unsigned char*, route, const unsigned char*,
                    attributes, const unsigned char*, mac),
  LTTNG_UST_TP_FIELDS(lttng_ust_field_string(router, router)
                      ORVANE_FIELD(BRY, route, route)
                      ORVANE_FIELD(EL2, attributes, attributes)
                      ORVANE_FIELD(E, mac, mac)))

/// A packet received from a peer.
LTTNG_UST_TRACEPOINT_EVENT(orvane_speaker, packet_in,
  LTTNG_UST_TP_ARGS(const char*, router, const unsigned char*, peer, const unsigned char*,
                    packet, uint32_t, size),
  LTTNG_UST_TP_FIELDS(lttng_ust_field_string(router, router)
                      ORVANE_FIELD(BPK, peer, peer)
                      ORVANE_FIELD(PKT, packet, packet)
                      lttng_ust_field_integer(uint32_t, size, size)))

/// The bench mode's event: three typed fields and a sequence number.
LTTNG_UST_TRACEPOINT_EVENT(orvane_speaker, bench_route,
  LTTNG_UST_TP_ARGS(const unsigned char*, prefix, const unsigned char*, peer,
                    const unsigned char*, nexthop, uint64_t, sequence),
  LTTNG_UST_TP_FIELDS(ORVANE_FIELD(PGO, prefix, prefix)
                      ORVANE_FIELD(BPK, peer, peer)
                      ORVANE_FIELD(BNH, nexthop, nexthop)
                      lttng_ust_field_integer(uint64_t, sequence, sequence)))
// clang-format on

#endif // ORVANE_SPEAKER_TRACEPOINTS_H

#include <lttng/tracepoint-event.h>
