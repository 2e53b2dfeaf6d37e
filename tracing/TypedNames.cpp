#include "tracing/TypedNames.h"

namespace Orvane::tracing {

std::optional<TypedName> splitTypedName(std::string_view name) {
  const std::size_t at = name.rfind("__");
  if (at == std::string_view::npos || at == 0 || at + 2 == name.size()) return std::nullopt;
  return TypedName{name.substr(0, at), name.substr(at + 2)};
}

std::string lengthFieldName(std::string_view name) {
  std::string length = "_";
  length += name;
  length += "_length";
  return length;
}

bool TypeMap::add(std::string_view entry) {
  const std::size_t equals = entry.rfind('=');
  if (equals == std::string_view::npos) return false;
  const std::string_view target = entry.substr(0, equals), id = entry.substr(equals + 1);
  const std::size_t dot = target.rfind('.');
  if (dot == std::string_view::npos || dot == 0 || dot + 1 == target.size() || id.empty())
    return false;
  entries_.push_back(
      {std::string(target.substr(0, dot)), std::string(target.substr(dot + 1)), std::string(id)});
  return true;
}

std::string_view TypeMap::find(std::string_view event, std::string_view field) const {
  std::string_view wildcard;
  for (const Entry& entry : entries_) {
    if (entry.field != field) continue;
    if (entry.event == event) return entry.id;
    if (entry.event == "*" && wildcard.empty()) wildcard = entry.id;
  }
  return wildcard;
}

} // namespace Orvane::tracing
