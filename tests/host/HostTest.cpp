// Base formatters and the plug-in's joined text in any stream state.
#include "bgp/NextHop.h"
#include "host/Registry.h"
#include "mpls/Label.h"
#include "registry/HostInterface.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Orvane::test {
namespace {

struct Thousands : std::numpunct<char> {
  std::string do_grouping() const override { return "\3"; }
};
const std::locale kGrouping(std::locale::classic(), new Thousands);
struct : std::streambuf {
} kRefusing; // takes no character

TEST(BaseFormatters, MatchTheStreamsOwnInsertion) {
  static const unsigned char p[8] = {0x15, 0xcd, 0x5b, 0x07, 0x10};
  void (*const setups[])(std::ostream&) = {
      [](std::ostream& os) { os.width(12); }, [](std::ostream& os) { os.imbue(kGrouping); },
      [](std::ostream& os) { formatU8(p, os), os.imbue(kGrouping); }, // after a first number
      [](std::ostream& os) { os.rdbuf(&kRefusing); }};
  const std::pair<FormatPtr, uint64_t> formats[] = {
      {formatU8, 0x15}, {formatU16, 0xcd15}, {formatU32, 0x75bcd15}, {formatU64, 0x10075bcd15}};
  for (auto setup : setups)
    for (const auto& [format, value] : formats) {
      std::ostringstream actual, expected;
      setup(actual), setup(expected), format(p, actual), expected << value;
      EXPECT_EQ(actual.str(), expected.str());
      EXPECT_EQ(actual.rdstate(), expected.rdstate()) << expected.str();
    }
}

TEST(JoinedText, PrintsWhatSeparateInsertionsWould) {
  static const unsigned char label[] = {0xe8, 3, 0, 0}, // 1000
      hop[] = {1, 2, 0, 0, 0, 3, 1, 0, 0, 10, 0, 0x1c, 0x73, 0xaa, 0xbb, 0xcc};
  void (*const setups[])(std::ostream&) = {
      [](std::ostream& os) { os.width(12); }, [](std::ostream& os) { os.imbue(kGrouping); },
      [](std::ostream& os) { os << std::hex << std::showbase; }};
  for (auto setup : setups) { // each value on the stream as the setup leaves it
    std::ostringstream actual, expected;
    setup(actual), setup(expected), formatMplsLabel(label, actual);
    expected << "MplsLabel(" << 1000u << ")";
    setup(actual), setup(expected), formatBgpGenNextHop(hop, actual);
    expected << "<ip:"; // the only piece a width pads
    expected << "10.0.0.1, routerMac:001c.73aa.bbcc> (L3-vrfId:" << 2u << ")";
    EXPECT_EQ(actual.str(), expected.str());
  }
}

} // namespace
} // namespace Orvane::test
