// A small table from short strings to values, for the caches that answer the same few
// ids millions of times.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::decoding {

/// Open addressing in a power-of-two table: no division and no node to chase per lookup.
/// It takes entries up to three quarters full (far more than the ids of any plug-in
/// set), so a probe always ends at an empty slot. Entries never move once added.
template <class Value> class StringTable {
public:
  struct Entry {
    std::string key;
    Value value{};
  };

  /// The entry for `key`, or nullptr.
  const Entry* find(std::string_view key) const {
    const Slot& slot = slots_[slotOf(key)];
    return slot.used ? &slot.entry : nullptr;
  }

  /// Adds an entry for `key`, which must not be in the table yet, and returns it for the
  /// caller to fill in; nullptr when the table is full.
  Entry* add(std::string_view key) {
    if (used_ == kMaxEntries) return nullptr;
    Slot& slot = slots_[slotOf(key)];
    slot.used = true;
    slot.entry.key = key;
    ++used_;
    return &slot.entry;
  }

private:
  static constexpr std::size_t kSlots = 512, kMaxEntries = kSlots / 4 * 3;
  struct Slot {
    bool used = false;
    Entry entry;
  };

  /// The slot that holds `key`, or the empty one where it would go.
  std::size_t slotOf(std::string_view key) const {
    std::size_t hash = 14695981039346656037u; // FNV-1a: ids are a few characters long
    for (char c : key) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211u;
    for (;; ++hash) {
      const Slot& slot = slots_[hash % kSlots];
      if (!slot.used || slot.entry.key == key) return hash % kSlots;
    }
  }

  std::vector<Slot> slots_ = std::vector<Slot>(kSlots);
  std::size_t used_ = 0;
};

} // namespace Orvane::decoding
