// The ovfmt commands the README and the manual page show, run as shown: each prints
// the text its comment gives, or, for a comment in parentheses, which describes the
// output rather than giving it, at least runs with status 0.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <regex>
#include <sys/wait.h>

namespace Orvane::test {
namespace {

struct Example {
  std::string command;
  std::vector<std::string> comments; ///< the comment after it, then "# " lines below it
};

// Examples in `path`: lines that `command` matches (group 1: the command, group 2: the
// comment), each with the "# " (or "#") lines that follow. `unescape` turns a line into text.
std::vector<Example> examplesIn(const std::string& path, const std::regex& command,
                                std::string (*unescape)(const std::string&)) {
  std::ifstream in(path);
  std::vector<Example> examples;
  bool open = false; // "# " lines still belong to the last example
  for (std::string raw; std::getline(in, raw);) {
    const std::string line = unescape(raw);
    std::smatch m;
    if (open && (line.starts_with("# ") || line == "#")) { // "#" alone: a blank line
      examples.back().comments.push_back(line.substr(line.size() > 1 ? 2 : 1));
    } else if (std::regex_match(line, m, command)) {
      examples.push_back({m[1], {}});
      if (m[2].matched) examples.back().comments.push_back(m[2]);
      open = true;
    } else {
      open = false;
    }
  }
  std::erase_if(examples, [](const Example& e) { return e.comments.empty(); });
  return examples;
}

std::string asIs(const std::string& line) { return line; }

// The roff of the manual's examples: "\-" is '-', "\e" a backslash.
std::string fromRoff(const std::string& line) {
  return std::regex_replace(std::regex_replace(line, std::regex(R"(\\-)"), "-"),
                            std::regex(R"(\\e)"), R"(\)");
}

void expectRunsAsShown(const Example& example, const std::string& shell) {
  SCOPED_TRACE(example.command);
  FILE* pipe = popen(shell.c_str(), "r");
  ASSERT_TRUE(pipe);
  std::string out;
  char block[4096];
  for (std::size_t n; (n = fread(block, 1, sizeof block, pipe)) > 0;) out.append(block, n);
  const int status = pclose(pipe);
  EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
  const std::string& first = example.comments.front();
  if (first.starts_with("(") && first.ends_with(")")) return; // a description
  std::string shown;
  for (const auto& comment : example.comments) shown += comment + "\n";
  EXPECT_EQ(out, shown);
}

TEST(DocCommands, ReadmeOvfmtExamples) {
  const auto examples =
      examplesIn(ORVANE_SOURCE_DIR "/README.md",
                 std::regex(R"((.*build/release/bin/ovfmt .*?)(?: +# (.*))?)"), asIs);
  EXPECT_GE(examples.size(), 9u);
  for (const auto& example : examples) {
    const std::string command =
        std::regex_replace(example.command, std::regex("build/release/bin/ovfmt"), OVFMT_PATH);
    expectRunsAsShown(example, "cd " ORVANE_SOURCE_DIR " && " + command);
  }
}

TEST(DocCommands, ManualPageExamples) {
  const auto examples = examplesIn(ORVANE_SOURCE_DIR "/tools/ovfmt/ovfmt.h2m",
                                   std::regex(R"((.*\bovfmt .*?)(?: +# (.*))?)"), fromRoff);
  EXPECT_GE(examples.size(), 7u);
  const std::string bin = OVFMT_PATH;
  for (const auto& example : examples)
    expectRunsAsShown(example,
                      "PATH=" + bin.substr(0, bin.rfind('/')) + ":$PATH; " + example.command);
}

} // namespace
} // namespace Orvane::test
