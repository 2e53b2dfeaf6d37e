#include "registry/Bytes.h"
#include "registry/HostInterface.h"
#include "registry/PlainDecimal.h"

#include <cstdint>

namespace Orvane {

unsigned formatU8(const unsigned char* p, std::ostream& os) {
  insertUnsigned(os, static_cast<unsigned>(p[0]));
  return 1;
}
unsigned formatU16(const unsigned char* p, std::ostream& os) {
  insertUnsigned(os, load<uint16_t>(p));
  return 2;
}
unsigned formatU16Hex(const unsigned char* p, std::ostream& os) {
  os << std::hex << load<uint16_t>(p) << std::dec;
  return 2;
}
unsigned formatU32(const unsigned char* p, std::ostream& os) {
  insertUnsigned(os, load<uint32_t>(p));
  return 4;
}
unsigned formatU32Hex(const unsigned char* p, std::ostream& os) {
  os << std::hex << load<uint32_t>(p) << std::dec;
  return 4;
}
unsigned formatU64(const unsigned char* p, std::ostream& os) {
  insertUnsigned(os, load<uint64_t>(p));
  return 8;
}
unsigned formatBool(const unsigned char* p, std::ostream& os) {
  os << (p[0] ? "True" : "False");
  return 1;
}
unsigned formatString(const unsigned char* p, std::ostream& os) {
  os.write(reinterpret_cast<const char*>(p + 1), p[0]);
  return lengthString(p);
}

unsigned lengthU8(const unsigned char*) { return 1; }
unsigned lengthU16(const unsigned char*) { return 2; }
unsigned lengthU32(const unsigned char*) { return 4; }
unsigned lengthU64(const unsigned char*) { return 8; }
unsigned lengthBool(const unsigned char*) { return 1; }
unsigned lengthString(const unsigned char* p) { return 1u + p[0]; }

} // namespace Orvane
