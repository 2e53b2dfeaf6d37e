// Another team's traced program: hits its tracepoint, whose probe measures the value
// with the installed plug-in's length function, and prints what that function says.
#define LTTNG_UST_TRACEPOINT_CREATE_PROBES
#define LTTNG_UST_TRACEPOINT_DEFINE
#include "ConsumerTracepoints.h"

#include <iostream>

int main() {
  const unsigned char prefix[] = {0x01, 20, 0x0a, 0x01, 0x10}; // "PGO" 10.1.16.0/20
  lttng_ust_tracepoint(consumer, route, prefix);
  std::cout << Orvane::Tracing::tracedSize<Orvane::lengthIpGenPrefixOptimized>(prefix) << "\n";
}
