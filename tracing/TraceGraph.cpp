#include "tracing/TraceGraph.h"

#include "tracing/Sink.h"

#include <babeltrace2/babeltrace.h>

#include <algorithm>
#include <filesystem>
#include <memory>

namespace Orvane::tracing {
namespace {

/// What babeltrace2's command line logs at by default.
constexpr bt_logging_level kLogLevel = BT_LOGGING_LEVEL_WARNING;

struct PutGraph {
  void operator()(bt_graph* graph) const { bt_graph_put_ref(graph); }
};
struct PutPlugin {
  void operator()(const bt_plugin* plugin) const { bt_plugin_put_ref(plugin); }
};
struct PutValue {
  void operator()(bt_value* value) const { bt_value_put_ref(value); }
};
struct PutSinkClass {
  void operator()(bt_component_class_sink* sinkClass) const {
    bt_component_class_sink_put_ref(sinkClass);
  }
};
using Plugin = std::unique_ptr<const bt_plugin, PutPlugin>;
using Value = std::unique_ptr<bt_value, PutValue>;

/// The graph under construction, and why building or running it failed.
class GraphBuilder {
public:
  explicit GraphBuilder(TraceOutcome& outcome) : outcome_(outcome) {}

  bool build(const TraceRequest& request, const std::vector<std::string>& traces,
             SinkReport& report);
  bool run();

private:
  const bt_plugin* plugin(const char* name);
  bool addSources(const std::vector<std::string>& traces);
  bool addFilter(const char* plugin, const char* name, const bt_value* params);
  bool addSink(bool json, SinkReport& report);
  bool connect(const bt_port_output* from, const bt_port_input* to);
  bool failed(const std::string& problem);

  TraceOutcome& outcome_;
  std::vector<Plugin> plugins_; // outlive the graph, whose components use their classes
  std::unique_ptr<bt_graph, PutGraph> graph_{bt_graph_create(0)};
  const bt_component_filter* muxer_ = nullptr;
  const bt_port_output* last_ = nullptr; ///< where the next component's input connects
};

/// Moves the causes of the current thread's error, most recent first, into `problems`.
void takeErrorCauses(std::vector<std::string>& problems) {
  const bt_error* error = bt_current_thread_take_error();
  if (!error) return;
  for (std::uint64_t i = 0; i < bt_error_get_cause_count(error); ++i)
    problems.emplace_back(bt_error_cause_get_message(bt_error_borrow_cause_by_index(error, i)));
  bt_error_release(error);
}

bool GraphBuilder::failed(const std::string& problem) {
  takeErrorCauses(outcome_.problems);
  outcome_.problems.push_back(problem);
  return false;
}

const bt_plugin* GraphBuilder::plugin(const char* name) {
  const bt_plugin* found = nullptr;
  if (bt_plugin_find(name, BT_TRUE, BT_TRUE, BT_TRUE, BT_TRUE, BT_FALSE, &found) !=
      BT_PLUGIN_FIND_STATUS_OK)
    return nullptr;
  plugins_.emplace_back(found);
  return found;
}

bool GraphBuilder::connect(const bt_port_output* from, const bt_port_input* to) {
  return bt_graph_connect_ports(graph_.get(), from, to, nullptr) ==
             BT_GRAPH_CONNECT_PORTS_STATUS_OK ||
         failed("cannot connect the components of the trace graph");
}

bool GraphBuilder::addSources(const std::vector<std::string>& traces) {
  const bt_plugin* ctf = plugin("ctf");
  const bt_plugin* utils = plugin("utils");
  if (!ctf || !utils) return failed("babeltrace2's ctf and utils plug-ins are not installed");
  const bt_component_class_filter* muxerClass =
      bt_plugin_borrow_filter_component_class_by_name_const(utils, "muxer");
  if (bt_graph_add_filter_component(graph_.get(), muxerClass, "muxer", nullptr, kLogLevel,
                                    &muxer_) != BT_GRAPH_ADD_COMPONENT_STATUS_OK)
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
    if (bt_graph_add_source_component(graph_.get(), fs, name.c_str(), params.get(), kLogLevel,
                                      &source) != BT_GRAPH_ADD_COMPONENT_STATUS_OK)
      return failed("cannot open the trace " + traces[i]);
    for (std::uint64_t p = 0; p < bt_component_source_get_output_port_count(source); ++p) {
      // The muxer adds a free input port each time one is connected.
      const std::uint64_t free = bt_component_filter_get_input_port_count(muxer_) - 1;
      if (!connect(bt_component_source_borrow_output_port_by_index_const(source, p),
                   bt_component_filter_borrow_input_port_by_index_const(muxer_, free)))
        return false;
    }
  }
  last_ = bt_component_filter_borrow_output_port_by_index_const(muxer_, 0);
  return true;
}

bool GraphBuilder::addFilter(const char* pluginName, const char* name, const bt_value* params) {
  const bt_plugin* found = plugin(pluginName);
  if (!found)
    return failed(std::string("babeltrace2's ") + pluginName + " plug-in is not installed");
  const bt_component_filter* filter = nullptr;
  if (bt_graph_add_filter_component(
          graph_.get(), bt_plugin_borrow_filter_component_class_by_name_const(found, name), name,
          params, kLogLevel, &filter) != BT_GRAPH_ADD_COMPONENT_STATUS_OK)
    return failed(std::string("cannot create the ") + name + " filter");
  if (!connect(last_, bt_component_filter_borrow_input_port_by_index_const(filter, 0)))
    return false;
  last_ = bt_component_filter_borrow_output_port_by_index_const(filter, 0);
  return true;
}

bool GraphBuilder::addSink(bool json, SinkReport& report) {
  std::unique_ptr<bt_component_class_sink, PutSinkClass> sinkClass(createTextSinkClass());
  Value params(bt_value_map_create());
  if (json) bt_value_map_insert_string_entry(params.get(), "format", "json");
  const bt_component_sink* sink = nullptr;
  if (bt_graph_add_sink_component_with_initialize_method_data(
          graph_.get(), sinkClass.get(), "sink", params.get(), &report, kLogLevel, &sink) !=
      BT_GRAPH_ADD_COMPONENT_STATUS_OK)
    return failed("cannot create the sink");
  return connect(last_, bt_component_sink_borrow_input_port_by_index_const(sink, 0));
}

bool GraphBuilder::build(const TraceRequest& request, const std::vector<std::string>& traces,
                         SinkReport& report) {
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
  return addSink(request.json, report);
}

bool GraphBuilder::run() {
  for (;;) {
    switch (bt_graph_run(graph_.get())) {
    case BT_GRAPH_RUN_STATUS_OK: return true;
    case BT_GRAPH_RUN_STATUS_AGAIN: continue;
    default: return failed("cannot read the trace to its end");
    }
  }
}

} // namespace

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
  const std::vector<std::string> traces = findTraces(request.path);
  if (traces.empty()) {
    outcome.status = TraceOutcome::Status::NoTrace;
    outcome.problems.push_back("no CTF trace (a directory with a metadata file) in " +
                               request.path);
    return outcome;
  }
  SinkReport report;
  {
    GraphBuilder graph(outcome);
    if (!graph.build(request, traces, report))
      outcome.status = TraceOutcome::Status::NoTrace;
    else if (!graph.run())
      outcome.status = TraceOutcome::Status::ReadFailed;
  } // the sink writes its last output as the graph goes
  outcome.invalidFields = report.invalidFields;
  outcome.writeFailed = report.writeFailed;
  return outcome;
}

} // namespace Orvane::tracing
