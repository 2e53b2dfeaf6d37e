// A pass-through filter between a source's stream and the muxer that keeps a damaged
// stream from stopping the others. It takes the error a source may leave on the thread
// while it says all went well (libbabeltrace2's CTF reader does so when it stops a
// damaged stream part-way; left there, the next call into the library from any other
// stream aborts the process), and it ends a stream whose reading fails rather than fail
// the graph. Each error is handed to the graph's owner, who reports it.
#pragma once

#include <babeltrace2/babeltrace.h>

#include <functional>

namespace Orvane::tracing {

/// Receives each error a guard took, to report; the error is released after the call.
using ErrorListener = std::function<void(const bt_error* error)>;

/// A new reference to the guard's filter component class ("in" to "out", every message
/// passed on as it is), or null when out of memory. Each component's initialisation
/// data is the ErrorListener it calls, which must outlive the graph.
bt_component_class_filter* createErrorGuardClass();

} // namespace Orvane::tracing
