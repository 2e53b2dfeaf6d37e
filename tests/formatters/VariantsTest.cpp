// The variants the reference lists (FieldVariants) are the bodies the keys print: a value
// of each code, zero bytes around the code, prints its variant's first label first and
// is as long as its variant's fields measure. A variants object that reads another array
// than the format and length functions index fails here.
#include "bgp/NextHop.h"
#include "bgp/PeerKeys.h"
#include "host/Registry.h"
#include "keys/Sequences.h"
#include "mpls/CspfKeys.h"
#include "mpls/Fec.h"

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

namespace Orvane::test {
namespace {

TEST(Variants, EachCodePrintsAndMeasuresItsBody) {
  struct Case {
    const char* id;
    const FieldVariants& variants;
    unsigned codeOffset, bodyOffset;
  };
  const Case cases[] = {
      {"BNH", kBgpGenNextHopVariants, 5, 6},      {"BPK", kBgpPeerKeyVariants, 0, 1},
      {"FM", kMplsFwdEqvClassVariants, 0, 1},     {"FMO", kMplsFwdEqvClassOptimizedVariants, 0, 1},
      {"CCPK", kCspfClientPathKeyVariants, 0, 1}, {"GR", kGenRangeVariants, 0, 1},
      {"GRO", kGenRangeOptimizedVariants, 0, 1}};
  for (const Case& c : cases) {
    const host::FormatterPair* formatter = host::findFormatter(c.id);
    ASSERT_TRUE(formatter) << c.id;
    for (unsigned code = 0; code < c.variants.count; ++code) {
      const LabeledField* body = c.variants.body(code);
      if (!body) continue; // an invalid code (CodeWithoutAVariant)
      std::vector<unsigned char> value(256, 0);
      value[c.codeOffset] = static_cast<unsigned char>(code);
      std::ostringstream text;
      formatter->format(value.data(), text);
      EXPECT_TRUE(text.str().starts_with(body->label))
          << c.id << " code " << code << " printed " << text.str() << ", its body starts with "
          << body->label;
      unsigned size = c.bodyOffset;
      for (const LabeledField* field = body; field->kind; ++field)
        size += field->kind->length(value.data() + size);
      EXPECT_EQ(formatter->length(value.data()), size) << c.id << " code " << code;
    }
  }
}

// A code without a variant: the keys whose code must name one are invalid and print
// nothing; the others fall back to a body of their own (BPK none, BNH "NULL").
TEST(Variants, CodeWithoutAVariant) {
  struct Case {
    const char* id;
    unsigned codeOffset;
    unsigned char code;
    unsigned length;
    const char* text;
  };
  const Case cases[] = {{"FM", 0, 4, kInvalidLength, ""},
                        {"FMO", 0, 4, kInvalidLength, ""},
                        {"CCPK", 0, 2, kInvalidLength, ""},
                        {"BPK", 0, 8, 1, ""},
                        {"BPK", 0, 255, 1, ""},
                        {"BNH", 5, 33, 6, "NULL ("},
                        {"GR", 0, 3, kInvalidLength, ""},
                        {"GR", 0, 254, kInvalidLength, ""},
                        {"GRO", 0, 3, kInvalidLength, ""},
                        {"GRO", 0, 254, kInvalidLength, ""}};
  for (const Case& c : cases) {
    const host::FormatterPair* formatter = host::findFormatter(c.id);
    ASSERT_TRUE(formatter) << c.id;
    std::vector<unsigned char> value(64, 0);
    value[c.codeOffset] = c.code;
    std::ostringstream text;
    EXPECT_EQ(formatter->format(value.data(), text), c.length) << c.id << " code " << +c.code;
    EXPECT_EQ(formatter->length(value.data()), c.length) << c.id << " code " << +c.code;
    EXPECT_TRUE(text.str().starts_with(c.text)) << c.id << " printed " << text.str();
    if (!*c.text) {
      EXPECT_EQ(text.str(), "") << c.id;
    }
  }
}

// An ARP entry's flag, after the key and the MAC, alone adds two numbers of four bytes.
TEST(Variants, ArpEntryFlagAddsTwoNumbers) {
  const host::FormatterPair* entry = host::findFormatter("ARPICE");
  const host::FormatterPair* key = host::findFormatter("ARPICK");
  ASSERT_TRUE(entry && key);
  std::vector<unsigned char> value(64, 0);
  const unsigned flagOffset = key->length(value.data()) + 6;
  std::ostringstream plain, extended;
  const unsigned plainLength = entry->format(value.data(), plain);
  EXPECT_EQ(entry->length(value.data()), plainLength);
  for (unsigned char flag : {2, 255}) { // only 1 extends
    value[flagOffset] = flag;
    EXPECT_EQ(entry->length(value.data()), plainLength) << +flag;
  }
  value[flagOffset] = 1;
  EXPECT_EQ(entry->format(value.data(), extended), plainLength + 8);
  EXPECT_EQ(entry->length(value.data()), plainLength + 8);
  ASSERT_TRUE(plain.str().ends_with("[0][0]")) << plain.str();
  EXPECT_EQ(extended.str(), plain.str().substr(0, plain.str().size() - 6) + "[1][0][0][0]")
      << plain.str();
}

} // namespace
} // namespace Orvane::test
