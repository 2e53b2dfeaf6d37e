// Numbers as the layouts print them.
#pragma once

#include <cstdint>
#include <string>

namespace Orvane::tracing {

/// Appends `value` in decimal, or in hex after "0x" when `hex`.
void appendUnsigned(std::string& out, std::uint64_t value, bool hex);
/// Appends `value` in decimal, or its two's complement in hex after "0x" when `hex`.
void appendSigned(std::string& out, std::int64_t value, bool hex);
/// Appends `value` in the shortest form that reads back the same; `notFinite` for a NaN
/// or an infinity.
void appendReal(std::string& out, double value, const char* notFinite);

} // namespace Orvane::tracing
