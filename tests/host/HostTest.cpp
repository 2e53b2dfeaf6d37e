// The host library: base formatters in every stream state, lookups during registration.
#include "host/Registry.h"
#include "registry/Bytes.h"
#include "registry/HostInterface.h"

#include <gtest/gtest.h>

#include <atomic>
#include <iomanip>
#include <sstream>
#include <thread>

namespace Orvane::test {
namespace {

struct Thousands : std::numpunct<char> {
  char do_thousands_sep() const override { return ','; }
  std::string do_grouping() const override { return "\3"; }
};
const std::locale kGrouping(std::locale::classic(), new Thousands);
struct : std::streambuf {
} kRefusing; // takes no character
const unsigned char kOne = 1;

// Whatever the stream's state, a base formatter prints and leaves what `os << value` does.
TEST(BaseFormatters, MatchTheStreamsOwnInsertion) {
  const unsigned char bytes[8] = {0x15, 0xcd, 0x5b, 0x07, 0x10, 0, 0, 0};
  const std::pair<const char*, void (*)(std::ostream&)> setups[] = {
      {"new stream", [](std::ostream&) {}},
      {"width and fill", [](std::ostream& os) { os << std::setfill('*') << std::setw(12); }},
      {"hex with base", [](std::ostream& os) { os << std::hex << std::showbase; }},
      {"grouping locale", [](std::ostream& os) { os.imbue(kGrouping); }},
      {"imbued after a number", [](std::ostream& os) { formatU8(&kOne, os), os.imbue(kGrouping); }},
      {"failed stream", [](std::ostream& os) { os.setstate(std::ios::failbit); }},
      {"refusing buffer", [](std::ostream& os) { os.rdbuf(&kRefusing); }},
  };
  const std::pair<FormatPtr, uint64_t> formats[] = {{formatU8, bytes[0]},
                                                    {formatU16, load<uint16_t>(bytes)},
                                                    {formatU32, load<uint32_t>(bytes)},
                                                    {formatU64, load<uint64_t>(bytes)}};
  for (const auto& [name, setup] : setups)
    for (const auto& [format, value] : formats) {
      std::ostringstream actual, expected;
      setup(actual), setup(expected);
      format(bytes, actual);
      expected << value;
      EXPECT_EQ(actual.str(), expected.str()) << name;
      EXPECT_EQ(actual.rdstate(), expected.rdstate()) << name;
      EXPECT_EQ(actual.width(), expected.width()) << name;
    }
}

// Readers look ids up while a plug-in registers enough of them to outgrow the table.
TEST(Registry, LookupsDuringRegistrationFindWholeEntries) {
  const int kIds = 400;
  std::atomic<bool> done = false;
  std::thread reader([&] {
    while (!done)
      for (int i = 0; i < kIds; i += 7)
        if (const auto* pair = host::findFormatter("T" + std::to_string(i))) {
          EXPECT_TRUE(pair->format) << i;
        }
  });
  for (int i = 0; i < kIds; ++i) {
    const std::string id = "T" + std::to_string(i);
    MessageFormatter::addNewFormattersById(id, formatU8);
    MessageFormatter::addNewLengthById(id, lengthU8);
    MessageFormatter::addNewFormattersById(id, formatU16); // a duplicate keeps the first
  }
  done = true;
  reader.join();
  for (int i = 0; i < kIds; ++i) {
    const auto* pair = host::findFormatter("T" + std::to_string(i));
    ASSERT_TRUE(pair && pair->length) << i;
    EXPECT_EQ(*pair->format.target<FormatPtr>(), &formatU8) << i;
  }
  EXPECT_NE(host::findFormatter("I"), nullptr);
}

} // namespace
} // namespace Orvane::test
