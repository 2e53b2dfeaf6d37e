// The JSON Lines layout: one object per line, its schema documented in docs/traces.md.
#pragma once

#include "tracing/NestedLayout.h"

#include <string>

namespace Orvane::tracing {

/// The version of the JSON Lines schema; it changes when a line's meaning does.
inline constexpr int kJsonSchemaVersion = 1;

/// The line that starts the output: {"type":"schema","name":"orvane-trace","version":N}.
std::string jsonSchemaLine();

/// Appends each event as {"type":"event","timestamp_ns":N,"name":"...","context":{...},
/// "payload":{...}} and a newline. Integers are numbers, strings and valid typed
/// fields strings, an invalid typed field {"invalid":"REASON","id":"ID","hex":"..."}.
class JsonLayout final : public NestedLayout {
public:
  explicit JsonLayout(std::string& out) : NestedLayout(out, {"", ",", ""}) {}

  void beginEvent(const EventInfo& event) override;
  void endEvent() override { out_ += "}\n"; }
  void beginScope(Scope scope) override;
  void member(std::string_view name) override;
  void element(std::size_t) override { separate(); }
  void unsignedInteger(std::uint64_t value, bool) override;
  void signedInteger(std::int64_t value, bool) override;
  void real(double value) override;
  void string(std::string_view value) override;
  void typed(std::string_view id, const TypedResult& result,
             std::span<const unsigned char> bytes) override;

private:
};

} // namespace Orvane::tracing
