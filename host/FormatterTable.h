// The registry's index of formatter pairs by type id.
//
// Lookups take no lock and compare at most a few strings: an open-addressed hash table
// of pointers to immutable entries. A writer never changes what a reader may be
// looking at; it publishes instead. Filling in a pair's second function publishes a
// new entry in the old one's slot, and outgrowing the table publishes a bigger copy.
// Replaced entries and tables are kept until the table itself is destroyed, so a
// pointer a reader obtained stays valid, and a reader that raced a writer sees the
// state before or after the write, never a half-written one.
#pragma once

#include "host/Registry.h"

#include <atomic>
#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::host {

/// Type id to FormatterPair. find() may run on any thread at any time; the other
/// members change or walk the table and must be serialised by the caller.
class FormatterTable {
public:
  FormatterTable();
  FormatterTable(const FormatterTable&) = delete;
  FormatterTable& operator=(const FormatterTable&) = delete;

  /// The pair of `id`, or nullptr. Lock-free; the pair it returns never changes.
  const FormatterPair* find(std::string_view id) const noexcept;

  /// Sets the format function of `id` unless it already has one (the first wins).
  void setFormat(std::string_view id, FormatFn fn);
  /// Sets the length function of `id` unless it already has one (the first wins).
  void setLength(std::string_view id, LengthFn fn);

  /// Every id in the table, in no particular order.
  std::vector<std::string> ids() const;

private:
  struct Entry {
    std::string id;
    FormatterPair pair;
  };
  struct Slots {
    explicit Slots(std::size_t capacity);
    std::size_t capacity() const { return mask + 1; }
    std::size_t mask;
    std::unique_ptr<std::atomic<const Entry*>[]> slot;
  };

  // The slot holding `id` and its entry, or the empty slot where it would go and null.
  struct Probe {
    std::atomic<const Entry*>* slot;
    const Entry* entry;
  };
  static Probe probe(const Slots& slots, std::string_view id);
  // The table readers currently search; writers use it under the caller's lock.
  const Slots& current() const;
  // Publishes a copy of the entry of `id` (or a new one) with `fn` as its `function`,
  // unless that function is already set.
  template <class Fn> void set(std::string_view id, Fn FormatterPair::*function, Fn fn);
  void grow();

  std::atomic<const Slots*> current_;
  std::size_t size_ = 0;
  // Everything ever published; deque keeps the addresses of entries stable.
  std::deque<Entry> entries_;
  std::vector<std::unique_ptr<Slots>> generations_;
};

} // namespace Orvane::host
