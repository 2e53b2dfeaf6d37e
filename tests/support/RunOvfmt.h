// Running the ovfmt binary as a user would, capturing what it prints.
#pragma once

#include <string>
#include <vector>

namespace Orvane::test {

struct RunResult {
  int status = -1; ///< exit status, or -1 when it did not exit normally
  std::string out;
  std::string err;
};

/// Runs ovfmt with `args`, feeding `input` on standard input. `environment` entries
/// ("NAME=value") are added to the inherited environment.
RunResult runOvfmt(const std::vector<std::string>& args, const std::string& input = "",
                   const std::vector<std::string>& environment = {});

/// One run of ovfmt and what it must give.
struct CliCase {
  std::vector<std::string> args;
  std::string input;
  std::string out;
  std::string errContains; ///< empty: stderr must be empty
  int status;
  std::vector<std::string> env = {}; ///< added to the environment
};

/// Runs every case, expecting its output, error text and status. Whatever the case,
/// stderr must be printable lines of less than 200 characters (a quoted id or value is
/// cut short).
void expectRuns(const std::vector<CliCase>& cases);

} // namespace Orvane::test
