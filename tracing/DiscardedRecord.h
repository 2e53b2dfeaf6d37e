// What a discarded-events or discarded-packets message says: every reader shows it, so it
// is read from the message in one place.
#pragma once

#include <babeltrace2/babeltrace.h>

#include <cstdint>

namespace Orvane::tracing {

/// The events or packets a tracer lost in one stream, between two times.
struct DiscardedRecord {
  bool packets = false; ///< packets rather than events
  const bt_stream* stream = nullptr;
  bool hasCount = false;
  std::uint64_t count = 0;
  const bt_clock_snapshot* begin = nullptr; ///< null when the stream's records have no times
  const bt_clock_snapshot* end = nullptr;
};

/// The record `message` carries; `message` is a discarded-events or discarded-packets
/// message.
DiscardedRecord discardedRecordOf(const bt_message* message);

} // namespace Orvane::tracing
