#include "registry/TextRun.h"

#include <charconv>

namespace Orvane {

// Out of line: the digit conversion is too large to copy into every caller.
TextRun& TextRun::number(uint64_t value) {
  if (!hasNoWidth() || !formatsPlainDecimal()) {
    flush() << value;
    return *this;
  }
  if (kCapacity - size_ < kMaxDecimalDigits) flush();
  size_ = std::to_chars(text_ + size_, text_ + kCapacity, value).ptr - text_;
  return *this;
}

} // namespace Orvane
