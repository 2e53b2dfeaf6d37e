// The ID[,ID...] list of a record, and finding each id's functions.
#pragma once

#include "host/Registry.h"

#include <string>
#include <string_view>
#include <vector>

namespace Orvane::ovfmt {

/// Splits `list` at each ',' into `ids` (replacing its contents); the views point into
/// `list`. An empty piece (as in "A,,B" or "A,") stays as an empty id, which no
/// formatter is registered under.
void splitIdList(std::string_view list, std::vector<std::string_view>& ids);

/// host::findFormatter() with the ids found so far remembered, so that a trace of
/// millions of lines looks each id up in the host once. The registry never removes or
/// moves a pair, so a remembered pointer stays valid; an id not found is asked again,
/// since a plug-in loaded later may register it. One cache serves one thread.
class FormatterCache {
public:
  /// The pair registered for `id`, or nullptr.
  const host::FormatterPair* find(std::string_view id);

private:
  // Open addressing in a power-of-two table: no division and no node to chase per
  // lookup. It stops remembering at three quarters full (far more ids than any plug-in
  // set registers), so a probe always ends at an empty slot.
  static constexpr std::size_t kSlots = 512, kMaxRemembered = kSlots / 4 * 3;
  struct Slot {
    std::string id;
    const host::FormatterPair* formatter = nullptr; ///< nullptr: the slot is empty
  };
  std::vector<Slot> slots_ = std::vector<Slot>(kSlots);
  std::size_t remembered_ = 0;
};

} // namespace Orvane::ovfmt
