#include "tracing/Timestamp.h"

#include "tracing/Numbers.h"

namespace Orvane::tracing {
namespace {

constexpr std::int64_t kNsPerSecond = 1000000000;

/// Splits `ns` into whole seconds (rounded down) and the nanoseconds after them.
void split(std::int64_t ns, std::int64_t& seconds, std::uint64_t& fraction) {
  seconds = ns / kNsPerSecond;
  std::int64_t rest = ns % kNsPerSecond;
  if (rest < 0) {
    rest += kNsPerSecond;
    --seconds;
  }
  fraction = static_cast<std::uint64_t>(rest);
}

/// Appends "." and the nine digits of `fraction` (below one second), written by hand:
/// two of these per event made snprintf a visible share of a text line's cost.
void appendFraction(std::string& out, std::uint64_t fraction) {
  char text[10];
  text[0] = '.';
  for (int i = 9; i >= 1; --i, fraction /= 10) text[i] = static_cast<char>('0' + fraction % 10);
  out.append(text, sizeof text);
}

} // namespace

void TimestampPrinter::append(std::string& out, std::int64_t ns) {
  std::int64_t seconds;
  std::uint64_t fraction;
  split(ns, seconds, fraction);
  out += '[';
  appendTime(out, seconds, fraction);
  out += "] ";
  if (options_.delta) appendDelta(out, ns);
  hasLast_ = true;
  lastNs_ = ns;
}

void TimestampPrinter::appendTime(std::string& out, std::int64_t seconds, std::uint64_t fraction) {
  if (options_.seconds) {
    appendSigned(out, seconds, false);
    appendFraction(out, fraction);
    return;
  }
  if (cachedText_.empty() || seconds != cachedSecond_) {
    const std::time_t time = static_cast<std::time_t>(seconds);
    std::tm parts{};
    if (!(options_.gmt ? gmtime_r(&time, &parts) : localtime_r(&time, &parts))) {
      appendSigned(out, seconds, false);
      appendFraction(out, fraction);
      return;
    }
    char text[64];
    const char* layout = options_.date ? "%Y-%m-%d %H:%M:%S" : "%H:%M:%S";
    cachedText_.assign(text, std::strftime(text, sizeof text, layout, &parts));
    cachedSecond_ = seconds;
  }
  out += cachedText_;
  appendFraction(out, fraction);
}

void TimestampPrinter::appendDelta(std::string& out, std::int64_t ns) {
  if (!hasLast_) {
    out += "(+?.?????????"
           ") "; // two literals: "??" before ")" would be a trigraph
    return;
  }
  std::int64_t seconds;
  std::uint64_t fraction;
  split(ns - lastNs_, seconds, fraction);
  out += "(+";
  appendSigned(out, seconds, false);
  appendFraction(out, fraction);
  out += ") ";
}

} // namespace Orvane::tracing
