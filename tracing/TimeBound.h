// A bound of the time range a reader keeps: read from the forms users know from
// babeltrace2's --begin and --end, and from the nanoseconds JSON lines and Python give.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace Orvane::tracing {

/// One end of a time range. An absolute bound is nanoseconds from the clock's origin; a
/// date and time is one in the local time zone or in UTC, as the reader's clock options
/// say; a time of day ("22:13:21") names that time on the day of the trace's first
/// event, which is only known once the trace is read.
class TimeBound {
public:
  /// Reads `text`. The forms, tried in this order:
  /// - `[-]DIGITS` of more than 10 digits: nanoseconds from the origin
  ///   ("1700000001000001000");
  /// - `[-]SECONDS[.FRACTION]`, at most 10 digits of seconds and 9 of fraction: seconds
  ///   from the origin ("1700000001", "1700000001.5");
  /// - `YYYY-MM-DD HH:MM[:SS[.FRACTION]]`: a date and time ("2023-11-14 22:13:21.000001");
  /// - `HH:MM[:SS[.FRACTION]]`: a time of day.
  /// Returns nullopt, with `problem` set to one line, when `text` is none of them or
  /// lies outside the nanosecond range of a 64-bit integer.
  static std::optional<TimeBound> parse(std::string_view text, std::string& problem);

  /// An absolute bound of `ns` nanoseconds from the origin.
  static TimeBound nanoseconds(std::int64_t ns) { return TimeBound(Kind::Absolute, ns); }

  /// Whether this is a time of day, to be placed on the day of the first event.
  bool timeOfDay() const { return kind_ == Kind::TimeOfDay; }

  /// The nanoseconds from the origin. A date and time is read in the local time zone, or
  /// in UTC when `gmt`; a time of day is placed on the day that holds `firstEventNs`.
  std::int64_t resolve(std::int64_t firstEventNs, bool gmt) const;

  /// Whether this bound is certainly later than `other`: false when only the trace can
  /// tell (a time of day against another kind).
  bool after(const TimeBound& other, bool gmt) const;

private:
  enum class Kind { Absolute, Date, TimeOfDay };
  TimeBound(Kind kind, std::int64_t ns) : kind_(kind), ns_(ns) {}
  Kind kind_;
  /// From the origin; for a date, from the epoch as if in UTC; for a time of day, from
  /// midnight.
  std::int64_t ns_;
};

} // namespace Orvane::tracing
