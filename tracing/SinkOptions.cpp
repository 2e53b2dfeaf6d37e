#include "tracing/SinkOptions.h"

namespace Orvane::tracing {
namespace {

std::string readBool(const bt_value* params, const char* name, bool& value) {
  const bt_value* entry = bt_value_map_borrow_entry_value_const(params, name);
  if (!entry) return {};
  if (!bt_value_is_bool(entry)) return std::string("parameter ") + name + " must be true or false";
  value = bt_value_bool_get(entry);
  return {};
}

std::string readFormat(const bt_value* params, bool& json) {
  const bt_value* entry = bt_value_map_borrow_entry_value_const(params, "format");
  if (!entry) return {};
  const std::string format = bt_value_is_string(entry) ? bt_value_string_get(entry) : "";
  if (format != "text" && format != "json") return R"(parameter format must be "text" or "json")";
  json = format == "json";
  return {};
}

std::string addType(const bt_value* entry, TypeMap& types) {
  if (bt_value_is_string(entry) && types.add(bt_value_string_get(entry))) return {};
  return R"(parameter types takes "EVENT.FIELD=ID" strings)";
}

std::string readTypes(const bt_value* params, TypeMap& types) {
  const bt_value* entry = bt_value_map_borrow_entry_value_const(params, "types");
  if (!entry) return {};
  if (!bt_value_is_array(entry)) return addType(entry, types);
  for (std::uint64_t i = 0; i < bt_value_array_get_length(entry); ++i)
    if (std::string problem =
            addType(bt_value_array_borrow_element_by_index_const(entry, i), types);
        !problem.empty())
      return problem;
  return {};
}

} // namespace

std::string readSinkOptions(const bt_value* params, SinkOptions& options) {
  if (!params || !bt_value_is_map(params)) return {};
  bool noDelta = false;
  std::string problem = readFormat(params, options.json);
  if (problem.empty()) problem = readBool(params, "clock-seconds", options.clock.seconds);
  if (problem.empty()) problem = readBool(params, "clock-date", options.clock.date);
  if (problem.empty()) problem = readBool(params, "clock-gmt", options.clock.gmt);
  if (problem.empty()) problem = readBool(params, "no-delta", noDelta);
  if (problem.empty()) problem = readTypes(params, options.types);
  options.clock.delta = !noDelta;
  return problem;
}

} // namespace Orvane::tracing
