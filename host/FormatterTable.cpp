#include "host/FormatterTable.h"

#include <cstdint>

namespace Orvane::host {
namespace {

// Room for every id one plug-in registers without growing; kept at most half full so
// that probes stay short and always end at an empty slot.
constexpr std::size_t kInitialCapacity = 256;

// FNV-1a: ids are a few characters long, so a simple byte-wise hash is the fast one.
std::size_t hashId(std::string_view id) {
  uint64_t hash = 0xcbf29ce484222325u;
  for (unsigned char c : id)
    hash = (hash ^ c) * 0x100000001b3u;
  return static_cast<std::size_t>(hash);
}

} // namespace

FormatterTable::Slots::Slots(std::size_t capacity)
    : mask(capacity - 1), slot(std::make_unique<std::atomic<const Entry*>[]>(capacity)) {}

FormatterTable::FormatterTable() {
  generations_.push_back(std::make_unique<Slots>(kInitialCapacity));
  current_.store(generations_.back().get(), std::memory_order_release);
}

FormatterTable::Probe FormatterTable::probe(const Slots& slots, std::string_view id) {
  for (std::size_t i = hashId(id) & slots.mask;; i = (i + 1) & slots.mask) {
    const Entry* entry = slots.slot[i].load(std::memory_order_acquire);
    if (!entry || entry->id == id)
      return {&slots.slot[i], entry};
  }
}

const FormatterPair* FormatterTable::find(std::string_view id) const noexcept {
  const Entry* entry = probe(*current_.load(std::memory_order_acquire), id).entry;
  return entry ? &entry->pair : nullptr;
}

const FormatterTable::Slots& FormatterTable::current() const {
  return *current_.load(std::memory_order_relaxed);
}

void FormatterTable::setFormat(std::string_view id, FormatFn fn) {
  set(id, &FormatterPair::format, std::move(fn));
}

void FormatterTable::setLength(std::string_view id, LengthFn fn) {
  set(id, &FormatterPair::length, std::move(fn));
}

// The new entry is built in its final place, a copy of the id's entry with one more
// function, and only then published, so readers never see it half built.
template <class Fn>
void FormatterTable::set(std::string_view id, Fn FormatterPair::*function, Fn fn) {
  Probe found = probe(current(), id);
  if (found.entry && found.entry->pair.*function)
    return;
  Entry& entry = found.entry ? entries_.emplace_back(*found.entry)
                             : entries_.emplace_back(Entry{std::string(id), {}});
  entry.pair.*function = std::move(fn);
  if (!found.entry && 2 * ++size_ > current().capacity()) {
    grow();
    found = probe(current(), id);
  }
  found.slot->store(&entry, std::memory_order_release);
}

// Readers may still be probing the old table, so it is kept, unchanged, beside the new.
void FormatterTable::grow() {
  const Slots& old = current();
  auto bigger = std::make_unique<Slots>(2 * old.capacity());
  for (std::size_t i = 0; i < old.capacity(); ++i)
    if (const Entry* entry = old.slot[i].load(std::memory_order_relaxed))
      probe(*bigger, entry->id).slot->store(entry, std::memory_order_relaxed);
  generations_.push_back(std::move(bigger));
  current_.store(generations_.back().get(), std::memory_order_release);
}

std::vector<std::string> FormatterTable::ids() const {
  const Slots& slots = current();
  std::vector<std::string> ids;
  for (std::size_t i = 0; i < slots.capacity(); ++i)
    if (const Entry* entry = slots.slot[i].load(std::memory_order_relaxed))
      ids.push_back(entry->id);
  return ids;
}

} // namespace Orvane::host
