// Formatting a batch: one record per input line, on one thread or several.
#pragma once

#include "tools/ovfmt/RecordPrinter.h"

#include <span>
#include <string>
#include <string_view>

namespace Orvane::ovfmt {

/// How a batch went.
struct BatchSummary {
  std::size_t records = 0; ///< lines that held a record (not blank, not a comment)
  bool allPrinted = true;  ///< no record failed
  std::string readError;   ///< why reading the input stopped early, or empty
  std::string writeError;  ///< why standard output or error could not be written, or empty
};

/// Formats the records among `lines`, the first of them numbered `firstLine`, with
/// `printer` into `output`, counting them and their failures in `summary`.
void formatLines(RecordPrinter& printer, std::span<const std::string_view> lines,
                 std::size_t firstLine, std::string_view name, Output& output,
                 BatchSummary& summary);

/// Reads "ID[,ID...] HEX..." lines from `in` (named `name` in messages; blank lines and
/// lines starting with '#' after blanks are skipped) and prints each record as
/// RecordPrinter does to the descriptors `out` and `err`.
///
/// With `jobs` above 1, `jobs` threads of their own format each block read, taking runs
/// of consecutive lines in turn, each thread with its own printer, while the calling
/// thread reads the next block and the last thread done with the block before writes
/// it (see WorkerPool). Blocks are written whole and in input order: stdout, stderr and
/// the summary are byte for byte those of one job. Only two blocks of lines and two of
/// output are held at a time, so an endless pipe runs in bounded memory, and every
/// block's output is written as soon as it is formatted, before more input arrives.
BatchSummary formatBatch(int in, std::string_view name, const PrintOptions& options, unsigned jobs,
                         int out, int err);

} // namespace Orvane::ovfmt
