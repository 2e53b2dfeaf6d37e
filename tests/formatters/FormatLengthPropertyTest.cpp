// The contract over every registered id: on any bytes, including corrupt ones, the
// format function returns exactly what the length function returns, and neither crashes.
#include "decoding/Decode.h"
#include "registry/FormatMap.h"
#include "tests/support/RandomValues.h"

#include <gtest/gtest.h>

#include <random>
#include <sstream>

namespace Orvane::test {
namespace {

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
      const auto decoded = decoding::decodeValue(pair, value);
      if (formatMayDiffer(id, value)) continue;
      ASSERT_EQ(decoded.consumed, decoded.length)
          << "id " << id << ", value #" << i << " of " << value.size() << " bytes";
    }
  }
}

} // namespace
} // namespace Orvane::test
