#include "tools/ovfmt/IdList.h"

namespace Orvane::ovfmt {

void splitIdList(std::string_view list, std::vector<std::string_view>& ids) {
  ids.clear();
  for (std::size_t start = 0;;) {
    const std::size_t comma = list.find(',', start);
    ids.push_back(list.substr(start, comma == std::string_view::npos ? comma : comma - start));
    if (comma == std::string_view::npos) return;
    start = comma + 1;
  }
}

const host::FormatterPair* FormatterCache::find(std::string_view id) {
  std::size_t hash = 14695981039346656037u; // FNV-1a: ids are a few characters long
  for (char c : id) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211u;
  for (std::size_t i = hash;; ++i) {
    Slot& slot = slots_[i % kSlots];
    if (slot.formatter && slot.id == id) return slot.formatter;
    if (slot.formatter) continue;
    const host::FormatterPair* formatter = host::findFormatter(id);
    if (formatter && remembered_ < kMaxRemembered) {
      slot = {std::string(id), formatter};
      ++remembered_;
    }
    return formatter;
  }
}

} // namespace Orvane::ovfmt
