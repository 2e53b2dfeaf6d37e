#include "python/TraceEvents.h"

#include "python/Plugins.h"
#include "python/PyText.h"
#include "tracing/DiscardedRecord.h"

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

/// The line the text sink's warning says, with times as nanoseconds from the clock's
/// origin, the unit of Event.timestamp_ns: "7 events discarded between timestamp_ns A
/// and B in stream 0 of trace "router1"".
std::string discardedMessage(const tracing::DiscardedRecord& d, std::string_view trace) {
  std::string line = tracing::lostText(d) + " discarded";
  std::int64_t beginNs = 0, endNs = 0;
  if (tracing::nsFromOrigin(d.begin, beginNs) && tracing::nsFromOrigin(d.end, endNs))
    line += " between timestamp_ns " + std::to_string(beginNs) + " and " + std::to_string(endNs);
  tracing::appendLossPlace(line, d, trace);
  return line;
}

/// Sets the parameter `name` from one text; raises ValueError with the request's problem.
void setParameter(tracing::TraceRequest& request, const char* name, std::string_view text) {
  if (std::string problem = tracing::setRequestParameter(request, name, text); !problem.empty())
    throw py::value_error(problem);
}

/// Sets the time bound `name` from None, an int of nanoseconds or a str. An int past the
/// 64-bit range goes through the text form, whose problem says so.
void setBound(tracing::TraceRequest& request, const char* name, py::handle value) {
  if (value.is_none()) return;
  if (PyUnicode_Check(value.ptr())) return setParameter(request, name, value.cast<std::string>());
  if (!PyLong_Check(value.ptr()) || PyBool_Check(value.ptr()))
    throw py::type_error(std::string(name) + " takes an int of nanoseconds or a str, not " +
                         Py_TYPE(value.ptr())->tp_name);
  int overflow = 0;
  const long long ns = PyLong_AsLongLongAndOverflow(value.ptr(), &overflow);
  if (overflow != 0) return setParameter(request, name, py::str(value).cast<std::string>());
  (std::string_view(name) == "begin" ? request.begin : request.end) =
      tracing::TimeBound::nanoseconds(ns);
}

tracing::TraceRequest requestOf(const std::vector<std::string>& inputs, py::handle begin,
                                py::handle end, const std::vector<std::string>& events,
                                const std::vector<std::string>& types) {
  tracing::TraceRequest request;
  request.inputs = inputs;
  setBound(request, "begin", begin);
  setBound(request, "end", end);
  for (const std::string& glob : events) setParameter(request, "events", glob);
  for (const std::string& entry : types) setParameter(request, "types", entry);
  if (std::string problem = tracing::checkRange(request); !problem.empty())
    throw py::value_error(problem);
  return request;
}

/// "no CTF trace (...) in A, B", then what could not be read, on one line.
std::string noTraceMessage(const std::vector<std::string>& inputs,
                           const std::vector<std::string>& problems) {
  std::string message = "no CTF trace (a directory with a metadata file) in ";
  for (std::size_t i = 0; i < inputs.size(); ++i) message += (i ? ", " : "") + inputs[i];
  for (std::size_t i = 0; i < problems.size(); ++i) message += (i ? "; " : ": ") + problems[i];
  return message;
}

} // namespace

EventTuples::EventTuples(py::object invalidType, tracing::TypeMap types)
    : invalidType_(std::move(invalidType)), walker_(std::move(types)) {}

py::tuple EventTuples::take() {
  if (ended_.empty()) return py::make_tuple(std::exchange(batch_, py::list()), py::none());
  py::tuple oldest = std::move(ended_.front());
  ended_.pop_front();
  return oldest;
}

void EventTuples::consume(const bt_message* message) {
  if (error_) return;
  try { // nothing may unwind through libbabeltrace2's C frames
    switch (bt_message_get_type(message)) {
    case BT_MESSAGE_TYPE_EVENT: consumeEvent(message); break;
    case BT_MESSAGE_TYPE_DISCARDED_EVENTS:
    case BT_MESSAGE_TYPE_DISCARDED_PACKETS: consumeDiscarded(message); break;
    default: break;
    }
  } catch (...) {
    error_ = std::current_exception();
  }
}

void EventTuples::consumeEvent(const bt_message* message) {
  const bt_event* event = bt_message_event_borrow_event_const(message);
  followTrace(bt_event_borrow_stream_const(event));
  tracing::EventInfo info = tracing::eventInfoOf(message);
  info.trace = traceName_;
  walker_.walk(event, info, *this);
}

void EventTuples::consumeDiscarded(const bt_message* message) {
  const tracing::DiscardedRecord record = tracing::discardedRecordOf(message);
  followTrace(record.stream);
  DiscardedCounts& counts = discarded_[traceName_];
  (record.packets ? counts.packets : counts.events) += record.hasCount ? record.count : 0;
  py::tuple discarded = py::make_tuple(trace_, counts.events, counts.packets,
                                       toStr(discardedMessage(record, traceName_)));
  ended_.push_back(py::make_tuple(std::exchange(batch_, py::list()), std::move(discarded)));
}

void EventTuples::followTrace(const bt_stream* stream) {
  const bt_trace* trace = bt_stream_borrow_trace_const(stream);
  if (trace == lastTrace_ && trace_) return;
  lastTrace_ = trace;
  traceName_ = tracing::traceNameOf(trace);
  trace_ = nameOf(traceName_);
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
  py::tuple event(5);
  PyTuple_SET_ITEM(event.ptr(), 0, name_.release().ptr());
  PyTuple_SET_ITEM(event.ptr(), 1, timestamp_.release().ptr());
  PyTuple_SET_ITEM(event.ptr(), 2, containers_.front().release().ptr());
  PyTuple_SET_ITEM(event.ptr(), 3, raw_.release().ptr());
  PyTuple_SET_ITEM(event.ptr(), 4, trace_.inc_ref().ptr());
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

TraceReader::TraceReader(const std::vector<std::string>& inputs, py::handle begin, py::handle end,
                         const std::vector<std::string>& events,
                         const std::vector<std::string>& types, py::object invalidType) {
  tracing::TraceRequest request = requestOf(inputs, begin, end, events, types);
  ensurePluginLoaded();
  events_ = std::make_unique<EventTuples>(std::move(invalidType), request.types);
  graph_ = std::make_unique<tracing::TraceGraph>(request, *events_);
  if (!graph_->foundTraces()) throw py::value_error(noTraceMessage(inputs, graph_->problems()));
}

py::tuple TraceReader::next() {
  while (step_ == tracing::TraceGraph::Step::More && !events_->hasEndedBatch() &&
         events_->pending() < kBatchEvents)
    step_ = graph_->step();
  // The events read before a failure come first; the failure with the next call.
  if (events_->hasEndedBatch() || events_->pending() > 0) return events_->take();
  events_->rethrowError();
  throw py::stop_iteration();
}

std::vector<std::string> TraceReader::problems() const {
  if (step_ != tracing::TraceGraph::Step::Failed && !graph_->damaged()) return {};
  if (graph_->problems().empty()) return {"the traces cannot be read to their end"};
  return graph_->problems();
}

} // namespace Orvane::python
