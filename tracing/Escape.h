// Making traced text safe to print: one event stays one line, and no traced byte reaches
// a terminal as a control sequence. Formatters print what they print; the reader escapes.
#pragma once

#include <string>
#include <string_view>

namespace Orvane::tracing {

/// Appends `text` to `out` for a text line: C0 controls and DEL as "\n", "\t", "\r" or
/// "\xNN", C1 controls (U+0080 to U+009F, as UTF-8) as "\u00NN", and each byte that is
/// not part of valid UTF-8 as "\xNN". Inside a `quoted` string '"' and '\' are escaped
/// too; elsewhere they are kept, like everything else.
void appendEscapedText(std::string& out, std::string_view text, bool quoted = false);

/// Appends `text` to `out` as the inside of a JSON string: '"' and '\' escaped, control
/// characters (C0, DEL, C1) as "\n", "\t", "\r" or "\u00NN", and each byte that is not
/// part of valid UTF-8 as "\u00NN" (read as Latin-1), so the line is valid UTF-8.
void appendJsonString(std::string& out, std::string_view text);

/// Appends the bytes as lowercase hex pairs joined by `separator` (none when empty).
void appendHex(std::string& out, const unsigned char* bytes, std::size_t count,
               std::string_view separator);

} // namespace Orvane::tracing
