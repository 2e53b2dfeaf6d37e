#include "keys/Sequences.h"

#include "address/GenericAddress.h"
#include "address/GenericPrefix.h"
#include "keys/IdRuns.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
namespace {

constexpr unsigned kSequenceHeader = 2;
constexpr unsigned kIdSetEntrySize = 9;
constexpr unsigned kIdsPerWord = 64;

// The base formatter of a sequence element of `width` bytes, or null for a bad width.
FormatPtr elementFormatter(unsigned char width) {
  switch (width) {
  case 1: return formatU8;
  case 2: return formatU16;
  case 4: return formatU32;
  case 8: return formatU64;
  default: return nullptr;
  }
}

} // namespace

unsigned formatUnsignedSequence(const unsigned char* p, std::ostream& os) {
  const unsigned count = p[0];
  const char separator = static_cast<char>(p[1]);
  unsigned off = kSequenceHeader;
  for (unsigned i = 0; i < count; ++i) {
    const FormatPtr element = elementFormatter(at(p, off)[0]);
    if (i > 0) os << separator;
    if (!element) return kInvalidLength;
    off += 1 + element(at(p, off + 1), os);
  }
  return off;
}

unsigned lengthUnsignedSequence(const unsigned char* p) {
  const unsigned count = p[0];
  unsigned off = kSequenceHeader;
  for (unsigned i = 0; i < count; ++i) {
    const unsigned char width = at(p, off)[0];
    if (!elementFormatter(width)) return kInvalidLength;
    off += 1 + width;
  }
  return off;
}

namespace {

// formatIdSet's text, joined to the run.
unsigned appendIdSet(const unsigned char* p, TextRun& text) {
  const unsigned count = p[0];
  text.join("(");
  IdRunPrinter runs(text);
  unsigned previousWord = 0;
  for (unsigned i = 0; i < count; ++i) {
    const unsigned char* entry = p + 1 + kIdSetEntrySize * i;
    const unsigned word = entry[0];
    if (i > 0 && word != previousWord + 1) runs.closeRun((previousWord + 1) * kIdsPerWord);
    runs.visitWord(word * kIdsPerWord, load<uint64_t>(entry + 1));
    previousWord = word;
  }
  if (count > 0) runs.closeRun(previousWord * kIdsPerWord + kIdsPerWord - 1);
  text.join(")");
  return lengthIdSet(p);
}

} // namespace

unsigned formatIdSet(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendIdSet>(p, os);
}
unsigned lengthIdSet(const unsigned char* p) { return kIdSetEntrySize * p[0] + 1; }

// The bodies of "GR" and "GRO" after the kind byte, indexed by the kind: none, a prefix,
// a sequence, and at kind 255 an address and its mask; the other kinds have none.
constexpr FieldKind kUnsignedSequenceField{formatUnsignedSequence,
                                           lengthUnsignedSequence,
                                           nullptr,
                                           "unsigned sequence (US)",
                                           0,
                                           "2 + a width byte and that many bytes per element"};
constexpr FieldKind kAddressMaskField{formatIpGenAddrWithFullMask, lengthIpGenAddrWithFullMask,
                                      nullptr, "generic address and mask (IGM)", 42};
constexpr FieldKind kAddressMaskOptField{formatIpGenAddrOptWithFullMask,
                                         lengthIpGenAddrWithFullMaskOpt,
                                         nullptr,
                                         "generic address and mask, Opt form (IGMO)",
                                         0,
                                         "the two Opt lengths added"};
constexpr LabeledField kNoRange[] = {{"n/a"}};
constexpr LabeledField kSequenceRange[] = {{"", &kUnsignedSequenceField}, {""}};
constexpr LabeledField kPrefixRange[] = {{"", &kIpGenPrefixField}, {""}};
constexpr LabeledField kAddressMaskRange[] = {{"", &kAddressMaskField}, {""}};
constexpr LabeledField kPrefixRangeOpt[] = {{"", &kIpGenPrefixOptimizedField}, {""}};
constexpr LabeledField kAddressMaskRangeOpt[] = {{"", &kAddressMaskOptField}, {""}};
constexpr unsigned kAddressMaskKind = 255;

namespace {

// The body of `kind` in the form whose prefix and address-and-mask bodies are given.
template <const LabeledField* Prefix, const LabeledField* AddressMask>
const LabeledField* rangeVariant(unsigned kind) {
  constexpr const LabeledField* kBodies[] = {kNoRange, Prefix, kSequenceRange};
  if (kind < std::size(kBodies)) return kBodies[kind];
  return kind == kAddressMaskKind ? AddressMask : nullptr;
}

constexpr const char* kRangeCode =
    "the kind (byte 0), the body starting at byte 1 (kinds 3 to 254 are invalid)";

} // namespace

constexpr FieldVariants kGenRangeVariants{kRangeCode, kAddressMaskKind + 1,
                                          rangeVariant<kPrefixRange, kAddressMaskRange>};
constexpr FieldVariants kGenRangeOptimizedVariants{
    kRangeCode, kAddressMaskKind + 1, rangeVariant<kPrefixRangeOpt, kAddressMaskRangeOpt>};

namespace {

// The body the kind byte picks; an invalid kind has none.
VariantBody rangeBody(const unsigned char* p, const FieldVariants& variants) {
  return {variants.body(p[0]), 1};
}

} // namespace

unsigned formatGenRange(const unsigned char* p, std::ostream& os) {
  return formatVariant(rangeBody(p, kGenRangeVariants), p, os);
}
unsigned lengthGenRange(const unsigned char* p) {
  return lengthVariant(rangeBody(p, kGenRangeVariants), p);
}

unsigned formatGenRangeOptimized(const unsigned char* p, std::ostream& os) {
  return formatVariant(rangeBody(p, kGenRangeOptimizedVariants), p, os);
}
unsigned lengthGenRangeOptimized(const unsigned char* p) {
  return lengthVariant(rangeBody(p, kGenRangeOptimizedVariants), p);
}

} // namespace Orvane
