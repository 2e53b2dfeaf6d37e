#include "decoding/IdList.h"

namespace Orvane::decoding {

void splitIdList(std::string_view list, std::vector<std::string_view>& ids) {
  ids.clear();
  for (std::size_t start = 0;;) {
    const std::size_t comma = list.find(',', start);
    ids.push_back(list.substr(start, comma == std::string_view::npos ? comma : comma - start));
    if (comma == std::string_view::npos) return;
    start = comma + 1;
  }
}

void TypeListCache::remember(std::string_view idList, std::span<const ArgumentType> types) {
  auto* entry = lists_.add(idList);
  if (!entry) return;
  // The ids view the caller's list: point them at the same characters of the copy kept.
  for (const ArgumentType& type : types) {
    const auto at = static_cast<std::size_t>(type.id.data() - idList.data());
    entry->value.push_back(
        {std::string_view(entry->key).substr(at, type.id.size()), type.formatter});
  }
}

} // namespace Orvane::decoding
