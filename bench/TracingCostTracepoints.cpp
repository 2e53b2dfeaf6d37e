// The probe and the tracepoint of orvane_bench:constant; the example's
// SpeakerTracepoints.cpp, built into the same program, brings bench_route's.
#define LTTNG_UST_TRACEPOINT_CREATE_PROBES
#define LTTNG_UST_TRACEPOINT_DEFINE
#include "TracingCostTracepoints.h"
