// What a run prints, gathered in memory and written in order to two file descriptors.
#pragma once

#include "decoding/TextStream.h"
#include "tools/ovfmt/GatheringWriter.h"

#include <string>
#include <string_view>
#include <vector>

namespace Orvane::ovfmt {

/// Standard output text with error lines between, kept in the order they were made.
/// Records are formatted straight into the text, without a write per insertion;
/// writeTo() then puts it out in a few large writes, each error line after the output
/// that came before it, so a terminal or a file that takes both streams shows them in
/// order.
class Output {
public:
  /// The standard output text so far; print or append to it.
  decoding::TextStream& text() { return text_; }
  /// Adds `line` (with its newline) for standard error, after the text so far.
  void error(std::string line) { errors_.push_back({text_.size(), std::move(line)}); }

  /// Writes everything in order to `out` and `err` and empties the buffers (keeping
  /// their capacity). Returns false when a write failed; what is left is dropped.
  bool writeTo(int out, int err);
  /// Queues everything in order for `out` and `err` on `writer`, to be written with
  /// what is queued after it; clear() only once the writer has flushed. Returns false
  /// when a write failed.
  bool queue(GatheringWriter& writer, int out, int err) const;
  /// Empties the buffers, keeping their capacity.
  void clear();

private:
  struct ErrorLine {
    std::size_t at; ///< the size of text_ when the line was added
    std::string line;
  };
  decoding::TextStream text_;
  std::vector<ErrorLine> errors_;
};

} // namespace Orvane::ovfmt
