#include "tests/support/RunOvfmt.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <sstream>
#include <sys/wait.h>
#include <unistd.h>

namespace Orvane::test {
namespace {

// A temporary file, removed when it goes out of scope. Files, not pipes, so a large
// output can never block the child while the parent waits.
struct TempFile {
  std::string path;
  int fd;
  explicit TempFile(const std::string& contents = "") {
    const char* dir = std::getenv("TMPDIR");
    path = std::string(dir ? dir : "/tmp") + "/ovfmt-test-XXXXXX";
    fd = mkstemp(path.data());
    if (!contents.empty()) std::ofstream(path, std::ios::binary) << contents;
  }
  ~TempFile() {
    close(fd);
    unlink(path.c_str());
  }
  std::string read() const {
    std::ifstream in(path, std::ios::binary);
    std::ostringstream text;
    text << in.rdbuf();
    return text.str();
  }
};

} // namespace

RunResult runOvfmt(const std::vector<std::string>& args, const std::string& input,
                   const std::vector<std::string>& environment) {
  TempFile in(input), out, err;
  std::vector<std::string> argvStrings{OVFMT_PATH};
  argvStrings.insert(argvStrings.end(), args.begin(), args.end());

  const pid_t pid = fork();
  if (pid == 0) {
    dup2(open(in.path.c_str(), O_RDONLY), 0);
    dup2(out.fd, 1);
    dup2(err.fd, 2);
    for (const auto& entry : environment) putenv(const_cast<char*>(entry.c_str()));
    std::vector<char*> argv;
    for (auto& arg : argvStrings) argv.push_back(arg.data());
    argv.push_back(nullptr);
    execv(argv[0], argv.data());
    _exit(127);
  }
  int wstatus = 0;
  waitpid(pid, &wstatus, 0);
  return {WIFEXITED(wstatus) ? WEXITSTATUS(wstatus) : -1, out.read(), err.read()};
}

void expectRuns(const std::vector<CliCase>& cases) {
  for (const auto& c : cases) {
    std::string command;
    for (const auto& arg : c.args) command += arg + " ";
    SCOPED_TRACE("ovfmt " + command);
    const auto result = runOvfmt(c.args, c.input, c.env);
    EXPECT_EQ(result.out, c.out);
    if (c.errContains.empty())
      EXPECT_EQ(result.err, "");
    else
      EXPECT_NE(result.err.find(c.errContains), std::string::npos) << result.err;
    EXPECT_EQ(result.status, c.status);
    std::istringstream err(result.err);
    for (std::string line; std::getline(err, line);) {
      EXPECT_LT(line.size(), 200u) << line.substr(0, 200);
      for (char ch : line) EXPECT_TRUE(ch >= 0x20 && ch < 0x7f) << int(ch);
    }
  }
}

} // namespace Orvane::test
