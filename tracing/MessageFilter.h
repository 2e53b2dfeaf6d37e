// Which messages a reader passes on: the events whose names match the request's globs,
// within its time range, and the discarded-event and -packet records that touch it.
#pragma once

#include "tracing/TraceRequest.h"

#include <babeltrace2/babeltrace.h>

#include <cstdint>
#include <limits>
#include <unordered_map>

namespace Orvane::tracing {

/// Decides message by message what a reader keeps. Whether an event's name matches is
/// decided once per event class, not per event.
class MessageFilter {
public:
  /// Keeps what `request` asks for: its event globs, its begin and end (a time of day is
  /// placed on the day of the first message that has a time).
  explicit MessageFilter(const TraceRequest& request);

  /// Whether `message` is kept. Messages that show nothing (stream and packet beginnings
  /// and ends, inactivity) are kept; they carry no event.
  bool keeps(const bt_message* message);

private:
  bool keepsClass(const bt_event_class* eventClass);
  /// Whether the span from `begin` to `end` touches the range; a missing time does.
  bool touchesRange(const bt_clock_snapshot* begin, const bt_clock_snapshot* end);
  void resolveRange(std::int64_t firstNs);

  std::vector<std::string> globs_;
  std::unordered_map<const bt_event_class*, bool> classes_;
  std::optional<TimeBound> begin_, end_;
  bool gmt_;
  bool resolved_ = false;
  std::int64_t beginNs_ = std::numeric_limits<std::int64_t>::min();
  std::int64_t endNs_ = std::numeric_limits<std::int64_t>::max();
};

} // namespace Orvane::tracing
