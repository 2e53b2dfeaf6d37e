// ovfmt run as a user runs it: output, errors and exit status.
#include "tests/support/RunOvfmt.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>

namespace Orvane::test {
namespace {

TEST(Ovfmt, FormatsOneValue) {
  expectRuns({
      {{"PGO", "01", "14", "0a", "01", "10"}, "", "10.1.16.0/20\n", "", 0},
      {{"PGO", "01140a0110"}, "", "10.1.16.0/20\n", "", 0},
      {{"PGO", "01:14:0a:01:10"}, "", "10.1.16.0/20\n", "", 0},
      {{"E", "00 1c 73 aa bb cc"}, "", "001c.73aa.bbcc\n", "", 0},
      {{"--counts", "IG", "07"}, "", "IG\t21\t21\tunknown\n", "", 0},
      {{"--counts", "PGO", "03", "00"}, "", "PGO\t4294967295\t4294967295\tunknown address family(3)/0\n", "", 0},
  });
}

TEST(Ovfmt, RejectsBadValuesWithOneLineAndStatusOne) {
  expectRuns({
      {{"I", "0a"}, "", "", "I: value too short: 1 byte given, I needs 4", 1},
      {{"PGO", "03", "00"}, "", "", "invalid encoding", 1},
      {{"NOPE", "00"}, "", "", "unknown id \"NOPE\"", 1},
      {{"I", "0g", "00", "00", "00"}, "", "", "bad hex: 'g' at column 2", 1},
      {{"I", "0", "00", "00", "00"}, "", "", "odd number of digits", 1},
      {{"I", "0:a00"}, "", "", "odd number of digits", 1},
  });
}

TEST(Ovfmt, ExtraBytesArePrintedAndReported) {
  expectRuns({{{"I", "01 00 00 0a 00 00"}, "", "10.0.0.1\n", "2 bytes after the value not consumed", 0}});
}

TEST(Ovfmt, UsageErrorsExitTwo) {
  expectRuns({
      {{}, "", "", "nothing to do", 2},
      {{"--bogus"}, "", "", "unknown option --bogus", 2},
      {{"--plugin"}, "", "", "--plugin needs a path", 2},
      {{"--list", "--batch"}, "", "", "only one of", 2},
      {{"--plugin", "/nonexistent.so", "I", "00 00 00 00"}, "", "", "cannot load plug-in /nonexistent.so", 2},
      {{"--batch", "/nonexistent/input.txt"}, "", "", "cannot open /nonexistent/input.txt", 2},
  });
}

TEST(Ovfmt, BatchGoesOnAfterABadLine) {
  const std::string input = "# comment\n\nI 01 00 00 0a\nI 0a\nXX 00\r\n  E 00 11 22 33 44 55\r\n";
  expectRuns({
      {{"--batch"}, input, "10.0.0.1\n0011.2233.4455\n", "<stdin>:4: value too short", 1},
      {{"--batch", "-"}, input, "10.0.0.1\n0011.2233.4455\n", "<stdin>:5: unknown id \"XX\"", 1},
      {{"--counts", "--batch"}, "I 0a\n", "I\t4\t4\t0.0.0.10\n", "", 0},
      {{"--batch"}, "\n# nothing\n", "", "no values to format", 0},
  });
}

TEST(Ovfmt, PluginChoice) {
  // An explicit plug-in, and the directory of $OVFMT_PLUGIN_DIR.
  const std::string plugin = PLUGIN_PATH;
  const std::string dir = plugin.substr(0, plugin.rfind('/'));
  EXPECT_EQ(runOvfmt({"--plugin", plugin, "I", "01 00 00 0a"}).out, "10.0.0.1\n");
  EXPECT_EQ(runOvfmt({"--plugin", dir, "I", "01 00 00 0a"}).out, "10.0.0.1\n");
  EXPECT_EQ(runOvfmt({"I", "01 00 00 0a"}, "", {"OVFMT_PLUGIN_DIR=" + dir}).out, "10.0.0.1\n");
  const auto empty = runOvfmt({"--list"}, "", {"OVFMT_PLUGIN_DIR=/nonexistent-dir"});
  EXPECT_EQ(empty.status, 2);
  EXPECT_NE(empty.err.find("/nonexistent-dir"), std::string::npos);
}

std::set<std::string> lines(const std::string& text) {
  std::set<std::string> result;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) result.insert(line);
  return result;
}

TEST(Ovfmt, DemoDecodesCleanlyAndCoversEveryId) {
  const auto demo = runOvfmt({"--batch", DEMO_PATH});
  EXPECT_EQ(demo.status, 0) << demo.err;
  EXPECT_EQ(demo.err, "");

  std::set<std::string> demoIds;
  std::ifstream in(DEMO_PATH);
  for (std::string line; std::getline(in, line);)
    if (!line.empty() && line[0] != '#') demoIds.insert(line.substr(0, line.find(' ')));
  // --list prints the plug-in ids, a blank line, then the host's base-type ids.
  const std::string list = runOvfmt({"--list"}).out;
  const auto blank = list.find("\n\n");
  EXPECT_EQ(demoIds, lines(list.substr(0, blank + 1)));
  EXPECT_EQ(list.substr(blank), "\n\nu8\nu16\nu32\nu64\nx16\nx32\nbool\nstr\n");
}

} // namespace
} // namespace Orvane::test
