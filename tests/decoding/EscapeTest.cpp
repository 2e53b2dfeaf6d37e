// decoding/Escape.h, the escaping every front end shares: the text rule (ovfmt's values,
// the trace reader's text lines, in and out of a quoted string), the JSON rule, the scan
// that lets most texts through without a look at each byte, and ovfmt's in-place
// rewrite of a record's texts.
#include "decoding/Escape.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace Orvane::test {
namespace {

using namespace std::string_literals;

std::string hexEscape(unsigned char byte) {
  char escape[5];
  std::snprintf(escape, sizeof escape, "\\x%02x", byte);
  return escape;
}

std::string unicodeEscape(unsigned char byte) {
  char escape[7];
  std::snprintf(escape, sizeof escape, "\\u%04x", byte);
  return escape;
}

std::string text(std::string_view in, bool quoted = false) {
  std::string out = "<"; // what is there already stays
  decoding::appendEscapedText(out, in, quoted);
  return out.substr(1);
}

std::string json(std::string_view in) {
  std::string out = "<";
  decoding::appendJsonString(out, in);
  return out.substr(1);
}

std::string stream(std::string_view in) {
  decoding::TextStream out;
  out.append('<');
  decoding::appendEscapedText(out, in);
  return std::string(out.text().substr(1));
}

// Each case under both rules: the text rule out of and in a quoted string, the JSON rule.
struct Case {
  std::string in, text, quoted, json;
};

void expectCases(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    EXPECT_EQ(text(c.in), c.text);
    EXPECT_EQ(stream(c.in), c.text);
    EXPECT_EQ(text(c.in, true), c.quoted);
    EXPECT_EQ(json(c.in), c.json);
    const bool escaped = c.text != c.in;
    EXPECT_EQ(decoding::needsEscape(c.in), escaped);
    if (escaped) {
      EXPECT_TRUE(decoding::mayNeedEscape(c.in));
    }
  }
}

TEST(Escape, EveryC0AndDelIsEscapedAloneAndAmongText) {
  std::vector<Case> cases;
  for (int byte = 0; byte < 0x20; ++byte) {
    const auto c = static_cast<unsigned char>(byte);
    const std::string code = hexEscape(c);
    const std::string jsonCode = c == '\n'   ? "\\n"
                                 : c == '\t' ? "\\t"
                                 : c == '\r' ? "\\r"
                                             : unicodeEscape(c);
    cases.push_back({std::string(1, static_cast<char>(c)), code, code, jsonCode});
    cases.push_back({"a"s + static_cast<char>(c) + "bcdefghij", "a" + code + "bcdefghij",
                     "a" + code + "bcdefghij", "a" + jsonCode + "bcdefghij"});
  }
  cases.push_back({"\x7f", "\\x7f", "\\x7f", "\\u007f"});
  cases.push_back({"0123456789\x7f", "0123456789\\x7f", "0123456789\\x7f", "0123456789\\u007f"});
  expectCases(cases);
  EXPECT_EQ(text("\x1f\x20\x7e\x7f"), "\\x1f \x7e\\x7f"); // the bounds
}

TEST(Escape, C1ControlsAreEscapedAsTheirTwoBytes) {
  std::vector<Case> cases;
  for (int second = 0x80; second <= 0x9f; ++second) {
    const auto c = static_cast<unsigned char>(second);
    const std::string in = "x\xc2"s + static_cast<char>(c);
    cases.push_back({in, "x\\xc2" + hexEscape(c), "x\\xc2" + hexEscape(c), "x" + unicodeEscape(c)});
  }
  expectCases(cases);
}

TEST(Escape, BothRulesByCase) {
  expectCases({
      {"plain 10.0.0.1/32", "plain 10.0.0.1/32", "plain 10.0.0.1/32", "plain 10.0.0.1/32"},
      {"", "", "", ""},
      {"a\nb\tc\rd", "a\\x0ab\\x09c\\x0dd", "a\\x0ab\\x09c\\x0dd", "a\\nb\\tc\\rd"},
      {"nul\0x"s, "nul\\x00x", "nul\\x00x", "nul\\u0000x"},
      {"\x1b[31mred\x7f", "\\x1b[31mred\\x7f", "\\x1b[31mred\\x7f", "\\u001b[31mred\\u007f"},
      // The bounds of C1: C2 7F is no UTF-8 (C2 passes, 7F is DEL); C2 80 and C2 9F are
      // C1; C2 A0 is U+00A0, no control.
      {"\xc2\x7f", "\xc2\\x7f", "\xc2\\x7f", "\\u00c2\\u007f"},
      {"\xc2\x80", "\\xc2\\x80", "\\xc2\\x80", "\\u0080"},
      {"csi\xc2\x9b", "csi\\xc2\\x9b", "csi\\xc2\\x9b", "csi\\u009b"},
      {"\xc2\x9f", "\\xc2\\x9f", "\\xc2\\x9f", "\\u009f"},
      {"\xc2\xa0", "\xc2\xa0", "\xc2\xa0", "\xc2\xa0"},
      // A C2 that ends the text, or that a C1 control follows.
      {"end\xc2", "end\xc2", "end\xc2", "end\\u00c2"},
      {"\xc2", "\xc2", "\xc2", "\\u00c2"},
      {"\xc2\xc2\x9b", "\xc2\\xc2\\x9b", "\xc2\\xc2\\x9b", "\\u00c2\\u009b"},
      {"\xc2\x9b\xc2\x9b", "\\xc2\\x9b\\xc2\\x9b", "\\xc2\\x9b\\xc2\\x9b", "\\u009b\\u009b"},
      // U+0080 to U+009F only as C2 80..9F: an overlong form or a continuation byte
      // alone is not UTF-8, and passes the text rule.
      {"\xc1\x9b", "\xc1\x9b", "\xc1\x9b", "\\u00c1\\u009b"},
      {"\x9b[1m", "\x9b[1m", "\x9b[1m", "\\u009b[1m"},
      // Valid UTF-8 passes both rules; bytes that are not UTF-8 pass the text rule and
      // are "\u00NN" in JSON, so that the line is valid UTF-8.
      {"caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80", "caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80",
       "caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80", "caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80"},
      {"bad\xff\xc3", "bad\xff\xc3", "bad\xff\xc3", "bad\\u00ff\\u00c3"},        // cut sequence
      {"\xed\xa0\x80", "\xed\xa0\x80", "\xed\xa0\x80", "\\u00ed\\u00a0\\u0080"}, // surrogate
      {"\xc0\xaf", "\xc0\xaf", "\xc0\xaf", "\\u00c0\\u00af"},                    // overlong '/'
      {"\xf4\x90\x80\x80", "\xf4\x90\x80\x80", "\xf4\x90\x80\x80",
       "\\u00f4\\u0090\\u0080\\u0080"}, // above U+10FFFF
      // The quoting: '"' and '\' only inside a quoted string, and always in JSON.
      {"q\"b\\", "q\"b\\", "q\\\"b\\\\", "q\\\"b\\\\"},
      {"\\x41", "\\x41", "\\\\x41", "\\\\x41"},
  });
}

// The scan reads eight bytes at a time: a byte to escape is found at every place of
// texts up to two words long, and the bytes nearest to one are not taken for one. Only
// "no" is a verdict of mayNeedEscape(); needsEscape() is exact.
TEST(Escape, TheScanFindsABytePerhapsToEscapeAtEveryPlace) {
  for (std::size_t size = 1; size <= 17; ++size)
    for (std::size_t at = 0; at < size; ++at) {
      for (const int byte : {0x00, 0x1f, 0x20, 0x7e, 0x7f, 0x80, 0x9b, 0xa0, 0xc2, 0xff}) {
        std::string plain(size, 'a');
        plain[at] = static_cast<char>(byte);
        const bool control = byte < 0x20 || byte == 0x7f;
        EXPECT_EQ(decoding::mayNeedEscape(plain), control || byte >= 0x80) << size << ' ' << at;
        EXPECT_EQ(decoding::needsEscape(plain), control) << size << ' ' << at;
        std::string high(size, '\x80'); // continuation bytes: C1 only after a C2
        high[at] = static_cast<char>(byte);
        EXPECT_EQ(decoding::mayNeedEscape(high), control || byte >= 0x80 || size > 1);
        EXPECT_EQ(decoding::needsEscape(high), control || (byte == 0xc2 && at + 1 < size))
            << size << ' ' << at;
      }
      std::string c1(size, 'a');
      c1[at] = '\xc2';
      if (at + 1 < size) c1[at + 1] = '\x9b';
      EXPECT_EQ(decoding::needsEscape(c1), at + 1 < size) << size << ' ' << at;
    }
  EXPECT_FALSE(decoding::mayNeedEscape(""));
}

// ovfmt's in-place rewrite: only the texts change, never the gaps between them (the
// user's separator or template), and a line with nothing to escape is left as it is.
TEST(Escape, TextsAreRewrittenInPlaceAndTheGapsLeft) {
  const struct {
    std::vector<std::string> gaps, texts;
    std::string line;
  } cases[] = {
      {{"[", "\t"}, {"10.0.0.1", "plain"}, "[10.0.0.1\tplain"},
      {{"", " "}, {"caf\xc3\xa9", "\xc2\xa0\xff"}, "caf\xc3\xa9 \xc2\xa0\xff"},
      {{"\x1b", "\xc2\x9b"},
       {"a", "b"},
       "\x1b"
       "a\xc2\x9b"
       "b"},
      {{"", "\t", "\t"}, {"ok", "a\tb", "\xc2\x9b"}, "ok\ta\\x09b\t\\xc2\\x9b"},
      {{"", ""},
       {"\x1b[0m", "long enough to be read a word at a time\n"},
       "\\x1b[0mlong enough to be read a word at a time\\x0a"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.line);
    decoding::TextStream out;
    out.append("LINE:");
    std::vector<std::pair<std::size_t, std::size_t>> spans;
    for (std::size_t i = 0; i < c.texts.size(); ++i) {
      out.append(c.gaps[i]);
      spans.emplace_back(out.size(), c.texts[i].size());
      out.append(c.texts[i]);
    }
    std::vector<decoding::Argument> arguments;
    for (const auto& [offset, size] : spans)
      arguments.push_back({"str", 0, 0, 0, out.text(offset, offset + size)});
    decoding::escapeTexts(arguments, out);
    EXPECT_EQ(out.text(), "LINE:" + c.line);
  }
  decoding::TextStream none;
  decoding::escapeTexts({}, none);
  EXPECT_EQ(none.text(), "");
}

TEST(Escape, HexIsLowercasePairsWithTheSeparatorBetween) {
  const unsigned char bytes[] = {0x01, 0xab, 0xff};
  std::string spaced = "[", joined;
  decoding::appendHex(spaced, bytes, 3, " ");
  decoding::appendHex(joined, bytes, 3, "");
  EXPECT_EQ(spaced, "[01 ab ff");
  EXPECT_EQ(joined, "01abff");
  decoding::appendHex(joined, bytes, 0, " ");
  EXPECT_EQ(joined, "01abff");
}

} // namespace
} // namespace Orvane::test
