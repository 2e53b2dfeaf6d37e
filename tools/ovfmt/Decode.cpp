#include "tools/ovfmt/Decode.h"

#include <algorithm>

namespace Orvane::ovfmt {
namespace {

// Formatters may leave a base, a fill or a width set; a new stream has none of them.
void resetToNew(std::ostringstream& os) {
  os.str(std::string());
  os.clear();
  os.flags(std::ios_base::dec | std::ios_base::skipws);
  os.fill(' ');
  os.width(0);
  os.precision(6);
}

} // namespace

Decoded Decoder::decode(const host::FormatterPair& formatter,
                        const std::vector<unsigned char>& bytes) {
  const std::size_t needed = kGuardBefore + bytes.size() + kGuardAfter;
  if (buffer_.size() < needed) buffer_.resize(needed, 0);
  unsigned char* value = buffer_.data() + kGuardBefore;
  std::copy(bytes.begin(), bytes.end(), value);

  Decoded decoded;
  decoded.length = formatter.length(value);
  resetToNew(stream_);
  decoded.consumed = formatter.format(value, stream_);
  decoded.text = stream_.str();
  std::fill_n(value, bytes.size(), 0);
  return decoded;
}

Decoded decodeValue(const host::FormatterPair& formatter, const std::vector<unsigned char>& bytes) {
  return Decoder().decode(formatter, bytes);
}

} // namespace Orvane::ovfmt
