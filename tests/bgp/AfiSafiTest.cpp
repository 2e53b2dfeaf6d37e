// AFI, SAFI and NLRI type codes: the registered ids and the by-value printers.
#include "bgp/AfiSafi.h"
#include "tests/support/FormatCase.h"

#include <gtest/gtest.h>

#include <cstring>
#include <sstream>

namespace Orvane::test {
namespace {

TEST(AfiSafi, AfiAndSafiNames) {
  expectCases({
      {"AFI", "01 00", "<AFI:ipv4>", 2},
      {"AFI", "19 00", "<AFI:l2vpn>", 2},
      {"AFI", "04 40", "<AFI:linkState>", 2},
      {"AFI", "05 40", "<AFI:48bitMac>", 2},
      {"AFI", "03 00", "<AFI:unknown>", 2},
      {"SAFI", "00", "<SAFI:None>", 1},
      {"SAFI", "80", "<SAFI:mplsVpn>", 1},
      // The private range is numbered irregularly: 240 is number 9, 249 has no name.
      {"SAFI", "f0", "<SAFI:reservedPrivate9>", 1},
      {"SAFI", "f1", "<SAFI:reservedPrivate1>", 1},
      {"SAFI", "f8", "<SAFI:reservedPrivate8>", 1},
      {"SAFI", "f9", "<SAFI:unknown>", 1},
      {"SAFI", "fa", "<SAFI:reservedPrivate10>", 1},
      {"SAFI", "fe", "<SAFI:reservedPrivate14>", 1},
      {"SAFI", "ff", "<SAFI:unknown>", 1},
      {"SAFI", "03", "<SAFI:unknown>", 1},
  });
}

TEST(AfiSafi, EncodedWordHasTheSafiInItsLowHalf) {
  expectCases({
      {"AFS", "80 00 01 00", "<AFI:ipv4>/<SAFI:mplsVpn>", 4},
      {"AFS", "01 01 05 40", "<AFI:48bitMac>/<SAFI:privEvpnMacSegment>", 4},
      {"AFS", "16 01 01 00", "<AFI:ipv4>/<SAFI:privMvpnType7>", 4},
      {"AFS", "00 00 00 00", "<AFI:None>/<SAFI:None>", 4},
      {"AFS", "09 01 07 00", "<AFI:unknown>/<SAFI:unknown>", 4},
  });
}

TEST(AfiSafi, NlriTypes) {
  expectCases({
      {"NLRI", "00", "<NLRI:None>", 1},
      {"NLRI", "12", "<NLRI:mplsVpnv4u>", 1},
      {"NLRI", "40", "<NLRI:oneBeyondLastValid>", 1},
      {"NLRI", "41", "<NLRI:unknown>", 1},
      {"NLRI2AFISAFI", "02", "<NLRI:v6u><AFI:ipv6>/<SAFI:ucast>", 1},
      {"NLRI2AFISAFI", "09", "<NLRI:macSegment><AFI:48bitMac>/<SAFI:privEvpnMacSegment>", 1},
      {"NLRI2AFISAFI", "40", "<NLRI:oneBeyondLastValid><AFI:None>/<SAFI:None>", 1},
      // Irregular rows kept as the platform has them.
      {"NLRI2AFISAFI", "27", "<NLRI:ipv6Dps><AFI:ipv4>/<SAFI:dps>", 1},
      {"NLRI2AFISAFI", "28", "<NLRI:ipv6Ipsec><AFI:ipv4>/<SAFI:dps>", 1},
      {"NLRI2AFISAFI", "3b", "<NLRI:ipEvpnResolution><AFI:ipv4>/<SAFI:privEvpnMacArp>", 1},
      {"NLRI2AFISAFI", "3c", "<NLRI:ipAdSegment><AFI:ipv4>/<SAFI:privEvpnMacSegment>", 1},
      {"NLRI2AFISAFI", "3a", "<NLRI:vplsAd><AFI:l2vpn>/<SAFI:privVplsAd>", 1},
      {"NLRI2AFISAFI", "41", "<NLRI:unknown-65><AfiSafi:unknown>", 1},
      {"NLRI2AFISAFI", "c8", "<NLRI:unknown-200><AfiSafi:unknown>", 1},
  });
}

// Through the exported printers: the tables themselves are internal to the plug-in.
TEST(AfiSafi, EveryNlriTypeHasANameAndAPair) {
  for (unsigned code = 0; code <= 255; ++code) {
    const unsigned char byte = code;
    std::ostringstream os; // "unknown" for a code without a name or without a pair
    formatNlriType2AfiSafi(&byte, os);
    EXPECT_EQ(os.str().find("unknown") == std::string::npos, code <= kNlriOneBeyondLastValid)
        << os.str();
  }
  unsigned afis = 0, safis = 0;
  for (unsigned code = 0; code <= 0xFFFF; ++code) {
    std::ostringstream afi, safi;
    formatAfi(code, afi), formatSafi(code, safi);
    afis += afi.str() != "unknown", safis += safi.str() != "unknown";
  }
  EXPECT_EQ(afis, 6u);
  EXPECT_EQ(safis, 46u);
}

TEST(AfiSafi, ParseNlriType) {
  EXPECT_EQ(bgpRouteKeyParseNlriType(kNlriMplsVpnv6u), (AfiSafi{2, 128}));
  EXPECT_EQ(bgpRouteKeyParseNlriType(kNlriMacSpmsiAd), (AfiSafi{0x4005, 0x10A}));
  EXPECT_EQ(bgpRouteKeyParseNlriType(kNlriIpv4MvpnVpnType1), (AfiSafi{1, 0x110}));
  for (unsigned char none : {0, 64, 65, 255})
    EXPECT_EQ(bgpRouteKeyParseNlriType(none), (AfiSafi{0, 0})) << unsigned(none);
}

TEST(AfiSafi, ByValuePrinters) {
  std::ostringstream os;
  formatAfiSafi({1, 128}, os) << "|";
  formatAfi(0x4004, os) << "|";
  formatAfi(7, os) << "|";
  formatSafi(0x10D, os) << "|";
  formatSafi(0x109, os) << "|";
  formatNlriType(kNlriEvpnType10, os) << "|";
  formatNlriType(static_cast<NlriType>(99), os);
  EXPECT_EQ(os.str(), "<AFI:ipv4>/<SAFI:mplsVpn>|linkState|unknown|privVplsVe|unknown|"
                      "<NLRI:evpnType10>|<NLRI:unknown>");
}

TEST(AfiSafi, AfiIsTheLowHalfOfThePassedWord) {
  static_assert(sizeof(AfiSafi) == 4);
  const AfiSafi pair{1, 128};
  unsigned word;
  std::memcpy(&word, &pair, sizeof word);
  EXPECT_EQ(word, 0x00800001u);
}

} // namespace
} // namespace Orvane::test
