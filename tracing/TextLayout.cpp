#include "tracing/TextLayout.h"

#include "decoding/Escape.h"
#include "tracing/Numbers.h"

namespace Orvane::tracing {

void TextLayout::beginEvent(const EventInfo& event) {
  resetNesting();
  scopeBefore_ = false;
  if (event.hasTimestamp) clock_.append(out_, event.timestampNs);
  if (!event.trace.empty()) {
    decoding::appendEscapedText(out_, event.trace);
    out_ += ' ';
  }
  decoding::appendEscapedText(out_, event.name);
  out_ += ':';
}

void TextLayout::beginScope(Scope) {
  out_ += scopeBefore_ ? ", " : " ";
  scopeBefore_ = true;
  open('{');
}

void TextLayout::member(std::string_view name) {
  separate();
  decoding::appendEscapedText(out_, name);
  out_ += " = ";
}

void TextLayout::element(std::size_t index) {
  separate();
  out_ += '[';
  appendUnsigned(out_, index, false);
  out_ += "] = ";
}

void TextLayout::unsignedInteger(std::uint64_t value, bool hex) {
  appendUnsigned(out_, value, hex);
}

void TextLayout::signedInteger(std::int64_t value, bool hex) { appendSigned(out_, value, hex); }

void TextLayout::real(double value) { appendReal(out_, value, "nan"); }

void TextLayout::string(std::string_view value) {
  out_ += '"';
  decoding::appendEscapedText(out_, value, true);
  out_ += '"';
}

void TextLayout::typed(std::string_view, const TypedResult& result,
                       std::span<const unsigned char> bytes) {
  if (result.valid) {
    decoding::appendEscapedText(out_, result.text);
    return;
  }
  out_ += "<invalid: ";
  decoding::appendEscapedText(out_, result.reason);
  out_ += " [";
  decoding::appendHex(out_, bytes.data(), bytes.size(), " ");
  out_ += "]>";
}

} // namespace Orvane::tracing
