#include "tracing/TraceGraph.h"

#include "tracing/ErrorGuard.h"
#include "tracing/PrintingConsumer.h"
#include "tracing/Sink.h"

#include <babeltrace2/babeltrace.h>

#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <memory>
#include <thread>

namespace Orvane::tracing {
namespace {

/// How long a live source with nothing new is left before it is asked again.
constexpr std::chrono::milliseconds kLiveRetry(100);

struct PutValue {
  void operator()(bt_value* value) const { bt_value_put_ref(value); }
};
struct PutSinkClass {
  void operator()(bt_component_class_sink* sinkClass) const {
    bt_component_class_sink_put_ref(sinkClass);
  }
};
using Value = std::unique_ptr<bt_value, PutValue>;

/// Whether `part` ("key=value") is an address or a count of no use to a reader.
bool isNoise(std::string_view part) {
  const std::size_t equals = part.find('=');
  return part.substr(equals + 1).starts_with("0x") || part.substr(0, equals).ends_with("-addr");
}

/// A cause's message on one line, without the "key=0x..." addresses libbabeltrace2
/// appends: "No event class with ID ...: stream-class-id=0, event-class-id=238".
std::string readable(std::string_view message) {
  std::string line;
  const std::size_t colon = message.find(": ");
  line.assign(message.substr(0, colon));
  if (colon != std::string_view::npos) {
    std::string kept;
    for (std::string_view rest = message.substr(colon + 2); !rest.empty();) {
      const std::size_t comma = rest.find(", ");
      const std::string_view part = rest.substr(0, comma);
      if (part.find('=') == std::string_view::npos) { // not key=value pairs after all
        kept.assign(message.substr(colon + 2));
        break;
      }
      if (!isNoise(part)) kept += (kept.empty() ? "" : ", ") + std::string(part);
      rest = comma == std::string_view::npos ? std::string_view() : rest.substr(comma + 2);
    }
    if (!kept.empty()) line += ": " + kept;
  }
  for (char& c : line)
    if (c == '\n') c = ' ';
  return line;
}

constexpr std::string_view kSourcePrefix = "source-";

/// The data stream file a message iterator's port reads ("UUID | ID | PATH"), or "".
std::string streamFileOf(const bt_error_cause* cause) {
  if (bt_error_cause_get_actor_type(cause) != BT_ERROR_CAUSE_ACTOR_TYPE_MESSAGE_ITERATOR) return "";
  const std::string_view port =
      bt_error_cause_message_iterator_actor_get_component_output_port_name(cause);
  const std::size_t bar = port.rfind(" | ");
  return bar == std::string_view::npos ? "" : std::string(port.substr(bar + 3));
}

/// The trace of the source ("source-N") a component's cause comes from, or "".
std::string traceOf(const bt_error_cause* cause, const std::vector<TraceSource>& sources) {
  if (bt_error_cause_get_actor_type(cause) != BT_ERROR_CAUSE_ACTOR_TYPE_COMPONENT) return "";
  const std::string_view component = bt_error_cause_component_actor_get_component_name(cause);
  if (!component.starts_with(kSourcePrefix)) return "";
  const std::size_t index = std::strtoul(component.data() + kSourcePrefix.size(), nullptr, 10);
  return index < sources.size() ? "the trace " + sources[index].inputs.front() : "";
}

} // namespace

void TraceGraph::report(const std::string& what) {
  const bt_error* error = bt_current_thread_take_error();
  report(what, error);
  if (error) bt_error_release(error);
}

void TraceGraph::report(const std::string& what, const bt_error* error) {
  damaged_ = true;
  std::string file, trace, reason;
  for (std::uint64_t i = 0; error && i < bt_error_get_cause_count(error); ++i) {
    const bt_error_cause* cause = bt_error_borrow_cause_by_index(error, i);
    details_.emplace_back(bt_error_cause_get_message(cause));
    // The first cause is the first thing that failed; the first message iterator named
    // reads the stream it failed in, else the first source named is its trace.
    if (file.empty()) file = streamFileOf(cause);
    if (trace.empty()) trace = traceOf(cause, sources_);
    if (reason.empty()) reason = readable(details_.back());
  }
  const std::string subject = !file.empty() ? file : !trace.empty() ? trace : what;
  const std::string problem =
      "cannot read " + subject + " to its end" + (reason.empty() ? "" : ": ") + reason;
  // A stream stopped part-way may say so at each call that follows: once is enough.
  if (std::find(problems_.begin(), problems_.end(), problem) == problems_.end())
    problems_.push_back(problem);
}

const bt_plugin* TraceGraph::plugin(const char* name) {
  const bt_plugin* found = nullptr;
  if (bt_plugin_find(name, BT_TRUE, BT_TRUE, BT_TRUE, BT_TRUE, BT_FALSE, &found) !=
      BT_PLUGIN_FIND_STATUS_OK)
    return nullptr;
  plugins_.push_back(found);
  return found;
}

bool TraceGraph::connect(const bt_port_output* from, const bt_port_input* to) {
  if (bt_graph_connect_ports(graph_, from, to, nullptr) == BT_GRAPH_CONNECT_PORTS_STATUS_OK)
    return true;
  report("the trace graph");
  return false;
}

const bt_component_source* TraceGraph::addSource(const TraceSource& source, std::size_t index) {
  const bt_component_class_source* sourceClass =
      bt_plugin_borrow_source_component_class_by_name_const(ctf_,
                                                            source.live ? "lttng-live" : "fs");
  Value params(bt_value_map_create());
  bt_value* inputs = nullptr;
  bt_value_map_insert_empty_array_entry(params.get(), "inputs", &inputs);
  for (const std::string& input : source.inputs)
    bt_value_array_append_string_element(inputs, input.c_str());
  if (!source.name.empty())
    bt_value_map_insert_string_entry(params.get(), "trace-name", source.name.c_str());
  if (source.live) // a session that does not exist is an error, not a wait
    bt_value_map_insert_string_entry(params.get(), "session-not-found-action", "fail");
  const std::string name = std::string(kSourcePrefix) + std::to_string(index);
  const bt_component_source* component = nullptr;
  if (bt_graph_add_source_component(graph_, sourceClass, name.c_str(), params.get(), logLevel_,
                                    &component) != BT_GRAPH_ADD_COMPONENT_STATUS_OK) {
    report("the trace " + source.inputs.front());
    return nullptr;
  }
  return component;
}

bool TraceGraph::addSink(const TraceRequest& request, MessageConsumer& consumer) {
  std::unique_ptr<bt_component_class_sink, PutSinkClass> sinkClass(createTextSinkClass());
  SinkSetup setup{&consumer, &request};
  const bt_component_sink* sink = nullptr;
  if (bt_graph_add_sink_component_with_initialize_method_data(graph_, sinkClass.get(), "sink",
                                                              nullptr, &setup, logLevel_, &sink) !=
      BT_GRAPH_ADD_COMPONENT_STATUS_OK) {
    report("the trace graph");
    return false;
  }
  return connect(bt_component_filter_borrow_output_port_by_index_const(muxer_, 0),
                 bt_component_sink_borrow_input_port_by_index_const(sink, 0));
}

bool TraceGraph::build(const std::vector<TraceSource>& sources, const TraceRequest& request,
                       MessageConsumer& consumer, std::size_t& failedSource) {
  graph_ = bt_graph_create(0);
  const bt_plugin* utils = plugin("utils");
  if (!ctf_) ctf_ = plugin("ctf");
  if (!graph_ || !utils || !ctf_) {
    problems_.push_back(graph_ ? "babeltrace2's ctf and utils plug-ins are not installed"
                               : "cannot create a trace graph");
    return false;
  }
  if (bt_graph_add_filter_component(
          graph_, bt_plugin_borrow_filter_component_class_by_name_const(utils, "muxer"), "muxer",
          nullptr, logLevel_, &muxer_) != BT_GRAPH_ADD_COMPONENT_STATUS_OK) {
    report("the trace graph");
    return false;
  }
  for (std::size_t i = 0; i < sources.size(); ++i) {
    const bt_component_source* source = addSource(sources[i], i);
    if (!source) {
      failedSource = i;
      return false;
    }
    for (std::uint64_t p = 0; p < bt_component_source_get_output_port_count(source); ++p)
      if (!addGuarded(bt_component_source_borrow_output_port_by_index_const(source, p)))
        return false;
  }
  return addSink(request, consumer);
}

bool TraceGraph::addGuarded(const bt_port_output* port) {
  const bt_component_filter* guard = nullptr;
  const std::string name = "guard-" + std::to_string(guards_++);
  if (bt_graph_add_filter_component_with_initialize_method_data(
          graph_, guardClass_.get(), name.c_str(), nullptr, &listener_, logLevel_, &guard) !=
      BT_GRAPH_ADD_COMPONENT_STATUS_OK) {
    report("the trace graph");
    return false;
  }
  // The muxer adds a free input port each time one is connected.
  const std::uint64_t free = bt_component_filter_get_input_port_count(muxer_) - 1;
  return connect(port, bt_component_filter_borrow_input_port_by_index_const(guard, 0)) &&
         connect(bt_component_filter_borrow_output_port_by_index_const(guard, 0),
                 bt_component_filter_borrow_input_port_by_index_const(muxer_, free));
}

void TraceGraph::destroy() {
  bt_graph_put_ref(graph_);
  graph_ = nullptr;
  muxer_ = nullptr;
}

TraceGraph::TraceGraph(const TraceRequest& request, MessageConsumer& consumer)
    : guardClass_(createErrorGuardClass()),
      listener_([this](const bt_error* error) { report("a trace", error); }) {
  // Every problem is reported in one line; the components' own log lines only when the
  // user asks for the details, at the level babeltrace2's command line logs at.
  logLevel_ = request.diagnostics ? BT_LOGGING_LEVEL_WARNING : BT_LOGGING_LEVEL_NONE;
  Discovery found = discoverTraces(request.inputs);
  damaged_ = !found.problems.empty();
  problems_ = std::move(found.problems);
  foundTraces_ = !found.sources.empty();
  if (!foundTraces_) {
    std::string inputs;
    for (const std::string& input : request.inputs) inputs += (inputs.empty() ? "" : " ") + input;
    problems_.push_back("no CTF trace (a directory with a metadata file) in " + inputs);
  }
  // A graph whose component failed to initialise is not used again: a trace that cannot
  // be opened is left out, and the graph is built anew without it.
  std::vector<TraceSource> sources = std::move(found.sources);
  while (!sources.empty()) {
    std::size_t failedSource = sources.size();
    sources_ = sources;
    if (build(sources, request, consumer, failedSource)) return;
    destroy();
    if (failedSource == sources.size()) return; // not a trace's fault: nothing else to try
    sources.erase(sources.begin() + static_cast<std::ptrdiff_t>(failedSource));
  }
}

TraceGraph::~TraceGraph() {
  destroy();
  for (const bt_plugin* plugin : plugins_) bt_plugin_put_ref(plugin);
}

TraceGraph::Step TraceGraph::step() {
  if (!graph_) return Step::Failed;
  const bt_graph_run_once_status status = bt_graph_run_once(graph_);
  switch (status) {
  case BT_GRAPH_RUN_ONCE_STATUS_OK: return Step::More;
  case BT_GRAPH_RUN_ONCE_STATUS_AGAIN: std::this_thread::sleep_for(kLiveRetry); return Step::More;
  case BT_GRAPH_RUN_ONCE_STATUS_END: return Step::End;
  default: report("the traces"); return Step::Failed;
  }
}

TraceGraph::Step TraceGraph::run() {
  Step step = Step::More;
  while (step == Step::More) step = this->step();
  return step;
}

TraceOutcome readTraces(const TraceRequest& request) {
  TraceOutcome outcome;
  PrintingConsumer printer(request.output, request.types);
  {
    TraceGraph graph(request, printer);
    if (!graph.foundTraces())
      outcome.status = TraceOutcome::Status::NoTrace;
    else if (!graph.built() || graph.run() == TraceGraph::Step::Failed || graph.damaged())
      outcome.status = TraceOutcome::Status::ReadFailed;
    outcome.problems = graph.problems();
    outcome.details = graph.details();
  } // the sink passes on its last messages as the graph goes
  outcome.invalidFields = printer.invalidFields();
  outcome.discardedEvents = printer.discardedEvents();
  outcome.discardedPackets = printer.discardedPackets();
  outcome.writeFailed = printer.writeFailed();
  return outcome;
}

} // namespace Orvane::tracing
