// Which items already came at each level of nested structures and arrays, so a layout
// knows where a separator goes.
#pragma once

#include <vector>

namespace Orvane::tracing {

/// A stack of levels, one per open container.
class Nesting {
public:
  /// Opens a level with no item yet.
  void open() { hasItems_.push_back(false); }
  /// Closes the innermost level.
  void close() { hasItems_.pop_back(); }
  /// Counts an item at the innermost level; true when one came before it there.
  bool nextItem() {
    const bool before = hasItems_.back();
    hasItems_.back() = true;
    return before;
  }
  /// Forgets every level (an event begins).
  void reset() { hasItems_.clear(); }

private:
  std::vector<bool> hasItems_;
};

} // namespace Orvane::tracing
