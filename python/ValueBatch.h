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

  /// Formats every value in order on the calling thread's walker. A value that fails
  /// gets an empty text and the problem "item K: PROBLEM", K being `firstIndex` plus
  /// the value's place in the batch; the values after it are formatted all the same.
  void format(std::size_t firstIndex);
  /// The text of value `i` (from 0) after format(); valid until clear().
  std::string_view text(std::size_t i) const { return slice(texts_, textEnds_, i); }
  /// Why value `i` failed after format(), or empty when it did not; valid until clear().
  std::string_view problem(std::size_t i) const { return slice(problems_, problemEnds_, i); }
  /// The first value that failed after format(), or size() when none did.
  std::size_t firstFailure() const;
  /// Forgets every value and text, keeping the memory for the next batch.
  void clear();

private:
  /// Piece `i` of `joined`, whose pieces end at `ends`.
  static std::string_view slice(const std::string& joined, const std::vector<std::size_t>& ends,
                                std::size_t i);

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
  std::string problems_;
  std::vector<std::size_t> problemEnds_;
};

} // namespace Orvane::python
