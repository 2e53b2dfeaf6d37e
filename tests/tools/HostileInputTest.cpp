// ovfmt on input no one should write but a corrupt trace or a wrong command can: one
// clear line on stderr per bad value, the documented status, never a crash, and the
// good lines of a batch still print.
#include "tests/support/RunOvfmt.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <random>

namespace Orvane::test {
namespace {

int lineCount(const std::string& text) {
  return static_cast<int>(std::count(text.begin(), text.end(), '\n'));
}

TEST(HostileInput, VeryLongLines) {
  std::string longHex;
  for (int i = 0; i < 200000; ++i) longHex += "00 ";
  const auto extra = runOvfmt({"--batch"}, "I " + longHex + "\n");
  EXPECT_EQ(extra.status, 0);
  EXPECT_EQ(extra.out, "0.0.0.0\n");
  EXPECT_NE(extra.err.find("199996 bytes after the value not consumed"), std::string::npos);

  const auto longId = runOvfmt({"--batch"}, std::string(100000, 'Q') + " 00\nI 01 00 00 0a\n");
  EXPECT_EQ(longId.status, 1);
  EXPECT_EQ(longId.out, "10.0.0.1\n");
  EXPECT_EQ(lineCount(longId.err), 1);
  EXPECT_LT(longId.err.size(), 200u) << "the error line quotes the id in full";
}

TEST(HostileInput, BinaryGarbageBetweenGoodLines) {
  std::mt19937 rng(7);
  std::string garbage;
  for (int i = 0; i < 4000; ++i) garbage += static_cast<char>(rng() % 256);
  const std::string input = "I 01 00 00 0a\n" + garbage + "\nE 00 11 22 33 44 55\n";
  const auto result = runOvfmt({"--batch"}, input);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out.substr(0, 9), "10.0.0.1\n");
  EXPECT_EQ(result.out.substr(result.out.size() - 15), "0011.2233.4455\n");
  EXPECT_GE(lineCount(result.err), 1);
  for (char c : result.err) EXPECT_TRUE(c == '\n' || (c >= 0x20 && c < 0x7f)) << int(c);
}

TEST(HostileInput, EachBadValueGetsOneLine) {
  const std::string input =
      "I 0a\n"                    // truncated
      "PGO 03 00\n"               // invalid encoding
      "I zz 00 00 00\n"           // not hex
      "I 010 00 00\n"             // odd digit count
      "NOSUCHID 00\n"             // unknown id
      "I 01 00 00 0a\n";          // good
  const auto result = runOvfmt({"--batch"}, input);
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.out, "10.0.0.1\n");
  EXPECT_EQ(lineCount(result.err), 5) << result.err;
  for (int line = 1; line <= 5; ++line)
    EXPECT_NE(result.err.find("<stdin>:" + std::to_string(line) + ": "), std::string::npos);
}

TEST(HostileInput, EmptyAndMissingFiles) {
  const std::string empty = testing::TempDir() + "/ovfmt-empty.txt";
  std::ofstream(empty).close();
  const auto fromEmpty = runOvfmt({"--batch", empty});
  EXPECT_EQ(fromEmpty.status, 0);
  EXPECT_EQ(fromEmpty.out, "");
  EXPECT_NE(fromEmpty.err.find("no values to format"), std::string::npos);
  std::remove(empty.c_str());

  const auto missing = runOvfmt({"--batch", "/nonexistent/trace.txt"});
  EXPECT_EQ(missing.status, 2);
  EXPECT_EQ(lineCount(missing.err), 1);
}

TEST(HostileInput, PluginPathsThatAreNotPlugins) {
  const std::string text = testing::TempDir() + "/not-a-plugin.so";
  std::ofstream(text) << "this is not an ELF object\n";
  // The host library loads fine but registers no formatter.
  const std::string hostLibrary = HOST_LIBRARY_PATH;
  for (const auto& path : {std::string("/nonexistent/libX.so"), text, hostLibrary}) {
    SCOPED_TRACE(path);
    const auto result = runOvfmt({"--plugin", path, "I", "00 00 00 00"});
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(lineCount(result.err), 1);
    EXPECT_NE(result.err.find("cannot load plug-in " + path), std::string::npos);
  }
  std::remove(text.c_str());
}

} // namespace
} // namespace Orvane::test
