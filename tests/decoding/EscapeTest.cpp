// decoding/Escape.h: the text rule (in and out of a quoted string), the JSON rule, the
// scan that lets most texts through unread byte by byte, and ovfmt's in-place rewrite.
#include "decoding/Escape.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <string>
#include <utility>
#include <vector>

namespace Orvane::test {
namespace {

using namespace std::string_literals;

// Each case under both rules: the text rule out of and in a quoted string, the JSON rule.
struct Case {
  std::string in, text, quoted, json;
};

void expectCases(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    SCOPED_TRACE(c.text);
    std::string text = "<", quoted = "<", json = "<"; // what is there already stays
    decoding::appendEscapedText(text, c.in);
    decoding::appendEscapedText(quoted, c.in, true);
    decoding::appendJsonString(json, c.in);
    EXPECT_EQ(text, "<" + c.text);
    EXPECT_EQ(quoted, "<" + c.quoted);
    EXPECT_EQ(json, "<" + c.json);
    EXPECT_EQ(decoding::needsEscape(c.in), c.text != c.in);
  }
}

// Newline, tab and carriage return, whose JSON escapes are short, are cases below.
TEST(Escape, EveryOtherC0IsEscapedAmongText) {
  std::vector<Case> cases;
  for (int byte = 0; byte < 0x20; ++byte) {
    if (byte == '\n' || byte == '\t' || byte == '\r') continue;
    char code[5], json[7];
    std::snprintf(code, sizeof code, "\\x%02x", byte);
    std::snprintf(json, sizeof json, "\\u%04x", byte);
    const std::string text = "a"s + code + "bcdefghij";
    cases.push_back(
        {"a"s + static_cast<char>(byte) + "bcdefghij", text, text, "a"s + json + "bcdefghij"});
  }
  expectCases(cases);
}

TEST(Escape, BothRulesByCase) {
  // Valid UTF-8, U+00A0 (C2 A0, no control) first.
  const std::string utf8 = "\xc2\xa0 caf\xc3\xa9 \xe2\x82\xac \xf0\x9f\x98\x80";
  // Not UTF-8, each byte "\u00NN" in JSON, passing the text rule: an overlong form (C1 9B,
  // for U+0080 to U+009F are C2 80 to C2 9F only) whose 9B is a continuation byte alone, a
  // surrogate, a code point above U+10FFFF, and continuation bytes no lead byte starts.
  const std::string bad = "\xc1\x9b\xed\xa0\x80\xf4\x90\x80\x80\x80";
  expectCases({
      {"plain 10.0.0.1/32", "plain 10.0.0.1/32", "plain 10.0.0.1/32", "plain 10.0.0.1/32"},
      {"", "", "", ""},
      {"a\nb\tc\rd", "a\\x0ab\\x09c\\x0dd", "a\\x0ab\\x09c\\x0dd", "a\\nb\\tc\\rd"},
      {"\x1f\x20\x7e\x7f", "\\x1f \x7e\\x7f", "\\x1f \x7e\\x7f", "\\u001f \x7e\\u007f"},
      {"\x1b[31mred\x7f", "\\x1b[31mred\\x7f", "\\x1b[31mred\\x7f", "\\u001b[31mred\\u007f"},
      // The bounds of C1: C2 7F is no UTF-8 (C2 passes, 7F is DEL); C2 80 and C2 9F are
      // C1, here one after the other; a C2 may end the text.
      {"\xc2\x7f", "\xc2\\x7f", "\xc2\\x7f", "\\u00c2\\u007f"},
      {"\xc2\x80\xc2\x9f", "\\xc2\\x80\\xc2\\x9f", "\\xc2\\x80\\xc2\\x9f", "\\u0080\\u009f"},
      {"end\xc2", "end\xc2", "end\xc2", "end\\u00c2"},
      {utf8, utf8, utf8, utf8},
      {bad, bad, bad, "\\u00c1\\u009b\\u00ed\\u00a0\\u0080\\u00f4\\u0090\\u0080\\u0080\\u0080"},
      // The quoting: '"' and '\' only inside a quoted string, and always in JSON.
      {"q\"b\\", "q\"b\\", "q\\\"b\\\\", "q\\\"b\\\\"},
  });
}

// The scan reads eight bytes at a time: a byte to escape is found at every place of texts
// up to two words long, and the bytes nearest to one are not taken for one. Only "no" is a
// verdict of mayNeedEscape(); needsEscape() is exact: a continuation byte is C1 after a C2.
TEST(Escape, TheScanFindsABytePerhapsToEscapeAtEveryPlace) {
  for (std::size_t size = 1; size <= 17; ++size)
    for (std::size_t at = 0; at < size; ++at)
      for (const int byte : {0x00, 0x1f, 0x20, 0x7e, 0x7f, 0x80, 0x9b, 0xa0, 0xc2, 0xff}) {
        const bool control = byte < 0x20 || byte == 0x7f;
        std::string plain(size, 'a'), high(size, '\x80');
        plain[at] = high[at] = static_cast<char>(byte);
        EXPECT_EQ(decoding::mayNeedEscape(plain), control || byte >= 0x80) << size << ' ' << at;
        EXPECT_EQ(decoding::needsEscape(plain), control) << size << ' ' << at;
        EXPECT_EQ(decoding::needsEscape(high), control || (byte == 0xc2 && at + 1 < size))
            << size << ' ' << at;
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
      {{}, {}, ""},
      {{"\x1b[", "\t"}, {"10.0.0.1", "caf\xc3\xa9"}, "\x1b[10.0.0.1\tcaf\xc3\xa9"},
      {{"", "\t", "\t"}, {"ok", "a\tb", "\xc2\x9b"}, "ok\ta\\x09b\t\\xc2\\x9b"},
      {{"", ""}, {"\x1b[0m", "read a word at a time\n"}, "\\x1b[0mread a word at a time\\x0a"},
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
}

TEST(Escape, HexIsLowercasePairsWithTheSeparatorBetween) {
  const unsigned char bytes[] = {0x01, 0xab, 0xff};
  std::string spaced = "[", joined;
  decoding::appendHex(spaced, bytes, 3, " ");
  decoding::appendHex(joined, bytes, 3, "");
  decoding::appendHex(joined, bytes, 0, " ");
  EXPECT_EQ(spaced, "[01 ab ff");
  EXPECT_EQ(joined, "01abff");
}

} // namespace
} // namespace Orvane::test
