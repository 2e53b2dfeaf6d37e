// Streams in the states a caller may hand a formatter, what formatting leaves behind, and
// the digest of it that the stream-state vectors freeze: shared by the vectors test and
// bench/compare_stream_states, which freezes them and shows what changed.
#pragma once

#include "registry/Formatter.h"

#include <cstddef>
#include <functional>
#include <ios>
#include <optional>
#include <string>
#include <string_view>
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

/// The 64-bit FNV-1a digest, as 16 hex digits, of "STATE: OUTCOME_LINE\n" for every state
/// of streamStates() in turn, `value` formatted with `format` between zero guards as ovfmt
/// places values: one line of the vector file covers everything the value does.
std::string stateDigest(const FormatFn& format, const std::vector<unsigned char>& value);

/// A value line of the vector file ("ID HEX... => DIGEST") or of a batch file ("ID HEX...",
/// the digest left empty).
struct VectorLine {
  std::string id;
  std::vector<unsigned char> bytes;
  std::string digest;
};

/// Parses `line`. Returns nullopt for a blank line or a '#' comment; throws
/// std::runtime_error for bad hex.
std::optional<VectorLine> parseVectorLine(std::string_view line);

} // namespace Orvane::test
