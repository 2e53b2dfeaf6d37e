#include "tools/ovfmt/Batch.h"

#include "tools/ovfmt/BatchLine.h"
#include "tools/ovfmt/LineReader.h"
#include "tools/ovfmt/WorkerPool.h"

#include <cerrno>
#include <cstring>
#include <vector>

namespace Orvane::ovfmt {
namespace {

BatchSummary formatOnOneThread(LineReader& reader, std::string_view name,
                               const PrintOptions& options, int out, int err) {
  RecordPrinter printer(options);
  Output output;
  BatchSummary summary;
  std::vector<std::string_view> lines;
  for (std::size_t firstLine = 1; reader.next(lines); firstLine += lines.size()) {
    formatLines(printer, lines, firstLine, name, output, summary);
    if (!output.writeTo(out, err)) {
      summary.writeError = std::strerror(errno);
      break;
    }
  }
  return summary;
}

BatchSummary formatOnThreads(LineReader& reader, std::string_view name, const PrintOptions& options,
                             unsigned jobs, int out, int err) {
  WorkerPool pool(jobs, options, name, out, err);
  // Two blocks of lines in turn: the threads format one while the next is read.
  std::vector<std::string_view> blocks[2];
  for (std::size_t firstLine = 1, current = 0; reader.next(blocks[current]); current ^= 1) {
    if (!pool.start(blocks[current], firstLine)) break;
    firstLine += blocks[current].size();
  }
  BatchSummary summary;
  summary.writeError = pool.finish();
  pool.addTo(summary);
  return summary;
}

} // namespace

void formatLines(RecordPrinter& printer, std::span<const std::string_view> lines,
                 std::size_t firstLine, std::string_view name, Output& output,
                 BatchSummary& summary) {
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const auto parts = splitBatchLine(lines[i]);
    // Columns count from the start of the line, as an editor counts them.
    const Where where{name, firstLine + i,
                      parts ? static_cast<std::size_t>(parts->hex.data() - lines[i].data()) + 1
                            : 0};
    if (!parts) {
      printer.printSkipped(where, output);
      continue;
    }
    ++summary.records;
    summary.allPrinted &= printer.print(where, parts->id, parts->hex, output);
  }
}

BatchSummary formatBatch(int in, std::string_view name, const PrintOptions& options, unsigned jobs,
                         int out, int err) {
  LineReader reader(in);
  BatchSummary summary = jobs > 1 ? formatOnThreads(reader, name, options, jobs, out, err)
                                  : formatOnOneThread(reader, name, options, out, err);
  summary.readError = reader.error();
  return summary;
}

} // namespace Orvane::ovfmt
