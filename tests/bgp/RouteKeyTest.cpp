// BGP route keys: the length of every layout, compact keys read tag by tag, the printer's
// text and the "BRK", "BRY" and "BMPRK" frames around it.
#include "bgp/RouteKey.h"
#include "bgp/RouteKeyLayout.h"
#include "tests/support/FormatCase.h"
#include "tools/ovfmt/Hex.h"

#include <gtest/gtest.h>

#include <fstream>
#include <optional>
#include <sstream>

namespace Orvane::test {
namespace {

struct KeyCase {
  unsigned short afi;
  unsigned short safi;
  std::string hex; ///< the key; bytes after it are zero
  unsigned length;
  std::optional<std::string> text = std::nullopt; ///< checked when given
};

// Measures and prints each key through a zero-guarded buffer, as the host would.
void expectKeys(const std::vector<KeyCase>& cases) {
  for (const auto& c : cases) {
    SCOPED_TRACE(std::to_string(c.afi) + "/" + std::to_string(c.safi) + " " + c.hex);
    const host::FormatterPair pair{
        [&](const unsigned char* p, std::ostream& os) {
          return formatBgpRouteKey(c.afi, c.safi, p, os);
        },
        [&](const unsigned char* p) { return lengthBgpRouteKey(c.afi, c.safi, p); }};
    std::string error;
    const auto decoded = ovfmt::decodeValue(pair, *ovfmt::parseHex(c.hex, error));
    EXPECT_EQ(decoded.length, c.length);
    EXPECT_EQ(decoded.consumed, c.length);
    if (c.text) {
      EXPECT_EQ(decoded.text, *c.text);
    }
  }
}

constexpr unsigned short kIpv4 = 1, kIpv6 = 2, kL2vpn = 25, kLinkState = 0x4004, kMac = 0x4005;
constexpr unsigned short kEvpn = 70, kVpls = 65;

// Fixed fields zero, every Opt address tag 0 (1 byte), the GPO tag 0 (2 bytes).
TEST(RouteKeyLength, EveryLayout) {
  expectKeys({
      {kIpv4, 1, "", 5},          {kIpv4, 5, "", 5},          {kIpv4, 0x116, "", 5},
      {kIpv4, 133, "", 8},        {kIpv4, 128, "", 13},       {kIpv4, 132, "", 13},
      {kIpv4, 73, "", 12},        {kIpv4, 0x101, "", 23},     {kIpv4, 0x105, "", 35},
      {kIpv4, 134, "", 16},       {kIpv6, 1, "", 17},         {kIpv6, 79, "", 17},
      {kIpv6, 133, "", 8},        {kIpv6, 73, "", 24},        {kIpv6, 128, "", 25},
      {kIpv6, 134, "", 16},       {kL2vpn, kEvpn, "34", 18},  {kL2vpn, kEvpn, "36", 30},
      {kL2vpn, kEvpn, "41", 23},  {kL2vpn, kEvpn, "45", 40},  {kL2vpn, kEvpn, "65", 20},
      {kL2vpn, kEvpn, "49", 59},  {kL2vpn, kEvpn, "69", 19},  {kL2vpn, kEvpn, "4d", 44},
      {kL2vpn, kEvpn, "6d", 24},  {kL2vpn, kEvpn, "4a", 86},  {kL2vpn, kEvpn, "56", 86},
      {kL2vpn, kEvpn, "6a", 26},  {kL2vpn, kEvpn, "76", 26},  {kL2vpn, kEvpn, "50", 76},
      {kL2vpn, kEvpn, "53", 76},  {kL2vpn, kEvpn, "70", 16},  {kL2vpn, kEvpn, "73", 16},
      {kL2vpn, kVpls, "41", 13},  {kL2vpn, kVpls, "56", 13},  {kL2vpn, 0x10C, "", 4},
      {kL2vpn, 0x10D, "", 4},     {kLinkState, 71, "4c", 70}, {kLinkState, 71, "4e", 19},
      {kLinkState, 71, "50", 37}, {kLinkState, 71, "6c", 30}, {kLinkState, 71, "70", 21},
      {kMac, 241, "", 22},        {kMac, 0x101, "", 24},      {kMac, 242, "", 10},
      {kMac, 0x102, "", 14},      {kMac, 243, "", 25},        {kMac, 0x103, "", 50},
      {kMac, 244, "", 39},        {kMac, 0x104, "", 40},      {kMac, 245, "", 31},
      {kMac, 0x105, "", 35},      {kMac, 246, "", 68},        {kMac, 250, "", 68},
      {kMac, 0x106, "", 68},      {kMac, 0x10A, "", 68},      {kMac, 247, "", 77},
      {kMac, 248, "", 77},        {kMac, 0x107, "", 77},      {kMac, 0x108, "", 77},
  });
}

TEST(RouteKeyLength, CombinationsWithoutALayoutPrintNothing) {
  expectKeys({
      {0, 0, "", kInvalidLength, ""},
      {3, 1, "", kInvalidLength, ""},
      {kL2vpn, 1, "41", kInvalidLength, ""},
      {kL2vpn, kEvpn, "5a", kInvalidLength, ""},
      {kL2vpn, kVpls, "4d", kInvalidLength, ""},
      {kL2vpn, kVpls, "43", kInvalidLength, ""},
      {kLinkState, 70, "4c", kInvalidLength, ""},
      {kLinkState, 71, "6e", kInvalidLength, ""},
      {kMac, 240, "", kInvalidLength, ""},
      {kMac, 249, "", kInvalidLength, ""},
      {kMac, 251, "", kInvalidLength, ""},
      {kMac, 0x100, "", kInvalidLength, ""},
      {kMac, 0x109, "", kInvalidLength, ""},
      {kMac, 0x10B, "", kInvalidLength, ""},
  });
}

// RD 65000:100, then the fields up to the Opt addresses.
#define RD "64 00 00 00 e8 fd 00 00"
#define V4 "01 00 00 0a"
#define V6 "20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 01"
#define MAC "00 1c 73 aa bb cc"

TEST(RouteKeyLength, CompactKeysReadEachTagWhereThePreviousFieldEnds) {
  expectKeys({
      {kL2vpn, kEvpn, "6d " RD " 00 00 00 00 00 00 00 00 " MAC " 02 " V6, 40},
      {kL2vpn, kEvpn, "69 " RD " 00 00 00 00 00 00 00 00 01 " V4 " 02 " V6, 17 + 5 + 17},
      {kL2vpn, kEvpn, "73 " RD " 00 00 00 00 02 " V6 " 00 01 " V4, 13 + 17 + 1 + 5},
      {kLinkState, 71,
       "6c 02 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
       "00 00 00 00 02 " V6 " 01 " V4,
       28 + 17 + 5},
      {kLinkState, 71, "70 03 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 01 21", 26},
      {kLinkState, 71, "70 03 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 02 ff", 21},
      // A bad GPO tag counts 0xFFFFFFFF: the sum wraps to one byte short of the GPO.
      {kLinkState, 71, "70 03 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 03 08", 18},
  });
}

TEST(RouteKeyText, FullAndCompactFormsPrintTheSame) {
  const std::string type2 = "<EVPN-Type2-Key: rd:65000:100, etid:7, etid2:0, "
                            "mac:001c.73aa.bbcc, ip:2001:db8::1>";
  expectKeys({
      {kL2vpn, kEvpn, "4d " RD " 07 00 00 00 00 00 00 00 " MAC " 02 00 00 00 00 " V6, 44, type2},
      {kL2vpn, kEvpn, "6d " RD " 07 00 00 00 00 00 00 00 " MAC " 02 " V6, 40, type2},
      {kL2vpn, kEvpn, "6d " RD " 07 00 00 00 00 00 00 00 " MAC " 00", 24,
       "<EVPN-Type2-Key: rd:65000:100, etid:7, etid2:0, mac:001c.73aa.bbcc, ip:unknown>"},
  });
}

TEST(RouteKeyText, RawBlocksStopAtTheirLastNonZeroByte) {
  expectKeys({
      {kMac, 242, "00 1c 73 aa bb cc 05 00 00 00", 10, "raw:0x001c73aabbcc, u32:5"},
      {kMac, 242, "00 1c 73 00 00 00 05 00 00 00", 10, "raw:0x001c73.., u32:5"},
      {kMac, 242, "00 00 00 00 00 00 05 00 00 00", 10, "raw:0x00.., u32:5"},
      {kMac, 242, "ff 00 00 00 00 01 05 00 00 00", 10, "raw:0xff0000000001, u32:5"},
  });
}

TEST(RouteKeyText, UnknownRdTypeLeavesTheRestOfTheKeyInHex) {
  // RD type 5 prints in hex and leaves the stream so; the etid 26 then prints as 1a.
  expectKeys({{kL2vpn, kEvpn, "41 01 00 00 00 00 00 05 00 " MAC " 00 00 00 00 1a 00 00 00", 23,
               "<EVPN-Type1-Key: rd:0x0005000000000001, esi:001c:73aa:bbcc:0000:0000, etid:1a>"}});
}

#define VRF_L2 "00 0a 00 00 00"

TEST(RouteKeyWrappers, FrameTheKeyWithFamilyVrfAndNlriType) {
  expectCases({
      {"BRY", "04 " VRF_L2 " 6d " RD " 00 00 00 00 00 00 00 00 " MAC " 01 " V4,
       " RouteKey<(l2vpn/evpn) (L2-vrfId:10; <EVPN-Type2-Key: rd:65000:100, etid:0, etid2:0, "
       "mac:001c.73aa.bbcc, ip:10.0.0.1> nlriType-4)> ",
       6 + 28},
      {"BRK", "01 00 01 12 01 01 00 00 00 " V4 " 18",
       " RouteKey<(ipv4/ucast) (L3-vrfId:1; ip:10.0.0.1/24 nlriType-18)> ", 9 + 5},
      // The stored AFI and SAFI choose the layout, whatever the NLRI type says.
      {"BRK", "02 00 01 04 01 01 00 00 00 " V6 " 40",
       " RouteKey<(ipv6/ucast) (L3-vrfId:1; ip:2001:db8::1/64 nlriType-4)> ", 9 + 17},
      {"BRK", "05 40 f1 00 " VRF_L2 " 01 00 00 00 00 00 00 00 " MAC " 00 00 00 00 05 00 00 00",
       " RouteKey<(48bitMac/reservedPrivate1) (L2-vrfId:10; u64:1, raw:0x001c73aabbcc.., "
       "u32:5 nlriType-0)> ",
       9 + 22},
      // No layout: no key text, and the count wraps.
      {"BRY", "41 01 01 00 00 00", " RouteKey<(None/None) (L3-vrfId:1;  nlriType-65)> ", 5},
      {"BRY", "00 01 01 00 00 00", " RouteKey<(None/None) (L3-vrfId:1;  nlriType-0)> ", 5},
      {"BRK", "19 00 01 00 01 01 00 00 00", " RouteKey<(l2vpn/ucast) (L3-vrfId:1;  nlriType-0)> ",
       8},
      {"BMPRK", "01 00 80 03 70 65 31 " RD " " V4 " 18",
       " RouteKey<(ipv4/mplsVpn) (pe1; rd:65000:100, ip:10.0.0.1/24)> ", 3 + 4 + 13},
      {"BMPRK", "05 40 f9 00", " RouteKey<(48bitMac/unknown) (; )> ", 3 + 1 + kInvalidLength},
  });
}

std::string trimEnd(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

// docs/route-keys.md shows one example per layout: each "$ ovfmt ID HEX..." line, the
// output line after it, and exactly as many bytes as the value's length.
TEST(RouteKeyDocs, EveryExamplePrintsAsDocumented) {
  std::ifstream doc(ORVANE_DOCS_DIR "/route-keys.md");
  ASSERT_TRUE(doc.is_open());
  const std::string prompt = "$ ovfmt ";
  int examples = 0;
  for (std::string line, shown; std::getline(doc, line);) {
    if (line.rfind(prompt, 0) != 0)
      continue;
    ASSERT_TRUE(std::getline(doc, shown)) << line;
    SCOPED_TRACE(line);
    std::istringstream words(line.substr(prompt.size()));
    std::string id, hex, error;
    words >> id;
    std::getline(words, hex);
    const auto decoded = decode(id, hex);
    EXPECT_EQ(trimEnd(decoded.text), trimEnd(shown));
    EXPECT_EQ(decoded.length, ovfmt::parseHex(hex, error)->size());
    EXPECT_EQ(decoded.consumed, decoded.length);
    ++examples;
  }
  EXPECT_EQ(examples, 52); // the worked example and one per distinct layout
}

} // namespace
} // namespace Orvane::test
