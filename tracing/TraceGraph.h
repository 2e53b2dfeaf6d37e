// Reading CTF traces from a directory the way `babeltrace2 DIR -c sink.orvane.text`
// does, for a program that links the reader in rather than loading it as a plug-in.
#pragma once

#include "tracing/MessageConsumer.h"

#include <babeltrace2/babeltrace.h>

#include <memory>
#include <string>
#include <vector>

namespace Orvane::tracing {

/// What to read.
struct TraceRequest {
  std::string path;       ///< a trace directory, or a directory holding traces
  bool json = false;      ///< for readTraces(): JSON Lines instead of text lines
  std::string begin, end; ///< the time range, as babeltrace2's --begin and --end take it
};

/// The trace directories under `path`: `path` itself when it holds a "metadata" file,
/// else every directory below it that does, sorted.
std::vector<std::string> findTraces(const std::string& path);

/// The graph babeltrace2's convert command builds for a directory: a CTF source per
/// trace, the muxer, the trimmer when a range is given, then the sink of tracing/Sink.h
/// handing every message to a consumer. The host registry must hold the formatters.
class TraceGraph {
public:
  /// Builds the graph for `request`; `consumer` must outlive it. On failure built() is
  /// false and problems() says why.
  TraceGraph(const TraceRequest& request, MessageConsumer& consumer);
  ~TraceGraph();
  TraceGraph(const TraceGraph&) = delete;
  TraceGraph& operator=(const TraceGraph&) = delete;

  /// Whether the graph was built: request.path holds a trace and every component loaded.
  bool built() const { return graph_ != nullptr; }
  /// Why building or running failed, most specific first.
  const std::vector<std::string>& problems() const { return problems_; }

  enum class Step { More, End, Failed };
  /// Lets the sink consume once (bt_graph_run_once): the consumer gets the next batch of
  /// messages. More until the traces end; Failed (see problems()) when they cannot be
  /// read on, or the graph was not built.
  Step step();
  /// step() until the end or a failure.
  Step run();

private:
  bool build(const TraceRequest& request, MessageConsumer& consumer);
  const bt_plugin* plugin(const char* name);
  bool addSources(const std::vector<std::string>& traces);
  bool addFilter(const char* plugin, const char* name, const bt_value* params);
  bool addSink(MessageConsumer& consumer);
  bool connect(const bt_port_output* from, const bt_port_input* to);
  bool failed(const std::string& problem);

  std::vector<std::string> problems_;
  std::vector<const bt_plugin*> plugins_; // outlive the graph, whose components use them
  bt_graph* graph_ = nullptr;
  const bt_port_output* last_ = nullptr; ///< where the next component's input connects
};

/// What readTraces() did.
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

/// Prints the events of the traces under request.path, as text lines or JSON Lines, to
/// standard output (warnings to standard error), exactly as sink.orvane.text does.
TraceOutcome readTraces(const TraceRequest& request);

} // namespace Orvane::tracing
