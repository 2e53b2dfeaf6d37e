// Formatting a batch: one record per input line, on one thread or several.
#pragma once

#include "tools/ovfmt/RecordPrinter.h"

#include <string>
#include <string_view>

namespace Orvane::ovfmt {

/// How a batch went.
struct BatchSummary {
  std::size_t records = 0;  ///< lines that held a record (not blank, not a comment)
  bool allPrinted = true;   ///< no record failed
  std::string readError;    ///< why reading the input stopped early, or empty
  bool writeFailed = false; ///< standard output or error could not be written
};

/// Reads "ID[,ID...] HEX..." lines from `in` (named `name` in messages; blank lines and
/// lines starting with '#' after blanks are skipped) and prints each record as
/// RecordPrinter does to the descriptors `out` and `err`.
///
/// With `jobs` above 1, the lines of each block read are split into that many runs of
/// consecutive lines, formatted on as many threads, each with its own printer, buffer
/// and stream, and written in input order once all are done: stdout, stderr and the
/// summary are byte for byte those of one job. Only a block's worth of lines and their
/// output is held at a time, so an endless pipe runs in bounded memory, and every
/// block's output is written before the next read waits for input.
BatchSummary formatBatch(int in, std::string_view name, const PrintOptions& options, unsigned jobs,
                         int out, int err);

} // namespace Orvane::ovfmt
