// What ovfmt's command line asks for, its table of options and its --help text.
#pragma once

#include "tools/ovfmt/CommandLine.h"
#include "tools/ovfmt/RecordPrinter.h"
#include "tracing/TraceRequest.h"

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace Orvane::ovfmt {

/// What ovfmt does: one record from the command line, a batch, a hex dump, the list, the
/// reference of one id, or the events of traces.
enum class Mode { Record, Batch, HexDump, List, Describe, Trace };

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
  tracing::TraceRequest trace;         ///< what --trace reads (its inputs are `positional`)
  std::vector<std::string> traceOnly;  ///< the options given that apply to --trace only
  bool failOnLoss = false;             ///< --trace exits 1 when events were lost
  bool verbose = false;                ///< --trace prints libbabeltrace2's causes too
};

/// Every option ovfmt takes, one row each, in --help order.
std::span<const OptionRow> optionTable();

/// The rows of optionTable() that apply to --trace only, last in the table.
std::span<const OptionRow> traceOptionTable();

/// What `ovfmt --help` prints.
std::string helpText();

/// Reads the command line into `options` and checks that its parts fit together (one
/// mode, its words, options that apply to it). Returns a usage problem, or "".
std::string readOptions(int argc, const char* const* argv, Options& options);

} // namespace Orvane::ovfmt
