// Control characters in the texts ovfmt prints, written as "\xNN" so that one value stays
// one line and no traced byte reaches a terminal as an escape sequence.
#pragma once

#include "decoding/Record.h"
#include "decoding/TextStream.h"

#include <span>
#include <string_view>

namespace Orvane::ovfmt {

/// Whether `c` is escaped for display: C0 (0x00 to 0x1f) and DEL (0x7f). Bytes from
/// 0x80 up pass, so UTF-8 text stays readable.
inline bool isControl(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20 || byte == 0x7f;
}

/// Whether `text` holds a control character (see isControl). Reads eight bytes at a
/// time: most texts have none, and this is the whole cost of escaping them.
bool containsControl(std::string_view text);

/// Appends `text` to `out`, each control character as "\xNN" (lowercase hex digits).
void appendEscaped(std::string_view text, decoding::TextStream& out);

/// Rewrites, in place in `out`, the texts of `arguments` (which view `out`, in order)
/// with their control characters escaped; the text between them stays as it is. Leaves
/// `out` untouched, without a copy, when no text holds a control character.
void escapeTexts(std::span<const decoding::Argument> arguments, decoding::TextStream& out);

} // namespace Orvane::ovfmt
