// The contract over every registered id: on any bytes, including corrupt ones, the
// format function returns exactly what the length function returns, and neither crashes.
#include "registry/FormatMap.h"
#include "tools/ovfmt/Decode.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

namespace Orvane::test {
namespace {

// Values end where the random bytes end; the zero guard after them stands in for
// whatever follows a value in a trace buffer.
std::vector<unsigned char> randomValue(std::mt19937& rng) {
  std::uniform_int_distribution<int> size(0, 320), byte(0, 255), smallByte(0, 8);
  std::vector<unsigned char> value(size(rng));
  // Half the values get small leading bytes, so tags, kinds and counts hit their
  // valid ranges often instead of almost never.
  const bool small = rng() & 1;
  for (std::size_t i = 0; i < value.size(); ++i)
    value[i] = static_cast<unsigned char>(small && i < 8 ? smallByte(rng) : byte(rng));
  return value;
}

// The one sanctioned difference: "LO" measures only its count byte, while formatting an
// operation code 4..254 reports the encoding invalid.
bool formatMayDiffer(const std::string& id, const std::vector<unsigned char>& value) {
  auto byteAt = [&](std::size_t i) { return i < value.size() ? value[i] : 0; };
  return id == "LO" && byteAt(1) <= 13 && byteAt(0) >= 4 && byteAt(0) <= 254;
}

TEST(FormatLengthProperty, FormatReturnsLengthOnRandomBytes) {
  constexpr int kValuesPerId = 3000;
  ASSERT_FALSE(formatMap.empty());
  for (const auto& [id, functions] : formatMap) {
    std::mt19937 rng(std::hash<std::string>{}(id));
    const host::FormatterPair pair{functions.first, functions.second};
    for (int i = 0; i < kValuesPerId; ++i) {
      const auto value = randomValue(rng);
      const auto decoded = ovfmt::decodeValue(pair, value);
      if (formatMayDiffer(id, value)) continue;
      ASSERT_EQ(decoded.consumed, decoded.length)
          << "id " << id << ", value #" << i << " of " << value.size() << " bytes";
    }
  }
}

} // namespace
} // namespace Orvane::test
