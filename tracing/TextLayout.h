// The text layout: one line per event, "[TIME] (+DELTA) NAME: { CONTEXT }, { PAYLOAD }",
// each field "name = value", a typed field as its formatter's text.
#pragma once

#include "tracing/NestedLayout.h"
#include "tracing/Timestamp.h"

#include <string>

namespace Orvane::tracing {

/// Appends each event's line to a string. Strings are quoted, typed values are not;
/// control characters in either are escaped (decoding/Escape.h). An invalid typed field
/// prints "<invalid: REASON [HEX BYTES]>".
class TextLayout final : public NestedLayout {
public:
  TextLayout(std::string& out, ClockOptions clock)
      : NestedLayout(out, {" ", ", ", " "}), clock_(clock) {}

  void beginEvent(const EventInfo& event) override;
  void endEvent() override { out_ += '\n'; }
  void beginScope(Scope scope) override;
  void member(std::string_view name) override;
  void element(std::size_t index) override;
  void unsignedInteger(std::uint64_t value, bool hex) override;
  void signedInteger(std::int64_t value, bool hex) override;
  void real(double value) override;
  void string(std::string_view value) override;
  void typed(std::string_view id, const TypedResult& result,
             std::span<const unsigned char> bytes) override;

private:
  TimestampPrinter clock_;
  bool scopeBefore_ = false;
};

} // namespace Orvane::tracing
