// The byte layouts the reference prints (IdReference.h) against the functions that format
// the values: a layout written down wrong shows here, not only in the printed reference.
#include "registry/IdTable.h"

#include <gtest/gtest.h>

#include <vector>

namespace Orvane::test {
namespace {

// Zero bytes enough for any fixed-size value and its fields.
const std::vector<unsigned char> kZeros(256, 0);

// The parts of a value that is not a table follow one another from offset 0, only the last
// may vary in size, and fixed parts add up to what the length function returns. A table's
// field sizes, in every variant body too, are what each kind's length function measures. A
// word's code and the parts each case reads from it are separate bits of the 64, and the
// cases are listed once each, in order of code.
TEST(ByteLayouts, AgreeWithTheFunctions) {
  auto expectSizesMeasured = [](const LabeledField* field) {
    for (; field->kind; ++field)
      EXPECT_TRUE(!field->kind->size || field->kind->length(kZeros.data()) == field->kind->size)
          << field->kind->name;
  };
  auto maskOf = [](const BitField& bits) {
    EXPECT_TRUE(bits.width >= 1 && bits.low + bits.width <= 64) << bits.holds;
    return bits.of(~uint64_t{0}) << bits.low;
  };
  for (const IdEntry& entry : kIdTable) {
    SCOPED_TRACE(std::string(entry.id));
    if (entry.fields) expectSizesMeasured(entry.fields->rows);
    for (unsigned index = 0; entry.variants && index < entry.variants->count; ++index)
      if (const LabeledField* body = entry.variants->body(index)) expectSizesMeasured(body);
    if (!entry.layout) continue;
    const auto parts = entry.layout->bytes;
    ASSERT_FALSE(parts.empty());
    unsigned end = 0;
    for (const ByteField& part : parts) {
      EXPECT_EQ(part.offset, end) << part.holds;
      EXPECT_TRUE(part.size || (&part == &parts.back() && !part.sizeRule.empty())) << part.holds;
      end += part.size;
    }
    EXPECT_TRUE(!parts.back().size || end == entry.length(kZeros.data()))
        << "parts: " << end << ", length: " << entry.length(kZeros.data());
    if (!entry.layout->codes) continue;
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
