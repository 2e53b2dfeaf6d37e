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

constexpr LabeledField kOutAcTypeKeyRows[] = {
    {"(fapId: ", &kU16Field}, {", acIndex: ", &kU32Field}, {", outAcType: ", &kU8Field}, {")"}};
constexpr FieldTable kOutAcTypeKeyFields{kOutAcTypeKeyRows};
unsigned formatOutAcTypeKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kOutAcTypeKeyRows>(p, os);
}
unsigned lengthOutAcTypeKey(const unsigned char* p) { return lengthTable<kOutAcTypeKeyRows>(p); }

constexpr LabeledField kOutAcKeyRows[] = {{"(fapMask: ", &kFapmaskField},
                                          {", acFormat: ", &kU32Field},
                                          {", ", &kU32Field},
                                          {", ", &kU32Field},
                                          {", acIndex: ", &kU32Field},
                                          {", pool: ", &kU8Field},
                                          {", appId: ", &kU8Field},
                                          {", intfId: ", &kStringField},
                                          {", vlanId: ", &kU16Field},
                                          {", innerOutlif: ", &kU32Field},
                                          {", isL2SubIntf: ", &kBoolField},
                                          {")"}};
constexpr FieldTable kOutAcKeyFields{kOutAcKeyRows};
unsigned formatOutAcKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kOutAcKeyRows>(p, os);
}
unsigned lengthOutAcKey(const unsigned char* p) { return lengthTable<kOutAcKeyRows>(p); }

constexpr LabeledField kSviEgressEveKeyRows[] = {{"(vlanIntfId: ", &kStringField},
                                                 {", intfId: ", &kStringField},
                                                 {", fapId: ", &kU16Field},
                                                 {", lagIntfId: ", &kStringField},
                                                 {")"}};
constexpr FieldTable kSviEgressEveKeyFields{kSviEgressEveKeyRows};
unsigned formatSviEgressEveKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kSviEgressEveKeyRows>(p, os);
}
unsigned lengthSviEgressEveKey(const unsigned char* p) {
  return lengthTable<kSviEgressEveKeyRows>(p);
}

constexpr FieldKind kSviEgressEveKeyField{formatSviEgressEveKey, lengthSviEgressEveKey, nullptr,
                                          "SVI egress EVE key (SVIEVE)"};
constexpr FieldKind kOutAcTypeKeyField{formatOutAcTypeKey, lengthOutAcTypeKey, nullptr,
                                       "out-AC type key (OUTACTYPE)"};
constexpr LabeledField kSviEgressEsemRequestKeyRows[] = {
    {"(eveKey: ", &kSviEgressEveKeyField}, {", outAcTypeKey: ", &kOutAcTypeKeyField}, {")"}};
constexpr FieldTable kSviEgressEsemRequestKeyFields{kSviEgressEsemRequestKeyRows};
unsigned formatSviEgressEsemRequestKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kSviEgressEsemRequestKeyRows>(p, os);
}
unsigned lengthSviEgressEsemRequestKey(const unsigned char* p) {
  return lengthTable<kSviEgressEsemRequestKeyRows>(p);
}

constexpr LabeledField kUdfDescRows[] = {{"", &kStringField},
                                         {" ethtype:0x", &kU16HexField},
                                         {" ", &kStringField},
                                         {" ipProto:", &kU8Field},
                                         {" innerEthType:0x", &kU16HexField},
                                         {" offset:", &kU8Field},
                                         {" length:", &kU8Field},
                                         {" lagMask:0x", &kU32HexField},
                                         {" priority:", &kU8Field},
                                         {""}};
constexpr FieldTable kUdfDescFields{kUdfDescRows};
unsigned formatUdfDesc(const unsigned char* p, std::ostream& os) {
  return formatTable<kUdfDescRows>(p, os);
}
unsigned lengthUdfDesc(const unsigned char* p) { return lengthTable<kUdfDescRows>(p); }

} // namespace Orvane
