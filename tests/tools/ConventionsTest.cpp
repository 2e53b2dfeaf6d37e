// ovfmt's command line as a command-line user expects it: options anywhere, short forms,
// escaped control characters, batch lines that say where they come from, hex dumps,
// plug-ins beside the built-in one, and exit statuses that tell the truth.
#include "tests/support/RunOvfmt.h"
#include "tools/ovfmt/Options.h"
#include "tools/ovfmt/Plugins.h"
#include "tools/ovfmt/Suggest.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace Orvane::test {
namespace {

TEST(OvfmtConventions, OptionsAnywhereBeforeDoubleDash) {
  const std::string ten = "01 00 00 0a";
  expectRuns({
      {{"I", ten, "--counts"}, "", "I\t4\t4\t10.0.0.1\n", "", 0},
      {{"--sep=, ", "I,I", ten, ten}, "", "10.0.0.1, 10.0.0.1\n", "", 0},
      {{"-j2", "--batch"}, "I " + ten + "\n", "10.0.0.1\n", "", 0},
      {{"--", "I", ten}, "", "10.0.0.1\n", "", 0},
      // After "--" an option is a word of hex.
      {{"I", ten, "--", "-h"}, "", "", "bad hex: 'h' at column 14", 1},
      {{"-V"}, "", "ovfmt " ORVANE_TEST_VERSION "\n", "", 0},
  });
  const auto help = runOvfmt({"I", "-h"});
  EXPECT_EQ(help.status, 0);
  EXPECT_TRUE(help.out.starts_with("Usage: ovfmt [OPTION]... ID[,ID...] HEX...\n")) << help.out;
}

// What help2man turns into the manual page: lines that fit a terminal, and every option
// an entry of its own at the start of a line, its short form a letter.
TEST(OvfmtConventions, HelpLinesFitAndEachOptionStandsApart) {
  const std::string help = runOvfmt({"--help"}).out;
  std::istringstream lines(help);
  std::set<std::string> entries;
  const std::regex entry(R"(^  (?:-[A-Za-z], |    )--([a-z-]+)(?:=\S+)?(?:  |$))");
  for (std::string line; std::getline(lines, line);) {
    EXPECT_LE(line.size(), 79u) << line;
    std::smatch m;
    if (std::regex_search(line, m, entry)) entries.insert(m[1]);
  }
  std::set<std::string> names;
  for (const auto& row : ovfmt::optionTable()) names.emplace(row.name);
  EXPECT_EQ(entries, names);
  EXPECT_TRUE(help.ends_with(" unless --clock-gmt.\n")) << help;
}

TEST(OvfmtConventions, UsageAndInputProblemsInFull) {
  // clang-format off: one case a row, or two where its text is long
  expectRuns({
      {{"--jobs", "1", "--batch"}, "I 01 00 00 0a\n", "10.0.0.1\n", "", 0},
      {{"--jobs", "256", "--batch"}, "I 01 00 00 0a\n", "10.0.0.1\n", "", 0},
      {{"--jobs", "257", "--batch"}, "", "", "--jobs needs a number from 1 to 256\n", 2},
      {{"--batch", "--hexdump", "I"}, "", "",
       "ovfmt: give only one of --batch, --hexdump, --list, --describe and --trace\nTry 'ovfmt --help'.\n", 2},
      // A directory opens, and its read fails.
      {{"--batch", "/"}, "", "", "ovfmt: cannot read /: Is a directory\n", 2},
      {{"--hexdump", "I", "/"}, "", "", "ovfmt: cannot read /: Is a directory\n", 2},
      {{"--batch", "/nonexistent"}, "", "",
       "ovfmt: cannot open /nonexistent: No such file or directory\n", 2},
      {{"--batch"}, "# only a comment\n", "", "ovfmt: <stdin>: no values to format\n", 0},
      // The output is one byte, written in one write of one byte.
      {{"--batch", "--keep-lines"}, "\n", "\n", "ovfmt: <stdin>: no values to format\n", 0},
      {{"--hexdump"}, "", "", "ovfmt: --hexdump needs the ID[,ID...] of the record\nTry", 2},
      {{"--sep=,", "--template={}", "I", "00"}, "", "", "holds the text between arguments\n", 2},
      {{"I", "0\x01"}, "", "", "ovfmt: I: bad hex: byte 0x01 at column 2\n", 1},
      {{"I", "00"},
       "",
       "",
       "ovfmt: cannot load plug-in " ORVANE_SOURCE_DIR
       "/tests/vectors: the directory holds no plug-in (*.so)\n",
       2,
       {"OVFMT_PLUGIN_DIR=" ORVANE_SOURCE_DIR "/tests/vectors"}},
  });
  // clang-format on
}

// --trace's own command line: options in any order, its usage errors, its help.
// --trace is a mode of the option table: its options are refused without it, and its
// problems are usage errors of one line. (Its reading is tested with the reader.)
TEST(OvfmtConventions, TraceCommandLine) {
#ifdef ORVANE_WITH_TRACES
  const std::string noTrace = "ovfmt: no CTF trace (a directory with a metadata file) in /none\n";
#else
  const std::string noTrace = "ovfmt: --trace is not available: ovfmt was built without";
#endif
  const std::string tryHelp = "\nTry 'ovfmt --help'.\n";
  expectRuns({
      {{"--json", "--trace", "/none"}, "", "", noTrace, 2},
      {{"--trace", "/none", "--begin"}, "", "", "option '--begin' needs a value (T)" + tryHelp, 2},
      {{"--trace", "/none", "--x"}, "", "", "ovfmt: unknown option '--x'" + tryHelp, 2},
      {{"--jsn", "--trace", "/none"}, "", "", "unknown option '--jsn' (did you mean --json?)", 2},
      {{"--trace", "/none", "--begin", "99999999999999999999"}, "", "", "is out of range", 2},
      {{"--trace", "/none", "--counts"}, "", "", "--counts does not go with --trace", 2},
      {{"--trace"}, "", "", "ovfmt: --trace needs a trace: give INPUT..." + tryHelp, 2},
      {{"--json", "PGO", "01"}, "", "", "ovfmt: --json goes with --trace" + tryHelp, 2},
      {{"PGO", "--", "--trace"}, "", "", "ovfmt: PGO: bad hex", 1}, // a word after "--"
      {{"-v", "--list"}, "", "", "ovfmt: --verbose goes with --trace", 2},
  });
}

// Every error line of a large batch gets out, in many gathered writes.
TEST(OvfmtConventions, ThousandsOfErrorLinesAllWritten) {
  std::string input, marks;
  for (int i = 0; i < 3000; ++i) {
    input += "I 0g\n";
    marks += "?\n";
  }
  const auto run = runOvfmt({"--batch", "--keep-lines"}, input);
  EXPECT_EQ(run.out, marks);
  EXPECT_EQ(std::count(run.err.begin(), run.err.end(), '\n'), 3000);
  EXPECT_TRUE(run.err.ends_with("<stdin>:3000: bad hex: 'g' at column 4\n"));
}

TEST(OvfmtConventions, HexSeparatorsAndErrorColumns) {
  // clang-format off: one case a row, or two where its text is long
  expectRuns({
      {{"E", "00-1c-73-aa-bb-cc"}, "", "001c.73aa.bbcc\n", "", 0},
      {{"E", "001c.73aa.bbcc"}, "", "001c.73aa.bbcc\n", "", 0},
      {{"I", "AB CD EF 0a"}, "", "10.239.205.171\n", "", 0},
      {{"I", "0x0a", "00"}, "", "",
       "'x' at column 2 (drop the 0x: bytes are pairs of hex digits)\n", 1},
      {{"I", "0a", "0g"}, "", "", "bad hex: 'g' at column 5\n", 1},
      {{"--batch"}, "I 0a 00 00 0\n", "", // the last digit alone, where the line ends
       "<stdin>:1: bad hex: odd number of digits at column 12 (bytes are pairs", 1},
      // In a batch, columns count from the start of the line.
      {{"--batch"}, "  I 0g\n", "", "<stdin>:1: bad hex: 'g' at column 6\n", 1},
      {{"--batch"}, "I\t01 0X\n", "", "bad hex: 'X' at column 7 (drop the 0x", 1},
      // The bytes parsed before bad hex are no part of the next record's zero guard.
      {{"--counts", "--batch"}, "I 01 02 03 0g\nI\n", "I\t4\t4\t0.0.0.0\n", "<stdin>:2:", 1},
  });
  // clang-format on
}

TEST(OvfmtConventions, UnknownIdSuggestsTheNearest) {
  // clang-format off: one case a row, or two where its text is long
  expectRuns({
      {{"pgo", "00"}, "", "", "unknown id \"pgo\"; did you mean PGO?", 1},
      {{"I,BNHH", "00"}, "", "",
       "argument 2 of 2 (BNHH): unknown id \"BNHH\"; did you mean BNH?", 1},
      {{"QQQQQQ", "00"}, "", "", "unknown id \"QQQQQQ\" (ovfmt --list shows the ids)", 1},
  });
  // clang-format on
  const std::vector<std::string> known{"A", "AF", "E", "EC", "I", "IP", "PGO", "PG", "RRRK"};
  EXPECT_EQ(ovfmt::nearestIds("pgo", known), "PGO");
  EXPECT_EQ(ovfmt::nearestIds("PGX", known), "PGO or PG");
  EXPECT_EQ(ovfmt::nearestIds("X", known), "A or E or I");
  EXPECT_EQ(ovfmt::nearestIds("RXK", known), "");       // two edits: too far for three letters
  EXPECT_EQ(ovfmt::nearestIds("RRXXK", known), "RRRK"); // two edits are near from five on
  EXPECT_EQ(ovfmt::nearestIds("RXXXK", known), "");
  EXPECT_EQ(ovfmt::nearestIds(std::string(40, 'A'), known), "");
  // Insertions, deletions and substitutions each count one.
  const std::vector<std::string> longer{"ABCDEFGH"};
  EXPECT_EQ(ovfmt::nearestIds("ABCDE", longer), "");          // three insertions
  EXPECT_EQ(ovfmt::nearestIds("ABCDEF", longer), "ABCDEFGH"); // two
  EXPECT_EQ(ovfmt::nearestIds("ABXDEFGHZ", longer), "ABCDEFGH");
  EXPECT_EQ(ovfmt::nearestIds("BCDEFGH", longer), "ABCDEFGH");
  EXPECT_EQ(ovfmt::nearestIds("E", {"EMK"}), ""); // two insertions
}

// "str" prints its bytes as they are: a tab, an escape, DEL and a C1 control (CSI as
// UTF-8) among them; C2 A0 and a C2 at the end are no control.
TEST(OvfmtConventions, ControlCharactersAreEscapedUnlessRaw) {
  const std::string controls = "05 41 09 1b 7f c3";
  const std::string c1 = "06 c2 9b c2 a0 41 c2";
  expectRuns({
      {{"str", controls}, "", "A\\x09\\x1b\\x7f\xc3\n", "", 0},
      {{"--raw", "str", controls}, "", "A\t\x1b\x7f\xc3\n", "", 0},
      {{"--counts", "str", controls}, "", "str\t6\t6\tA\\x09\\x1b\\x7f\xc3\n", "", 0},
      {{"str", c1}, "", "\\xc2\\x9b\xc2\xa0" "A\xc2\n", "", 0},
      {{"--raw", "str", c1}, "", "\xc2\x9b\xc2\xa0" "A\xc2\n", "", 0},
      {{"--counts", "str", c1}, "", "str\t7\t7\t\\xc2\\x9b\xc2\xa0" "A\xc2\n", "", 0},
      // The separator and the template are the user's own text: they stay as given.
      {{"--sep", "\t", "str,str,I", "01 0a 01 41 01 00 00 0a"}, "", "\\x0a\tA\t10.0.0.1\n", "", 0},
      {{"--template", "<{}>\t<{}>", "I,str", "01 00 00 0a 02 0d 0a"},
       "",
       "<10.0.0.1>\t<\\x0d\\x0a>\n",
       "",
       0},
      {{"--batch"}, "str 01 0a\nstr 01 42\n", "\\x0a\nB\n", "", 0},
  });
}

TEST(OvfmtConventions, BatchLinesSayWhereTheyCameFrom) {
  const std::string input = "I 01 00 00 0a\n\n# comment\nI 0g\nI 02 00 00 0a 00\n";
  const std::string printed = "1:10.0.0.1\n5:10.0.0.2\n";
  expectRuns({
      {{"--batch", "-n"}, input, printed, "<stdin>:4: bad hex", 1},
      {{"--batch", "-n", "--jobs", "2"}, input, printed, "<stdin>:5: 1 byte after", 1},
      {{"--batch", "--keep-lines"}, input, "10.0.0.1\n\n\n?\n10.0.0.2\n", "<stdin>:4:", 1},
      {{"--batch", "-n"},
       "I 01 00 00 0a\nI 02 00 00 0a",
       printed.substr(0, 11) + "2:10.0.0.2\n",
       "",
       0}, // the last line without its newline
      {{"--batch", "-H", "-n", "--keep-lines"},
       input,
       "<stdin>:1:10.0.0.1\n<stdin>:2:\n<stdin>:3:\n<stdin>:4:?\n<stdin>:5:10.0.0.2\n",
       "<stdin>:4:",
       1},
      {{"--batch", "-H", "--counts"},
       "I,I 01 00 00 0a 02 00 00 0a\n",
       "<stdin>:I\t4\t4\t10.0.0.1\n<stdin>:I\t4\t4\t10.0.0.2\n",
       "",
       0},
  });
  const auto files = runOvfmt({"-Hn", "--batch", RECORDS_PATH, "-"}, "I 01 00 00 0a\n");
  EXPECT_EQ(files.status, 2) << "-Hn is no cluster of short options";
  // Files in turn, each line named by its file.
  const auto both = runOvfmt({"-H", "-n", "--batch", RECORDS_PATH, "-"}, "I 01 00 00 0a\n");
  EXPECT_EQ(both.status, 0) << both.err;
  EXPECT_TRUE(both.out.starts_with(RECORDS_PATH ":")) << both.out;
  EXPECT_TRUE(both.out.ends_with("\n<stdin>:1:10.0.0.1\n")) << both.out;
}

// Each dump holds PGO 01 14 0a 01 10 as its tool prints it.
TEST(OvfmtConventions, HexDumpsOfEachTool) {
  const std::string zeros = "00 00 00 00 00 00 00 00  00 00 00 00 00 00 00 00";
  const std::vector<std::string> pgo{"--hexdump", "PGO"};
  expectRuns({
      {pgo, "00000000: 0114 0a01 10                             .....\n", "10.1.16.0/20\n", "", 0},
      {pgo, "00000000  01 14 0a 01 10   |.....|\n00000005\n", "10.1.16.0/20\n", "", 0},
      {pgo, "000000 01 14 0a 01 10\r\n000005\r\n", "10.1.16.0/20\n", "", 0},
      {pgo, "00000000: 0114 0a01 10  3a3b\n", "10.1.16.0/20\n", "", 0}, // text column dropped
      // A whole line of hexdump -C has two blanks amid its bytes.
      {{"--hexdump", "PG"},
       "00000000  02 20 01 0d b8 00 01 00  00 00 00 00 00 00 00 00  |. ..............|\n"
       "00000010  00 30                                             |.0|\n00000012\n",
       "2001:db8:1::/48\n",
       "",
       0},
      // "*" repeats the line before up to the next offset: 48 bytes, IG takes 21.
      {{"--hexdump", "IG"},
       "00000000  " + zeros + "  |................|\n*\n00000030\n",
       "unknown\n",
       "IG: 27 bytes after the value not consumed",
       1},
      {pgo, "hello\n", "", "<stdin>: line 1: not a line of xxd", 1},
      {pgo, "000000 01 14\n000010 0a\n", "",
       "line 2: offset 0x10 where the bytes before end at 0x2", 1},
      {pgo, "100000 01\n", "", "line 1: offset 0x100000 where the bytes before end at 0x0\n", 1},
      {pgo, "000000 01 1g\n", "", "line 1: bad hex: 'g' at column 12", 1},
      {pgo, "000000 01 14\n*\n", "", "line 2: '*' with no offset after it", 1},
      {pgo, "000000 01 14\n*\n000003\n", "",
       "line 3: the copies '*' stands for do not end at this line's offset\n", 1},
      {pgo, "000000 01 14\n*\n000002 0a 01 10\n", "10.1.16.0/20\n", "", 0}, // no copy
      {{"--hexdump", "PGO", "/nonexistent"}, "", "", "cannot open /nonexistent: No such", 2},
  });
}

TEST(OvfmtConventions, PluginsAddToTheBuiltInOne) {
  const std::string plugin = PLUGIN_PATH, dir = plugin.substr(0, plugin.rfind('/'));
  const std::string baseIds = "\nu8\nu16\nu32\nu64\nx16\nx32\nbool\nstr\n";
  expectRuns({
      {{"--no-default-plugin", "--list"}, "", baseIds, "", 0},
      {{"--no-default-plugin", "--plugin", dir, "I", "01 00 00 0a"}, "", "10.0.0.1\n", "", 0},
      {{"I", "01 00 00 0a"}, "", "10.0.0.1\n", "", 0, {"OVFMT_PLUGIN_DIR="}},
      {{"--no-default-plugin", "I", "00"}, "", "", "unknown id \"I\"", 1, {"OVFMT_PLUGIN_DIR="}},
  });
  // A bare file name is the file in the current directory, not one on the loader's path.
  const std::string name = plugin.substr(dir.size() + 1);
  char previous[4096];
  ASSERT_TRUE(getcwd(previous, sizeof previous));
  ASSERT_EQ(chdir(dir.c_str()), 0);
  EXPECT_EQ(ovfmt::pluginLocation(name), "./" + name);
  EXPECT_EQ(ovfmt::pluginLocation("libNoSuchPlugin.so"), "libNoSuchPlugin.so");
  EXPECT_EQ(ovfmt::pluginLocation(plugin), plugin);
  ASSERT_EQ(chdir(previous), 0);
}

TEST(OvfmtConventions, OutputThatCannotBeWrittenFails) {
  for (const char* args : {"--list", "I 01 00 00 0a", "--help", "--batch " DEMO_PATH}) {
    const std::string command = std::string(OVFMT_PATH) + " " + args + " >/dev/full 2>/dev/null";
    const int status = std::system(command.c_str());
    EXPECT_EQ(WEXITSTATUS(status), 1) << args;
  }
  // Text, then an error line: the text's failed write is reported although stderr works.
  const std::string err = std::string(std::getenv("TMPDIR") ? std::getenv("TMPDIR") : "/tmp") +
                          "/ovfmt-full-" + std::to_string(getpid());
  const std::string command = "printf 'I 01 00 00 0a\\nI 0g\\n' | " + std::string(OVFMT_PATH) +
                              " --batch >/dev/full 2>" + err;
  EXPECT_EQ(WEXITSTATUS(std::system(command.c_str())), 1);
  std::ifstream written(err);
  const std::string reported((std::istreambuf_iterator<char>(written)), {});
  std::remove(err.c_str());
  EXPECT_NE(reported.find("ovfmt: cannot write the output: No space left on device\n"),
            std::string::npos)
      << reported;
}

} // namespace
} // namespace Orvane::test
