// The sink component class that prints a trace's events with their typed fields decoded:
// its methods, for the babeltrace2 plug-in to declare, and the class itself, for a
// program that builds its own graph.
#pragma once

#include "tracing/MessageConsumer.h"
#include "tracing/TraceRequest.h"

#include <babeltrace2/babeltrace.h>

#include <cstddef>

namespace Orvane::tracing {

/// The component class's name in its plug-in (sink.orvane.text) and its descriptions.
inline constexpr const char* kTextSinkName = "text";
inline constexpr const char* kTextSinkDescription =
    "Print events as text or JSON lines, typed byte-array fields as their formatter's text.";
inline constexpr const char* kTextSinkHelp =
    "Parameters: format=\"text\"|\"json\"; begin, end (a time: nanoseconds, SECONDS[.NNN] "
    "or [YYYY-MM-DD ]HH:MM[:SS[.NNN]]); events=\"GLOB[,GLOB]\"; types=\"EVENT.FIELD=ID\" or "
    "an array of them; clock-seconds, clock-date, clock-gmt, no-delta (booleans). "
    "See /usr/share/doc/orvane/traces.md.";

/// What a program that builds its own graph hands the sink instead of parameters: the
/// consumer that gets every message kept, and the request whose events and range it keeps.
struct SinkSetup {
  MessageConsumer* consumer;
  const TraceRequest* request;
};

/// The component's methods. The sink prints (PrintingConsumer, as its parameters say)
/// unless the program that creates it passes a SinkSetup as the initialisation data of
/// bt_graph_add_sink_component_with_initialize_method_data(): then every message kept
/// goes to its consumer. The host registry must hold the formatters before initialize()
/// (the front end loads them).
bt_component_class_initialize_method_status
initializeTextSink(bt_self_component_sink* self, bt_self_component_sink_configuration* config,
                   const bt_value* params, void* initializeData);
void finalizeTextSink(bt_self_component_sink* self);
bt_component_class_sink_graph_is_configured_method_status
textSinkGraphIsConfigured(bt_self_component_sink* self);
bt_component_class_sink_consume_method_status consumeTextSink(bt_self_component_sink* self);

/// A new reference to a sink component class with the methods above, or null when out of
/// memory.
bt_component_class_sink* createTextSinkClass();

} // namespace Orvane::tracing
