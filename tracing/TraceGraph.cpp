#include "tracing/TraceGraph.h"

#include "tracing/PrintingConsumer.h"
#include "tracing/Sink.h"

#include <babeltrace2/babeltrace.h>

#include <algorithm>
#include <filesystem>
#include <memory>

namespace Orvane::tracing {
namespace {

/// What babeltrace2's command line logs at by default.
constexpr bt_logging_level kLogLevel = BT_LOGGING_LEVEL_WARNING;

struct PutValue {
  void operator()(bt_value* value) const { bt_value_put_ref(value); }
};
struct PutSinkClass {
  void operator()(bt_component_class_sink* sinkClass) const {
    bt_component_class_sink_put_ref(sinkClass);
  }
};
using Value = std::unique_ptr<bt_value, PutValue>;

/// Moves the causes of the current thread's error, most recent first, into `problems`.
void takeErrorCauses(std::vector<std::string>& problems) {
  const bt_error* error = bt_current_thread_take_error();
  if (!error) return;
  for (std::uint64_t i = 0; i < bt_error_get_cause_count(error); ++i)
    problems.emplace_back(bt_error_cause_get_message(bt_error_borrow_cause_by_index(error, i)));
  bt_error_release(error);
}

} // namespace

bool TraceGraph::failed(const std::string& problem) {
  takeErrorCauses(problems_);
  problems_.push_back(problem);
  return false;
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
  return bt_graph_connect_ports(graph_, from, to, nullptr) == BT_GRAPH_CONNECT_PORTS_STATUS_OK ||
         failed("cannot connect the components of the trace graph");
}

bool TraceGraph::addSources(const std::vector<std::string>& traces) {
  const bt_plugin* ctf = plugin("ctf");
  const bt_plugin* utils = plugin("utils");
  if (!ctf || !utils) return failed("babeltrace2's ctf and utils plug-ins are not installed");
  const bt_component_filter* muxer = nullptr;
  const bt_component_class_filter* muxerClass =
      bt_plugin_borrow_filter_component_class_by_name_const(utils, "muxer");
  if (bt_graph_add_filter_component(graph_, muxerClass, "muxer", nullptr, kLogLevel, &muxer) !=
      BT_GRAPH_ADD_COMPONENT_STATUS_OK)
    return failed("cannot create the muxer");
  const bt_component_class_source* fs =
      bt_plugin_borrow_source_component_class_by_name_const(ctf, "fs");
  for (std::size_t i = 0; i < traces.size(); ++i) {
    Value params(bt_value_map_create());
    bt_value* inputs = nullptr;
    bt_value_map_insert_empty_array_entry(params.get(), "inputs", &inputs);
    bt_value_array_append_string_element(inputs, traces[i].c_str());
    const bt_component_source* source = nullptr;
    const std::string name = "source-ctf-fs-" + std::to_string(i);
    if (bt_graph_add_source_component(graph_, fs, name.c_str(), params.get(), kLogLevel, &source) !=
        BT_GRAPH_ADD_COMPONENT_STATUS_OK)
      return failed("cannot open the trace " + traces[i]);
    for (std::uint64_t p = 0; p < bt_component_source_get_output_port_count(source); ++p) {
      // The muxer adds a free input port each time one is connected.
      const std::uint64_t free = bt_component_filter_get_input_port_count(muxer) - 1;
      if (!connect(bt_component_source_borrow_output_port_by_index_const(source, p),
                   bt_component_filter_borrow_input_port_by_index_const(muxer, free)))
        return false;
    }
  }
  last_ = bt_component_filter_borrow_output_port_by_index_const(muxer, 0);
  return true;
}

bool TraceGraph::addFilter(const char* pluginName, const char* name, const bt_value* params) {
  const bt_plugin* found = plugin(pluginName);
  if (!found)
    return failed(std::string("babeltrace2's ") + pluginName + " plug-in is not installed");
  const bt_component_filter* filter = nullptr;
  if (bt_graph_add_filter_component(
          graph_, bt_plugin_borrow_filter_component_class_by_name_const(found, name), name, params,
          kLogLevel, &filter) != BT_GRAPH_ADD_COMPONENT_STATUS_OK)
    return failed(std::string("cannot create the ") + name + " filter");
  if (!connect(last_, bt_component_filter_borrow_input_port_by_index_const(filter, 0)))
    return false;
  last_ = bt_component_filter_borrow_output_port_by_index_const(filter, 0);
  return true;
}

bool TraceGraph::addSink(MessageConsumer& consumer) {
  std::unique_ptr<bt_component_class_sink, PutSinkClass> sinkClass(createTextSinkClass());
  const bt_component_sink* sink = nullptr;
  if (bt_graph_add_sink_component_with_initialize_method_data(
          graph_, sinkClass.get(), "sink", nullptr, &consumer, kLogLevel, &sink) !=
      BT_GRAPH_ADD_COMPONENT_STATUS_OK)
    return failed("cannot create the sink");
  return connect(last_, bt_component_sink_borrow_input_port_by_index_const(sink, 0));
}

bool TraceGraph::build(const TraceRequest& request, MessageConsumer& consumer) {
  const std::vector<std::string> traces = findTraces(request.path);
  if (traces.empty())
    return failed("no CTF trace (a directory with a metadata file) in " + request.path);
  graph_ = bt_graph_create(0);
  if (!graph_) return failed("cannot create a trace graph");
  if (!addSources(traces)) return false;
  if (!request.begin.empty() || !request.end.empty()) {
    Value range(bt_value_map_create());
    if (!request.begin.empty())
      bt_value_map_insert_string_entry(range.get(), "begin", request.begin.c_str());
    if (!request.end.empty())
      bt_value_map_insert_string_entry(range.get(), "end", request.end.c_str());
    if (!addFilter("utils", "trimmer", range.get())) return false;
  }
  return addSink(consumer);
}

TraceGraph::TraceGraph(const TraceRequest& request, MessageConsumer& consumer) {
  if (!build(request, consumer)) {
    bt_graph_put_ref(graph_);
    graph_ = nullptr;
  }
}

TraceGraph::~TraceGraph() {
  bt_graph_put_ref(graph_);
  for (const bt_plugin* plugin : plugins_) bt_plugin_put_ref(plugin);
}

TraceGraph::Step TraceGraph::step() {
  if (!graph_) return Step::Failed;
  switch (bt_graph_run_once(graph_)) {
  case BT_GRAPH_RUN_ONCE_STATUS_OK:
  case BT_GRAPH_RUN_ONCE_STATUS_AGAIN: return Step::More;
  case BT_GRAPH_RUN_ONCE_STATUS_END: return Step::End;
  default: failed("cannot read the trace to its end"); return Step::Failed;
  }
}

TraceGraph::Step TraceGraph::run() {
  Step step = Step::More;
  while (step == Step::More) step = this->step();
  return step;
}

std::vector<std::string> findTraces(const std::string& path) {
  namespace fs = std::filesystem;
  std::error_code ec;
  if (fs::is_regular_file(fs::path(path) / "metadata", ec)) return {path};
  std::vector<std::string> traces;
  for (auto it = fs::recursive_directory_iterator(path, ec); !ec && it != fs::end(it);
       it.increment(ec))
    if (it->is_directory(ec) && fs::is_regular_file(it->path() / "metadata", ec))
      traces.push_back(it->path().string());
  std::sort(traces.begin(), traces.end());
  return traces;
}

TraceOutcome readTraces(const TraceRequest& request) {
  TraceOutcome outcome;
  SinkOptions options;
  options.json = request.json;
  PrintingConsumer printer(std::move(options));
  {
    TraceGraph graph(request, printer);
    if (!graph.built())
      outcome.status = TraceOutcome::Status::NoTrace;
    else if (graph.run() == TraceGraph::Step::Failed)
      outcome.status = TraceOutcome::Status::ReadFailed;
    outcome.problems = graph.problems();
  } // the sink passes on its last messages as the graph goes
  outcome.invalidFields = printer.invalidFields();
  outcome.writeFailed = printer.writeFailed();
  return outcome;
}

} // namespace Orvane::tracing
