#include "tracing/JsonLayout.h"

#include "decoding/Escape.h"
#include "tracing/Numbers.h"

namespace Orvane::tracing {

std::string jsonSchemaLine() {
  return R"({"type":"schema","name":"orvane-trace","version":)" +
         std::to_string(kJsonSchemaVersion) + "}\n";
}

void JsonLayout::beginEvent(const EventInfo& event) {
  resetNesting();
  out_ += R"({"type":"event","timestamp_ns":)";
  if (event.hasTimestamp)
    appendSigned(out_, event.timestampNs, false);
  else
    out_ += "null";
  out_ += R"(,"name":)";
  string(event.name);
  out_ += R"(,"trace":)";
  string(event.trace);
}

void JsonLayout::beginScope(Scope scope) {
  out_ += scope == Scope::Context ? R"(,"context":)" : R"(,"payload":)";
  open('{');
}

void JsonLayout::member(std::string_view name) {
  separate();
  string(name);
  out_ += ':';
}

void JsonLayout::unsignedInteger(std::uint64_t value, bool) { appendUnsigned(out_, value, false); }

void JsonLayout::signedInteger(std::int64_t value, bool) { appendSigned(out_, value, false); }

void JsonLayout::real(double value) { appendReal(out_, value, "null"); }

void JsonLayout::string(std::string_view value) {
  out_ += '"';
  decoding::appendJsonString(out_, value);
  out_ += '"';
}

void JsonLayout::typed(std::string_view id, const TypedResult& result,
                       std::span<const unsigned char> bytes) {
  if (result.valid) {
    string(result.text);
    return;
  }
  out_ += R"({"invalid":)";
  string(result.reason);
  out_ += R"(,"id":)";
  string(id);
  out_ += R"(,"hex":")";
  decoding::appendHex(out_, bytes.data(), bytes.size(), "");
  out_ += R"("})";
}

} // namespace Orvane::tracing
