// Reading ovfmt's command line against a table of options: each option is one row, so
// the parser and the --help text cannot disagree, and a new option is one more row.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::ovfmt {

struct Options;

/// One option: its names, whether it takes a value, its help, and what it does.
struct OptionRow {
  std::string_view name;      ///< the long form, without "--"
  char shortName;             ///< the one-letter form after '-', or 0 for none
  std::string_view valueName; ///< what its value is ("PATH"), empty for a flag
  std::string_view help;      ///< the --help text; '\n' starts another line of it
  /// Applies the option (with its value, empty for a flag) to `options`; returns a
  /// usage problem or "".
  std::string (*apply)(Options& options, std::string_view value);
};

/// Reads `args` (the words after the program's name). Options may come anywhere before
/// a "--", which ends them; "--name=value", "--name value", "-X value" and "-Xvalue"
/// give a value. Every other word, "-" included, goes to `positional` in order. Returns
/// a usage problem, or "" when every option applied.
std::string parseCommandLine(std::span<const char* const> args, std::span<const OptionRow> rows,
                             Options& options, std::vector<std::string>& positional);

/// The options' part of --help: one entry per row, "  -X, --name=VALUE" and its help
/// in a column beside it.
std::string optionsHelp(std::span<const OptionRow> rows);

} // namespace Orvane::ovfmt
