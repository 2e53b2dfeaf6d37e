// Examples a reader can check by hand, each formatted through the pair registered for its
// id: the vector files under tests/vectors, the README's type-id table and the route key
// page. (The id reference's examples are printed by the generator itself; ids_md_current
// keeps the page equal to what it prints.) A wrong example in the docs fails here like a wrong formatter.
#include "tests/support/FormatCase.h"
#include "tools/ovfmt/Hex.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <regex>
#include <set>
#include <sstream>

namespace Orvane::test {
namespace {

using Bytes = std::vector<unsigned char>;

// Calls `check` on every line of `path` that matches `pattern`, naming the file and line
// in any failure; `check` may read on from the stream.
void forEachMatch(const std::string& path, const std::regex& pattern,
                  const std::function<void(const std::smatch&, std::istream&)>& check) {
  std::ifstream in(path);
  ASSERT_TRUE(in.is_open()) << path;
  int number = 0;
  for (std::string line; std::getline(in, line);) {
    ++number;
    std::smatch match;
    if (!std::regex_match(line, match, pattern)) continue;
    SCOPED_TRACE(path + ":" + std::to_string(number));
    check(match, in);
  }
}

// Vector lines read `ID HEX... => LENGTH `TEXT``: LENGTH is both functions' result. The
// files are the *.txt ones; stream-states.digests is StreamStatesTest's.
TEST(Examples, VectorFiles) {
  const std::regex vector(R"(([^ #]+)((?: [0-9a-f]{2})*) => (\d+) `(.*)`)");
  const std::regex anyLine(R"([^#].*)");
  for (const auto& file : std::filesystem::directory_iterator(ORVANE_VECTORS_DIR))
    if (file.path().extension() == ".txt")
      forEachMatch(file.path(), anyLine, [&](const std::smatch& line, std::istream&) {
        std::smatch m;
        const std::string text = line.str();
        ASSERT_TRUE(std::regex_match(text, m, vector)) << "not a vector: " << text;
        expectCases({{m[1], m[2], m[4], static_cast<unsigned>(std::stoul(m[3]))}});
      });
}

// Puts `zeros` zero bytes into the gaps after pieces[i..], every way, until `holds`.
bool anyFill(const std::vector<Bytes>& pieces, std::size_t i, std::size_t zeros, Bytes bytes,
             const std::function<bool(const Bytes&)>& holds) {
  bytes.insert(bytes.end(), pieces[i].begin(), pieces[i].end());
  if (i + 1 == pieces.size()) return zeros == 0 && holds(bytes);
  for (std::size_t here = 0; here <= zeros; ++here) {
    Bytes filled = bytes;
    filled.resize(bytes.size() + here);
    if (anyFill(pieces, i + 1, zeros - here, filled, holds)) return true;
  }
  return false;
}

// A doc example: "..." in `hex` stands for zero bytes left out. It holds when some number
// of zeros in each gap gives a value that prints `text` and is exactly as long as its
// length function says (and the format function agrees); at the end, "..." lets the
// value be shorter than its length, as the zero guard after it fills the rest.
void expectExample(const std::string& id, std::string hex, const std::string& text) {
  const host::FormatterPair* formatter = host::findFormatter(id);
  ASSERT_TRUE(formatter) << "unknown id " << id;
  const bool openEnd = hex.ends_with("...");
  if (openEnd) hex.resize(hex.size() - 3);
  std::vector<Bytes> pieces;
  std::string error;
  for (std::size_t start = 0, end = 0; end != std::string::npos; start = end + 3) {
    end = hex.find("...", start);
    const auto piece = ovfmt::parseHex(hex.substr(start, end - start), error);
    ASSERT_TRUE(piece) << error;
    pieces.push_back(*piece);
  }
  // The length function first, on a zero-guarded copy: formatting is the slow part.
  std::vector<unsigned char> guarded(decoding::kGuardBefore + 1024 + decoding::kGuardAfter);
  unsigned char* value = guarded.data() + decoding::kGuardBefore;
  const auto holds = [&](const Bytes& bytes) {
    std::copy(bytes.begin(), bytes.end(), value);
    const unsigned length = formatter->length(value);
    std::fill_n(value, bytes.size(), 0);
    if (length == kInvalidLength || (openEnd ? length < bytes.size() : length != bytes.size()))
      return false;
    const auto decoded = decoding::decodeValue(*formatter, bytes);
    return decoded.text == text && decoded.consumed == length;
  };
  constexpr std::size_t kMostLeftOut = 96;
  for (std::size_t zeros = 0; zeros <= kMostLeftOut; ++zeros)
    if (anyFill(pieces, 0, zeros, {}, holds)) return;
  ADD_FAILURE() << id << " " << hex << " does not print `" << text << "` at its length";
}

// Each row: | Id | Value | `ID HEX...` | `TEXT` (a note may follow) |. Zero bytes at the
// end may be left out without "..." (ovfmt --counts shows such values too). Together
// the rows name every registered id, aliases in one row ("P, AM4").
TEST(Examples, ReadmeTypeIdTable) {
  const std::regex row(R"(\| ([A-Z0-9a-z, ]+) \| .* \| `([^ `]+) ([^`]*)` \| `([^`]*)`[^`|]*\|)");
  std::set<std::string> ids;
  forEachMatch(ORVANE_SOURCE_DIR "/README.md", row, [&](const std::smatch& m, std::istream&) {
    std::istringstream named(std::regex_replace(m.str(1), std::regex(","), " "));
    for (std::string id; named >> id;) ids.insert(id);
    expectExample(m[2], m.str(3).ends_with("...") ? m.str(3) : m.str(3) + "...", m[4]);
  });
  const auto registered = host::registeredIds();
  EXPECT_EQ(ids, std::set<std::string>(registered.begin(), registered.end()));
}

// Each "$ ovfmt ID HEX..." line is followed by the line it prints.
TEST(Examples, RouteKeyPage) {
  int examples = 0;
  forEachMatch(ORVANE_SOURCE_DIR "/docs/route-keys.md", std::regex(R"(\$ ovfmt (\S+) (.*))"),
               [&](const std::smatch& m, std::istream& in) {
                 std::string shown;
                 ASSERT_TRUE(std::getline(in, shown));
                 expectExample(m[1], m[2], shown);
                 ++examples;
               });
  EXPECT_EQ(examples, 52); // the worked example and one per distinct layout
}

} // namespace
} // namespace Orvane::test
