// Tunnel and pseudowire keys.
#include "tests/support/FormatCase.h"

#include <gtest/gtest.h>

namespace Orvane::test {
namespace {

#define ZERO16 "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
#define V6_DOC "20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 01"
// Generic addresses (21 bytes) and Opt addresses of 10.0.0.1 and 2001:db8::1.
#define GEN_V4 "01 01 00 00 0a " ZERO16
#define GEN_V6 "02 00 00 00 00 " V6_DOC
#define OPT_V4 "01 01 00 00 0a"
#define OPT_V6 "02 " V6_DOC
#define VRF_5 "05 00 00 00"
#define GEN_ID_7 "07 00 00 00 00 00 00 00"

TEST(TunnelKey, FixedAndGenericForms) {
  expectCases({
      {"TK", "01 00 00 0a 02 00 00 0a " VRF_5 " " GEN_ID_7,
       "src:10.0.0.1, dst:10.0.0.2, vrf:5, genId:7", 20},
      {"TK", "", "src:0.0.0.0, dst:0.0.0.0, vrf:0, genId:0", 20},
      {"TKG", GEN_V4 " " GEN_V6 " " VRF_5 " " GEN_ID_7,
       "src:10.0.0.1, dst:2001:db8::1, vrf:5, genId:7", 54},
      {"TKG", "07 " ZERO16 " 00 00 00 00 " GEN_V4 " " VRF_5 " " GEN_ID_7,
       "src:unknown, dst:10.0.0.1, vrf:5, genId:7", 54},
      // The second Opt address starts where the first ends, by the first one's tag.
      {"TKGO", OPT_V4 " 01 02 00 00 0a " VRF_5 " " GEN_ID_7,
       "src:10.0.0.1, dst:10.0.0.2, vrf:5, genId:7", 22},
      {"TKGO", OPT_V6 " 07 " VRF_5 " " GEN_ID_7, "src:2001:db8::1, dst:unknown, vrf:5, genId:7",
       30},
      {"TKGO", "00 00 " VRF_5 " " GEN_ID_7, "src:unknown, dst:unknown, vrf:5, genId:7", 14},
  });
}

TEST(PseudowireKey, NumberStringAddressWithoutBlanks) {
  expectCases({
      {"PW", "64 00 00 00 03 65 74 31 " GEN_V4, "100/et1/10.0.0.1", 29},
      {"PW", "64 00 00 00 00 " GEN_V6, "100//2001:db8::1", 26},
      // An unknown tag still consumes the 21 address bytes.
      {"PW", "01 00 00 00 01 78 09", "1/x/unknown", 27},
      {"PWO", "64 00 00 00 03 65 74 31 " OPT_V4, "100/et1/10.0.0.1", 13},
      {"PWO", "64 00 00 00 03 65 74 31 " OPT_V6, "100/et1/2001:db8::1", 25},
      {"PWO", "01 00 00 00 01 78 09", "1/x/unknown", 7},
  });
}

} // namespace
} // namespace Orvane::test
