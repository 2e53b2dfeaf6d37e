// The host: base formatters in any stream state, lookups while a plug-in registers.
#include "host/Registry.h"
#include "registry/HostInterface.h"

#include <gtest/gtest.h>

#include <sstream>
#include <thread>

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

TEST(Registry, LookupsWhileEnoughIdsToGrowTheTableRegister) {
  auto id = [](int i) { return std::to_string(i % 400).append("T"); };
  std::thread reader([&] {
    for (int i = 0; i < 400000; i += 7) {
      const auto* pair = host::findFormatter(id(i));
      EXPECT_TRUE(!pair || (pair->format && (!pair->length || pair->length(nullptr) == 1)));
    }
  });
  for (int i = 0; i < 400; ++i) {
    MessageFormatter::addNewFormattersById(id(i), formatU8);
    MessageFormatter::addNewLengthById(id(i), lengthU8);
    MessageFormatter::addNewFormattersById(id(i), formatU16); // the first stays
  }
  reader.join();
  for (int i = 0; i < 400; ++i)
    EXPECT_EQ(*host::findFormatter(id(i))->format.target<FormatPtr>(), &formatU8) << i;
}

} // namespace
} // namespace Orvane::test
