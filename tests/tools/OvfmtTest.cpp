// ovfmt run as a user runs it, on good input and on input only a corrupt trace or a
// wrong command would give: what it prints, one clear line on stderr per problem, the
// documented status, never a crash, and the good lines of a batch still print.
#include "tests/support/RunOvfmt.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <random>
#include <set>
#include <sstream>

namespace Orvane::test {
namespace {

TEST(Ovfmt, OneValue) {
  expectRuns({
      {{"PGO", "01", "14", "0a", "01", "10"}, "", "10.1.16.0/20\n", "", 0},
      {{"PGO", "01140a0110"}, "", "10.1.16.0/20\n", "", 0},
      {{"PGO", "01:14:0a:01:10"}, "", "10.1.16.0/20\n", "", 0},
      // A value too short or invalid keeps its --counts line, and fails.
      {{"--counts", "IG", "07"}, "", "IG\t21\t21\tunknown\n", "1 byte given, IG needs 21", 1},
      {{"--counts", "PGO", "03 00"},
       "",
       "PGO\t4294967295\t4294967295\tunknown address family(3)/0\n",
       "PGO: invalid encoding",
       1},
      {{"--counts", "PGO", "01 14 0a 01 10"}, "", "PGO\t5\t5\t10.1.16.0/20\n", "", 0},
      {{"I", "01 00 00 0a 00 00"}, "", "10.0.0.1\n", "2 bytes after the value not consumed", 1},
      {{"PGO", "00000000", "01 14 0a 01 10"},
       "",
       "unknown address family(0)/0\n",
       "7 bytes after",
       1},
      {{"I", "0a"}, "", "", "I: value too short: 1 byte given, I needs 4", 1},
      {{"PGO", "03", "00"}, "", "", "invalid encoding", 1},
      {{"NOPE", "00"}, "", "", "unknown id \"NOPE\"", 1},
      {{"I", "0g", "00", "00", "00"}, "", "", "bad hex: 'g' at column 2", 1},
      {{"I", "0", "00", "00", "00"}, "", "", "odd number of digits", 1},
      {{"I", "0:a00"}, "", "", "odd number of digits", 1},
  });
}

TEST(Ovfmt, UsageAndPluginErrorsExitTwo) {
  // clang-format off: one case a row, or two where its text is long
  expectRuns({
      {{}, "", "", "nothing to do", 2},
      {{"--bogus"}, "", "", "ovfmt: unknown option '--bogus'\nTry 'ovfmt --help'.\n", 2},
      {{"-x", "I", "00"}, "", "", "unknown option '-x'", 2},
      {{"-nH", "--batch"}, "", "", "unknown option '-nH'", 2},
      {{"--plugin"}, "", "", "option '--plugin' needs a value (PATH)", 2},
      {{"--counts=yes", "I", "00"}, "", "", "option '--counts' takes no value", 2},
      {{"--list", "--batch"}, "", "", "only one of", 2},
      {{"--list", "I"}, "", "", "--list takes no ID or HEX", 2},
      {{"--hexdump"}, "", "", "--hexdump needs the ID", 2},
      {{"--hexdump", "I", "a", "b"}, "", "", "--hexdump reads one FILE", 2},
      {{"--batch", "/nonexistent/input.txt"}, "", "",
       "cannot open /nonexistent/input.txt: No such file or directory", 2},
      {{"--list"}, "", "", "/nonexistent-dir", 2, {"OVFMT_PLUGIN_DIR=/nonexistent-dir"}},
      // Not there, not a shared object, and a library that registers no formatter.
      {{"--plugin", "/nonexistent.so", "I", "00"}, "", "", "plug-in /nonexistent.so", 2},
      {{"--plugin", DEMO_PATH, "I", "00"}, "", "", "cannot load plug-in " DEMO_PATH, 2},
      {{"--plugin", HOST_LIBRARY_PATH, "I", "00"}, "", "", "plug-in " HOST_LIBRARY_PATH, 2},
  });
  // clang-format on
}

// The entry docs/ids.md shows for `id`: from its heading to the next anchor.
std::string idReferenceEntry(const std::string& id) {
  std::ifstream in(SOURCE_DIR "/docs/ids.md");
  std::stringstream all;
  all << in.rdbuf();
  const std::string text = all.str();
  const std::size_t start = text.find("### " + id + ":");
  if (start == std::string::npos) return "";
  return text.substr(start, text.find("\n<a id=", start) - start);
}

// --describe prints the committed reference of the id, from the plug-in ovfmt loads.
TEST(Ovfmt, Describe) {
  expectRuns({
      {{"--describe", "MVP"}, "", idReferenceEntry("MVP"), "", 0},
      {{"--describe", "BNH"}, "", idReferenceEntry("BNH"), "", 0},
      {{"--describe", "u32"}, "", "", "no loaded plug-in describes u32\n", 1},
      {{"--describe", "NOPE"}, "", "", "no loaded plug-in describes NOPE", 1},
      {{"--describe"}, "", "", "--describe needs an id", 2},
      {{"--describe", "MVP", "--list"}, "", "", "only one of", 2},
  });
}

TEST(Ovfmt, PluginChoice) {
  const std::string plugin = PLUGIN_PATH, dir = plugin.substr(0, plugin.rfind('/'));
  expectRuns({
      {{"--plugin", plugin, "I", "01 00 00 0a"}, "", "10.0.0.1\n", "", 0},
      {{"--plugin", dir, "I", "01 00 00 0a"}, "", "10.0.0.1\n", "", 0},
      {{"I", "01 00 00 0a"}, "", "10.0.0.1\n", "", 0, {"OVFMT_PLUGIN_DIR=" + dir}},
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
  const std::vector<std::string> batch{"--batch"};
  expectRuns({
      {batch, mixed, "10.0.0.1\n0011.2233.4455\n", "<stdin>:4: value too short", 1},
      {{"--batch", "-"}, mixed, "10.0.0.1\n0011.2233.4455\n", "<stdin>:5: unknown id \"XX\"", 1},
      {{"--counts", "--batch"}, "I 0a\n", "I\t4\t4\t0.0.0.10\n", "<stdin>:1: value too short", 1},
      {batch, "\n# nothing\n", "", "no values to format", 0},
      {batch, good + garbage + "\n" + good, "10.0.0.1\n10.0.0.1\n", "<stdin>:2: ", 1},
      {batch, "I " + longHex, "0.0.0.0\n", "199996 bytes after the value not consumed", 1},
      {batch, std::string(100000, 'Q') + " 00\n" + good, "10.0.0.1\n", "unknown id", 1},
  });
  // One line for each bad value, naming its line.
  const auto bad =
      runOvfmt(batch, "I 0a\nPGO 03 00\nI zz 00 00 00\nI 010 00 00\nNOSUCH 00\n" + good);
  EXPECT_EQ(bad.out, "10.0.0.1\n");
  EXPECT_EQ(std::count(bad.err.begin(), bad.err.end(), '\n'), 5) << bad.err;
  for (int line = 1; line <= 5; ++line)
    EXPECT_NE(bad.err.find("<stdin>:" + std::to_string(line) + ": "), std::string::npos);
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
      {packet, "", decoded, "", 0, {fake}},
      {packet, "", hexDump, "", 0, {fake, "OVPKT_HEX=True"}},
      {packet, "", decoded, "", 0, {fake, "OVPKT_HEX=true"}},
      {packet, "", decoded, "", 0, {fake, "OVPKT_HEX=TRUE"}},
      {packet, "", decoded, "", 0, {fake, "OVPKT_HEX=True "}},
      {packet, "", decoded, "", 0, {fake, "OVPKT_HEX="}},
      {packet, "", hexDump, "", 0, {"LD_LIBRARY_PATH=" KANET_WITHOUT_DECODER_DIR}},
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
  // --list prints the plug-in ids, a blank line, then the host's base-type ids.
  const std::string list = runOvfmt({"--list"}).out;
  const auto blank = list.find("\n\n");
  std::istringstream pluginIds(list.substr(0, blank));
  for (std::string id; pluginIds >> id;) listed.insert(id);
  EXPECT_EQ(demoIds, listed);
  EXPECT_EQ(list.substr(blank), "\n\nu8\nu16\nu32\nu64\nx16\nx32\nbool\nstr\n");
}

} // namespace
} // namespace Orvane::test
