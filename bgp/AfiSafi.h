// BGP address families (AFI) and subsequent address families (SAFI): ids "AFI", "SAFI"
// and "AFS", and the by-value printers the route key, next hop and peer key formatters
// call. The platform's NLRI types, which map to (AFI, SAFI) pairs, are in NlriType.h.
//
// The SAFI half of an AfiSafi is 16 bits wide: 0..255 are protocol SAFIs, 256 and above
// are platform-private SAFIs that exist only inside the system. {0, 0} stands for no
// address family. The name tables are copied as the platform uses them, irregular rows
// included (240 is "reservedPrivate9", 249 has no name).
#pragma once

#include "registry/Export.h"
#include "registry/NameTable.h"
#include "registry/TextRun.h"

#include <ostream>
#include <utility>

namespace Orvane {

/// An (AFI, SAFI) pair. Passed by value as one 32-bit word whose low half is `afi`.
struct AfiSafi {
  unsigned short afi;
  unsigned short safi;
  friend bool operator==(AfiSafi, AfiSafi) = default;
};

/// Contents of the AFI name table.
inline constexpr std::pair<unsigned, const char*> kAfiNameEntries[] = {
    {0, "None"}, {1, "ipv4"}, {2, "ipv6"}, {25, "l2vpn"}, {0x4004, "linkState"},
    {0x4005, "48bitMac"},
};

/// Contents of the SAFI name table (16-bit codes; 0x100 and above are private).
inline constexpr std::pair<unsigned, const char*> kSafiNameEntries[] = {
    {0, "None"},
    {1, "ucast"},
    {2, "mcast"},
    {4, "mplsLabels"},
    {5, "mvpn"},
    {65, "vpls"},
    {70, "evpn"},
    {71, "linkState"},
    {73, "srTe"},
    {79, "dps"},
    {128, "mplsVpn"},
    {132, "rtMembership"},
    {133, "flowspec"},
    {134, "flowspecVpn"},
    // The private range is numbered irregularly: 240 is number 9 and 249 has no name.
    {240, "reservedPrivate9"},
    {241, "reservedPrivate1"},
    {242, "reservedPrivate2"},
    {243, "reservedPrivate3"},
    {244, "reservedPrivate4"},
    {245, "reservedPrivate5"},
    {246, "reservedPrivate6"},
    {247, "reservedPrivate7"},
    {248, "reservedPrivate8"},
    {250, "reservedPrivate10"},
    {251, "reservedPrivate11"},
    {252, "reservedPrivate12"},
    {253, "reservedPrivate13"},
    {254, "reservedPrivate14"},
    {0x101, "privEvpnMacSegment"},
    {0x102, "privEvpnMacAddress"},
    {0x103, "privEvpnMacFloodTarget"},
    {0x104, "privEvpnMacEthSegment"},
    {0x105, "privEvpnMacArp"},
    {0x106, "privEvpnMacMulticast"},
    {0x107, "privEvpnMacJoinSynch"},
    {0x108, "privEvpnMacLeaveSynch"},
    {0x10A, "privEvpnMacSpmsiAd"},
    {0x10C, "privVplsAd"},
    {0x10D, "privVplsVe"},
    {0x110, "privMvpnType1"},
    {0x111, "privMvpnType2"},
    {0x112, "privMvpnType3"},
    {0x113, "privMvpnType4"},
    {0x114, "privMvpnType5"},
    {0x115, "privMvpnType6"},
    {0x116, "privMvpnType7"},
};

/// AFI names by code; built at load time (KaMessageFormatter.cpp).
extern const NameTable afiNames;
/// SAFI names by 16-bit code; built at load time (KaMessageFormatter.cpp).
extern const NameTable safiNames;

/// The AFI's name, or "unknown".
const char* afiName(unsigned short afi);
/// The SAFI's name (private SAFIs too), or "unknown".
const char* safiName(unsigned short safi);

/// Writes the AFI's name, or "unknown". No brackets. Returns `os`.
ORVANE_API std::ostream& formatAfi(unsigned short afi, std::ostream& os);
/// Writes the SAFI's name (private SAFIs too), or "unknown". No brackets. Returns `os`.
ORVANE_API std::ostream& formatSafi(unsigned short safi, std::ostream& os);
/// Writes "<AFI:" afi-name ">/<SAFI:" safi-name ">", e.g. <AFI:ipv4>/<SAFI:mplsVpn> for
/// {1, 128}. Returns `os`.
ORVANE_API std::ostream& formatAfiSafi(AfiSafi afiSafi, std::ostream& os);
/// Gathers the text of formatAfiSafi() into `text`.
void printAfiSafi(AfiSafi afiSafi, TextRun& text);

/// "AFI": native u16 AFI, printed as "<AFI:" name ">". Returns 2.
ORVANE_API unsigned formatAfi(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthAfi(const unsigned char* p); ///< 2

/// "SAFI": one SAFI byte, printed as "<SAFI:" name ">"; the private SAFIs (256 and
/// above) cannot be carried in it. Returns 1.
ORVANE_API unsigned formatSafiLegacy(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthSafi(const unsigned char* p); ///< 1

/// "AFS": one native u32 word with the SAFI in its low 16 bits (bytes 0-1) and the AFI
/// in its high 16 bits (bytes 2-3), the opposite of AfiSafi in memory; printed as
/// formatAfiSafi prints it: bytes 80 00 01 00 give <AFI:ipv4>/<SAFI:mplsVpn>. Returns 4.
ORVANE_API unsigned formatAfiSafi(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthAfiSafi(const unsigned char* p); ///< 4

/// The append forms (TextRun.h) of "AFI", "SAFI" and "AFS".
unsigned appendAfi(const unsigned char* p, TextRun& text);
unsigned appendSafiLegacy(const unsigned char* p, TextRun& text);
unsigned appendAfiSafi(const unsigned char* p, TextRun& text);

} // namespace Orvane
