// Formatting one value through a registered (format, length) pair, the way a host does.
#pragma once

#include "host/Registry.h"

#include <sstream>
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

/// Formats values one after another in one guarded buffer and one stream. The buffer
/// is zero-filled once and only each value's own bytes are zeroed again after it; the
/// stream is emptied and put back in a new stream's state (base, fill, width, precision)
/// before each value. A new buffer and stream per value would allocate, clear the guards
/// and set up a locale every time.
class Decoder {
public:
  /// Copies `bytes` into the buffer between the guards, asks the length function, then
  /// formats on the stream as a new stream would.
  Decoded decode(const host::FormatterPair& formatter, const std::vector<unsigned char>& bytes);

private:
  std::vector<unsigned char> buffer_; ///< all zero between calls
  std::ostringstream stream_;
};

/// Decoder::decode() on a decoder of its own, for a single value.
Decoded decodeValue(const host::FormatterPair& formatter, const std::vector<unsigned char>& bytes);

} // namespace Orvane::ovfmt
