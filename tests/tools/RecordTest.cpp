// Whole records through ovfmt: consecutive arguments, separators, templates, the host's
// base types, the errors of one argument, and --jobs printing what one job prints.
#include "tests/support/RunOvfmt.h"
#include "tools/ovfmt/LineReader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <sstream>
#include <unistd.h>

namespace Orvane::test {
namespace {

// A BGP peer key (10 bytes) and a BGP next hop (16 bytes), and their texts.
const std::string kPeer = "05 01 01 00 00 0a 03 65 74 31 ", kPeerText = "10.0.0.1%et1";
const std::string kHop = "01 02 00 00 00 03 01 00 00 0a 00 1c 73 aa bb cc",
                  kHopText = "<ip:10.0.0.1, routerMac:001c.73aa.bbcc> (L3-vrfId:2)";

TEST(OvfmtRecord, PrintsArgumentsOnOneLine) {
  expectRuns({
      {{"BPK,BNH", kPeer, kHop}, "", kPeerText + " " + kHopText + "\n", "", 0},
      {{"--sep", ", ", "BPK,I", kPeer + "01 00 00 0a"}, "", kPeerText + ", 10.0.0.1\n", "", 0},
      {{"--template", "peer {} nexthop {}", "BPK,BNH", kPeer + kHop}, "",
       "peer " + kPeerText + " nexthop " + kHopText + "\n", "", 0},
      {{"--template", "{{{}}}:}}", "I", "01 00 00 0a"}, "", "{10.0.0.1}:}\n", "", 0},
      {{"u8,u16,u32,u64,x16,x32,bool,bool,str",
        "ff 0101 02000000 0300000000000000 ffff ab000000 01 00 02 6f 6b"},
       "", "255 257 2 3 ffff ab True False ok\n", "", 0},
      {{"--template", "[{}] [{}]", "--batch"}, "I,I 01 00 00 0a 02 00 00 0a\nI 01 00 00 0a\n",
       "[10.0.0.1] [10.0.0.2]\n", "<stdin>:2: the template has 2 '{}' but the record has 1", 1},
  });
}

TEST(OvfmtRecord, ExampleRecordsDecode) {
  const auto run = runOvfmt({"--template", "route {} from {} via {}", "--batch", RECORDS_PATH});
  EXPECT_EQ(run.err, "");
  EXPECT_EQ(std::count(run.out.begin(), run.out.end(), '\n'), 4) << run.out;
}

TEST(OvfmtRecord, AFailedArgumentFailsTheRecord) {
  // clang-format off: one case a row, or two where its text is long
  expectRuns({
      {{"BPK,I,BNH", kPeer, "01 00 00"}, "", "",
       "ovfmt: BPK,I,BNH: argument 2 of 3 (I): value too short: 3 bytes left, I needs 4\n", 1},
      {{"BPK,PGO,I", kPeer, "03 00 01 00 00 0a"}, "", "",
       "argument 2 of 3 (PGO): invalid encoding: the length function of PGO returned 0xFFFFFFFF", 1},
      {{"I,NOPE", "01 00 00 0a 00"}, "", "", "argument 2 of 2 (NOPE): unknown id \"NOPE\"", 1},
      {{"I,I", "01 00 00 0a 02 00 00 0a 07"}, "", "10.0.0.1 10.0.0.2\n",
       "argument 2 of 2 (I): 1 byte after the value not consumed", 1},
      {{"--counts", "BPK,PGO,I", kPeer, "03 00"}, "",
       "BPK\t10\t10\t" + kPeerText + "\nPGO\t4294967295\t4294967295\tunknown address family(3)/0\n",
       "argument 2 of 3 (PGO): invalid encoding: the length function of PGO returned 0xFFFFFFFF", 1},
  });
  // clang-format on
}

TEST(OvfmtRecord, UsageErrors) {
  expectRuns({
      {{"--template", "{} {}", "I", "00"}, "", "", "has 2 '{}' but the record has 1 argument", 2},
      {{"--template", "{0}", "I", "00"}, "", "", "stray '{' at column 1", 2},
      {{"--template", "{}}", "I", "00"}, "", "", "stray '}' at column 3", 2},
      {{"--template", "{{}", "I", "00"}, "", "", "stray '}' at column 3", 2},
      {{"--template", "{}", "--sep", "-", "I", "00"}, "", "", "not both", 2},
      {{"--counts", "--sep", "-", "I", "00"}, "", "", "do not apply", 2},
      {{"--jobs", "2", "I", "00"}, "", "", "--jobs, --line-number, --with-filename and", 2},
      {{"-n", "I", "00"}, "", "", "apply to --batch only", 2},
      {{"--counts", "--keep-lines", "--batch"}, "", "", "--keep-lines does not apply", 2},
      // The template is checked against the record's first word, its ids.
      {{"--template", "{}", "I,I", "00"}, "", "", "has 1 '{}' but the record has 2", 2},
      {{"--template", "{}", "--hexdump", "I,I"}, "", "", "the record has 2 arguments", 2},
      {{"--jobs", "0", "--batch"}, "", "", "--jobs needs a number from 1 to", 2},
  });
}

TEST(LineReader, LinesAcrossBlocks) {
  const std::pair<std::string, std::vector<std::string>> cases[] = {
      {"a\n\nlonger than a block\nb\r\nend", {"a", "", "longer than a block", "b\r", "end"}},
      {"x\n", {"x"}},
      {"", {}},
  };
  for (const auto& [input, expected] : cases) {
    int fds[2];
    ASSERT_EQ(pipe(fds), 0);
    ASSERT_EQ(write(fds[1], input.data(), input.size()), static_cast<ssize_t>(input.size()));
    close(fds[1]);
    ovfmt::LineReader reader(fds[0], 4);
    std::vector<std::string> got;
    for (std::vector<std::string_view> lines; reader.next(lines);)
      got.insert(got.end(), lines.begin(), lines.end());
    close(fds[0]);
    EXPECT_EQ(got, expected) << input;
  }
}

TEST(OvfmtRecord, JobsPrintWhatOneJobPrints) {
  std::ifstream demo(DEMO_PATH);
  std::stringstream values;
  values << demo.rdbuf();
  std::string input;
  for (int i = 0; i < 20; ++i)
    input += values.str() + "I 0a\nXX 00\nI,I 01 00 00 0a 02 00 00 0a 07\n";
  const auto one = runOvfmt({"--batch"}, input);
  EXPECT_EQ(std::count(one.err.begin(), one.err.end(), '\n'), 60);
  for (const char* jobs : {"2", "3"}) {
    const auto many = runOvfmt({"--jobs", jobs, "--batch", "-"}, input);
    EXPECT_EQ(many.out, one.out) << jobs;
    EXPECT_EQ(many.err, one.err) << jobs;
    EXPECT_EQ(many.status, one.status) << jobs;
  }
}

TEST(OvfmtRecord, JobsAcrossBlocks) { // 1.2 MB: two blocks, a line across, a bad one in each
  std::string input;
  for (int i = 1; i <= 90000; ++i) input += i % 40000 ? "I 01 00 00 0a\n" : "I 0a 0z\n";
  const auto one = runOvfmt({"--batch"}, input), two = runOvfmt({"--jobs", "2", "--batch"}, input);
  EXPECT_TRUE(two.out == one.out && two.err == one.err) << one.err << two.err;
}

TEST(OvfmtRecord, HexBesideTheUsualPairAndBlank) {
  expectRuns({{{"I", "0a:00\t00  01"}, "", "1.0.0.10\n", "", 0},
              {{"I", "0a 00 z0 01"}, "", "", "bad hex: 'z' at column 7", 1}});
}

} // namespace
} // namespace Orvane::test
