// Route distinguishers, route targets and RT-membership keys, with the stream state
// each leaves behind.
#include "bgp/RouteDistinguisher.h"
#include "tests/support/FormatCase.h"

#include <gtest/gtest.h>

#include <iostream>
#include <sstream>

namespace Orvane::test {
namespace {

TEST(RouteDistinguisher, ByType) {
  expectCases({
      {"RD", "01 00 00 00 00 00 00 00", "0:1", 8},
      {"RD", "ff ff ff 00 e8 fd 00 00", "65000:16777215", 8},
      // Type 0 prints an assigned number above 0xFFFFFF as an address.
      {"RD", "00 00 00 01 00 00 00 00", "0:1.0.0.0", 8},
      {"RD", "01 00 00 0a 64 00 00 00", "100:10.0.0.1", 8},
      {"RD", "07 00 01 02 00 c0 01 00", "192.0.2.1:7", 8},
      {"RD", "64 00 70 11 01 00 02 00", "70000:100", 8},
      {"RD", "64 00 e8 fd 00 00 02 00", "65000:100", 8},
      {"RD", "01 00 00 00 00 00 05 00", "0x0005000000000001", 8},
      {"RD", "ef cd ab 89 67 45 23 01", "0x0123456789abcdef", 8},
  });
}

TEST(RouteTarget, ByType) {
  expectCases({
      {"RT", "05 00 00 00 64 00 00 00", "100:5", 8},
      // Type 0 keeps a large local number in decimal, unlike the RD.
      {"RT", "00 00 00 01 64 00 02 00", "100:16777216", 8},
      {"RT", "07 00 01 02 00 c0 00 01", "192.0.2.1:7", 8},
      // The subtype byte is ignored.
      {"RT", "07 00 01 02 00 c0 02 01", "192.0.2.1:7", 8},
      {"RT", "64 00 e8 fd 00 00 02 02", "65000L:100", 8},
      {"RT", "64 00 70 11 01 00 00 02", "70000:100", 8},
      {"RT", "2a 00 00 00 00 00 00 02", "0L:42", 8},
      {"RT", "ef cd ab 89 67 45 23 03", "INVALID:0x323456789ABCDEF", 8},
      {"RT", "01 00 00 00 00 00 00 80", "INVALID:0x8000000000000001", 8},
  });
}

TEST(RtMembershipRouteKey, OriginTargetLengthAndRawValue) {
  expectCases({
      {"RTMRK", "e8 fd 00 00 05 00 00 00 64 00 00 00 60",
       "origin: 65000;100:5/96; value: 0x0000006400000005", 13},
      {"RTMRK", "00 00 00 00 64 00 e8 fd 00 00 02 02 40",
       "origin: 0;65000L:100/64; value: 0x02020000FDE80064", 13},
  });
}

TEST(RouteDistinguisher, UnknownTypeLeavesTheStreamInHexWithZeroFill) {
  const auto coutFlags = std::cout.flags();
  const auto coutFill = std::cout.fill();
  std::ostringstream os;
  formatRouteDistinguisher(0x0005000000000001ull, os);
  os << " " << 255;
  os.width(4);
  os << 10;
  EXPECT_EQ(os.str(), "0x0005000000000001 ff000a");
  EXPECT_EQ(std::cout.flags(), coutFlags);
  EXPECT_EQ(std::cout.fill(), coutFill);
}

TEST(RouteDistinguisher, KnownTypesLeaveTheStreamAsItWas) {
  std::ostringstream os;
  formatRouteDistinguisher(0x0001c000020100ffull, os);
  os << " " << 255;
  EXPECT_EQ(os.str(), "192.0.2.1:255 255");
  EXPECT_EQ(os.fill(), ' ');
}

TEST(RouteTarget, UnknownTypeSetsTheStreamBackToDecimal) {
  std::ostringstream os;
  formatRouteTarget(0xff000000000000abull, os);
  os << " " << 171 << " " << std::hex << 171;
  EXPECT_EQ(os.str(), "INVALID:0xFF000000000000AB 171 ab");
}

TEST(RtMembershipRouteKey, LeavesDecimalWithZeroFill) {
  const unsigned char key[13] = {1, 0, 0, 0, 5, 0, 0, 0, 100, 0, 0, 0, 32};
  std::ostringstream os;
  EXPECT_EQ(formatRtMembershipRouteKey(key, os), 13u);
  os << " " << 171 << " " << std::hex << 171;
  os.width(3);
  os << 1;
  EXPECT_EQ(os.str(), "origin: 1;100:5/32; value: 0x0000006400000005 171 ab001");
}

} // namespace
} // namespace Orvane::test
