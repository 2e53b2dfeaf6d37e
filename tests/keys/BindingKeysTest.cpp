// ARP input keys and entries, and the address-binding keys.
#include "tests/support/FormatCase.h"
#include "tests/support/HexText.h"

#include <gtest/gtest.h>

namespace Orvane::test {
namespace {

#define IGO_V4 "01 01 00 00 0a"
#define IG_V4 IGO_V4 " 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
#define V6_DOC "20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 01"
#define MAC "00 1c 73 aa bb cc"

TEST(ArpKeys, KeysAndEntries) {
  const std::string key = IGO_V4 " " + hostString("Ethernet1");
  const std::string keyText = "[10.0.0.1][Ethernet1]";
  expectCases({
      {"ARPICK", key, keyText, 5 + 10},
      {"ARPICK", "07 " + hostString("Et1"), "[unknown][Et1]", 1 + 4},
      // The flag byte alone decides whether two more numbers follow.
      {"ARPICE", key + " " MAC " 01 05 00 00 00 06 00 00 00 07 00 00 00",
       keyText + "[001c.73aa.bbcc][1][5][6][7]", 15 + 6 + 1 + 12},
      {"ARPICE", key + " " MAC " 00 05 00 00 00", keyText + "[001c.73aa.bbcc][0][5]", 15 + 6 + 5},
      {"ARPICE", key + " " MAC " 02 05 00 00 00", keyText + "[001c.73aa.bbcc][2][5]", 15 + 6 + 5},
      {"ARPIPK", "05 64 00 00 00", "[5][100]", 5},
      {"ARPIPIK", "05 64 00 00 00 " + hostString("Et1"), "[5][100][Et1]", 5 + 4},
  });
}

TEST(BindingKeys, AddressBindings) {
  expectCases({
      {"DMBK", "01 00 06 00 " MAC " " + hostString("u1") + " 2a 00 00 00 " + hostString("e9"),
       "duid(type: 1, hwtype: 6, lladdr: 001c.73aa.bbcc, uuid: u1, entno: 42, entId: e9)",
       4 + 6 + 3 + 4 + 3},
      {"IPMACV2", IG_V4 " " MAC " 2a 00 00 00 01", "[10.0.0.1,001c.73aa.bbcc,42,1]", 32},
      {"IPMACV2O", IGO_V4 " " MAC " 2a 00 00 00 01", "[10.0.0.1,001c.73aa.bbcc,42,1]", 16},
      {"IPMACV2O", "02 " V6_DOC " " MAC " 2a 00 00 00 01", "[2001:db8::1,001c.73aa.bbcc,42,1]",
       28},
      {"IPMACV2O", "07 " MAC " 2a 00 00 00 01", "[unknown,001c.73aa.bbcc,42,1]", 12},
      {"MV", MAC " 01 00 00 0a 10 27 00 00 03", "[001c.73aa.bbcc,10.0.0.1,10000,3]", 15},
      {"MVP", MAC " 0a 00", "[001c.73aa.bbcc,10]", 8},
      {"VIP", "0a 00 " IG_V4, "[10,10.0.0.1]", 23},
      {"VIPO", "0a 00 " IGO_V4, "[10,10.0.0.1]", 7},
      {"VIPO", "0a 00 02 " V6_DOC, "[10,2001:db8::1]", 19},
      {"VIPO", "0a 00 00", "[10,unknown]", 3},
      {"VIDP", "01 00 00 00 ff ff ff ff", "(1-4294967295)", 8},
      {"VSP", "10 27 00 00 " + hostString("Vxlan1") + " " + hostString("evpn"),
       "[10000,Vxlan1,evpn]", 4 + 7 + 5},
  });
}

} // namespace
} // namespace Orvane::test
