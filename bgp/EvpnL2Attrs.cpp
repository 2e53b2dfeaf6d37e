#include "bgp/EvpnL2Attrs.h"

#include "registry/Bytes.h"
#include "registry/TextRun.h"

#include <cstdint>
#include <iterator>
#include <utility>

namespace Orvane {
namespace {

using NameEntry = std::pair<const unsigned, const char*>;

constexpr NameEntry kFxcModeEntriesV1[] = {
    {0, "notFxc"}, {1, "fxcVlanUnaware"}, {2, "fxcVlanAware"}, {3, "fxcUndefined"}};
constexpr NameEntry kFxcModeEntriesV2[] = {
    {0, "notFxc"}, {1, "fxcVlanSignaled"}, {2, "fxcDefault"}, {3, "fxcUndefined"}};
// Version 1 has single and double VLAN the other way round; that is its encoding.
constexpr NameEntry kVlanNormalizationEntriesV1[] = {{0, "notNormalized"},
                                                     {1, "normalizedDoubleVlan"},
                                                     {2, "normalizedSingleVlan"},
                                                     {3, "normalizedUndefined"}};
constexpr NameEntry kVlanNormalizationEntriesV2[] = {{0, "notNormalized"},
                                                     {1, "normalizedSingleVlan"},
                                                     {2, "normalizedDoubleVlan"},
                                                     {3, "normalizedUndefined"}};

template <std::size_t N> NameTable makeTable(const NameEntry (&entries)[N]) {
  return NameTable(std::begin(entries), std::end(entries));
}

constexpr uint32_t kPresentBit = 1u << 0;

// One flag letter: upper case when the bit is set.
const char* flagLetter(uint32_t flags, unsigned bit, const char* set, const char* clear) {
  return (flags >> bit) & 1 ? set : clear;
}

// ";" and the code's name, or ";what(N)" when the table has none; nothing for code 0.
void printCode(TextRun& text, const NameTable& names, unsigned code, const char* what) {
  if (code == 0) return;
  text << ";";
  if (auto it = names.find(code); it != names.end()) {
    text << it->second;
  } else {
    text << what << "(";
    text.number(code);
    text << ")";
  }
}

} // namespace

unsigned lengthEvpnL2Attrs(const unsigned char* p) {
  return load<uint32_t>(p) & kPresentBit ? 8 : 4;
}

unsigned appendEvpnL2Attrs(const unsigned char* p, TextRun& text, const NameTable& fxcModeNames,
                           const NameTable& vlanNormalizationNames, bool printF) {
  const uint32_t flags = load<uint32_t>(p);
  if (!(flags & kPresentBit)) return 4;
  text << ", evpnL2Attrs:" << flagLetter(flags, 3, "B", "b") << flagLetter(flags, 2, "P", "p")
       << flagLetter(flags, 1, "C", "c");
  if (printF) text << flagLetter(flags, 4, "F", "f");
  printCode(text, fxcModeNames, (flags >> 8) & 0xFF, "FxcMode");
  printCode(text, vlanNormalizationNames, (flags >> 16) & 0xFF, "VlanNormalization");
  text << ";mtu=";
  text.number(load<uint32_t>(p + 4));
  return 8;
}
unsigned formatEvpnL2Attrs(const unsigned char* p, std::ostream& os, const NameTable& fxcModeNames,
                           const NameTable& vlanNormalizationNames, bool printF) {
  return printThroughRun(os, [&](TextRun& text) {
    return appendEvpnL2Attrs(p, text, fxcModeNames, vlanNormalizationNames, printF);
  });
}

// Each version owns its tables, built on its first call.

unsigned formatEvpnL2AttrsV1(const unsigned char* p, std::ostream& os) {
  static const NameTable fxcModeNames = makeTable(kFxcModeEntriesV1);
  static const NameTable vlanNormalizationNames = makeTable(kVlanNormalizationEntriesV1);
  return formatEvpnL2Attrs(p, os, fxcModeNames, vlanNormalizationNames, false);
}

unsigned formatEvpnL2AttrsV2(const unsigned char* p, std::ostream& os) {
  static const NameTable fxcModeNames = makeTable(kFxcModeEntriesV2);
  static const NameTable vlanNormalizationNames = makeTable(kVlanNormalizationEntriesV2);
  return formatEvpnL2Attrs(p, os, fxcModeNames, vlanNormalizationNames, false);
}

unsigned formatEvpnL2AttrsV3(const unsigned char* p, std::ostream& os) {
  static const NameTable fxcModeNames = makeTable(kFxcModeEntriesV2);
  static const NameTable vlanNormalizationNames = makeTable(kVlanNormalizationEntriesV2);
  return formatEvpnL2Attrs(p, os, fxcModeNames, vlanNormalizationNames, true);
}

} // namespace Orvane
