// The parameters of the sink.orvane.text component: the request's parameters
// (tracing/TraceRequest.h) as babeltrace2 values.
#pragma once

#include "tracing/TraceRequest.h"

#include <babeltrace2/babeltrace.h>

#include <string>

namespace Orvane::tracing {

/// Reads `params` (a map, or null for none) into `request`: a flag takes a boolean, a
/// text a string, a list a string or an array of strings, a time a string or an integer
/// of nanoseconds from the origin. Returns a problem of one line, or "": a parameter the
/// request does not have is a problem, as in babeltrace2's own components.
[[nodiscard]] std::string readSinkParameters(const bt_value* params, TraceRequest& request);

} // namespace Orvane::tracing
