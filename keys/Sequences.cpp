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

// Range kinds and the formatters of the bodies that differ between "GR" and "GRO".
enum RangeKind : unsigned char { kNoRange = 0, kPrefixRange = 1, kSequenceRange = 2,
                                 kAddressPairRange = 255 };
constexpr unsigned kRangeHeader = 1;

struct RangeBodies {
  FormatPtr formatPrefix;
  LengthPtr lengthPrefix;
  FormatPtr formatAddressPair;
  LengthPtr lengthAddressPair;
};
constexpr RangeBodies kFullBodies{formatIpGenPrefix, lengthIpGenPrefix,
                                  formatIpGenAddrWithFullMask, lengthIpGenAddrWithFullMask};
constexpr RangeBodies kOptimizedBodies{formatIpGenPrefixOptimized, lengthIpGenPrefixOptimized,
                                       formatIpGenAddrOptWithFullMask,
                                       lengthIpGenAddrWithFullMaskOpt};

unsigned formatRange(const unsigned char* p, std::ostream& os, const RangeBodies& bodies) {
  const unsigned char* body = p + kRangeHeader;
  switch (p[0]) {
  case kNoRange: os << "n/a"; return kRangeHeader;
  case kPrefixRange: return kRangeHeader + bodies.formatPrefix(body, os);
  case kSequenceRange: return kRangeHeader + formatUnsignedSequence(body, os);
  case kAddressPairRange: return kRangeHeader + bodies.formatAddressPair(body, os);
  default: return kInvalidLength;
  }
}

unsigned measureRange(const unsigned char* p, const RangeBodies& bodies) {
  const unsigned char* body = p + kRangeHeader;
  switch (p[0]) {
  case kNoRange: return kRangeHeader;
  case kPrefixRange: return kRangeHeader + bodies.lengthPrefix(body);
  case kSequenceRange: return kRangeHeader + lengthUnsignedSequence(body);
  case kAddressPairRange: return kRangeHeader + bodies.lengthAddressPair(body);
  default: return kInvalidLength;
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

unsigned formatGenRange(const unsigned char* p, std::ostream& os) {
  return formatRange(p, os, kFullBodies);
}
unsigned lengthGenRange(const unsigned char* p) { return measureRange(p, kFullBodies); }

unsigned formatGenRangeOptimized(const unsigned char* p, std::ostream& os) {
  return formatRange(p, os, kOptimizedBodies);
}
unsigned lengthGenRangeOptimized(const unsigned char* p) {
  return measureRange(p, kOptimizedBodies);
}

} // namespace Orvane
