// The generic BGP next hop ("BNH") of every type, and its VRF.
#include "bgp/NextHop.h"
#include "tests/support/FormatCase.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Orvane::test {
namespace {

// VRF kind 1 (L3) with vrfId 2; the next-hop type byte follows.
#define VRF "01 02 00 00 00"
#define AT_VRF " (L3-vrfId:2)"
#define V4 "01 00 00 0a" // 10.0.0.1
#define V6 "20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 01"
#define MAC "00 1c 73 aa bb cc"
#define ESI "00 11 22 33 44 55 66 77 88 99"
#define ESI_TEXT "0011:2233:4455:6677:8899"
#define EL100 "41 06 00 02" // EVPN label word: MplsLabel:100
#define VNI "e8 03 00 01"   // EVPN label word: VNI:1000
#define GA_V4 "01 " V4 " 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
// Layer-2 attributes present: B and F set, FxcMode 3, VlanNormalization 1, mtu 1500.
#define L2 "19 03 01 00 dc 05 00 00"
// The start that types 5, 12, 17, 30 and 32 share.
#define EVPN_BODY V4 " " EL100 " 01 " VNI
#define EVPN_TEXT "<ip:10.0.0.1, label:MplsLabel:100, singleActive:True, esiLabel:VNI:1000"

TEST(NextHop, NullTypesPrintOnlyTheVrf) {
  expectCases({
      {"BNH", "00 00 00 00 00 00", "NULL (L2-vrfId:0)", 6},
      {"BNH", "00 00 00 00 00 c8", "NULL (L2-vrfId:0)", 6},
      {"BNH", VRF " 21", "NULL" AT_VRF, 6},
  });
}

TEST(NextHop, AddressTypes) {
  expectCases({
      {"BNH", VRF " 01 " V4, "10.0.0.1" AT_VRF, 10},
      {"BNH", VRF " 02 " V6, "2001:db8::1" AT_VRF, 22},
      {"BNH", VRF " 03 " V4 " " MAC, "<ip:10.0.0.1, routerMac:001c.73aa.bbcc>" AT_VRF, 16},
      {"BNH", VRF " 04 " V6 " " MAC, "<ip:2001:db8::1, routerMac:001c.73aa.bbcc>" AT_VRF, 28},
      {"BNH", VRF " 07 " V6 " 03 00 00 00",
       "<ipv6:2001:db8::1, label:MplsLabel(ImplicitNull)>" AT_VRF, 26},
      {"BNH", VRF " 08 " V4 " 10 00 00 00", "<ip:10.0.0.1, label:16>" AT_VRF, 14},
      {"BNH", VRF " 09 " V6 " 10 00 00 00", "<ipv6:2001:db8::1, label:16>" AT_VRF, 26},
      // An address scoped by an interface name: no blank around "%".
      {"BNH", VRF " 0a " V6 " 03 65 74 31", "2001:db8::1%et1" AT_VRF, 26},
      {"BNH", VRF " 0d " V4 " 05", "<ip:10.0.0.1, mcastFlags:5>" AT_VRF, 11},
      {"BNH", VRF " 0e " V6 " 05", "<ip:2001:db8::1, mcastFlags:5>" AT_VRF, 23},
      {"BNH", VRF " 0f " V4 " 05 0a", "<ip:10.0.0.1, mcastFlags:5, maxResponseTime:10>" AT_VRF, 12},
      {"BNH", VRF " 10 " V6 " 05 0a", "<ip:2001:db8::1, mcastFlags:5, maxResponseTime:10>" AT_VRF,
       24},
      {"BNH", VRF " 12 " V4 " 01", "<ip:10.0.0.1, remoteDomain:True>" AT_VRF, 11},
      {"BNH", VRF " 16 " GA_V4, "10.0.0.1" AT_VRF, 27},
      {"BNH", VRF " 1a " V6 " " V6 " 40", "<ipv6:2001:db8::1, l3Sid:2001:db8::1/64>" AT_VRF, 39},
  });
}

TEST(NextHop, EvpnTypes) {
  const std::string routerMacs = "<ip:10.0.0.1, l3Label:MplsLabel:100, routerMac:001c.73aa.bbcc, "
                                 "localL3Label:VNI:1000, localRouterMac:001c.73aa.bbcc, "
                                 "localL3Label2:MplsLabel:100>";
  expectCases({
      {"BNH", VRF " 05 " EVPN_BODY, EVPN_TEXT ">" AT_VRF, 19},
      {"BNH", VRF " 06 " V4 " " ESI " " EL100 " " VNI,
       "<ip:10.0.0.1, esi:" ESI_TEXT ", label:MplsLabel:100, label2:VNI:1000>" AT_VRF, 28},
      {"BNH", VRF " 0b " V4 " " ESI " " EL100 " " VNI " 00",
       "<ip:10.0.0.1, esi:" ESI_TEXT
       ", label:MplsLabel:100, label2:VNI:1000, ndProxyFlag:False>" AT_VRF,
       29},
      {"BNH", VRF " 13 " EL100 " " MAC " " VNI,
       "<l3Label:MplsLabel:100, routerMac:001c.73aa.bbcc, l3Label2:VNI:1000>" AT_VRF, 20},
      {"BNH", VRF " 14 " V4 " " EL100 " " MAC " " VNI " " MAC " " EL100, routerMacs + AT_VRF, 34},
      {"BNH", VRF " 15 " V6 " " EL100 " " MAC " " VNI " " MAC " " EL100,
       "<ip:2001:db8::1" + routerMacs.substr(12) + AT_VRF, 46},
      {"BNH", VRF " 17 " ESI " " EL100 " " VNI " " EL100 " " VNI " 01",
       "<esi:" ESI_TEXT ", label:MplsLabel:100, l3Label:VNI:1000, label2:MplsLabel:100, "
       "l3Label2:VNI:1000, ndProxyFlag:True>" AT_VRF,
       33},
      {"BNH", VRF " 18 " EL100 " " VNI, "<label:MplsLabel:100, label2:VNI:1000>" AT_VRF, 14},
      // The SID counts its 16 address bytes and its length byte.
      {"BNH", VRF " 19 " EL100 " " MAC " " VNI " " V6 " 80",
       "<l3Label:MplsLabel:100, routerMac:001c.73aa.bbcc, l3Label2:VNI:1000, "
       "l3Sid:2001:db8::1/128>" AT_VRF,
       37},
  });
}

TEST(NextHop, LayerTwoAttributesFollowWithoutASeparator) {
  const std::string attrsV1 = ", evpnL2Attrs:Bpc;fxcUndefined;normalizedDoubleVlan;mtu=1500";
  const std::string attrsV2 = ", evpnL2Attrs:Bpc;fxcUndefined;normalizedSingleVlan;mtu=1500";
  const std::string attrsV3 = ", evpnL2Attrs:BpcF;fxcUndefined;normalizedSingleVlan;mtu=1500";
  const std::string etree = ", etreeLeafLabel:MplsLabel:100>" AT_VRF;
  expectCases({
      {"BNH", VRF " 0c " EVPN_BODY " " L2, EVPN_TEXT + attrsV1 + ">" AT_VRF, 27},
      // Bit 0 clear: 4 bytes, nothing printed.
      {"BNH", VRF " 0c " EVPN_BODY " 18 03 01 00", EVPN_TEXT ">" AT_VRF, 23},
      {"BNH", VRF " 11 " EVPN_BODY " " L2, EVPN_TEXT + attrsV2 + ">" AT_VRF, 27},
      {"BNH", VRF " 1e " EVPN_BODY " " L2 " " EL100, EVPN_TEXT + attrsV2 + etree, 31},
      {"BNH", VRF " 1e " EVPN_BODY " 00 00 00 00 " EL100, EVPN_TEXT + etree, 27},
      {"BNH", VRF " 1f " V4 " 00 " L2, "<ip:10.0.0.1, remoteDomain:False" + attrsV3 + ">" AT_VRF,
       19},
      {"BNH", VRF " 20 " EVPN_BODY " " L2 " " EL100, EVPN_TEXT + attrsV3 + etree, 31},
  });
}

TEST(NextHop, GenericAddressTypes) {
  const char* vbs = ", vbs:1000, labelBase:MplsLabel(ImplicitNull)>" AT_VRF;
  expectCases({
      {"BNH", VRF " 1b " GA_V4 " e8 03 03 00 00 00", std::string("<ip:10.0.0.1") + vbs, 33},
      // The Opt address is 5, 17 or 1 bytes by its family byte.
      {"BNH", VRF " 1c 01 " V4, "10.0.0.1" AT_VRF, 11},
      {"BNH", VRF " 1c 02 " V6, "2001:db8::1" AT_VRF, 23},
      {"BNH", VRF " 1c 00", "unknown" AT_VRF, 7},
      {"BNH", VRF " 1d 01 " V4 " e8 03 03 00 00 00", std::string("<ip:10.0.0.1") + vbs, 17},
      {"BNH", VRF " 1d 02 " V6 " e8 03 03 00 00 00", std::string("<ip:2001:db8::1") + vbs, 29},
      {"BNH", VRF " 1d 07 e8 03 03 00 00 00", std::string("<ip:unknown") + vbs, 13},
  });
}

TEST(NextHop, VrfKinds) {
  expectCases({
      {"BNH", "00 05 00 00 00 00", "NULL (L2-vrfId:5)", 6},
      {"BNH", "01 05 00 00 00 00", "NULL (L3-vrfId:5)", 6},
      {"BNH", "02 05 00 00 00 00", "NULL (SBD-vrfId:5)", 6},
      {"BNH", "03 ff ff ff ff 00", "NULL (VPLS-vrfId:4294967295)", 6},
      {"BNH", "04 05 00 00 00 00", "NULL (unknown-vrfId:5)", 6},
      {"BNH", "09 05 00 00 00 00", "NULL (unknown-vrfId:5)", 6},
  });

  const unsigned char vrf[] = {1, 7, 0, 0, 0};
  std::ostringstream os;
  EXPECT_EQ(&formatBgpVrfIdForRkAndNh(vrf, os), &os);
  EXPECT_EQ(os.str(), "L3-vrfId:7");
}

} // namespace
} // namespace Orvane::test
