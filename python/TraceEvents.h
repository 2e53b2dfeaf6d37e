// The events of a trace as Python values, made in C++ batch by batch for orvane.trace:
// typed fields as their formatter's text (or an invalid value that says why), integers
// as int, strings as str, structures as dict, arrays as list.
#pragma once

#include "tracing/EventWalker.h"
#include "tracing/FieldVisitor.h"
#include "tracing/MessageConsumer.h"
#include "tracing/TraceGraph.h"

#include <pybind11/pybind11.h>

#include <exception>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

namespace Orvane::python {

/// Turns event messages into tuples (name, timestamp_ns, fields, raw): fields a dict by
/// field name (context fields, then payload), raw the bytes of each typed field by the
/// same name. Runs with the GIL held.
class EventTuples : public tracing::MessageConsumer, private tracing::FieldVisitor {
public:
  /// `invalidType` is called as invalidType(id, reason, bytes) for a typed field that
  /// holds no value of its id; `types` types fields whose names carry no id.
  EventTuples(pybind11::object invalidType, tracing::TypeMap types);

  /// The tuples made since the last call, as a list.
  pybind11::list take();
  /// How many tuples are waiting for take().
  std::size_t pending() const { return static_cast<std::size_t>(PyList_GET_SIZE(batch_.ptr())); }

  void consume(const bt_message* message) override;
  /// False, stopping the graph, once making a value has failed.
  bool flush() override { return !error_; }
  /// Throws what failed while making a value (a Python error, or out of memory), if
  /// anything did, and forgets it.
  void rethrowError();

private:
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
  pybind11::object name_;
  pybind11::object timestamp_;
  pybind11::dict raw_;
  std::vector<pybind11::object> containers_; ///< the event's dict, then open structures and arrays
  pybind11::object member_;                  ///< the name of the value to come, in a dict
  std::unordered_map<std::string, pybind11::object> names_;
  std::exception_ptr error_;
};

/// Reads the traces under a path, batch by batch: the iterator behind orvane.trace.events.
class TraceReader {
public:
  /// Builds the reading graph. Raises OSError when `path` holds no trace, ValueError when
  /// it cannot be read or `types` holds an entry not of the form "EVENT.FIELD=ID".
  TraceReader(const std::string& path, const std::optional<std::string>& begin,
              const std::optional<std::string>& end, pybind11::object invalidType,
              const std::vector<std::string>& types);

  /// The next list of event tuples (at least one); raises StopIteration at the end, and
  /// ValueError once the events before a part that cannot be read have been given.
  pybind11::list next();

private:
  std::unique_ptr<EventTuples> events_;
  std::unique_ptr<tracing::TraceGraph> graph_;
  tracing::TraceGraph::Step step_ = tracing::TraceGraph::Step::More; ///< the last step's
};

} // namespace Orvane::python
