// Another team's tracepoint provider: one event with a typed field.
#undef LTTNG_UST_TRACEPOINT_PROVIDER
#define LTTNG_UST_TRACEPOINT_PROVIDER consumer

#undef LTTNG_UST_TRACEPOINT_INCLUDE
#define LTTNG_UST_TRACEPOINT_INCLUDE "ConsumerTracepoints.h"

#if !defined(CONSUMER_TRACEPOINTS_H) || defined(LTTNG_UST_TRACEPOINT_HEADER_MULTI_READ)
#define CONSUMER_TRACEPOINTS_H

#include "tracing/TypedField.h"

#include <lttng/tracepoint.h>

LTTNG_UST_TRACEPOINT_EVENT(consumer, route, LTTNG_UST_TP_ARGS(const unsigned char*, prefix),
                           LTTNG_UST_TP_FIELDS(ORVANE_FIELD(PGO, prefix, prefix)))

#endif // CONSUMER_TRACEPOINTS_H

#include <lttng/tracepoint-event.h>
