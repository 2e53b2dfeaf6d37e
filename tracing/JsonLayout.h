// The JSON Lines layout: one object per line, its schema documented in docs/traces.md.
#pragma once

#include "tracing/FieldVisitor.h"
#include "tracing/Nesting.h"

#include <string>

namespace Orvane::tracing {

/// The version of the JSON Lines schema; it changes when a line's meaning does.
inline constexpr int kJsonSchemaVersion = 1;

/// The line that starts the output: {"type":"schema","name":"orvane-trace","version":N}.
std::string jsonSchemaLine();

/// Appends each event as {"type":"event","timestamp_ns":N,"name":"...","context":{...},
/// "payload":{...}} and a newline. Integers are numbers, strings and valid typed
/// fields strings, an invalid typed field {"invalid":"REASON","id":"ID","hex":"..."}.
class JsonLayout final : public FieldVisitor {
public:
  explicit JsonLayout(std::string& out) : out_(out) {}

  void beginEvent(const EventInfo& event) override;
  void endEvent() override { out_ += "}\n"; }
  void beginScope(Scope scope) override;
  void endScope(Scope) override { close('}'); }
  void member(std::string_view name) override;
  void element(std::size_t) override { separate(); }
  void unsignedInteger(std::uint64_t value, bool) override;
  void signedInteger(std::int64_t value, bool) override;
  void real(double value) override;
  void boolean(bool value) override { out_ += value ? "true" : "false"; }
  void string(std::string_view value) override;
  void typed(std::string_view id, const TypedResult& result,
             std::span<const unsigned char> bytes) override;
  void none() override { out_ += "null"; }
  void beginStructure() override { open('{'); }
  void endStructure() override { close('}'); }
  void beginArray() override { open('['); }
  void endArray() override { close(']'); }

private:
  void open(char bracket);
  void close(char bracket);
  void separate();

  std::string& out_;
  Nesting nesting_;
};

} // namespace Orvane::tracing
