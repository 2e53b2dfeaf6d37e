// Multicast route keys, flags, join states and tunnel types.
#include "mpls/Multicast.h"
#include "tests/support/FormatCase.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Orvane::test {
namespace {

#define ZERO16 "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
#define V6_DOC "20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 01"
// The 12 bytes after an IPv4 address in a generic prefix.
#define V4_PAD "00 00 00 00 00 00 00 00 00 00 00 00"

TEST(MRouteFlags, LettersOfSetBytesThenE) {
  expectCases({
      {"MF", "00 00 00 00 00 00 00 00 00 00 00 00 00", "E", 13},
      {"MF", "01 00 01 01 00 00 00 00 00 00 00 00 00", "RSJ", 13},
      {"MF", "00 ff 00 00 00 00 00 00 00 00 00 00 00", "W", 13},
      {"MF", "00 00 00 00 00 00 00 00 00 00 00 00 01", "OE", 13},
      {"MF", "01 01 01 01 01 01 01 01 01 01 01 01 01", "RWSJTBKZNMACO", 13},
  });
}

// Replaces the flag letters for one test and puts the library's own back.
class SwappedFlags {
public:
  explicit SwappedFlags(const char* letters) : saved_(mRouteFlags) { mRouteFlags = letters; }
  ~SwappedFlags() { mRouteFlags = saved_; }

private:
  const char* saved_;
};

TEST(MRouteFlags, ReplacedLettersChangeTextAndSize) {
  {
    SwappedFlags swap("XYZQ");
    expectCases({
        {"MF", "01 00 00 01", "XQE", 4},
        {"MF", "00 01 01 00", "YZ", 4},
    });
  }
  expectCases({{"MF", "01 00 00 01 00 00 00 00 00 00 00 00 00", "RJE", 13}});
}

TEST(MRouteJoinState, NoUnknownFallback) {
  expectCases({
      {"MIJ", "00 00 00 00", "noInfo", 4},
      {"MIJ", "01 00 00 00", "prunePending", 4},
      {"MIJ", "02 00 00 00", "joined", 4},
      {"MIJ", "ff ff ff ff", "joined", 4},
      {"MIJ", "00 00 00 01", "joined", 4},
      {"MIR", "00 00 00 00", "rptNoInfo", 4},
      {"MIR", "01 00 00 00", "rptPruned", 4},
      {"MIR", "02 00 00 00", "rptPrunePending", 4},
  });
}

TEST(MulticastTunnelType, NameOrNumber) {
  expectCases({
      {"MTT", "00", "tunnelTypePimSm", 1},
      {"MTT", "01", "tunnelTypePimSsm", 1},
      {"MTT", "02", "tunnelTypePimBidir", 1},
      {"MTT", "03", "3", 1},
  });
}

TEST(MRouteKey, AddressAndPrefixPairs) {
  expectCases({
      {"MK", "01 01 00 00 0a " ZERO16 " 02 00 00 00 00 " V6_DOC, "(10.0.0.1, 2001:db8::1)", 42},
      {"MK", "09", "(unknown, unknown)", 42},
      {"MKO", "01 01 00 00 0a 02 " V6_DOC, "(10.0.0.1, 2001:db8::1)", 22},
      {"MKO", "07 09", "(unknown, unknown)", 2},
      {"MFK", "01 00 00 0a 20 01 01 01 ef 20", "(10.0.0.1/32, 239.1.1.1/32)", 10},
      {"MFK", "00 00 00 00 00 00 00 00 e0 04", "(0.0.0.0/0, 224.0.0.0/4)", 10},
      {"MFGK", "01 0a 00 00 01 " V4_PAD " 18 01 ef 01 01 01 " V4_PAD " 20",
       "(10.0.0.1/24, 239.1.1.1/32)", 36},
      {"MFGKO", "01 18 0a 00 00 01 20 ef 01 01 01", "(10.0.0.0/24, 239.1.1.1/32)", 11},
      {"MFGKO", "00 ff 02 ff", "(, ::/255)", 4},
  });
}

TEST(MRouteKey, SecondPrefixAfterAnUnknownTagIsReadOneByteEarly) {
  // The first prefix (tag 7) measures -1, so the second starts one byte before the
  // value: here the 01 in front, with the first prefix's tag as its length.
  const unsigned char bytes[] = {0x01, 0x07, 0x08};
  const unsigned char* value = bytes + 1;
  std::ostringstream os;
  EXPECT_EQ(formatMfibGenRouteKeyOptimized(value, os), 2u);
  EXPECT_EQ(lengthMfibGenRouteKeyOptimized(value), 2u);
  EXPECT_EQ(os.str(), "(unknown address family(7)/8, 8.0.0.0/7)");
}

} // namespace
} // namespace Orvane::test
