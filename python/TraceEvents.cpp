#include "python/TraceEvents.h"

#include "python/Plugins.h"
#include "python/PyText.h"

#include <utility>

namespace py = pybind11;

namespace Orvane::python {
namespace {

/// Events per batch handed to Python: enough to make the cost of a batch vanish, few
/// enough that the first events come at once.
constexpr std::size_t kBatchEvents = 4096;

py::bytes toBytes(std::span<const unsigned char> bytes) {
  return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// The problems of `graph` as one message.
std::string problemsOf(const tracing::TraceGraph& graph) {
  std::string message;
  for (const std::string& problem : graph.problems())
    message += (message.empty() ? "" : ": ") + problem;
  return message.empty() ? "the trace cannot be read" : message;
}

tracing::TypeMap typeMapOf(const std::vector<std::string>& entries) {
  tracing::TypeMap types;
  for (const std::string& entry : entries)
    if (!types.add(entry))
      throw py::value_error("types takes \"EVENT.FIELD=ID\" strings, not \"" + entry + "\"");
  return types;
}

} // namespace

EventTuples::EventTuples(py::object invalidType, tracing::TypeMap types)
    : invalidType_(std::move(invalidType)), walker_(std::move(types)) {}

py::list EventTuples::take() { return std::exchange(batch_, py::list()); }

void EventTuples::consume(const bt_message* message) {
  if (error_ || bt_message_get_type(message) != BT_MESSAGE_TYPE_EVENT) return;
  try { // nothing may unwind through libbabeltrace2's C frames
    walker_.walk(bt_message_event_borrow_event_const(message), tracing::eventInfoOf(message),
                 *this);
  } catch (...) {
    error_ = std::current_exception();
  }
}

void EventTuples::rethrowError() {
  if (error_) std::rethrow_exception(std::exchange(error_, nullptr));
}

void EventTuples::beginEvent(const tracing::EventInfo& event) {
  name_ = nameOf(event.name);
  timestamp_ = event.hasTimestamp ? py::object(py::int_(event.timestampNs)) : py::none();
  raw_ = py::dict();
  containers_.assign(1, py::dict());
}

void EventTuples::endEvent() {
  py::tuple event(4);
  PyTuple_SET_ITEM(event.ptr(), 0, name_.release().ptr());
  PyTuple_SET_ITEM(event.ptr(), 1, timestamp_.release().ptr());
  PyTuple_SET_ITEM(event.ptr(), 2, containers_.front().release().ptr());
  PyTuple_SET_ITEM(event.ptr(), 3, raw_.release().ptr());
  if (PyList_Append(batch_.ptr(), event.ptr()) != 0) throw py::error_already_set();
}

void EventTuples::member(std::string_view name) { member_ = nameOf(name); }

void EventTuples::unsignedInteger(std::uint64_t value, bool) {
  put(py::reinterpret_steal<py::object>(PyLong_FromUnsignedLongLong(value)));
}

void EventTuples::signedInteger(std::int64_t value, bool) {
  put(py::reinterpret_steal<py::object>(PyLong_FromLongLong(value)));
}

void EventTuples::real(double value) { put(py::float_(value)); }

void EventTuples::boolean(bool value) { put(py::bool_(value)); }

void EventTuples::string(std::string_view value) { put(toStr(value)); }

void EventTuples::typed(std::string_view id, const tracing::TypedResult& result,
                        std::span<const unsigned char> bytes) {
  if (!member_.is_none()) raw_[member_] = toBytes(bytes);
  if (result.valid)
    put(toStr(result.text));
  else
    put(invalidType_(toStr(id), toStr(result.reason), toBytes(bytes)));
}

void EventTuples::none() { put(py::none()); }

void EventTuples::beginStructure() {
  py::dict structure;
  put(structure);
  containers_.push_back(std::move(structure));
}

void EventTuples::endStructure() { containers_.pop_back(); }

void EventTuples::beginArray() {
  py::list array;
  put(array);
  containers_.push_back(std::move(array));
}

void EventTuples::endArray() { containers_.pop_back(); }

void EventTuples::put(py::object value) {
  PyObject* container = containers_.back().ptr();
  const int status = PyDict_Check(container) ? PyDict_SetItem(container, member_.ptr(), value.ptr())
                                             : PyList_Append(container, value.ptr());
  if (status != 0) throw py::error_already_set();
  member_ = py::none();
}

py::object& EventTuples::nameOf(std::string_view name) {
  auto found = names_.find(std::string(name));
  if (found == names_.end()) found = names_.emplace(name, toStr(name)).first;
  return found->second;
}

TraceReader::TraceReader(const std::string& path, const std::optional<std::string>& begin,
                         const std::optional<std::string>& end, py::object invalidType,
                         const std::vector<std::string>& types)
    : events_(std::make_unique<EventTuples>(std::move(invalidType), typeMapOf(types))) {
  ensurePluginLoaded();
  if (tracing::findTraces(path).empty()) // the graph would say less
    throw py::value_error("no CTF trace (a directory with a metadata file) in " + path);
  graph_ = std::make_unique<tracing::TraceGraph>(
      tracing::TraceRequest{path, false, begin.value_or(""), end.value_or("")}, *events_);
  if (!graph_->built()) throw py::value_error(problemsOf(*graph_));
}

py::list TraceReader::next() {
  while (step_ == tracing::TraceGraph::Step::More && events_->pending() < kBatchEvents)
    step_ = graph_->step();
  // The events read before a failure come first; the failure with the next call.
  if (events_->pending() > 0) return events_->take();
  events_->rethrowError();
  if (step_ == tracing::TraceGraph::Step::Failed) throw py::value_error(problemsOf(*graph_));
  throw py::stop_iteration();
}

} // namespace Orvane::python
