#include "tracing/TimeBound.h"

#include <charconv>
#include <ctime>

namespace Orvane::tracing {
namespace {

constexpr std::int64_t kNsPerSecond = 1000000000;
constexpr std::size_t kMaxSecondDigits = 10;

/// Reads the text of a time from left to right.
class Cursor {
public:
  explicit Cursor(std::string_view text) : text_(text) {}

  bool atEnd() const { return at_ == text_.size(); }
  bool take(char c) {
    if (atEnd() || text_[at_] != c) return false;
    ++at_;
    return true;
  }
  /// The digits from here (at least one), as a number; false when there are none.
  bool digits(std::int64_t& value, std::size_t& count) {
    const char* begin = text_.data() + at_;
    const auto [end, error] = std::from_chars(begin, text_.data() + text_.size(), value);
    count = static_cast<std::size_t>(end - begin);
    at_ += count;
    overflow_ = overflow_ || error == std::errc::result_out_of_range;
    return count > 0 && error == std::errc();
  }
  /// Exactly `count` digits as a number in [0, limit).
  bool field(std::size_t count, int limit, int& value) {
    std::int64_t read = 0;
    std::size_t got = 0;
    if (!digits(read, got) || got != count || read >= limit) return false;
    value = static_cast<int>(read);
    return true;
  }
  /// "." and 1 to 9 digits, as nanoseconds; 0 when there is no ".".
  bool fraction(std::int64_t& ns) {
    ns = 0;
    if (!take('.')) return true;
    std::size_t count = 0;
    if (!digits(ns, count) || count > 9) return false;
    for (; count < 9; ++count) ns *= 10;
    return true;
  }
  bool overflow() const { return overflow_; }
  /// Notes that a number read lies outside what nanoseconds in 64 bits can hold.
  void overflowed() { overflow_ = true; }

private:
  std::string_view text_;
  std::size_t at_ = 0;
  bool overflow_ = false;
};

/// `seconds` and `fraction` as nanoseconds, negated when `negative`; false, noted in
/// `in`, when that does not fit.
bool combine(Cursor& in, std::int64_t seconds, std::int64_t fraction, bool negative,
             std::int64_t& ns) {
  if (__builtin_mul_overflow(seconds, kNsPerSecond, &ns) ||
      __builtin_add_overflow(ns, fraction, &ns)) {
    in.overflowed();
    return false;
  }
  if (negative) ns = -ns;
  return true;
}

/// HH:MM[:SS[.FRACTION]] as nanoseconds from midnight.
bool readTimeOfDay(Cursor& in, std::int64_t& ns) {
  int hours = 0, minutes = 0, seconds = 0;
  if (!in.field(2, 24, hours) || !in.take(':') || !in.field(2, 60, minutes)) return false;
  std::int64_t fraction = 0;
  if (in.take(':') && (!in.field(2, 60, seconds) || !in.fraction(fraction))) return false;
  return combine(in, hours * 3600 + minutes * 60 + seconds, fraction, false, ns);
}

/// The seconds from the epoch of the time `parts` names, read in UTC or local time.
std::time_t secondsOf(std::tm parts, bool gmt) {
  parts.tm_isdst = -1;
  return gmt ? timegm(&parts) : std::mktime(&parts);
}

/// YYYY-MM-DD HH:MM[:SS[.FRACTION]] as nanoseconds from the epoch, read in UTC.
bool dateAndTime(Cursor& in, std::int64_t& ns) {
  int year = 0, month = 0, day = 0;
  if (!in.field(4, 10000, year) || !in.take('-') || !in.field(2, 13, month) || !in.take('-') ||
      !in.field(2, 32, day) || month == 0 || day == 0 || !in.take(' '))
    return false;
  std::int64_t sinceMidnight = 0;
  if (!readTimeOfDay(in, sinceMidnight)) return false;
  std::tm parts{};
  parts.tm_year = year - 1900;
  parts.tm_mon = month - 1;
  parts.tm_mday = day;
  return combine(in, secondsOf(parts, true), sinceMidnight, false, ns);
}

/// [-]DIGITS[.FRACTION]: nanoseconds when more than 10 digits and no fraction, else seconds.
bool number(Cursor& in, std::int64_t& ns) {
  const bool negative = in.take('-');
  std::int64_t whole = 0, fraction = 0;
  std::size_t count = 0;
  if (!in.digits(whole, count)) return false;
  if (count > kMaxSecondDigits) {
    ns = negative ? -whole : whole;
    return in.atEnd();
  }
  return in.fraction(fraction) && in.atEnd() && combine(in, whole, fraction, negative, ns);
}

} // namespace

std::optional<TimeBound> TimeBound::parse(std::string_view text, std::string& problem) {
  std::int64_t ns = 0;
  const bool hasColon = text.find(':') != std::string_view::npos;
  const bool hasDate = text.find(' ') != std::string_view::npos;
  Cursor in(text);
  bool read = false;
  if (!hasColon)
    read = number(in, ns);
  else if (hasDate)
    read = dateAndTime(in, ns) && in.atEnd();
  else
    read = readTimeOfDay(in, ns) && in.atEnd();
  if (read)
    return TimeBound(!hasColon ? Kind::Absolute : hasDate ? Kind::Date : Kind::TimeOfDay, ns);
  const std::string quoted = "the time \"" + std::string(text) + "\"";
  problem = in.overflow() ? quoted + " is out of range: nanoseconds from the origin must fit "
                                     "in a signed 64-bit integer"
                          : "cannot read " + quoted +
                                ": give NANOSECONDS (more than 10 digits), SECONDS[.NNNNNNNNN] "
                                "or [YYYY-MM-DD ]HH:MM[:SS[.NNNNNNNNN]]";
  return std::nullopt;
}

std::int64_t TimeBound::resolve(std::int64_t firstEventNs, bool gmt) const {
  if (kind_ == Kind::Absolute || (kind_ == Kind::Date && gmt)) return ns_;
  std::tm parts{};
  if (kind_ == Kind::Date) { // the same date and time, read in the local time zone
    const std::time_t utc = static_cast<std::time_t>(ns_ / kNsPerSecond);
    if (!gmtime_r(&utc, &parts)) return ns_;
    return static_cast<std::int64_t>(secondsOf(parts, false)) * kNsPerSecond + ns_ % kNsPerSecond;
  }
  const std::time_t first = static_cast<std::time_t>(firstEventNs / kNsPerSecond);
  if (!(gmt ? gmtime_r(&first, &parts) : localtime_r(&first, &parts))) return ns_;
  parts.tm_hour = parts.tm_min = parts.tm_sec = 0;
  return static_cast<std::int64_t>(secondsOf(parts, gmt)) * kNsPerSecond + ns_;
}

bool TimeBound::after(const TimeBound& other, bool gmt) const {
  if (timeOfDay() != other.timeOfDay()) return false;
  return resolve(0, gmt) > other.resolve(0, gmt);
}

} // namespace Orvane::tracing
