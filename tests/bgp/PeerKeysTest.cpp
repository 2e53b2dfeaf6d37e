// BGP peer keys ("BPK") and adj-RIB-in types ("RIBINT"). BMP route keys are tested
// with the other route key frames (RouteKeyTest.cpp).
#include "tests/support/FormatCase.h"

#include <gtest/gtest.h>

namespace Orvane::test {
namespace {

#define GA_V4 "01 01 00 00 0a 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00" // 10.0.0.1
#define V6 "20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 01"
#define ET1 "03 65 74 31"     // host string "et1"
#define V4_PEER "01 02 00 c0" // 192.0.2.1

TEST(PeerKey, EveryType) {
  expectCases({
      {"BPK", "00", "", 1},
      {"BPK", "08", "", 1},
      {"BPK", "ff", "", 1},
      {"BPK", "01 " GA_V4 " " ET1, "10.0.0.1%et1", 26},
      {"BPK", "02 " GA_V4, "10.0.0.1", 22},
      {"BPK", "03 " ET1, "et1", 5},
      {"BPK", "03 00", "", 2},
      {"BPK", "04 " GA_V4 " " V4_PEER, "10.0.0.1 (192.0.2.1)", 26},
      {"BPK", "05 01 01 00 00 0a " ET1, "10.0.0.1%et1", 10},
      {"BPK", "05 00 " ET1, "unknown%et1", 6},
      // The Opt address is 1, 5 or 17 bytes by its family byte.
      {"BPK", "06 00", "unknown", 2},
      {"BPK", "06 09", "unknown", 2},
      {"BPK", "06 01 01 00 00 0a", "10.0.0.1", 6},
      {"BPK", "06 02 " V6, "2001:db8::1", 18},
      {"BPK", "07 02 " V6 " " V4_PEER, "2001:db8::1 (192.0.2.1)", 22},
      {"BPK", "07 00 " V4_PEER, "unknown (192.0.2.1)", 6},
  });
}

TEST(AdjRibinType, NamesAndFallback) {
  expectCases({
      {"RIBINT", "00", "<AdjRibin:None>", 1},
      {"RIBINT", "01", "<AdjRibin:peer>", 1},
      {"RIBINT", "06", "<AdjRibin:aggregate>", 1},
      {"RIBINT", "07", "<AdjRibin:defaultOrigiante>", 1}, // spelt as the platform spells it
      {"RIBINT", "09", "<AdjRibin:linkStateProducer>", 1},
      {"RIBINT", "0a", "<AdjRibin:unknown>", 1},
      {"RIBINT", "ff", "<AdjRibin:unknown>", 1},
  });
}

} // namespace
} // namespace Orvane::test
