// What a discarded-events or discarded-packets message says: every reader shows it, so it
// is read from the message in one place.
#pragma once

#include <babeltrace2/babeltrace.h>

#include <cstdint>
#include <string>
#include <string_view>

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

/// A count of lost events or packets as every reader words it: "7 events", "1 packet".
std::string lostCount(std::uint64_t count, bool packets);

/// What `record` says was lost: lostCount() of its count, or "some events" ("some
/// packets") when it says no count.
std::string lostText(const DiscardedRecord& record);

/// Appends where `record`'s loss happened: ` in stream ID of trace "NAME"`, the trace's
/// name escaped for a text line.
void appendLossPlace(std::string& out, const DiscardedRecord& record, std::string_view trace);

} // namespace Orvane::tracing
