// Formatting one value through a registered (format, length) pair, the way a host does.
#pragma once

#include "host/Registry.h"

#include <string>
#include <vector>

namespace Orvane::ovfmt {

/// Zero bytes placed before and after a value, so that a corrupt or short value read
/// as its layout says stays inside the buffer.
inline constexpr std::size_t kGuardBefore = 64;
inline constexpr std::size_t kGuardAfter = 8192;

/// What formatting one value produced.
struct Decoded {
  unsigned length = 0;   ///< the length function's result
  unsigned consumed = 0; ///< the format function's result
  std::string text;      ///< what the format function printed
};

/// Copies `bytes` into a zero-filled buffer with the guards around it, asks the length
/// function, then formats on a fresh stream.
Decoded decodeValue(const host::FormatterPair& formatter, const std::vector<unsigned char>& bytes);

} // namespace Orvane::ovfmt
