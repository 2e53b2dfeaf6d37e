// Values read from a batch file ("ID HEX..." lines), laid out in memory the way a trace
// buffer holds them, ready for the registered formatters.
#pragma once

#include "host/Registry.h"

#include <cstddef>
#include <limits>
#include <string>
#include <vector>

namespace Orvane::bench {

/// One value of a batch file.
struct TraceValue {
  std::string id;
  std::vector<unsigned char> bytes;
};

/// No limit on the number of values read.
inline constexpr std::size_t kAllValues = std::numeric_limits<std::size_t>::max();

/// Reads up to `limit` values from the batch file at `path`. Throws std::runtime_error
/// naming the file and line for an unreadable file or a line with bad hex.
std::vector<TraceValue> readTraceValues(const std::string& path, std::size_t limit = kAllValues);

/// A value in a ValueArena with its registered pair and the text it formats to.
struct PlacedValue {
  std::string id;
  const host::FormatterPair* pair;
  const unsigned char* bytes; ///< into the arena's buffer
  std::string text;           ///< what formatting it prints, written by the floors
};

/// Values packed back to back in one zero-filled buffer, as in a trace buffer, with the
/// ovfmt guards before the first and after the last.
class ValueArena {
public:
  /// Places every value. Throws std::runtime_error when an id is not registered or a
  /// value does not format cleanly (its length, the bytes consumed and its size differ).
  explicit ValueArena(const std::vector<TraceValue>& values);
  ValueArena(const ValueArena&) = delete;
  ValueArena& operator=(const ValueArena&) = delete;

  /// The values in the order given.
  const std::vector<PlacedValue>& values() const { return placed_; }

private:
  std::vector<unsigned char> buffer_;
  std::vector<PlacedValue> placed_;
};

} // namespace Orvane::bench
