// FAP masks, out-AC and SVI egress keys, UDF descriptors and interface encapsulations.
#include "tests/support/FormatCase.h"
#include "tests/support/HexText.h"

#include <gtest/gtest.h>

#include <initializer_list>

namespace Orvane::test {
namespace {

// The hex of a 16-byte FAP mask with the given ids set.
std::string fapMask(std::initializer_list<unsigned> ids) {
  std::vector<unsigned char> bytes(16);
  for (unsigned id : ids) bytes[id / 8] |= static_cast<unsigned char>(1u << (id % 8));
  return hexOf(bytes);
}

TEST(FapMask, RunsOfIds) {
  expectCases({
      {"F", fapMask({0, 2, 3, 4, 127}), "(0,2-4,127)", 16},
      {"F", fapMask({}), "()", 16},
      {"F", fapMask({127}), "(127)", 16},
      {"F", fapMask({126, 127}), "(126-127)", 16},
      {"F", fapMask({63, 64}), "(63-64)", 16},
      {"F", fapMask({0, 1}), "(0-1)", 16},
      {"F", fapMask({1, 3, 5}), "(1,3,5)", 16},
      {"F", "ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff", "(0-127)", 16},
  });
}

TEST(ForwardingKeys, OutAcAndSviKeys) {
  const std::string outAcType = "03 00 00 10 00 00 02";
  expectCases({
      {"OUTACTYPE", outAcType, "(fapId: 3, acIndex: 4096, outAcType: 2)", 7},
      {"OUTAC",
       fapMask({0, 1}) + "01 00 00 00 02 00 00 00 03 00 00 00 e8 03 00 00 05 06 " +
           hostString("Et1") + " 0a 00 00 20 00 00 01",
       "(fapMask: (0-1), acFormat: 1, 2, 3, acIndex: 1000, pool: 5, appId: 6, intfId: Et1, "
       "vlanId: 10, innerOutlif: 8192, isL2SubIntf: True)",
       16 + 16 + 2 + 4 + 2 + 4 + 1},
      {"SVIEVE", hostString("Vlan10") + " " + hostString("Et1") + " 02 00 " + hostString("Po1"),
       "(vlanIntfId: Vlan10, intfId: Et1, fapId: 2, lagIntfId: Po1)", 7 + 4 + 2 + 4},
      {"SVIESEM", "00 00 00 00 00 " + outAcType,
       "(eveKey: (vlanIntfId: , intfId: , fapId: 0, lagIntfId: ), "
       "outAcTypeKey: (fapId: 3, acIndex: 4096, outAcType: 2))",
       5 + 7},
  });
}

TEST(ForwardingKeys, UdfPrintsHexFieldsThenDecimal) {
  // Each hex field is followed by a decimal one: the base must be back to decimal.
  expectCases({
      {"UDF",
       hostString("udf1") + " 00 08 " + hostString("l3") + " 11 dd 86 14 02 ff 00 00 00 1f",
       "udf1 ethtype:0x800 l3 ipProto:17 innerEthType:0x86dd offset:20 length:2 "
       "lagMask:0xff priority:31",
       5 + 2 + 3 + 1 + 2 + 1 + 1 + 4 + 1},
  });
}

TEST(IntfEncap, VlanTags) {
  const std::string name = hostString("Ethernet1");
  expectCases({
      {"IE", name + " 0a 00 14 00", "Ethernet1(10,20)", 14},
      // Standard tags (TPID 0x8100, priority 0) print only the VLAN id.
      {"IE2", name + " 0a 00 00 81 00 14 00 00 81 00", "Ethernet1(10,20)", 20},
      {"IE2", name + " 0a 00 a8 88 03 14 00 00 81 01", "Ethernet1(0x88a8:p3:10,0x8100:p1:20)",
       20},
      {"IE2", name + " 0a 00 a8 88 00 ff 0f 00 00 00", "Ethernet1(0x88a8:p0:10,0x0:p0:4095)", 20},
  });
}

} // namespace
} // namespace Orvane::test
