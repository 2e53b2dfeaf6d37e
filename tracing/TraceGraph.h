// Reading CTF traces from a directory the way `babeltrace2 DIR -c sink.orvane.text`
// does, for a program that links the reader in rather than loading it as a plug-in.
#pragma once

#include <string>
#include <vector>

namespace Orvane::tracing {

/// What to read and how to print it.
struct TraceRequest {
  std::string path;       ///< a trace directory, or a directory holding traces
  bool json = false;      ///< JSON Lines instead of text lines
  std::string begin, end; ///< the time range, as babeltrace2's --begin and --end take it
};

/// How reading went.
struct TraceOutcome {
  enum class Status {
    Ok,         ///< every event printed
    NoTrace,    ///< `path` holds no CTF trace, or the graph could not be built
    ReadFailed, ///< the trace could not be read to its end (events before were printed)
  } status = Status::Ok;
  std::vector<std::string> problems; ///< why, most specific first
  std::size_t invalidFields = 0;     ///< typed fields that printed as invalid
  bool writeFailed = false;          ///< standard output could not be written
};

/// The trace directories under `path`: `path` itself when it holds a "metadata" file,
/// else every directory below it that does, sorted.
std::vector<std::string> findTraces(const std::string& path);

/// Builds the graph babeltrace2's convert command builds for `path` (a CTF source per
/// trace, the muxer, the trimmer when a range is given, then the sink of tracing/Sink.h)
/// and runs it. The host
/// registry must hold the formatters already.
TraceOutcome readTraces(const TraceRequest& request);

} // namespace Orvane::tracing
