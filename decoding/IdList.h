// The ID[,ID...] list of a record, and finding each id's functions.
#pragma once

#include "decoding/Record.h"
#include "decoding/StringTable.h"
#include "host/Registry.h"

#include <span>
#include <string_view>
#include <vector>

namespace Orvane::decoding {

/// Splits `list` at each ',' into `ids` (replacing its contents); the views point into
/// `list`. An empty piece (as in "A,,B" or "A,") stays as an empty id, which no
/// formatter is registered under.
void splitIdList(std::string_view list, std::vector<std::string_view>& ids);

/// The argument types of whole id lists, so that a list seen before is neither split nor
/// looked up id by id again. Only lists whose every id resolved are remembered: a
/// plug-in loaded later may register an id that is unknown now. The registry never
/// removes or moves a pair, so a remembered pointer stays valid. One cache serves one
/// thread.
class TypeListCache {
public:
  /// The types remembered for `idList`, or nullptr.
  const std::vector<ArgumentType>* find(std::string_view idList) const {
    const auto* entry = lists_.find(idList);
    return entry ? &entry->value : nullptr;
  }
  /// Remembers `types`, resolved from the ids that splitIdList() found in `idList`.
  void remember(std::string_view idList, std::span<const ArgumentType> types);

private:
  StringTable<std::vector<ArgumentType>> lists_;
};

} // namespace Orvane::decoding
