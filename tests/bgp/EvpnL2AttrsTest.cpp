// EVPN layer-2 attributes in their three versions, and the shared worker.
#include "bgp/EvpnL2Attrs.h"
#include "tests/support/FormatCase.h"

#include <gtest/gtest.h>

#include <sstream>
#include <utility>

namespace Orvane::test {
namespace {

// Present, B and F set, FxcMode 3, VlanNormalization 1, mtu 1500.
const std::string kExample = "19 03 01 00 dc 05 00 00";

TEST(EvpnL2Attrs, VersionsDifferInTablesAndTheFLetter) {
  expectCases({
      {"EL2V3", kExample, ", evpnL2Attrs:BpcF;fxcUndefined;normalizedSingleVlan;mtu=1500", 8},
      {"EL2", kExample, ", evpnL2Attrs:Bpc;fxcUndefined;normalizedSingleVlan;mtu=1500", 8},
      {"EL2old", kExample, ", evpnL2Attrs:Bpc;fxcUndefined;normalizedDoubleVlan;mtu=1500", 8},
      {"EL2V3", "1f 00 00 00 00 24 00 00", ", evpnL2Attrs:BPCF;mtu=9216", 8},
      {"EL2", "1f 00 00 00 00 24 00 00", ", evpnL2Attrs:BPC;mtu=9216", 8},
      {"EL2old", "1f 00 00 00 00 24 00 00", ", evpnL2Attrs:BPC;mtu=9216", 8},
      {"EL2V3", "01 00 00 00 00 00 00 00", ", evpnL2Attrs:bpcf;mtu=0", 8},
      // Codes 1 and 2 of both tables.
      {"EL2V3", "03 01 02 00 dc 05 00 00",
       ", evpnL2Attrs:bpCf;fxcVlanSignaled;normalizedDoubleVlan;mtu=1500", 8},
      {"EL2", "05 02 01 00 dc 05 00 00",
       ", evpnL2Attrs:bPc;fxcDefault;normalizedSingleVlan;mtu=1500", 8},
      {"EL2old", "03 01 02 00 dc 05 00 00",
       ", evpnL2Attrs:bpC;fxcVlanUnaware;normalizedSingleVlan;mtu=1500", 8},
      {"EL2old", "09 02 01 00 dc 05 00 00",
       ", evpnL2Attrs:Bpc;fxcVlanAware;normalizedDoubleVlan;mtu=1500", 8},
      // Bits 5..7 and 24..31 are not used.
      {"EL2", "e1 00 00 ff ff ff ff ff", ", evpnL2Attrs:bpc;mtu=4294967295", 8},
  });
}

TEST(EvpnL2Attrs, AbsentAttributesPrintNothing) {
  for (const char* id : {"EL2V3", "EL2", "EL2old"})
    expectCases({
        {id, "00 00 00 00", "", 4},
        {id, "1e 03 01 ff", "", 4},
    });
}

TEST(EvpnL2Attrs, UnknownCodesPrintAsNumbers) {
  for (auto [id, fLetter] : {std::pair{"EL2V3", "f"}, std::pair{"EL2", ""}, {"EL2old", ""}})
    expectCases({
        {id, "01 07 09 00 dc 05 00 00",
         std::string(", evpnL2Attrs:bpc") + fLetter + ";FxcMode(7);VlanNormalization(9);mtu=1500",
         8},
    });
}

TEST(EvpnL2Attrs, WorkerUsesTheGivenTables) {
  const NameTable fxc{{1, "one"}, {2, nullptr}};
  const NameTable vlan{{5, "five"}};
  const unsigned char named[8] = {0x01, 0x01, 0x05, 0, 0x40, 0, 0, 0};
  std::ostringstream os;
  EXPECT_EQ(formatEvpnL2Attrs(named, os, fxc, vlan, false), 8u);
  EXPECT_EQ(os.str(), ", evpnL2Attrs:bpc;one;five;mtu=64");

  // A null name sets the bad bit once the ";" is out.
  const unsigned char nullName[8] = {0x01, 0x02, 0x00, 0, 0x40, 0, 0, 0};
  std::ostringstream bad;
  formatEvpnL2Attrs(nullName, bad, fxc, vlan, true);
  EXPECT_TRUE(bad.bad());
  EXPECT_EQ(bad.str(), ", evpnL2Attrs:bpcf;");
}

} // namespace
} // namespace Orvane::test
