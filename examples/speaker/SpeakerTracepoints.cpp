// The probes of the speaker's tracepoints, built into the program itself.
#define LTTNG_UST_TRACEPOINT_CREATE_PROBES
#define LTTNG_UST_TRACEPOINT_DEFINE
#include "speaker/SpeakerTracepoints.h"
