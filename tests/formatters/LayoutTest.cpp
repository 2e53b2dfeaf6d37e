// The byte layouts the reference prints (IdReference.h) against the functions that
// format the values: a part, field or bit range written down wrong shows here, where
// the reference alone would print it unnoticed.
#include "registry/IdTable.h"

#include <gtest/gtest.h>

#include <vector>

namespace Orvane::test {
namespace {

// Zero bytes enough for any fixed-size value and its fields.
const std::vector<unsigned char> kZeros(256, 0);

// The parts of a value that is not a table follow one another from offset 0, only the
// last may vary in size, and fixed parts add up to what the length function returns.
TEST(ByteLayouts, PartsFollowEachOtherToTheLength) {
  for (const IdEntry& entry : kIdTable) {
    if (!entry.layout) continue;
    SCOPED_TRACE(std::string(entry.id));
    const auto parts = entry.layout->bytes;
    ASSERT_FALSE(parts.empty());
    unsigned end = 0;
    for (const ByteField& part : parts) {
      EXPECT_EQ(part.offset, end) << part.holds;
      EXPECT_TRUE(part.size || (&part == &parts.back() && !part.sizeRule.empty())) << part.holds;
      end += part.size;
    }
    if (parts.back().size) {
      EXPECT_EQ(end, entry.length(kZeros.data()));
    }
  }
}

// The offsets of a table's fields add up the sizes the kinds declare: each declared size
// must be what the kind's length function measures, in every table and variant body.
TEST(ByteLayouts, DeclaredFieldSizesAreMeasured) {
  auto expectSizesMeasured = [](const LabeledField* field) {
    for (; field->kind; ++field) {
      if (field->kind->size) {
        EXPECT_EQ(field->kind->length(kZeros.data()), field->kind->size) << field->kind->name;
      }
    }
  };
  for (const IdEntry& entry : kIdTable) {
    SCOPED_TRACE(std::string(entry.id));
    if (entry.fields) expectSizesMeasured(entry.fields->rows);
    if (!entry.variants) continue;
    for (unsigned index = 0; index < entry.variants->count; ++index)
      if (const LabeledField* body = entry.variants->body(index)) expectSizesMeasured(body);
  }
}

// A word's code and the parts each case reads from it are separate bits of the 64, and
// the cases are listed once each, in order of code.
TEST(ByteLayouts, CodePartsAreSeparateBits) {
  auto maskOf = [](const BitField& bits) {
    EXPECT_TRUE(bits.width >= 1 && bits.low + bits.width <= 64) << bits.holds;
    return bits.width >= 64 ? ~uint64_t{0} : ((uint64_t{1} << bits.width) - 1) << bits.low;
  };
  for (const IdEntry& entry : kIdTable) {
    if (!entry.layout || !entry.layout->codes) continue;
    SCOPED_TRACE(std::string(entry.id));
    const CodeTable& codes = *entry.layout->codes;
    for (std::size_t i = 1; i < codes.cases.size(); ++i)
      EXPECT_LT(codes.cases[i - 1].code, codes.cases[i].code);
    for (const CodeCase& known : codes.cases) {
      uint64_t used = codes.bits ? maskOf(*codes.bits) : 0;
      for (const BitField& part : known.parts) {
        EXPECT_EQ(used & maskOf(part), 0u) << "code " << known.code << ": " << part.holds;
        used |= maskOf(part);
      }
    }
  }
}

} // namespace
} // namespace Orvane::test
