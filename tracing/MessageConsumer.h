// What a sink of this reader does with the messages a graph delivers: print them (the
// text sink), or anything a front end needs (a language binding turning events into its
// own values).
#pragma once

#include <babeltrace2/babeltrace.h>

namespace Orvane::tracing {

/// Receives every message the sink gets, in order, in batches.
class MessageConsumer {
public:
  virtual ~MessageConsumer() = default;
  /// Handles one message, borrowed for the call.
  virtual void consume(const bt_message* message) = 0;
  /// Called after each batch: may pass on what is pending. Returning false stops the
  /// graph with an error.
  virtual bool flush() = 0;
  /// Called when the graph ends, fails, waits for a live source or is torn down: passes
  /// on everything pending. Returning false stops the graph with an error.
  virtual bool finish() { return flush(); }
};

} // namespace Orvane::tracing
