// Values gathered with the GIL held and formatted together without it, so that
// format_many releases the GIL once for many values rather than once for each.
#pragma once

#include "host/Registry.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::python {

/// "item K: ", naming an item of format_many's input by its index (from 0, as Python
/// counts).
std::string itemPrefix(std::size_t index);

/// Single values, each formatted like a record of one argument in ovfmt.
class ValueBatch {
public:
  /// Adds a copy of `id` and `bytes`, to be formatted with `formatter` (both of its
  /// functions set).
  void add(const host::FormatterPair& formatter, std::string_view id,
           std::span<const unsigned char> bytes);
  /// Values added since the last clear().
  std::size_t size() const { return values_.size(); }

  /// Formats every value in order on the calling thread's walker. Throws FormatError
  /// "item K: PROBLEM" for the first value that fails, K being `firstIndex` plus the
  /// value's place in the batch.
  void format(std::size_t firstIndex);
  /// The text of value `i` (from 0) after format(); valid until clear().
  std::string_view text(std::size_t i) const;
  /// Forgets every value and text, keeping the memory for the next batch.
  void clear();

private:
  struct Value {
    const host::FormatterPair* formatter;
    std::size_t idEnd;    ///< where the id ends in ids_
    std::size_t bytesEnd; ///< where the bytes end in bytes_
  };
  std::vector<Value> values_;
  std::string ids_;
  std::vector<unsigned char> bytes_;
  std::string texts_;
  std::vector<std::size_t> textEnds_;
};

} // namespace Orvane::python
