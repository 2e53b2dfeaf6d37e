// What an event holds, handed field by field to whatever shows it: a text line, a JSON
// object, or (for a language binding) that language's values.
#pragma once

#include "tracing/TypedValue.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace Orvane::tracing {

/// The event-level facts that come before its fields.
struct EventInfo {
  std::string_view name;
  /// The trace's name: its "hostname" environment entry, then "/" and the path of its
  /// directory below the one the reader was given, when that is not the trace itself.
  std::string_view trace;
  bool hasTimestamp = false;
  std::int64_t timestampNs = 0; ///< nanoseconds from the clock's origin, when it has one
};

/// The two groups of fields an event shows, in this order.
enum class Scope { Context, Payload };

/// Receives one event at a time from EventWalker: beginEvent(), then each scope that has
/// fields (beginScope(), members, endScope()), then endEvent(). Inside a scope or a
/// structure every value is announced by member(); inside an array by element().
/// Typed fields arrive already decoded under their shown name; hidden length fields
/// never arrive. Views are valid during the call only.
class FieldVisitor {
public:
  virtual ~FieldVisitor() = default;

  virtual void beginEvent(const EventInfo& event) = 0;
  virtual void endEvent() = 0;
  virtual void beginScope(Scope scope) = 0;
  virtual void endScope(Scope scope) = 0;

  /// The next value is the member `name` of the current scope or structure.
  virtual void member(std::string_view name) = 0;
  /// The next value is element `index` of the current array.
  virtual void element(std::size_t index) = 0;

  /// An unsigned integer (or enumeration); `hex` when its class prefers base 16.
  virtual void unsignedInteger(std::uint64_t value, bool hex) = 0;
  virtual void signedInteger(std::int64_t value, bool hex) = 0;
  virtual void real(double value) = 0;
  virtual void boolean(bool value) = 0;
  /// A string's bytes, unescaped.
  virtual void string(std::string_view value) = 0;
  /// A typed field: its id, what its bytes gave, and the bytes themselves.
  virtual void typed(std::string_view id, const TypedResult& result,
                     std::span<const unsigned char> bytes) = 0;
  /// An option field with no value.
  virtual void none() = 0;
  virtual void beginStructure() = 0;
  virtual void endStructure() = 0;
  virtual void beginArray() = 0;
  virtual void endArray() = 0;
};

} // namespace Orvane::tracing
