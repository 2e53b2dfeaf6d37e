#include "keys/ArpKeys.h"

#include "address/Ethernet.h"
#include "address/GenericAddress.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

namespace Orvane {
namespace {

// The flag byte of an entry that carries two more numbers.
constexpr unsigned char kExtendedEntry = 1;

} // namespace

constexpr LabeledField kArpInputConfigKeyRows[] = {
    {"[", &kIpGenAddrOptField}, {"][", &kStringField}, {"]"}};
constexpr FieldTable kArpInputConfigKeyFields{kArpInputConfigKeyRows};
unsigned formatArpInputConfigKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kArpInputConfigKeyRows>(p, os);
}
unsigned lengthArpInputConfigKey(const unsigned char* p) {
  return lengthTable<kArpInputConfigKeyRows>(p);
}

// An entry: the key and the MAC, then the flag and a number; the flag alone decides
// whether two more numbers follow.
constexpr FieldKind kArpInputConfigKeyField{formatArpInputConfigKey, lengthArpInputConfigKey,
                                            nullptr, "ARP input configuration key (ARPICK)"};
constexpr LabeledField kEntryAddresses[] = {
    {"", &kArpInputConfigKeyField}, {"[", &kEthField}, {"]["}};
constexpr LabeledField kEntryNumbers[] = {{"", &kU8Field}, {"][", &kU32Field}, {""}};
constexpr LabeledField kEntryExtension[] = {{"][", &kU32Field}, {"][", &kU32Field}, {""}};

unsigned appendArpInputConfigEntry(const unsigned char* p, TextRun& text) {
  unsigned off = printFields(kEntryAddresses, p, 0, text);
  const bool extended = at(p, off)[0] == kExtendedEntry;
  off = printFields(kEntryNumbers, p, off, text);
  if (extended) off = printFields(kEntryExtension, p, off, text);
  text << "]";
  return off;
}
unsigned formatArpInputConfigEntry(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendArpInputConfigEntry>(p, os);
}
unsigned lengthArpInputConfigEntry(const unsigned char* p) {
  unsigned off = measureFields(kEntryAddresses, p);
  const bool extended = at(p, off)[0] == kExtendedEntry;
  off = measureFields(kEntryNumbers, p, off);
  return extended ? measureFields(kEntryExtension, p, off) : off;
}

constexpr LabeledField kArpInputPriorityKeyRows[] = {{"[", &kU8Field}, {"][", &kU32Field}, {"]"}};
constexpr FieldTable kArpInputPriorityKeyFields{kArpInputPriorityKeyRows};
unsigned formatArpInputPriorityKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kArpInputPriorityKeyRows>(p, os);
}
unsigned lengthArpInputPriorityKey(const unsigned char* p) {
  return lengthTable<kArpInputPriorityKeyRows>(p);
}

constexpr FieldKind kArpInputPriorityKeyField{formatArpInputPriorityKey, lengthArpInputPriorityKey,
                                              nullptr, "ARP input priority key (ARPIPK)"};
constexpr LabeledField kArpInputPriorityInterfaceKeyRows[] = {
    {"", &kArpInputPriorityKeyField}, {"[", &kStringField}, {"]"}};
constexpr FieldTable kArpInputPriorityInterfaceKeyFields{kArpInputPriorityInterfaceKeyRows};
unsigned formatArpInputPriorityInterfaceKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kArpInputPriorityInterfaceKeyRows>(p, os);
}
unsigned lengthArpInputPriorityInterfaceKey(const unsigned char* p) {
  return lengthTable<kArpInputPriorityInterfaceKeyRows>(p);
}

} // namespace Orvane
