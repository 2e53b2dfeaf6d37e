// Streams in the states a caller may hand a formatter, and what formatting leaves behind:
// shared by the stream-state vectors test and bench/compare_stream_states, which froze
// them.
#pragma once

#include "registry/Formatter.h"

#include <cstddef>
#include <functional>
#include <ios>
#include <string>
#include <vector>

namespace Orvane::test {

/// A stream set up before formatting: widths, fills, bases, flags, a grouping locale,
/// error states, and stream buffers that refuse text after `room` characters.
struct StreamState {
  const char* name;
  std::function<void(std::ostream&)> setUp;
  std::size_t room = std::string::npos; ///< what the stream buffer takes (npos: all)
};

/// Every state, the new stream's first.
std::vector<StreamState> streamStates();

/// What formatting one value left behind: the text, the count returned and the stream.
struct Outcome {
  std::string text;
  unsigned count;
  std::ios::fmtflags flags;
  std::streamsize width;
  char fill;
  std::ios::iostate state;

  bool operator==(const Outcome&) const = default;
};

/// Formats the value at `value` with `format` on a new stream set up as `state` says.
Outcome formatOn(const StreamState& state, const FormatFn& format, const unsigned char* value);

/// "COUNT FLAGS WIDTH FILL STATE `TEXT`", the numbers in decimal: a vector line's result.
std::string outcomeLine(const Outcome& outcome);

} // namespace Orvane::test
