// CSPF vertices and path keys, and BFD peers.
#include "mpls/CspfKeys.h"
#include "tests/support/FormatCase.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Orvane::test {
namespace {

#define ZERO16 "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
#define V6_DOC "20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 01"

TEST(CspfVertex, EveryType) {
  expectCases({
      {"CV", "00", "n/a", 1},
      {"CV", "01 00 00 00 0a 08", "10.0.0.0/8", 6},
      {"CV", "02 " V6_DOC " 40", "2001:db8::1/64", 18},
      {"CV", "03 01 00 00 0a", "10.0.0.1", 5},
      {"CV", "04 " V6_DOC, "2001:db8::1", 17},
      {"CV", "05 19 21 68 00 10 01", "1921.6800.1001", 7},
      {"CV", "06 01 00 00 0a", "10.0.0.1", 5},
      {"CV", "07", "", kInvalidLength},
  });
}

TEST(CspfPathKey, PlainClientAndP2mp) {
  expectCases({
      {"CPK", "03 01 00 00 0a 07 00 00 00", "dst=10.0.0.1, id=7", 9},
      {"CPK", "00 07 00 00 00", "dst=n/a, id=7", 5},
      // After an invalid vertex the id is read one byte early and the total wraps.
      {"CPK", "09 00 00", "dst=, id=2304", 3},
      {"CCPK", "01 2a 00 00 00", "p2mpPathKey=<id=42>", 5},
      {"CCPK", "00 00 07 00 00 00", "pathKey=<dst=n/a, id=7>", 6},
      {"CCPK", "00 05 19 21 68 00 10 01 02 00 00 00", "pathKey=<dst=1921.6800.1001, id=2>", 12},
      // The id of the wrapped kind-0 key starts at the kind byte.
      {"CCPK", "00 09 00 00", "pathKey=<dst=, id=2304>", 4},
      {"CCPK", "02 00 00 00 00", "", kInvalidLength},
      {"CP2MPK", "03 00 00 00", "id=3", 4},
  });
}

TEST(CspfPathKey, WrappedIdIsTheByteBeforeTheVertex) {
  const unsigned char bytes[] = {0x2a, 0x09, 0x00, 0x00};
  std::ostringstream os;
  EXPECT_EQ(formatCspfPathKey(bytes + 1, os), 3u);
  EXPECT_EQ(lengthCspfPathKey(bytes + 1), 3u);
  EXPECT_EQ(os.str(), "dst=, id=2346");
}

TEST(BfdPeer, FixedAndOptAddressesPrintAlike) {
  // peer 10.0.0.1, vrf "red", source 10.0.0.2, interface "et1", tunnel 9, type 1.
  const std::string tail = " 03 65 74 31 09 00 00 00 00 00 00 00 01 00 00 00";
  const std::string text =
      "peer(ip:10.0.0.1, vrf:red, srcip:10.0.0.2, intf:et1, tunnelId:9, type:1)";
  expectCases({
      {"BP", "01 01 00 00 0a " ZERO16 " 03 72 65 64 01 02 00 00 0a " ZERO16 + tail, text, 62},
      {"BPO", "01 01 00 00 0a 03 72 65 64 01 02 00 00 0a" + tail, text, 30},
      {"BPO", "02 " V6_DOC " 00 07 00 00 00 00 00 00 00 00 00 00 00 00 00",
       "peer(ip:2001:db8::1, vrf:, srcip:unknown, intf:, tunnelId:0, type:0)", 32},
      {"BP", "", "peer(ip:unknown, vrf:, srcip:unknown, intf:, tunnelId:0, type:0)", 56},
  });
}

} // namespace
} // namespace Orvane::test
