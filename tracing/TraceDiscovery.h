// Finding the traces a request names, the way babeltrace2's command line finds them, so
// that every reader merges and names traces as `babeltrace2 INPUT...` does.
#pragma once

#include <string>
#include <vector>

namespace Orvane::tracing {

/// One source component to create: a trace read from one or more directories (copies
/// with the same UUID are one trace), or one LTTng live session.
struct TraceSource {
  bool live = false;
  std::vector<std::string> inputs; ///< the directories, or the URL
  /// The trace's name after its hostname: the path of its directory below the input
  /// that named it, when that is not the directory itself and the trace has one
  /// directory. Empty otherwise.
  std::string name;
};

/// What discoverTraces() found.
struct Discovery {
  std::vector<TraceSource> sources;
  std::vector<std::string> problems; ///< inputs and directories that could not be read
};

/// Finds the traces under each input, as babeltrace2's command line does: an LTTng live
/// URL is a source of its own; a directory with a "metadata" file is a trace; any other
/// directory is searched below, in name order (a link to a directory is not followed).
/// Directories of one UUID become one source. An input or a directory that cannot be
/// read is a problem, and the search goes on.
Discovery discoverTraces(const std::vector<std::string>& inputs);

} // namespace Orvane::tracing
