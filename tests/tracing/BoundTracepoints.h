// A tracepoint for the typed-field bound test: a field whose length function reads the
// size from the value's first four bytes, so the test can ask for any size, and two
// typed fields of real ids.
#undef LTTNG_UST_TRACEPOINT_PROVIDER
#define LTTNG_UST_TRACEPOINT_PROVIDER orvane_test

#undef LTTNG_UST_TRACEPOINT_INCLUDE
#define LTTNG_UST_TRACEPOINT_INCLUDE "BoundTracepoints.h"

#ifndef ORVANE_STATED_SIZE_H
#define ORVANE_STATED_SIZE_H
#include <cstdint>
#include <cstring>

/// How many times statedSize ran: once per recorded event, if the probe keeps its word.
inline unsigned statedSizeCalls = 0;

/// The size a value states in its first four bytes (native u32), whatever it is.
inline unsigned statedSize(const unsigned char* value) {
  ++statedSizeCalls;
  std::uint32_t size;
  std::memcpy(&size, value, sizeof size);
  return size;
}
#endif // ORVANE_STATED_SIZE_H

#if !defined(ORVANE_BOUND_TRACEPOINTS_H) || defined(LTTNG_UST_TRACEPOINT_HEADER_MULTI_READ)
#define ORVANE_BOUND_TRACEPOINTS_H

#include "tracing/TypedField.h"

#include <lttng/tracepoint.h>

// clang-format off
LTTNG_UST_TRACEPOINT_EVENT(orvane_test, value,
  LTTNG_UST_TP_ARGS(const unsigned char*, stated, const unsigned char*, operation,
                    const unsigned char*, prefix),
  LTTNG_UST_TP_FIELDS(ORVANE_FIELD_WITH_LENGTH(stated, stated, statedSize)
                      ORVANE_FIELD(LO, operation, operation)
                      ORVANE_FIELD(PGO, prefix, prefix)))
// clang-format on

#endif // ORVANE_BOUND_TRACEPOINTS_H

#include <lttng/tracepoint-event.h>
