#include "mpls/Label.h"

#include "address/Ip.h"
#include "address/SystemId.h"
#include "registry/Bytes.h"
#include "registry/Fields.h"
#include "registry/Formatter.h"
#include "registry/HostInterface.h"
#include "registry/TextRun.h"

#include <cstdint>

namespace Orvane {

constexpr CodeCase kLabelOperations[] = {
    {0, "push"}, {1, "pop"}, {2, "swap"}, {3, "forward"}, {255, "unknown"}};
constexpr CodeTable kLabelOperationCodes{"operation (byte 0)", nullptr, kLabelOperations,
                                         "prints nothing: the value is invalid", true};
constexpr ByteField kLabelOperationBytes[] = {
    {0, 1, "operation (below), printed first"},
    {1, 1, "count of labels, 0 to 13; above 13 nothing prints and the value is invalid"},
    {2, 0,
     "the labels, a u32 each, printed in `[` `]` with `, ` between: 3 as `ImplicitNull`, "
     "0x100000 as `Null`",
     "4 per label"}};
constexpr ValueLayout kMplsLabelOperationLayout{kLabelOperationBytes, &kLabelOperationCodes};

namespace {

constexpr unsigned kImplicitNullLabel = 3;
constexpr unsigned kNoLabel = 0x100000; // one past the 20-bit label range
constexpr unsigned kMaxStackLabels = 13;
constexpr unsigned kSystemIdRouterKind = 3;

void printEvpnLabelWord(uint32_t word, TextRun& text) {
  const unsigned value = word & 0xFFFFFF;
  switch (word >> 24) {
  case 0: text.join("NotPresent"); break;
  case 1: text.join("VNI:").number(value); break;
  case 2: text.join("MplsLabel:").number(value >> 4); break;
  default: text.join("UnsupportedType:").number(value);
  }
}

// formatMplsLabel() within a longer text.
void printMplsLabel(unsigned label, TextRun& text) {
  if (label == kImplicitNullLabel)
    text << "ImplicitNull";
  else if (label == kNoLabel)
    text << "Null";
  else
    text.number(label);
}

// The case of an operation code, or null for a code that makes the value invalid.
const CodeCase* labelOperation(unsigned char code) {
  for (const CodeCase& operation : kLabelOperations)
    if (operation.code == code) return &operation;
  return nullptr;
}

} // namespace

std::ostream& formatMplsLabel(unsigned int label, std::ostream& os) {
  return printThroughRun(os, [label](TextRun& text) { printMplsLabel(label, text); });
}

unsigned appendMplsLabel(const unsigned char* p, TextRun& text) {
  text << "MplsLabel(";
  printMplsLabel(load<uint32_t>(p), text);
  text << ")";
  return lengthMplsLabel(p);
}
unsigned formatMplsLabel(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendMplsLabel>(p, os);
}
unsigned lengthMplsLabel(const unsigned char*) { return 4; }

unsigned appendMplsLabelOperation(const unsigned char* p, TextRun& text) {
  const unsigned count = p[1];
  if (count > kMaxStackLabels) return kInvalidLength;
  const CodeCase* operation = labelOperation(p[0]);
  if (!operation) return kInvalidLength;
  text << operation->prints << "[";
  for (unsigned i = 0; i < count; ++i)
    printMplsLabel(load<uint32_t>(p + 2 + 4 * i), i ? text << ", " : text);
  text << "]";
  return lengthMplsLabelOperation(p);
}
unsigned formatMplsLabelOperation(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendMplsLabelOperation>(p, os);
}
unsigned lengthMplsLabelOperation(const unsigned char* p) {
  const unsigned count = p[1];
  return count > kMaxStackLabels ? kInvalidLength : 2 + 4 * count;
}

unsigned appendEvpnLabel(const unsigned char* p, TextRun& text) {
  printEvpnLabelWord(load<uint32_t>(p), text);
  return lengthEvpnLabel(p);
}
unsigned formatEvpnLabel(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendEvpnLabel>(p, os);
}
unsigned lengthEvpnLabel(const unsigned char*) { return 4; }

unsigned appendMplsRouterId(const unsigned char* p, TextRun& text) {
  if (p[0] == kSystemIdRouterKind) {
    appendIsisSystemId(p + 1, text);
  } else {
    printIpv4Bytes(text, p + 1);
    text.join(":").number(static_cast<unsigned>(p[5] << 8 | p[6]));
  }
  return lengthMplsRouterId(p);
}
unsigned formatMplsRouterId(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendMplsRouterId>(p, os);
}
unsigned lengthMplsRouterId(const unsigned char*) { return 7; }

// The tableId printed is the fecId's low 16 bits (both fields read at p); the stored
// tableId is skipped. That is the established output.
unsigned formatGlobalFecId(const unsigned char* p, std::ostream& os) {
  os << "fecId: ";
  formatU64(p, os);
  os << ", tableId: ";
  formatU16(p, os);
  return lengthGlobalFecId(p);
}
unsigned lengthGlobalFecId(const unsigned char*) { return 10; }

constexpr LabeledField kLfibViaKeyRows[] = {
    {"(", &kU8FixedField}, {",", &kU32FixedField}, {",", &kU8FixedField}, {")"}};
constexpr FieldTable kLfibViaKeyFields{kLfibViaKeyRows};
unsigned formatLfibViaKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kLfibViaKeyRows>(p, os);
}
unsigned lengthLfibViaKey(const unsigned char* p) { return lengthTable<kLfibViaKeyRows>(p); }

} // namespace Orvane
