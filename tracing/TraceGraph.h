// Reading CTF traces the way `babeltrace2 INPUT... -c sink.orvane.text` does, for a
// program that links the reader in rather than loading it as a plug-in.
#pragma once

#include "tracing/ErrorGuard.h"
#include "tracing/MessageConsumer.h"
#include "tracing/TraceDiscovery.h"
#include "tracing/TraceRequest.h"

#include <babeltrace2/babeltrace.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace Orvane::tracing {

/// The graph babeltrace2's convert command builds for the request's inputs: a source per
/// trace found (discoverTraces()), the muxer, then the sink of tracing/Sink.h keeping
/// what the request asks for and handing it to a consumer. The host registry must hold
/// the formatters.
///
/// A damaged trace does not stop the others: a trace whose source cannot be created is
/// left out, and a stream that fails part-way is reported when the source says so; each
/// is one line in problems(), and damaged() turns true.
class TraceGraph {
public:
  /// Finds the traces and builds the graph; `consumer` must outlive it.
  TraceGraph(const TraceRequest& request, MessageConsumer& consumer);
  ~TraceGraph();
  TraceGraph(const TraceGraph&) = delete;
  TraceGraph& operator=(const TraceGraph&) = delete;

  /// Whether the inputs hold any trace (damaged or not).
  bool foundTraces() const { return foundTraces_; }
  /// Whether the graph was built: at least one trace's source was created.
  bool built() const { return graph_ != nullptr; }
  /// Whether some input, directory, trace or stream could not be read to its end.
  bool damaged() const { return damaged_; }
  /// What could not be read, one line each ("cannot read FILE to its end: WHY"), in the
  /// order met.
  const std::vector<std::string>& problems() const { return problems_; }
  /// Every cause libbabeltrace2 gave for those problems, the first to fail first: what -v
  /// shows.
  const std::vector<std::string>& details() const { return details_; }

  enum class Step { More, End, Failed };
  /// Lets the sink consume once: the consumer gets the next batch of messages. More until
  /// the traces end (a live source with nothing new waits a moment first); Failed when
  /// they cannot be read on, or the graph was not built.
  Step step();
  /// step() until the end or a failure.
  Step run();

private:
  bool build(const std::vector<TraceSource>& sources, const TraceRequest& request,
             MessageConsumer& consumer, std::size_t& failedSource);
  const bt_plugin* plugin(const char* name);
  const bt_component_source* addSource(const TraceSource& source, std::size_t index);
  /// Connects `port` to the muxer through an error guard (tracing/ErrorGuard.h).
  bool addGuarded(const bt_port_output* port);
  bool addSink(const TraceRequest& request, MessageConsumer& consumer);
  bool connect(const bt_port_output* from, const bt_port_input* to);
  /// Records what the current thread's error says went wrong: `what` and its reason.
  void report(const std::string& what);
  /// Records what `error` says went wrong; `what` names the subject when it names none.
  void report(const std::string& what, const bt_error* error);
  void destroy();

  std::vector<std::string> problems_, details_;
  std::vector<TraceSource> sources_;      ///< those of the graph, by the index in their names
  std::vector<const bt_plugin*> plugins_; // outlive the graph, whose components use them
  struct PutFilterClass {
    void operator()(bt_component_class_filter* filterClass) const {
      bt_component_class_filter_put_ref(filterClass);
    }
  };
  std::unique_ptr<bt_component_class_filter, PutFilterClass> guardClass_;
  ErrorListener listener_; ///< reports what the guards take
  std::size_t guards_ = 0;
  const bt_plugin* ctf_ = nullptr;
  bt_graph* graph_ = nullptr;
  const bt_component_filter* muxer_ = nullptr;
  bt_logging_level logLevel_ = BT_LOGGING_LEVEL_NONE; ///< of the components
  bool foundTraces_ = false;
  bool damaged_ = false;
};

/// What readTraces() did.
struct TraceOutcome {
  enum class Status {
    Ok,         ///< every event printed
    NoTrace,    ///< the inputs hold no CTF trace
    ReadFailed, ///< something could not be read to its end (what was read is printed)
  } status = Status::Ok;
  std::vector<std::string> problems; ///< one line each
  std::vector<std::string> details;  ///< libbabeltrace2's causes, for -v
  std::size_t invalidFields = 0;     ///< typed fields that printed as invalid
  std::uint64_t discardedEvents = 0; ///< events the tracer reported lost
  std::uint64_t discardedPackets = 0;
  bool writeFailed = false; ///< standard output could not be written
};

/// Prints the events the request asks for, as text lines or JSON Lines, to standard
/// output (warnings to standard error), exactly as sink.orvane.text does.
TraceOutcome readTraces(const TraceRequest& request);

} // namespace Orvane::tracing
