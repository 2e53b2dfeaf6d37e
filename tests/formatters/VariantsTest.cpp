// The variants the reference lists (FieldVariants) are the bodies the keys print: a value
// of each code, zero bytes around the code, prints its variant's first label first and
// is as long as its variant's fields measure. A variants object that reads another array
// than the format and length functions index fails here.
#include "bgp/NextHop.h"
#include "bgp/PeerKeys.h"
#include "host/Registry.h"
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
  const Case cases[] = {{"BNH", kBgpGenNextHopVariants, 5, 6},
                        {"BPK", kBgpPeerKeyVariants, 0, 1},
                        {"FM", kMplsFwdEqvClassVariants, 0, 1},
                        {"FMO", kMplsFwdEqvClassOptimizedVariants, 0, 1},
                        {"CCPK", kCspfClientPathKeyVariants, 0, 1}};
  for (const Case& c : cases) {
    const host::FormatterPair* formatter = host::findFormatter(c.id);
    ASSERT_TRUE(formatter) << c.id;
    for (unsigned code = 0; code < c.variants.count; ++code) {
      const LabeledField* body = c.variants.body(code);
      ASSERT_TRUE(body) << c.id << " code " << code;
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

} // namespace
} // namespace Orvane::test
