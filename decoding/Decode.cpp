#include "decoding/Decode.h"

namespace Orvane::decoding {

Decoded Decoder::decode(const host::FormatterPair& formatter,
                        const std::vector<unsigned char>& bytes) {
  walker_.load(bytes);
  const ArgumentType type{{}, &formatter};
  const Argument& value = walker_.walk({&type, 1}).front();
  return {value.length, value.consumed, std::string(value.text)};
}

Decoded decodeValue(const host::FormatterPair& formatter, const std::vector<unsigned char>& bytes) {
  return Decoder().decode(formatter, bytes);
}

} // namespace Orvane::decoding
