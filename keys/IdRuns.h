// Printing a set of small integer ids as runs: "(0,2-4,127)".
#pragma once

#include "registry/TextRun.h"

#include <algorithm>
#include <bit>
#include <cstdint>

namespace Orvane {

/// Prints ids visited in ascending order as a comma-separated list in which a single
/// id prints alone and a run of two or more consecutive ids prints as first-last.
///
/// The printer writes the first id of a run as soon as it is visited and the "-last"
/// part only when the run is closed, either by a clear id or by the caller (closeRun),
/// which names the last id itself. The surrounding brackets are the caller's. Ids and
/// separators join the caller's run (TextRun::join and number), which prints them as
/// insertions of their own would.
class IdRunPrinter {
public:
  explicit IdRunPrinter(TextRun& text) : text(text) {}

  /// Visits `id`: a set id starts or lengthens a run, a clear id closes the run with
  /// `id - 1` as its last id.
  void visit(unsigned id, bool set) {
    if (!set) {
      closeRun(id - 1);
    } else if (runLength++ == 0) {
      if (runsPrinted++ > 0) text.join(",");
      text.number(id);
    }
  }

  /// Visits the 64 ids of `word`, bit i (least significant first) standing for
  /// `base + i`.
  ///
  /// Only the first id of each stretch of equal bits can print or close anything:
  /// the rest of a stretch of set bits only lengthens the run, and the rest of a
  /// stretch of clear bits closes a run that is already closed. So the word is walked
  /// a stretch at a time rather than a bit at a time.
  void visitWord(unsigned base, uint64_t word) {
    for (unsigned bit = 0; bit < 64;) {
      const uint64_t rest = word >> bit;
      const bool set = rest & 1;
      const unsigned stretch =
          set ? std::countr_one(rest) : std::min(std::countr_zero(rest), 64 - int(bit));
      visit(base + bit, set);
      if (set)
        runLength += stretch - 1;
      bit += stretch;
    }
  }

  /// Ends the current run: a run of two or more prints "-" and `lastId`, a run of one
  /// prints nothing more. The next set id starts a new run.
  void closeRun(unsigned lastId) {
    if (runLength >= 2) text.join("-").number(lastId);
    runLength = 0;
  }

private:
  TextRun& text;
  unsigned runLength = 0;
  unsigned runsPrinted = 0;
};

} // namespace Orvane
