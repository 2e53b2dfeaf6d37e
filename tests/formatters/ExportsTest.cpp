// What the vector files cannot show: the stream state a formatter leaves to its caller,
// the exported value-taking printers and helpers, and the writable flag letters.
#include "address/Ip.h"
#include "bgp/AfiSafi.h"
#include "bgp/EvpnL2Attrs.h"
#include "bgp/NextHop.h"
#include "bgp/NlriType.h"
#include "mpls/Label.h"
#include "mpls/Multicast.h"
#include "tests/support/FormatCase.h"
#include "tools/ovfmt/Hex.h"

#include <gtest/gtest.h>

#include <iomanip>

namespace Orvane::test {
namespace {

// Formats a value on a fresh stream (already hex when `hexFirst`), then prints 255 in
// the base left behind, 255 in lower-case hex, and 7 in a width of three.
std::string formatThenProbe(const std::string& id, const std::string& hex, bool hexFirst) {
  std::string error;
  auto bytes = *ovfmt::parseHex(hex, error);
  bytes.resize(64);
  std::ostringstream os;
  if (hexFirst) os << std::hex;
  host::findFormatter(id)->format(bytes.data(), os);
  os << ' ' << 255 << ' ' << std::hex << 255 << ' ' << std::setw(3) << 7;
  return os.str();
}

TEST(Exports, StreamStateLeftToTheCaller) {
  const struct {
    const char* id;
    const char* hex;
    bool hexFirst;
    const char* expected;
  } cases[] = {
      // Two-digit bytes leave the zero fill set, the base back to decimal.
      {"A", "05 29 0a 0b 0c", false, "0a0b-0c 255 ff 007"},
      {"PKT", "00 81 64 00 01 00 00 01 0a", false, "(tpid 0x8100 vlan 100) 0a 255 ff 007"},
      {"RTMRK", "01 00 00 00 05 00 00 00 64 00 00 00 20", false,
       "origin: 1;100:5/32; value: 0x0000006400000005 255 ff 007"},
      // An RD of unknown type leaves hex and the zero fill; known types touch nothing.
      {"RD", "01 00 00 00 00 00 05 00", false, "0x0005000000000001 ff ff 007"},
      {"RD", "ff 00 01 02 00 c0 01 00", false, "192.0.2.1:255 255 ff   7"},
      // An invalid RT prints upper-case hex and sets decimal and lower case back.
      {"RT", "ab 00 00 00 00 00 00 ff", false, "INVALID:0xFF000000000000AB 255 ff   7"},
      // Ports print in the caller's base.
      {"C", "01 00 00 0a 00 04 02 00 00 0a 50 00 11", true,
       "10.0.0.1:400 -> 10.0.0.2:50,11 ff ff   7"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(formatThenProbe(c.id, c.hex, c.hexFirst), c.expected) << c.id << " " << c.hex;
}

TEST(Exports, ValuePrinters) {
  const unsigned char vrf[] = {1, 7, 0, 0, 0};
  std::ostringstream os;
  formatMplsLabel(3u, os) << '|';
  formatMplsLabel(0x100000u, os) << '|';
  formatMplsLabel(24001u, os) << '|';
  formatAfiSafi({1, 128}, os) << '|';
  formatAfi(0x4004, os) << '|';
  formatSafi(0x10D, os) << '|';
  formatSafi(0x109, os) << '|';
  formatNlriType(kNlriEvpnType10, os) << '|';
  formatBgpVrfIdForRkAndNh(vrf, os);
  EXPECT_EQ(os.str(), "ImplicitNull|Null|24001|<AFI:ipv4>/<SAFI:mplsVpn>|linkState|privVplsVe|"
                      "unknown|<NLRI:evpnType10>|L3-vrfId:7");
  EXPECT_EQ(bgpRouteKeyParseNlriType(kNlriMacSpmsiAd), (AfiSafi{0x4005, 0x10A}));
  for (unsigned char none : {0, 64, 65, 255})
    EXPECT_EQ(bgpRouteKeyParseNlriType(none), (AfiSafi{0, 0})) << unsigned(none);
}

// Through the exported printers: the tables themselves are internal to the plug-in.
TEST(Exports, NameTablesHaveEveryCode) {
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

TEST(Exports, FormatIpAddrWritesIntoTheCallersBuffer) {
  const unsigned char address[] = {0x01, 0x02, 0xa8, 0xc0};
  char buffer[24], tiny[8];
  EXPECT_EQ(formatIpAddr(address, buffer, sizeof buffer), buffer);
  EXPECT_STREQ(buffer, "192.168.2.1");
  // Too small for the text: the conversion fails and "unknown" is copied instead.
  EXPECT_STREQ(formatIpAddr(address, tiny, sizeof tiny), "unknown");
}

// "LO" measures only its count byte; formatting an operation 4..254 reports the
// encoding invalid and prints nothing.
TEST(Exports, LabelOperationFourTo254IsInvalidOnlyWhenFormatted) {
  for (unsigned char code : {4, 100, 254}) {
    const unsigned char value[6] = {code, 1, 16, 0, 0, 0};
    std::ostringstream os;
    EXPECT_EQ(formatMplsLabelOperation(value, os), kInvalidLength) << unsigned(code);
    EXPECT_EQ(os.str(), "");
    EXPECT_EQ(lengthMplsLabelOperation(value), 6u);
  }
}

// "MF" reads the letters at every call: other letters change the text and the size.
TEST(Exports, ReplacedFlagLettersChangeTextAndSize) {
  const char* saved = mRouteFlags;
  mRouteFlags = "XYZQ";
  expectCases({{"MF", "01 00 00 01", "XQE", 4}, {"MF", "00 01 01 00", "YZ", 4}});
  mRouteFlags = saved;
  expectCases({{"MF", "01 00 00 01 00 00 00 00 00 00 00 00 00", "RJE", 13}});
}

TEST(Exports, EvpnL2AttrsWorkerUsesTheGivenTables) {
  const NameTable fxc{{1, "one"}, {2, nullptr}}, vlan{{5, "five"}};
  const unsigned char named[8] = {0x01, 0x01, 0x05, 0, 0x40, 0, 0, 0};
  const unsigned char nullName[8] = {0x01, 0x02, 0x00, 0, 0x40, 0, 0, 0};
  std::ostringstream os, bad;
  EXPECT_EQ(formatEvpnL2Attrs(named, os, fxc, vlan, false), 8u);
  EXPECT_EQ(os.str(), ", evpnL2Attrs:bpc;one;five;mtu=64");
  // A null name sets the bad bit once the ";" is out.
  formatEvpnL2Attrs(nullName, bad, fxc, vlan, true);
  EXPECT_TRUE(bad.bad());
  EXPECT_EQ(bad.str(), ", evpnL2Attrs:bpcf;");
}

} // namespace
} // namespace Orvane::test
