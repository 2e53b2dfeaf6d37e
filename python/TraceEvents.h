// The events of traces as Python values, made in C++ batch by batch for orvane.trace:
// typed fields as their formatter's text (or an invalid value that says why), integers
// as int, strings as str, structures as dict, arrays as list; and the events and packets
// the tracer reported lost, counted per trace.
#pragma once

#include "tracing/EventWalker.h"
#include "tracing/FieldVisitor.h"
#include "tracing/MessageConsumer.h"
#include "tracing/TraceGraph.h"
#include "tracing/TraceRequest.h"

#include <pybind11/pybind11.h>

#include <cstdint>
#include <deque>
#include <exception>
#include <map>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace Orvane::python {

/// What discarded records have counted so far for one trace.
struct DiscardedCounts {
  std::uint64_t events = 0;
  std::uint64_t packets = 0;
};

/// Turns event messages into tuples (name, timestamp_ns, fields, raw, trace): fields a
/// dict by field name (context fields, then payload), raw the bytes of each typed field
/// by the same name, trace the trace's name. A discarded-events or -packets record ends
/// the batch it comes in, so that Python learns of it right after the events before it.
/// Runs with the GIL held.
class EventTuples : public tracing::MessageConsumer, private tracing::FieldVisitor {
public:
  /// `invalidType` is called as invalidType(id, reason, bytes) for a typed field that
  /// holds no value of its id; `types` types fields whose names carry no id.
  EventTuples(pybind11::object invalidType, tracing::TypeMap types);

  /// The oldest batch, as the tuple (events, discarded): events a list of event tuples;
  /// discarded None, or (trace, events, packets, message) for the discarded record that
  /// came right after those events: its trace, the events and packets discarded in that
  /// trace so far, and a line that says what was lost where.
  pybind11::tuple take();
  /// Whether a batch ended by a discarded record waits for take().
  bool hasEndedBatch() const { return !ended_.empty(); }
  /// How many event tuples the open batch holds.
  std::size_t pending() const { return static_cast<std::size_t>(PyList_GET_SIZE(batch_.ptr())); }

  void consume(const bt_message* message) override;
  /// False, stopping the graph, once making a value has failed.
  bool flush() override { return !error_; }
  /// Throws what failed while making a value (a Python error, or out of memory), if
  /// anything did, and forgets it.
  void rethrowError();

private:
  void consumeEvent(const bt_message* message);
  void consumeDiscarded(const bt_message* message);
  /// Makes traceName_ and trace_ the name of `stream`'s trace, looked up again only when
  /// the trace changes.
  void followTrace(const bt_stream* stream);

  void beginEvent(const tracing::EventInfo& event) override;
  void endEvent() override;
  void beginScope(tracing::Scope) override {}
  void endScope(tracing::Scope) override {}
  void member(std::string_view name) override;
  void element(std::size_t) override {}
  void unsignedInteger(std::uint64_t value, bool) override;
  void signedInteger(std::int64_t value, bool) override;
  void real(double value) override;
  void boolean(bool value) override;
  void string(std::string_view value) override;
  void typed(std::string_view id, const tracing::TypedResult& result,
             std::span<const unsigned char> bytes) override;
  void none() override;
  void beginStructure() override;
  void endStructure() override;
  void beginArray() override;
  void endArray() override;

  /// Puts `value` where the walk is: under the pending member name, or at the end of
  /// the current array.
  void put(pybind11::object value);
  /// The same str for the same name, made once: member names repeat in every event.
  pybind11::object& nameOf(std::string_view name);

  pybind11::object invalidType_;
  tracing::EventWalker walker_;
  pybind11::list batch_;
  std::deque<pybind11::tuple> ended_; ///< batches a discarded record ended, oldest first
  pybind11::object name_;
  pybind11::object timestamp_;
  pybind11::object trace_; ///< the name of the current trace, as a str
  pybind11::dict raw_;
  std::vector<pybind11::object> containers_; ///< the event's dict, then open structures and arrays
  pybind11::object member_;                  ///< the name of the value to come, in a dict
  std::unordered_map<std::string, pybind11::object> names_;
  const bt_trace* lastTrace_ = nullptr;
  std::string traceName_;
  std::map<std::string, DiscardedCounts> discarded_; ///< by trace name
  std::exception_ptr error_;
};

/// Reads the traces a request names, batch by batch: the iterator behind
/// orvane.trace.events.
class TraceReader {
public:
  /// Builds the request from the keyword arguments of orvane.trace.events (`begin` and
  /// `end` None, an int of nanoseconds or a str; `events` and `types` items as the
  /// request's parameters of those names take them), then the reading graph. Raises
  /// ValueError with the request's problem, or when the inputs hold no trace; TypeError
  /// for a bound that is neither int nor str.
  TraceReader(const std::vector<std::string>& inputs, pybind11::handle begin, pybind11::handle end,
              const std::vector<std::string>& events, const std::vector<std::string>& types,
              pybind11::object invalidType);

  /// The next batch (EventTuples::take()); raises StopIteration once the traces end or
  /// cannot be read on, the events before that given; problems() then says what failed.
  pybind11::tuple next();

  /// What could not be read, one line each: empty unless the graph was damaged or failed.
  std::vector<std::string> problems() const;

private:
  std::unique_ptr<EventTuples> events_;
  std::unique_ptr<tracing::TraceGraph> graph_;
  tracing::TraceGraph::Step step_ = tracing::TraceGraph::Step::More; ///< the last step's
};

} // namespace Orvane::python
