#include "tests/support/FormatCase.h"

#include "host/Registry.h"
#include "tools/ovfmt/Hex.h"

#include <gtest/gtest.h>

namespace Orvane::test {

decoding::Decoded decode(const std::string& id, const std::string& hex) {
  const host::FormatterPair* formatter = host::findFormatter(id);
  if (!formatter) {
    ADD_FAILURE() << "id " << id << " is not registered";
    return {};
  }
  std::string error;
  auto bytes = ovfmt::parseHex(hex, error);
  if (!bytes) {
    ADD_FAILURE() << "bad test vector: " << error;
    return {};
  }
  return decoding::decodeValue(*formatter, *bytes);
}

void expectCases(const std::vector<FormatCase>& cases) {
  for (const auto& c : cases) {
    SCOPED_TRACE(c.id + " " + c.hex);
    const auto decoded = decode(c.id, c.hex);
    EXPECT_EQ(decoded.text, c.text);
    EXPECT_EQ(decoded.length, c.length);
    EXPECT_EQ(decoded.consumed, c.length);
  }
}

} // namespace Orvane::test
