// What ovfmt's command line asks for, its table of options and its --help text.
#pragma once

#include "tools/ovfmt/CommandLine.h"
#include "tools/ovfmt/RecordPrinter.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Orvane::ovfmt {

/// What ovfmt does: one record from the command line, a batch, a hex dump, the list, or
/// the reference of one id.
enum class Mode { Record, Batch, HexDump, List, Describe };

/// Everything the command line sets.
struct Options {
  Mode mode = Mode::Record;
  bool modeGiven = false;
  bool help = false;
  bool version = false;
  std::vector<std::string> plugins; ///< --plugin paths, in order
  bool defaultPlugin = true;        ///< load the plug-in installed beside ovfmt too
  unsigned jobs = 1;
  bool separatorGiven = false;
  std::optional<std::string> layout; ///< the --template text
  PrintOptions print;
  std::vector<std::string> positional; ///< the words that are no option, in order
};

/// Every option ovfmt takes, one row each, in --help order.
std::span<const OptionRow> optionTable();

/// What `ovfmt --help` prints.
std::string helpText();

/// Reads the command line into `options` and checks that its parts fit together (one
/// mode, its words, options that apply to it). Returns a usage problem, or "".
std::string readOptions(int argc, const char* const* argv, Options& options);

} // namespace Orvane::ovfmt
