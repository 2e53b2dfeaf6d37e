#include "packet/Packet.h"

#include "address/HexGroups.h"
#include "packet/KanetPktTraceFormatterWrapper.h"
#include "registry/Bytes.h"
#include "registry/HostInterface.h"

#include <algorithm>
#include <cstdint>

namespace Orvane {
namespace {

constexpr unsigned kCountOffset = 7;
constexpr unsigned kBytesOffset = 8;
constexpr uint16_t kVlanIdMask = 0xFFF;
constexpr uint16_t kCfiBit = 0x1000;
constexpr unsigned kPriorityShift = 13;

void printVlanTag(uint16_t tpid, uint16_t tci, std::ostream& os) {
  os << "(tpid 0x" << std::hex << tpid << std::dec << " vlan " << (tci & kVlanIdMask);
  if (tci >> kPriorityShift) os << " p " << (tci >> kPriorityShift);
  os << (tci & kCfiBit ? " CFI) " : ") ");
}

// Two lowercase digits a byte, written at once: a padded number insertion per byte
// costs far more than the text. The stream is left as a hex dump through it would
// leave it: decimal base, fill '0'.
void printHexBytes(const unsigned char* bytes, unsigned count, std::ostream& os) {
  char text[2 * 255];
  const int n = static_cast<int>(count);
  os.write(text, writeHexGroups(bytes, n, n, ' ', text) - text); // one group: no separator
  os.fill('0');
  os.setf(std::ios::dec, std::ios::basefield);
}

} // namespace

unsigned formatKanetPkt(const unsigned char* p, std::ostream& os) {
  const auto tpid = load<uint16_t>(p), tci = load<uint16_t>(p + 2);
  const unsigned char vlanPresent = p[4];
  const unsigned count = p[kCountOffset];
  const unsigned char* bytes = p + kBytesOffset;
  if (const auto decode = kanetPktTraceFormatterWrapper.decoder()) {
    std::string text = decode(tpid, tci, vlanPresent, bytes, count);
    std::replace(text.begin(), text.end(), '\n', '\\');
    os << text;
  } else {
    if (vlanPresent) printVlanTag(tpid, tci, os);
    printHexBytes(bytes, count, os);
  }
  return kBytesOffset + count;
}

unsigned lengthKanetPkt(const unsigned char* p) {
  return kCountOffset + lengthString(p + kCountOffset);
}

} // namespace Orvane
