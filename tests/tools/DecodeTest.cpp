// One Decoder formats value after value; each must format as if it were the first:
// on a stream in a new stream's state, in a buffer that is zero outside the value.
#include "decoding/Decode.h"

#include <gtest/gtest.h>

#include <iomanip>

namespace Orvane::test {
namespace {

unsigned lengthOne(const unsigned char*) { return 1; }

host::FormatterPair pairOf(FormatFn format) { return {std::move(format), lengthOne}; }

// Prints a number, a fraction and a character: each shows a different piece of stream
// state that an earlier formatter may have left behind.
const host::FormatterPair kProbe = pairOf([](const unsigned char*, std::ostream& os) {
  os << 255 << '|' << 1.0 / 3 << '|' << 'x';
  return 1u;
});

// A formatter that prints nothing and leaves `change` made to the stream.
host::FormatterPair leaving(void (*change)(std::ostream&)) {
  return pairOf([change](const unsigned char*, std::ostream& os) {
    change(os);
    return 1u;
  });
}

TEST(Decoder, EachValueSeesANewStreamsState) {
  const struct {
    const char* left;
    void (*change)(std::ostream&);
  } cases[] = {
      {"hex", [](std::ostream& os) { os << std::hex; }},
      {"fill and width", [](std::ostream& os) { os << std::setfill('0') << std::setw(8); }},
      {"uppercase showbase hex",
       [](std::ostream& os) { os << std::uppercase << std::showbase << std::hex; }},
      {"precision and fixed", [](std::ostream& os) { os << std::setprecision(2) << std::fixed; }},
      {"left adjustment", [](std::ostream& os) { os << std::left << std::setw(6); }},
  };
  const std::string fresh = decoding::decodeValue(kProbe, {0}).text;
  ASSERT_EQ(fresh, "255|0.333333|x");
  for (const auto& c : cases) {
    decoding::Decoder decoder;
    decoder.decode(leaving(c.change), {0});
    EXPECT_EQ(decoder.decode(kProbe, {0}).text, fresh) << "after a formatter that left " << c.left;
  }
}

TEST(RecordWalker, EachArgumentSeesANewStreamsState) {
  const auto hex = leaving([](std::ostream& os) { os << std::hex << std::setw(8); });
  const decoding::ArgumentType types[] = {{"hex", &hex}, {"probe", &kProbe}};
  decoding::RecordWalker walker;
  walker.load(std::vector<unsigned char>{0, 0});
  const auto arguments = walker.walk(types);
  ASSERT_EQ(arguments.size(), 2u);
  EXPECT_EQ(arguments[1].offset, 1u);
  EXPECT_EQ(arguments[1].text, "255|0.333333|x");
}

// After a longer value, the bytes around the next are zero again and the text and
// counts are the next value's alone.
TEST(Decoder, NextValueSeesNothingOfTheLastOne) {
  // Prints the byte before the value and the eight from its start.
  const auto around = pairOf([](const unsigned char* p, std::ostream& os) {
    for (int i = -1; i < 8; ++i) os << static_cast<unsigned>(p[i]) << ' ';
    return 1u;
  });
  decoding::Decoder decoder;
  decoder.decode(around, std::vector<unsigned char>(300, 0xff));
  const auto next = decoder.decode(around, {7});
  EXPECT_EQ(next.text, "0 7 0 0 0 0 0 0 0 ");
  EXPECT_EQ(next.length, 1u);
  EXPECT_EQ(next.consumed, 1u);
}

} // namespace
} // namespace Orvane::test
