// Making traced text safe to print, for every front end (ovfmt's value mode, the trace
// reader's text and JSON lines and its warnings): one value or event stays one line, and
// no traced byte reaches a terminal as a control sequence. Formatters print what they
// print; the front end escapes. Two rules:
//
// The text rule (every text output: ovfmt's values, the trace reader's text lines):
//   - a C0 control (0x00 to 0x1f) or DEL (0x7f) prints as "\xNN", lowercase hex, with no
//     short forms: a tab is "\x09", a newline "\x0a", ESC "\x1b";
//   - a C1 control, i.e. its UTF-8 encoding C2 80 to C2 9F (U+0080 to U+009F), prints as
//     the "\xNN" of each of its two bytes, "\xc2\x9b" for CSI, since some terminals act
//     on it;
//   - every other byte passes as it is: printable ASCII, valid UTF-8 ("é" is C3 A9), and
//     bytes that are not valid UTF-8 (FF, a C2 at the end of the text, C2 7F, whose 7F
//     prints as "\x7f");
//   - a backslash is not escaped, so the result is for reading, not for decoding back;
//     inside a trace text line's quoted string (`quoted`) '"' prints as "\"" and '\' as
//     "\\", which is the quoting.
//   Examples, a text's bytes as a C string literal, then what prints:
//     "a\tb\n"              a\x09b\x0a
//     "\x1b[31mred\x7f"     \x1b[31mred\x7f
//     "csi\xc2\x9b"         csi\xc2\x9b           (CSI, a C1 control)
//     "\xc2\x80\xc2\xa0"    \xc2\x80 and the bytes C2 A0 as they are (U+00A0 is no control)
//     "caf\xc3\xa9 \xff"    the same bytes        (valid UTF-8 or not)
//     "\xc2\x7f"            the byte C2, then \x7f
//     "end\xc2"             the same bytes        (a C2 that ends the text)
//     "q\"b\\"              q"b\                  (q\"b\\ inside a quoted string)
//
// The JSON rule (the inside of a JSON string): '"' and '\' as "\"" and "\\"; newline,
// tab and carriage return as "\n", "\t", "\r"; every other C0, DEL and C1 control as
// "\u00NN"; each byte that is not part of valid UTF-8 as "\u00NN" of its value (read as
// Latin-1), so the line is valid UTF-8; valid UTF-8 passes.
//   Examples, as above:
//     "a\tb\n"              a\tb\n
//     "\x1b[31m\x7f"        \u001b[31m\u007f
//     "csi\xc2\x9b"         csi\u009b
//     "bad\xff\xc3"         bad\u00ff\u00c3       (FF is never UTF-8; C3 is cut short)
//     "caf\xc3\xa9"         the same bytes
//     "q\"b\\"              q\"b\\                (both quoted)
#pragma once

#include "decoding/Record.h"
#include "decoding/TextStream.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

namespace Orvane::decoding {

// ---- The text rule ----

/// Whether `byte` is a C0 control (0x00 to 0x1f) or DEL (0x7f): escaped alone.
inline bool isControl(unsigned char byte) { return byte < 0x20 || byte == 0x7f; }

/// Whether the two bytes at `text[at]` encode a C1 control (C2 80 to C2 9F).
inline bool isC1At(std::string_view text, std::size_t at) {
  return at + 1 < text.size() && static_cast<unsigned char>(text[at]) == 0xc2 &&
         static_cast<unsigned char>(text[at + 1]) >= 0x80 &&
         static_cast<unsigned char>(text[at + 1]) <= 0x9f;
}

/// False only when `text` needs no escaping under the text rule: it holds no C0, no DEL
/// and no byte from 0x80 up. Reads eight bytes at a time: most texts are plain ASCII,
/// and for them this is the whole cost of escaping. True is no verdict for a text with
/// bytes from 0x80 up (UTF-8): needsEscape() tells.
bool mayNeedEscape(std::string_view text);

/// Whether `text` holds a byte that the text rule escapes: a C0, DEL or a C1 control.
bool needsEscape(std::string_view text);

/// Appends `text` to `out` under the text rule; `quoted`: inside a quoted string, where
/// '"' and '\' are escaped too.
void appendEscapedText(std::string& out, std::string_view text, bool quoted = false);
void appendEscapedText(TextStream& out, std::string_view text, bool quoted = false);

/// Rewrites, in place in `out`, the texts of `arguments` (which view `out`, in order)
/// under the text rule; the text between them (separators, template text) stays as it
/// is. Leaves `out` untouched, without a copy, when no text needs escaping.
void escapeTexts(std::span<const Argument> arguments, TextStream& out);

// ---- The JSON rule ----

/// Appends `text` to `out` as the inside of a JSON string, under the JSON rule.
void appendJsonString(std::string& out, std::string_view text);

// ---- Hex ----

/// Appends the bytes as lowercase hex pairs joined by `separator` (none when empty).
void appendHex(std::string& out, const unsigned char* bytes, std::size_t count,
               std::string_view separator);

} // namespace Orvane::decoding
