// The timestamp and delta at the start of a text line, with the clock options users know
// from babeltrace2's text output.
#pragma once

#include <cstdint>
#include <ctime>
#include <string>

namespace Orvane::tracing {

/// How the text layout shows time.
struct ClockOptions {
  bool seconds = false; ///< seconds from the origin, "[1700000000.000000001]"
  bool date = false;    ///< the date before the time of day, "[2023-11-14 22:13:20...]"
  bool gmt = false;     ///< UTC instead of the local time zone
  bool delta = true;    ///< the time since the event before, "(+0.000001000)"
};

/// Prints "[TIME] (+DELTA) " for event after event. The time of day is worked out once
/// per second, not per event.
class TimestampPrinter {
public:
  explicit TimestampPrinter(ClockOptions options) : options_(options) {}

  /// Appends the timestamp of an event at `ns` nanoseconds from the clock's origin, and
  /// the delta from the event before (question marks for the first).
  void append(std::string& out, std::int64_t ns);

private:
  void appendTime(std::string& out, std::int64_t seconds, std::uint64_t fraction);
  void appendDelta(std::string& out, std::int64_t ns);

  ClockOptions options_;
  bool hasLast_ = false;
  std::int64_t lastNs_ = 0;
  std::int64_t cachedSecond_ = 0;
  std::string cachedText_; ///< what appendTime() printed for cachedSecond_, empty when none
};

} // namespace Orvane::tracing
