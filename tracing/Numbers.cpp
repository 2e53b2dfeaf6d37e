#include "tracing/Numbers.h"

#include <charconv>
#include <cmath>

namespace Orvane::tracing {
namespace {

template <class Number> void appendNumber(std::string& out, Number value, int base) {
  char text[32];
  const auto [end, error] = std::to_chars(text, text + sizeof text, value, base);
  out.append(text, static_cast<std::size_t>(end - text));
}

} // namespace

void appendUnsigned(std::string& out, std::uint64_t value, bool hex) {
  if (hex) out += "0x";
  appendNumber(out, value, hex ? 16 : 10);
}

void appendSigned(std::string& out, std::int64_t value, bool hex) {
  if (hex)
    appendUnsigned(out, static_cast<std::uint64_t>(value), true);
  else
    appendNumber(out, value, 10);
}

void appendReal(std::string& out, double value, const char* notFinite) {
  if (!std::isfinite(value)) {
    out += notFinite;
    return;
  }
  char text[32];
  const auto [end, error] = std::to_chars(text, text + sizeof text, value);
  out.append(text, static_cast<std::size_t>(end - text));
}

} // namespace Orvane::tracing
