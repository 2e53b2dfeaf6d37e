#include "tracing/Escape.h"

#include "registry/HexDigits.h"

namespace Orvane::tracing {
namespace {

/// The length of the valid UTF-8 sequence starting at `text[at]`, or 0 when the byte
/// there does not start one. Only called for bytes from 0x80 on.
std::size_t utf8Length(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[at + i]); };
  const unsigned char lead = byte(0);
  std::size_t length = 0;
  unsigned char low = 0x80, high = 0xbf; // the range of the second byte
  if (lead >= 0xc2 && lead <= 0xdf) {
    length = 2;
  } else if (lead >= 0xe0 && lead <= 0xef) {
    length = 3;
    if (lead == 0xe0) low = 0xa0;  // no overlong forms
    if (lead == 0xed) high = 0x9f; // no surrogates
  } else if (lead >= 0xf0 && lead <= 0xf4) {
    length = 4;
    if (lead == 0xf0) low = 0x90;
    if (lead == 0xf4) high = 0x8f; // nothing above U+10FFFF
  } else {
    return 0;
  }
  if (text.size() - at < length) return 0;
  if (byte(1) < low || byte(1) > high) return 0;
  for (std::size_t i = 2; i < length; ++i)
    if (byte(i) < 0x80 || byte(i) > 0xbf) return 0;
  return length;
}

/// Whether the two-byte sequence at `text[at]` encodes a C1 control (U+0080 to U+009F).
bool isC1(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]) == 0xc2 &&
         static_cast<unsigned char>(text[at + 1]) <= 0x9f;
}

void appendCode(std::string& out, const char* prefix, unsigned char code) {
  char digits[2];
  writeHexByte(code, digits);
  out += prefix;
  out.append(digits, 2);
}

/// The short escape of a control character, or 0 when it has none.
char shortEscape(unsigned char c) {
  switch (c) {
  case '\n': return 'n';
  case '\t': return 't';
  case '\r': return 'r';
  default: return 0;
  }
}

/// Appends `text`, handing each byte that needs escaping to `escapeByte` and each C1
/// control to `escapeC1`; runs of plain characters are copied at once.
template <class EscapeByte, class EscapeC1>
void appendWith(std::string& out, std::string_view text, EscapeByte escapeByte, EscapeC1 escapeC1) {
  std::size_t plainFrom = 0, i = 0;
  const auto flush = [&] { out.append(text.data() + plainFrom, i - plainFrom); };
  while (i < text.size()) {
    const auto c = static_cast<unsigned char>(text[i]);
    if (c >= 0x20 && c < 0x7f && c != '"' && c != '\\') {
      ++i;
      continue;
    }
    if (c < 0x80) {
      flush();
      escapeByte(c, true);
      plainFrom = ++i;
      continue;
    }
    const std::size_t length = utf8Length(text, i);
    if (length == 2 && isC1(text, i)) {
      flush();
      escapeC1(static_cast<unsigned char>(text[i + 1]));
      plainFrom = i += 2;
    } else if (length == 0) {
      flush();
      escapeByte(c, false);
      plainFrom = ++i;
    } else {
      i += length;
    }
  }
  flush();
}

} // namespace

void appendEscapedText(std::string& out, std::string_view text, bool quoted) {
  appendWith(
      out, text,
      [&](unsigned char c, bool ascii) {
        if (ascii && (c == '"' || c == '\\')) {
          if (quoted) out += '\\';
          out += static_cast<char>(c);
        } else if (const char letter = shortEscape(c)) {
          out += '\\';
          out += letter;
        } else {
          appendCode(out, "\\x", c);
        }
      },
      [&](unsigned char code) { appendCode(out, "\\u00", code); });
}

void appendJsonString(std::string& out, std::string_view text) {
  appendWith(
      out, text,
      [&](unsigned char c, bool ascii) {
        if (ascii && (c == '"' || c == '\\')) {
          out += '\\';
          out += static_cast<char>(c);
        } else if (const char letter = shortEscape(c)) {
          out += '\\';
          out += letter;
        } else {
          appendCode(out, "\\u00", c);
        }
      },
      [&](unsigned char code) { appendCode(out, "\\u00", code); });
}

void appendHex(std::string& out, const unsigned char* bytes, std::size_t count,
               std::string_view separator) {
  for (std::size_t i = 0; i < count; ++i) {
    if (i > 0) out += separator;
    char digits[2];
    writeHexByte(bytes[i], digits);
    out.append(digits, 2);
  }
}

} // namespace Orvane::tracing
