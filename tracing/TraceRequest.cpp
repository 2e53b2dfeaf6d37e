#include "tracing/TraceRequest.h"

#include <algorithm>

namespace Orvane::tracing {
namespace {

/// Splits `value` at its commas, each item in turn to `add`; stops at the first problem.
template <typename Add> std::string forEachItem(std::string_view value, Add add) {
  for (std::size_t start = 0;;) {
    const std::size_t comma = std::min(value.find(',', start), value.size());
    if (std::string problem = add(value.substr(start, comma - start)); !problem.empty())
      return problem;
    if (comma == value.size()) return "";
    start = comma + 1;
  }
}

std::string setFlag(TraceRequest& request, std::string_view name, std::string_view value) {
  if (value != "" && value != "true" && value != "false")
    return std::string(name) + " is true or false, not \"" + std::string(value) + "\"";
  const bool on = value != "false";
  ClockOptions& clock = request.output.clock;
  if (name == "clock-seconds") clock.seconds = on;
  if (name == "clock-date") clock.date = on;
  if (name == "clock-gmt") clock.gmt = on;
  if (name == "no-delta") clock.delta = !on;
  return "";
}

std::string setFormat(TraceRequest& request, std::string_view value) {
  if (value != "text" && value != "json")
    return "format is \"text\" or \"json\", not \"" + std::string(value) + "\"";
  request.output.json = value == "json";
  return "";
}

std::string addType(TraceRequest& request, std::string_view entry) {
  if (request.types.add(entry)) return "";
  return "types takes \"EVENT.FIELD=ID\", not \"" + std::string(entry) + "\"";
}

std::string addEvents(TraceRequest& request, std::string_view glob) {
  if (glob.empty()) return "events takes GLOB[,GLOB]: a pattern is empty";
  request.events.emplace_back(glob);
  return "";
}

std::string setTime(std::optional<TimeBound>& bound, std::string_view value) {
  std::string problem;
  bound = TimeBound::parse(value, problem);
  return problem;
}

} // namespace

std::string setRequestParameter(TraceRequest& request, std::string_view name,
                                std::string_view value) {
  const RequestParameter* parameter = findRequestParameter(name);
  if (!parameter)
    return "unknown parameter \"" + std::string(name) + "\" (known: " + requestParameterNames() +
           ")";
  switch (parameter->kind) {
  case ParameterKind::Flag: return setFlag(request, name, value);
  case ParameterKind::Text: return setFormat(request, value);
  case ParameterKind::Time: return setTime(name == "begin" ? request.begin : request.end, value);
  case ParameterKind::List: break;
  }
  if (name == "types")
    return forEachItem(value, [&](std::string_view item) { return addType(request, item); });
  return forEachItem(value, [&](std::string_view item) { return addEvents(request, item); });
}

std::string checkRange(const TraceRequest& request) {
  if (request.begin && request.end && request.begin->after(*request.end, request.output.clock.gmt))
    return "the range's begin is after its end";
  return "";
}

std::string requestParameterNames() {
  std::string names;
  for (const RequestParameter& parameter : kRequestParameters)
    names += (names.empty() ? "" : ", ") + std::string(parameter.name);
  return names;
}

bool isLiveUrl(std::string_view input) { return input.starts_with("net://"); }

} // namespace Orvane::tracing
