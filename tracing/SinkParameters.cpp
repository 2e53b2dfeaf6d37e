#include "tracing/SinkParameters.h"

namespace Orvane::tracing {
namespace {

/// What a parameter's babeltrace2 value must be, in words.
std::string expected(ParameterKind kind) {
  switch (kind) {
  case ParameterKind::Flag: return "true or false";
  case ParameterKind::Text: return "a string";
  case ParameterKind::List: return "a string or an array of strings";
  case ParameterKind::Time: return "a string or an integer of nanoseconds";
  }
  return "";
}

/// Sets one parameter from its value; returns a problem or "".
std::string readOne(const RequestParameter& parameter, const bt_value* value,
                    TraceRequest& request) {
  const std::string_view name = parameter.name;
  const std::string wrongType =
      "parameter " + std::string(name) + " must be " + expected(parameter.kind);
  if (bt_value_is_string(value) && parameter.kind != ParameterKind::Flag)
    return setRequestParameter(request, name, bt_value_string_get(value));
  switch (parameter.kind) {
  case ParameterKind::Flag:
    if (!bt_value_is_bool(value)) return wrongType;
    return setRequestParameter(request, name, bt_value_bool_get(value) ? "true" : "false");
  case ParameterKind::Time: {
    if (!bt_value_is_signed_integer(value) && !bt_value_is_unsigned_integer(value))
      return wrongType;
    const std::int64_t ns = bt_value_is_signed_integer(value)
                                ? bt_value_integer_signed_get(value)
                                : static_cast<std::int64_t>(bt_value_integer_unsigned_get(value));
    (name == "begin" ? request.begin : request.end) = TimeBound::nanoseconds(ns);
    return "";
  }
  case ParameterKind::List:
    if (!bt_value_is_array(value)) return wrongType;
    for (std::uint64_t i = 0; i < bt_value_array_get_length(value); ++i) {
      const bt_value* item = bt_value_array_borrow_element_by_index_const(value, i);
      if (!bt_value_is_string(item)) return wrongType;
      if (std::string problem = setRequestParameter(request, name, bt_value_string_get(item));
          !problem.empty())
        return problem;
    }
    return "";
  case ParameterKind::Text: return wrongType;
  }
  return "";
}

struct Reading {
  TraceRequest* request;
  std::string problem;
};

bt_value_map_foreach_entry_const_func_status readEntry(const char* key, const bt_value* value,
                                                       void* data) {
  Reading& reading = *static_cast<Reading*>(data);
  const RequestParameter* parameter = findRequestParameter(key);
  reading.problem = parameter ? readOne(*parameter, value, *reading.request)
                              : setRequestParameter(*reading.request, key, "");
  return reading.problem.empty() ? BT_VALUE_MAP_FOREACH_ENTRY_CONST_FUNC_STATUS_OK
                                 : BT_VALUE_MAP_FOREACH_ENTRY_CONST_FUNC_STATUS_INTERRUPT;
}

} // namespace

std::string readSinkParameters(const bt_value* params, TraceRequest& request) {
  if (!params || !bt_value_is_map(params)) return "";
  Reading reading{&request, {}};
  bt_value_map_foreach_entry_const(params, readEntry, &reading);
  return reading.problem.empty() ? checkRange(request) : reading.problem;
}

} // namespace Orvane::tracing
