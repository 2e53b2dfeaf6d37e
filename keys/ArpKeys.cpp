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
// whether two more numbers follow, so an entry has two layouts and the flag picks one.
constexpr FieldKind kArpInputConfigKeyField{formatArpInputConfigKey, lengthArpInputConfigKey,
                                            nullptr, "ARP input configuration key (ARPICK)"};
constexpr LabeledField kEntryKey{"", &kArpInputConfigKeyField};
constexpr LabeledField kEntryMac{"[", &kEthField};
constexpr LabeledField kEntryFlag{"][", &kU8Field};
constexpr LabeledField kEntryNumber{"][", &kU32Field};
constexpr FieldLayout kEntryLayouts[] = {
    /* plain */ {{kEntryKey, kEntryMac, kEntryFlag, kEntryNumber}, "]"},
    /* extended */
    {{kEntryKey, kEntryMac, kEntryFlag, kEntryNumber, kEntryNumber, kEntryNumber}, "]"},
};
// Where the flag is: after the key and the MAC.
constexpr LabeledField kEntryAddresses[] = {kEntryKey, kEntryMac, {""}};

constexpr FieldVariants kArpInputConfigEntryVariants{
    "the flag byte that follows the key and the MAC; each body is the whole value",
    std::size(kEntryLayouts),
    [](unsigned extended) -> const LabeledField* { return kEntryLayouts[extended].fields; },
    [](unsigned extended, std::ostream& os) { os << (extended ? "Flag 1" : "Any other flag"); }};

namespace {

VariantBody entryBody(const unsigned char* p) {
  const bool extended = at(p, lengthTable<kEntryAddresses>(p))[0] == kExtendedEntry;
  return {kArpInputConfigEntryVariants.body(extended ? 1 : 0)};
}

} // namespace

unsigned appendArpInputConfigEntry(const unsigned char* p, TextRun& text) {
  return printVariant(entryBody(p), p, text);
}
unsigned formatArpInputConfigEntry(const unsigned char* p, std::ostream& os) {
  return formatThroughRun<appendArpInputConfigEntry>(p, os);
}
unsigned lengthArpInputConfigEntry(const unsigned char* p) {
  return lengthVariant(entryBody(p), p);
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
