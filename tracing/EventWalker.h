// Reading a babeltrace2 event into a FieldVisitor: the context and payload fields in
// order, typed fields decoded, their LTTng-UST length fields left out.
#pragma once

#include "tracing/FieldVisitor.h"
#include "tracing/TypedNames.h"
#include "tracing/TypedValue.h"

#include <babeltrace2/babeltrace.h>

#include <string>
#include <unordered_map>
#include <vector>

namespace Orvane::tracing {

/// The nanoseconds from the clock's origin of `snapshot` into `ns`; false when there is
/// no snapshot or it lies too far from the origin.
bool nsFromOrigin(const bt_clock_snapshot* snapshot, std::int64_t& ns);

/// The name readers show for `trace`: the one babeltrace2's CTF reader gives it (its
/// hostname, then "/" and the path of its directory below the input that named it), or
/// its hostname when it has no name.
std::string traceNameOf(const bt_trace* trace);

/// The name and timestamp of the event an event message carries (the host is left for
/// the caller, who may know it already).
EventInfo eventInfoOf(const bt_message* message);

/// Walks events for one reader. What each structure class's members are (plain, typed
/// with which id, or a hidden length) is worked out once per class and event class, not
/// per event. One walker serves one thread.
class EventWalker {
public:
  /// `types` types payload fields whose names carry no id. A byte array whose name ends
  /// in "__" and an id is typed; an id nobody registered makes it invalid.
  explicit EventWalker(TypeMap types = {}) : types_(std::move(types)) {}

  /// Hands `event` to `visitor`; `info` gives its name and timestamp.
  void walk(const bt_event* event, const EventInfo& info, FieldVisitor& visitor);

  /// Typed fields found invalid so far.
  std::size_t invalidFields() const { return invalidFields_; }

private:
  struct Member {
    enum class Kind { Plain, Typed, Hidden } kind = Kind::Plain;
    std::string shown;                              ///< the name the reader shows
    std::string id;                                 ///< for a typed member
    const host::FormatterPair* formatter = nullptr; ///< for a typed member, when registered
  };
  using Plan = std::vector<Member>;

  const Plan& planOf(const bt_field_class* structure, const bt_event_class* eventClass);
  Plan makePlan(const bt_field_class* structure, const bt_event_class* eventClass) const;

  void walkContext(const bt_event* event, FieldVisitor& visitor);
  void walkMembers(const bt_field* structure, const bt_event_class* eventClass,
                   FieldVisitor& visitor);
  void walkValue(const bt_field* field, FieldVisitor& visitor);
  void walkTyped(const bt_field* array, const Member& member, FieldVisitor& visitor);

  TypeMap types_;
  std::unordered_map<const void*, std::unordered_map<const void*, Plan>> plans_;
  TypedValueDecoder decoder_;
  std::vector<unsigned char> bytes_;
  std::size_t invalidFields_ = 0;
};

} // namespace Orvane::tracing
