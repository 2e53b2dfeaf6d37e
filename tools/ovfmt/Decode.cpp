#include "tools/ovfmt/Decode.h"

#include <algorithm>
#include <sstream>

namespace Orvane::ovfmt {

Decoded decodeValue(const host::FormatterPair& formatter, const std::vector<unsigned char>& bytes) {
  std::vector<unsigned char> buffer(kGuardBefore + bytes.size() + kGuardAfter, 0);
  std::copy(bytes.begin(), bytes.end(), buffer.begin() + kGuardBefore);
  const unsigned char* value = buffer.data() + kGuardBefore;

  Decoded decoded;
  decoded.length = formatter.length(value);
  std::ostringstream os;
  decoded.consumed = formatter.format(value, os);
  decoded.text = std::move(os).str();
  return decoded;
}

} // namespace Orvane::ovfmt
