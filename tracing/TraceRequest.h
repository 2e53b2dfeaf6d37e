// What a reader of traces is asked for, the same for every front end: the traces, the
// time range, the events kept, the fields typed by name, and how to print. One parser
// and one set of messages: the babeltrace2 sink's parameters, ovfmt's trace options and
// the Python keyword arguments are the same names, read by the functions below.
#pragma once

#include "tracing/TimeBound.h"
#include "tracing/Timestamp.h"
#include "tracing/TypedNames.h"

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::tracing {

/// How events are printed (the text and JSON layouts).
struct OutputOptions {
  bool json = false;  ///< JSON Lines instead of text lines
  ClockOptions clock; ///< how the text layout shows time
};

/// One request to read traces.
struct TraceRequest {
  /// Trace directories, directories holding traces, and LTTng live URLs
  /// (net://HOST/host/NAME/SESSION), read together and merged in time order.
  std::vector<std::string> inputs;
  std::optional<TimeBound> begin, end; ///< the events kept lie between them (inclusive)
  std::vector<std::string> events;     ///< event-name globs; none keeps every event
  TypeMap types;                       ///< fields typed by event and field name
  OutputOptions output;
  bool diagnostics = false; ///< libbabeltrace2's own log lines on stderr, not only problems
};

/// What kind of value a parameter takes.
enum class ParameterKind {
  Flag, ///< on when given (a boolean where values are typed)
  Text, ///< one string
  List, ///< strings, given one by one or comma-separated
  Time, ///< a time bound (TimeBound::parse), or nanoseconds where values are typed
};

/// One parameter of a request: its name in every front end, and its help.
struct RequestParameter {
  std::string_view name; ///< "begin"; ovfmt's option is "--begin"
  ParameterKind kind;
  std::string_view valueName; ///< what its value is ("T"), empty for a flag
  std::string_view help;      ///< one line or more, '\n' between them, 52 columns at most
};

/// Every request parameter, in the order help texts list them.
inline constexpr RequestParameter kRequestParameters[] = {
    {"format", ParameterKind::Text, "FORMAT", "\"text\" (the default) or \"json\" (JSON Lines)"},
    {"begin", ParameterKind::Time, "T",
     "keep the events from time T on: NANOSECONDS (more\n"
     "than 10 digits), SECONDS[.NNNNNNNNN] or\n"
     "[YYYY-MM-DD ]HH:MM[:SS[.NNNNNNNNN]]"},
    {"end", ParameterKind::Time, "T", "keep the events up to time T"},
    {"events", ParameterKind::List, "GLOB[,GLOB]",
     "keep the events whose name matches a GLOB ('*'\n"
     "any text, '?' one character)"},
    {"types", ParameterKind::List, "EVENT.FIELD=ID",
     "read the payload field FIELD of the event EVENT\n"
     "('*' every event) as the id ID"},
    {"clock-seconds", ParameterKind::Flag, "", "timestamps as seconds from the origin"},
    {"clock-date", ParameterKind::Flag, "", "the date before the time of day"},
    {"clock-gmt", ParameterKind::Flag, "", "times in UTC, not in the local time zone"},
    {"no-delta", ParameterKind::Flag, "", "no (+DELTA) after the timestamp"},
};

/// The parameter called `name`, or null when there is none.
constexpr const RequestParameter* findRequestParameter(std::string_view name) {
  for (const RequestParameter& parameter : kRequestParameters)
    if (parameter.name == name) return &parameter;
  return nullptr;
}

/// Sets the parameter `name` of `request` from its text: "" or "true" turns a flag on
/// and "false" off, a list takes comma-separated items (added to those before), a time
/// takes the forms of TimeBound::parse (a date and time in UTC when clock-gmt is on by
/// then). Returns a problem of one line, or "" when it is set.
[[nodiscard]] std::string setRequestParameter(TraceRequest& request, std::string_view name,
                                              std::string_view value);

/// Checks that the request's range does not begin after it ends (where that can be told
/// before the trace is read). Returns a problem of one line, or "".
[[nodiscard]] std::string checkRange(const TraceRequest& request);

/// The names of every parameter, joined by ", ": what a message about an unknown one
/// lists.
std::string requestParameterNames();

/// Whether `input` names an LTTng live session rather than a path.
bool isLiveUrl(std::string_view input);

} // namespace Orvane::tracing
