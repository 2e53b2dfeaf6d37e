#include "keys/ForwardingKeys.h"

#include "keys/IdRuns.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {

unsigned appendFapmask(const unsigned char* p, TextRun& text) {
  text.join("(");
  IdRunPrinter runs(text);
  runs.visitWord(0, load<uint64_t>(p));
  runs.visitWord(64, load<uint64_t>(p + 8));
  runs.closeRun(127);
  text.join(")");
  return lengthFapmask(p);
}
unsigned formatFapmask(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendFapmask>(p, os);
}
unsigned lengthFapmask(const unsigned char*) { return 16; }

unsigned formatOutAcTypeKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "(fapId: ", formatU16, ", acIndex: ", formatU32,
                      ", outAcType: ", formatU8, ")");
}
unsigned lengthOutAcTypeKey(const unsigned char* p) {
  return measureFields(p, lengthU16, lengthU32, lengthU8);
}

unsigned formatOutAcKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "(fapMask: ", appendFapmask, ", acFormat: ", formatU32, ", ",
                      formatU32, ", ", formatU32, ", acIndex: ", formatU32, ", pool: ", formatU8,
                      ", appId: ", formatU8, ", intfId: ", formatString, ", vlanId: ", formatU16,
                      ", innerOutlif: ", formatU32, ", isL2SubIntf: ", formatBool, ")");
}
unsigned lengthOutAcKey(const unsigned char* p) {
  return measureFields(p, lengthFapmask, lengthU32, lengthU32, lengthU32, lengthU32, lengthU8,
                       lengthU8, lengthString, lengthU16, lengthU32, lengthBool);
}

unsigned formatSviEgressEveKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "(vlanIntfId: ", formatString, ", intfId: ", formatString,
                      ", fapId: ", formatU16, ", lagIntfId: ", formatString, ")");
}
unsigned lengthSviEgressEveKey(const unsigned char* p) {
  return measureFields(p, lengthString, lengthString, lengthU16, lengthString);
}

unsigned formatSviEgressEsemRequestKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "(eveKey: ", formatSviEgressEveKey, ", outAcTypeKey: ",
                      formatOutAcTypeKey, ")");
}
unsigned lengthSviEgressEsemRequestKey(const unsigned char* p) {
  return measureFields(p, lengthSviEgressEveKey, lengthOutAcTypeKey);
}

unsigned formatUdfDesc(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, formatString, " ethtype:0x", formatU16Hex, " ", formatString,
                      " ipProto:", formatU8, " innerEthType:0x", formatU16Hex, " offset:",
                      formatU8, " length:", formatU8, " lagMask:0x", formatU32Hex,
                      " priority:", formatU8);
}
unsigned lengthUdfDesc(const unsigned char* p) {
  return measureFields(p, lengthString, lengthU16, lengthString, lengthU8, lengthU16, lengthU8,
                       lengthU8, lengthU32, lengthU8);
}

} // namespace Orvane
