// Formatting one value through a registered (format, length) pair, the way a host does.
#pragma once

#include "decoding/GuardedBuffer.h"
#include "decoding/Record.h"
#include "host/Registry.h"

#include <string>
#include <vector>

namespace Orvane::decoding {

/// What formatting one value produced.
struct Decoded {
  unsigned length = 0;   ///< the length function's result
  unsigned consumed = 0; ///< the format function's result
  std::string text;      ///< what the format function printed
};

/// Formats values one after another as records of one argument: in one guarded buffer,
/// zero outside the value, and on one stream put back in a new stream's state (base,
/// fill, width, precision) before each value. A new buffer and stream per value would
/// allocate, clear the guards and set up a locale every time.
class Decoder {
public:
  /// Copies `bytes` into the buffer between the guards, asks the length function, then
  /// formats on the stream as a new stream would.
  Decoded decode(const host::FormatterPair& formatter, const std::vector<unsigned char>& bytes);

private:
  RecordWalker walker_;
};

/// Decoder::decode() on a decoder of its own, for a single value.
Decoded decodeValue(const host::FormatterPair& formatter, const std::vector<unsigned char>& bytes);

} // namespace Orvane::decoding
