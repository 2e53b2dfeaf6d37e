// ovfmt run as a user runs it, on good input and on input only a corrupt trace or a
// wrong command would give: what it prints, one clear line on stderr per problem, the
// documented status, never a crash, and the good lines of a batch still print.
#include "tests/support/RunOvfmt.h"

#include <gtest/gtest.h>

#include <fstream>
#include <random>
#include <set>
#include <sstream>

namespace Orvane::test {
namespace {

struct CliCase {
  std::vector<std::string> args;
  std::string out;
  std::vector<std::string> problems = {}; ///< each in one "ovfmt: " line of stderr, in order
  int status = 0;
  std::string input = {};
  std::vector<std::string> env = {}; ///< added to the environment
};

void expectRuns(const std::vector<CliCase>& cases) {
  for (const auto& c : cases) {
    std::string command;
    for (const auto& arg : c.args) command += arg.substr(0, 40) + " ";
    SCOPED_TRACE("ovfmt " + command);
    const auto result = runOvfmt(c.args, c.input, c.env);
    EXPECT_EQ(result.out, c.out);
    EXPECT_EQ(result.status, c.status);
    if (c.problems.empty()) {
      EXPECT_EQ(result.err, "");
    }
    std::istringstream err(result.err);
    std::size_t problem = 0;
    for (std::string line; std::getline(err, line);) {
      EXPECT_LT(line.size(), 200u) << "a quoted id or value is cut short";
      for (char ch : line) EXPECT_TRUE(ch >= 0x20 && ch < 0x7f) << int(ch);
      if (line.rfind("ovfmt: ", 0) != 0) continue;
      ASSERT_LT(problem, c.problems.size()) << line;
      EXPECT_NE(line.find(c.problems[problem++]), std::string::npos) << line;
    }
    EXPECT_EQ(problem, c.problems.size()) << result.err;
  }
}

TEST(Ovfmt, OneValue) {
  expectRuns({
      {{"PGO", "01", "14", "0a", "01", "10"}, "10.1.16.0/20\n"},
      {{"PGO", "01140a0110"}, "10.1.16.0/20\n"},
      {{"PGO", "01:14:0a:01:10"}, "10.1.16.0/20\n"},
      {{"--counts", "IG", "07"}, "IG\t21\t21\tunknown\n"},
      {{"--counts", "PGO", "03 00"}, "PGO\t4294967295\t4294967295\tunknown address family(3)/0\n"},
      {{"I", "01 00 00 0a 00 00"}, "10.0.0.1\n", {"2 bytes after the value not consumed"}},
      {{"I", "0a"}, "", {"I: value too short: 1 byte given, I needs 4"}, 1},
      {{"PGO", "03", "00"}, "", {"invalid encoding"}, 1},
      {{"NOPE", "00"}, "", {"unknown id \"NOPE\""}, 1},
      {{"I", "0g", "00", "00", "00"}, "", {"bad hex: 'g' at column 2"}, 1},
      {{"I", "0", "00", "00", "00"}, "", {"odd number of digits"}, 1},
      {{"I", "0:a00"}, "", {"odd number of digits"}, 1},
  });
}

TEST(Ovfmt, UsageAndPluginErrorsExitTwo) {
  expectRuns({
      {{}, "", {"nothing to do"}, 2},
      {{"--bogus"}, "", {"unknown option --bogus"}, 2},
      {{"--plugin"}, "", {"--plugin needs a path"}, 2},
      {{"--list", "--batch"}, "", {"only one of"}, 2},
      {{"--batch", "/nonexistent/input.txt"}, "", {"cannot open /nonexistent/input.txt"}, 2},
      {{"--list"}, "", {"/nonexistent-dir"}, 2, "", {"OVFMT_PLUGIN_DIR=/nonexistent-dir"}},
      // Not there, not a shared object, and a library that registers no formatter.
      {{"--plugin", "/nonexistent.so", "I", "00"}, "", {"cannot load plug-in /nonexistent.so"}, 2},
      {{"--plugin", DEMO_PATH, "I", "00"}, "", {"cannot load plug-in " DEMO_PATH}, 2},
      {{"--plugin", HOST_LIBRARY_PATH, "I", "00"}, "", {"plug-in " HOST_LIBRARY_PATH}, 2},
  });
}

TEST(Ovfmt, PluginChoice) {
  const std::string plugin = PLUGIN_PATH, dir = plugin.substr(0, plugin.rfind('/'));
  expectRuns({
      {{"--plugin", plugin, "I", "01 00 00 0a"}, "10.0.0.1\n"},
      {{"--plugin", dir, "I", "01 00 00 0a"}, "10.0.0.1\n"},
      {{"I", "01 00 00 0a"}, "10.0.0.1\n", {}, 0, "", {"OVFMT_PLUGIN_DIR=" + dir}},
  });
}

TEST(Ovfmt, BatchGoesOnAfterABadLine) {
  // One line of binary garbage, another of 200000 bytes and one with a 100000-byte id.
  std::mt19937 rng(7);
  std::string garbage, longHex;
  for (int i = 0; i < 4000; ++i) garbage += static_cast<char>(rng() % 255 + 1);
  std::replace(garbage.begin(), garbage.end(), '\n', '\0');
  for (int i = 0; i < 200000; ++i) longHex += "00 ";
  const std::string good = "I 01 00 00 0a\n";
  const std::string mixed = "# comment\n\n" + good + "I 0a\nXX 00\r\n  E 00 11 22 33 44 55\r\n";
  const std::string bad = "I 0a\nPGO 03 00\nI zz 00 00 00\nI 010 00 00\nNOSUCHID 00\n" + good;
  const std::vector<std::string> batch{"--batch"};
  expectRuns({
      {batch, "10.0.0.1\n0011.2233.4455\n", {"4: value too short", "5: unknown id"}, 1, mixed},
      {{"--batch", "-"},
       "10.0.0.1\n",
       {"1: value too short", "2: invalid", "3: bad", "4: bad", "5: unknown"},
       1,
       bad},
      {{"--counts", "--batch"}, "I\t4\t4\t0.0.0.10\n", {}, 0, "I 0a\n"},
      {batch, "", {"no values to format"}, 0, "\n# nothing\n"},
      {batch, "10.0.0.1\n10.0.0.1\n", {"<stdin>:2: "}, 1, good + garbage + "\n" + good},
      {batch, "0.0.0.0\n", {"199996 bytes after the value not consumed"}, 0, "I " + longHex},
      {batch, "10.0.0.1\n", {"unknown id"}, 1, std::string(100000, 'Q') + " 00\n" + good},
  });
}

// "PKT" in a child ovfmt that finds a stand-in packet library on LD_LIBRARY_PATH. Its
// decoder echoes its arguments over several lines and says how many ids were registered
// when it was opened: none, since the packet printer opens it first.
TEST(Ovfmt, PacketLibraryUnlessOvpktHexIsTrue) {
  const std::string fake = "LD_LIBRARY_PATH=" FAKE_KANET_DIR;
  const std::string decoded =
      "tpid 33024 tci 12388 vlan 1\\2 bytes: 45 00\\opened after 0 registrations\\\n";
  const std::string hexDump = "(tpid 0x8100 vlan 100 p 1 CFI) 4500\n";
  const std::vector<std::string> packet{"PKT", "00 81 64 30 01 00 00 02 45 00"};
  expectRuns({
      {packet, decoded, {}, 0, "", {fake}},
      {packet, hexDump, {}, 0, "", {fake, "OVPKT_HEX=True"}},
      {packet, decoded, {}, 0, "", {fake, "OVPKT_HEX=true"}},
      {packet, decoded, {}, 0, "", {fake, "OVPKT_HEX=TRUE"}},
      {packet, decoded, {}, 0, "", {fake, "OVPKT_HEX=True "}},
      {packet, decoded, {}, 0, "", {fake, "OVPKT_HEX="}},
      {packet, hexDump, {}, 0, "", {"LD_LIBRARY_PATH=" KANET_WITHOUT_DECODER_DIR}},
  });
}

TEST(Ovfmt, DemoDecodesCleanlyAndCoversEveryId) {
  const auto demo = runOvfmt({"--batch", DEMO_PATH});
  EXPECT_EQ(demo.status, 0);
  EXPECT_EQ(demo.err, "");
  std::set<std::string> demoIds, listed;
  std::ifstream in(DEMO_PATH);
  for (std::string line; std::getline(in, line);)
    if (!line.empty() && line[0] != '#') demoIds.insert(line.substr(0, line.find(' ')));
  std::istringstream list(runOvfmt({"--list"}).out);
  for (std::string id; list >> id;) listed.insert(id);
  EXPECT_EQ(demoIds, listed);
}

} // namespace
} // namespace Orvane::test
