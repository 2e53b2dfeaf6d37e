// The platform's NLRI types, one byte each, and the (AFI, SAFI) pair each implies: ids
// "NLRI" and "NLRI2AFISAFI". The tables are copied as the platform uses them, irregular
// rows included ("ipv6Dps" and "ipv6Ipsec" map to AFI ipv4).
#pragma once

#include "bgp/AfiSafi.h"
#include "registry/Export.h"
#include "registry/NameTable.h"

#include <ostream>
#include <unordered_map>
#include <utility>

namespace Orvane {

/// The platform's kind of BGP route, one byte. Codes 65..255 name nothing.
enum NlriType : unsigned char {
  kNlriNone = 0,
  kNlriV4u = 1,
  kNlriV6u = 2,
  kNlriEvpnType1 = 3,
  kNlriEvpnType2 = 4,
  kNlriEvpnType3 = 5,
  kNlriEvpnType4 = 6,
  kNlriEvpnType5Ipv4 = 7,
  kNlriEvpnType5Ipv6 = 8,
  kNlriMacSegment = 9,
  kNlriMacAddress = 10,
  kNlriMacFloodTarget = 11,
  kNlriMacEthSegment = 12,
  kNlriMacArp = 13,
  kNlriRtMembership = 14,
  kNlriV4Lu = 15,
  kNlriV6Lu = 16,
  kNlriV4m = 17,
  kNlriMplsVpnv4u = 18,
  kNlriMplsVpnv6u = 19,
  kNlriFlowspecv4u = 20,
  kNlriFlowspecv6u = 21,
  kNlriV4srTe = 22,
  kNlriV6srTe = 23,
  kNlriV6m = 24,
  kNlriEvpnType6 = 25,
  kNlriEvpnType7 = 26,
  kNlriEvpnType8 = 27,
  kNlriEvpnType10 = 28,
  kNlriMacMulticast = 29,
  kNlriMacJoinSynch = 30,
  kNlriMacLeaveSynch = 31,
  kNlriMacSpmsiAd = 32,
  kNlriLsNode = 33,
  kNlriLsLink = 34,
  kNlriLsV4Prefix = 35,
  kNlriLsV6Prefix = 36,
  kNlriIpv4Dps = 37,
  kNlriIpv4Ipsec = 38,
  kNlriIpv6Dps = 39,
  kNlriIpv6Ipsec = 40,
  kNlriIpv4MvpnType1 = 41,
  kNlriIpv4MvpnType2 = 42,
  kNlriIpv4MvpnType3 = 43,
  kNlriIpv4MvpnType4 = 44,
  kNlriIpv4MvpnType5 = 45,
  kNlriIpv4MvpnType6 = 46,
  kNlriIpv4MvpnType7 = 47,
  kNlriIpv4MvpnVpnType1 = 48,
  kNlriIpv4MvpnVpnType2 = 49,
  kNlriIpv4MvpnVpnType3 = 50,
  kNlriIpv4MvpnVpnType4 = 51,
  kNlriIpv4MvpnVpnType5 = 52,
  kNlriIpv4MvpnVpnType6 = 53,
  kNlriIpv4MvpnVpnType7 = 54,
  kNlriVplsVpnAd = 55,
  kNlriVplsVpnVe = 56,
  kNlriVplsVpnCe = 57,
  kNlriVplsAd = 58,
  kNlriIpEvpnResolution = 59,
  kNlriIpAdSegment = 60,
  kNlriVplsVe = 61,
  kNlriFlowspecVpnv4u = 62,
  kNlriFlowspecVpnv6u = 63,
  kNlriOneBeyondLastValid = 64, ///< sentinel: has a name, maps to {0, 0}
};

/// Contents of the NlriType name table.
inline constexpr std::pair<unsigned, const char*> kNlriTypeNameEntries[] = {
    {kNlriNone, "None"},
    {kNlriV4u, "v4u"},
    {kNlriV6u, "v6u"},
    {kNlriEvpnType1, "evpnType1"},
    {kNlriEvpnType2, "evpnType2"},
    {kNlriEvpnType3, "evpnType3"},
    {kNlriEvpnType4, "evpnType4"},
    {kNlriEvpnType5Ipv4, "evpnType5Ipv4"},
    {kNlriEvpnType5Ipv6, "evpnType5Ipv6"},
    {kNlriMacSegment, "macSegment"},
    {kNlriMacAddress, "macAddress"},
    {kNlriMacFloodTarget, "macFloodTarget"},
    {kNlriMacEthSegment, "macEthSegment"},
    {kNlriMacArp, "macArp"},
    {kNlriRtMembership, "rtMembership"},
    {kNlriV4Lu, "v4Lu"},
    {kNlriV6Lu, "v6Lu"},
    {kNlriV4m, "v4m"},
    {kNlriMplsVpnv4u, "mplsVpnv4u"},
    {kNlriMplsVpnv6u, "mplsVpnv6u"},
    {kNlriFlowspecv4u, "flowspecv4u"},
    {kNlriFlowspecv6u, "flowspecv6u"},
    {kNlriV4srTe, "v4srTe"},
    {kNlriV6srTe, "v6srTe"},
    {kNlriV6m, "v6m"},
    {kNlriEvpnType6, "evpnType6"},
    {kNlriEvpnType7, "evpnType7"},
    {kNlriEvpnType8, "evpnType8"},
    {kNlriEvpnType10, "evpnType10"},
    {kNlriMacMulticast, "macMulticast"},
    {kNlriMacJoinSynch, "macJoinSynch"},
    {kNlriMacLeaveSynch, "macLeaveSynch"},
    {kNlriMacSpmsiAd, "macSpmsiAd"},
    {kNlriLsNode, "lsNode"},
    {kNlriLsLink, "lsLink"},
    {kNlriLsV4Prefix, "lsV4Prefix"},
    {kNlriLsV6Prefix, "lsV6Prefix"},
    {kNlriIpv4Dps, "ipv4Dps"},
    {kNlriIpv4Ipsec, "ipv4Ipsec"},
    {kNlriIpv6Dps, "ipv6Dps"},
    {kNlriIpv6Ipsec, "ipv6Ipsec"},
    {kNlriIpv4MvpnType1, "ipv4MvpnType1"},
    {kNlriIpv4MvpnType2, "ipv4MvpnType2"},
    {kNlriIpv4MvpnType3, "ipv4MvpnType3"},
    {kNlriIpv4MvpnType4, "ipv4MvpnType4"},
    {kNlriIpv4MvpnType5, "ipv4MvpnType5"},
    {kNlriIpv4MvpnType6, "ipv4MvpnType6"},
    {kNlriIpv4MvpnType7, "ipv4MvpnType7"},
    {kNlriIpv4MvpnVpnType1, "ipv4MvpnVpnType1"},
    {kNlriIpv4MvpnVpnType2, "ipv4MvpnVpnType2"},
    {kNlriIpv4MvpnVpnType3, "ipv4MvpnVpnType3"},
    {kNlriIpv4MvpnVpnType4, "ipv4MvpnVpnType4"},
    {kNlriIpv4MvpnVpnType5, "ipv4MvpnVpnType5"},
    {kNlriIpv4MvpnVpnType6, "ipv4MvpnVpnType6"},
    {kNlriIpv4MvpnVpnType7, "ipv4MvpnVpnType7"},
    {kNlriVplsVpnAd, "vplsVpnAd"},
    {kNlriVplsVpnVe, "vplsVpnVe"},
    {kNlriVplsVpnCe, "vplsVpnCe"},
    {kNlriVplsAd, "vplsAd"},
    {kNlriIpEvpnResolution, "ipEvpnResolution"},
    {kNlriIpAdSegment, "ipAdSegment"},
    {kNlriVplsVe, "vplsVe"},
    {kNlriFlowspecVpnv4u, "flowspecVpnv4u"},
    {kNlriFlowspecVpnv6u, "flowspecVpnv6u"},
    {kNlriOneBeyondLastValid, "oneBeyondLastValid"},
};

/// Named (AFI, SAFI) pairs the NlriType table is written with.
namespace afisafi {
inline constexpr AfiSafi kNone{0, 0};
inline constexpr AfiSafi kIpv4Ucast{1, 1}, kIpv6Ucast{2, 1};
inline constexpr AfiSafi kIpv4Mcast{1, 2}, kIpv6Mcast{2, 2};
inline constexpr AfiSafi kIpv4Labels{1, 4}, kIpv6Labels{2, 4};
inline constexpr AfiSafi kIpv4Mvpn{1, 5};
inline constexpr AfiSafi kL2vpnVpls{25, 65}, kL2vpnEvpn{25, 70};
inline constexpr AfiSafi kLinkState{0x4004, 71};
inline constexpr AfiSafi kIpv4SrTe{1, 73}, kIpv6SrTe{2, 73};
inline constexpr AfiSafi kIpv4Dps{1, 79};
inline constexpr AfiSafi kIpv4MplsVpn{1, 128}, kIpv6MplsVpn{2, 128};
inline constexpr AfiSafi kIpv4RtMembership{1, 132};
inline constexpr AfiSafi kIpv4Flowspec{1, 133}, kIpv6Flowspec{2, 133};
inline constexpr AfiSafi kIpv4FlowspecVpn{1, 134}, kIpv6FlowspecVpn{2, 134};
/// The 48-bit MAC family with a private SAFI.
constexpr AfiSafi mac(unsigned short safi) { return {0x4005, safi}; }
} // namespace afisafi

/// Contents of the NlriType to AfiSafi table, irregular rows included: "ipv6Dps" and
/// "ipv6Ipsec" map to ipv4, "ipEvpnResolution" and "ipAdSegment" to ipv4 with the MAC
/// types' private SAFIs, and the sentinel 64 to {0, 0}.
inline constexpr std::pair<unsigned, AfiSafi> kNlriTypeToAfiSafiEntries[] = {
    {kNlriNone, afisafi::kNone},
    {kNlriV4u, afisafi::kIpv4Ucast},
    {kNlriV6u, afisafi::kIpv6Ucast},
    {kNlriEvpnType1, afisafi::kL2vpnEvpn},
    {kNlriEvpnType2, afisafi::kL2vpnEvpn},
    {kNlriEvpnType3, afisafi::kL2vpnEvpn},
    {kNlriEvpnType4, afisafi::kL2vpnEvpn},
    {kNlriEvpnType5Ipv4, afisafi::kL2vpnEvpn},
    {kNlriEvpnType5Ipv6, afisafi::kL2vpnEvpn},
    {kNlriMacSegment, afisafi::mac(0x101)},
    {kNlriMacAddress, afisafi::mac(0x102)},
    {kNlriMacFloodTarget, afisafi::mac(0x103)},
    {kNlriMacEthSegment, afisafi::mac(0x104)},
    {kNlriMacArp, afisafi::mac(0x105)},
    {kNlriRtMembership, afisafi::kIpv4RtMembership},
    {kNlriV4Lu, afisafi::kIpv4Labels},
    {kNlriV6Lu, afisafi::kIpv6Labels},
    {kNlriV4m, afisafi::kIpv4Mcast},
    {kNlriMplsVpnv4u, afisafi::kIpv4MplsVpn},
    {kNlriMplsVpnv6u, afisafi::kIpv6MplsVpn},
    {kNlriFlowspecv4u, afisafi::kIpv4Flowspec},
    {kNlriFlowspecv6u, afisafi::kIpv6Flowspec},
    {kNlriV4srTe, afisafi::kIpv4SrTe},
    {kNlriV6srTe, afisafi::kIpv6SrTe},
    {kNlriV6m, afisafi::kIpv6Mcast},
    {kNlriEvpnType6, afisafi::kL2vpnEvpn},
    {kNlriEvpnType7, afisafi::kL2vpnEvpn},
    {kNlriEvpnType8, afisafi::kL2vpnEvpn},
    {kNlriEvpnType10, afisafi::kL2vpnEvpn},
    {kNlriMacMulticast, afisafi::mac(0x106)},
    {kNlriMacJoinSynch, afisafi::mac(0x107)},
    {kNlriMacLeaveSynch, afisafi::mac(0x108)},
    {kNlriMacSpmsiAd, afisafi::mac(0x10A)},
    {kNlriLsNode, afisafi::kLinkState},
    {kNlriLsLink, afisafi::kLinkState},
    {kNlriLsV4Prefix, afisafi::kLinkState},
    {kNlriLsV6Prefix, afisafi::kLinkState},
    {kNlriIpv4Dps, afisafi::kIpv4Dps},
    {kNlriIpv4Ipsec, afisafi::kIpv4Dps},
    {kNlriIpv6Dps, afisafi::kIpv4Dps},
    {kNlriIpv6Ipsec, afisafi::kIpv4Dps},
    {kNlriIpv4MvpnType1, afisafi::kIpv4Mvpn},
    {kNlriIpv4MvpnType2, afisafi::kIpv4Mvpn},
    {kNlriIpv4MvpnType3, afisafi::kIpv4Mvpn},
    {kNlriIpv4MvpnType4, afisafi::kIpv4Mvpn},
    {kNlriIpv4MvpnType5, afisafi::kIpv4Mvpn},
    {kNlriIpv4MvpnType6, afisafi::kIpv4Mvpn},
    {kNlriIpv4MvpnType7, afisafi::kIpv4Mvpn},
    {kNlriIpv4MvpnVpnType1, {1, 0x110}},
    {kNlriIpv4MvpnVpnType2, {1, 0x111}},
    {kNlriIpv4MvpnVpnType3, {1, 0x112}},
    {kNlriIpv4MvpnVpnType4, {1, 0x113}},
    {kNlriIpv4MvpnVpnType5, {1, 0x114}},
    {kNlriIpv4MvpnVpnType6, {1, 0x115}},
    {kNlriIpv4MvpnVpnType7, {1, 0x116}},
    {kNlriVplsVpnAd, afisafi::kL2vpnVpls},
    {kNlriVplsVpnVe, afisafi::kL2vpnVpls},
    {kNlriVplsVpnCe, afisafi::kL2vpnVpls},
    {kNlriVplsAd, {25, 0x10C}},
    {kNlriIpEvpnResolution, {1, 0x105}},
    {kNlriIpAdSegment, {1, 0x101}},
    {kNlriVplsVe, {25, 0x10D}},
    {kNlriFlowspecVpnv4u, afisafi::kIpv4FlowspecVpn},
    {kNlriFlowspecVpnv6u, afisafi::kIpv6FlowspecVpn},
    {kNlriOneBeyondLastValid, afisafi::kNone},
};

/// NlriType names by code; built at load time (KaMessageFormatter.cpp).
extern const NameTable nlriTypeNames;
/// The (AFI, SAFI) each NlriType implies; built at load time (KaMessageFormatter.cpp).
extern const std::unordered_map<unsigned, AfiSafi> nlriTypeToAfiSafi;

/// Writes "<NLRI:" name ">", or <NLRI:unknown> for a code without a name. Returns `os`.
ORVANE_API std::ostream& formatNlriType(NlriType type, std::ostream& os);
/// The (AFI, SAFI) that `type` maps to; {0, 0} for a code not in the map (65..255).
ORVANE_API AfiSafi bgpRouteKeyParseNlriType(unsigned char type);

/// "NLRI": one NlriType byte, printed as formatNlriType prints it. Returns 1.
ORVANE_API unsigned formatNlriType(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthNlriType(const unsigned char* p); ///< 1

/// "NLRI2AFISAFI": one NlriType byte and the pair it maps to, e.g.
/// <NLRI:v6u><AFI:ipv6>/<SAFI:ucast>; a code not in the map prints
/// <NLRI:unknown-N><AfiSafi:unknown> with N in decimal. Returns 1.
ORVANE_API unsigned formatNlriType2AfiSafi(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthNlriType2AfiSafi(const unsigned char* p); ///< 1

/// The append forms (TextRun.h) of "NLRI" and "NLRI2AFISAFI".
unsigned appendNlriType(const unsigned char* p, TextRun& text);
unsigned appendNlriType2AfiSafi(const unsigned char* p, TextRun& text);

} // namespace Orvane
