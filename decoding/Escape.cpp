#include "decoding/Escape.h"

#include "registry/Bytes.h"
#include "registry/HexDigits.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace Orvane::decoding {
namespace {

constexpr std::uint64_t kEveryByte = 0x0101010101010101;
constexpr std::uint64_t kHighBits = 0x8080808080808080;

/// Whether one of the eight bytes of `word` is below 0x20 or from 0x7f up. A byte below
/// 0x20 borrows into its high bit when 0x20 is subtracted from it; a byte of 0x7f carries
/// into its high bit when 1 is added; a byte from 0x80 up has it set already. A borrow or
/// a carry can only mark bytes above one that matched, so the answer for the word as a
/// whole is exact.
bool wordMayNeedEscape(std::uint64_t word) {
  return ((word - kEveryByte * 0x20) | word | (word + kEveryByte)) & kHighBits;
}

bool mayNeedEscapeByte(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return byte < 0x20 || byte >= 0x7f;
}

/// Appends `text` to `out` (a std::string or a TextStream) under the text rule.
template <class Out> void appendText(Out& out, std::string_view text, bool quoted) {
  std::size_t plain = 0; // the start of the run of bytes that pass as they are
  const auto flushTo = [&](std::size_t end) { out.append(text.substr(plain, end - plain)); };
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte >= 0x20 && byte < 0x7f && byte != '"' && byte != '\\') continue; // most bytes
    std::size_t escaped = 0; // how many bytes from i print as "\xNN" each
    if (isControl(byte))
      escaped = 1;
    else if (isC1At(text, i))
      escaped = 2;
    if (escaped) {
      flushTo(i);
      char escapes[8];
      for (std::size_t k = 0; k < escaped; ++k) {
        escapes[4 * k] = '\\';
        escapes[4 * k + 1] = 'x';
        writeHexByte(static_cast<unsigned char>(text[i + k]), escapes + 4 * k + 2);
      }
      out.append(std::string_view(escapes, 4 * escaped));
      i += escaped - 1;
      plain = i + 1;
    } else if (quoted && (byte == '"' || byte == '\\')) {
      flushTo(i);
      const char pair[2] = {'\\', static_cast<char>(byte)};
      out.append(std::string_view(pair, 2));
      plain = i + 1;
    }
  }
  flushTo(text.size());
}

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

void appendUnicodeEscape(std::string& out, unsigned char code) {
  char escape[6] = {'\\', 'u', '0', '0'};
  writeHexByte(code, escape + 4);
  out.append(escape, sizeof escape);
}

/// The short JSON escape of a control character, or 0 when it has none.
char shortEscape(unsigned char c) {
  switch (c) {
  case '\n': return 'n';
  case '\t': return 't';
  case '\r': return 'r';
  default: return 0;
  }
}

} // namespace

bool mayNeedEscape(std::string_view text) {
  constexpr std::size_t kWord = sizeof(std::uint64_t);
  if (text.size() < kWord) return std::any_of(text.begin(), text.end(), mayNeedEscapeByte);
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
  for (std::size_t at = 0; at + kWord < text.size(); at += kWord)
    if (wordMayNeedEscape(load<std::uint64_t>(bytes + at))) return true;
  // The last word ends with the text, overlapping the one before when the size is not
  // a multiple of eight.
  return wordMayNeedEscape(load<std::uint64_t>(bytes + text.size() - kWord));
}

bool needsEscape(std::string_view text) {
  if (!mayNeedEscape(text)) return false;
  for (std::size_t i = 0; i < text.size(); ++i)
    if (isControl(static_cast<unsigned char>(text[i])) || isC1At(text, i)) return true;
  return false;
}

void appendEscapedText(std::string& out, std::string_view text, bool quoted) {
  appendText(out, text, quoted);
}

void appendEscapedText(TextStream& out, std::string_view text, bool quoted) {
  appendText(out, text, quoted);
}

void escapeTexts(std::span<const Argument> arguments, TextStream& out) {
  if (arguments.empty()) return;
  // The texts lie in order in `out`: one scan from the first to the end of the last
  // passes most records. What it finds may be in a gap (a tab separator) or be no
  // escape at all (UTF-8), so each text is then looked at alone.
  const char* begin = arguments.front().text.data();
  const std::string_view last = arguments.back().text;
  if (!mayNeedEscape(std::string_view(begin, last.data() + last.size()))) return;
  const auto first = std::find_if(arguments.begin(), arguments.end(),
                                  [](const Argument& a) { return needsEscape(a.text); });
  if (first == arguments.end()) return;
  // Offsets first: appending may move the buffer the texts view.
  const char* base = out.text().data();
  const auto from = static_cast<std::size_t>(first->text.data() - base);
  std::vector<std::pair<std::size_t, std::size_t>> spans; // each text's offset and size
  for (auto it = first; it != arguments.end(); ++it)
    spans.emplace_back(static_cast<std::size_t>(it->text.data() - base) - from, it->text.size());
  const std::string tail(out.text().substr(from));
  out.truncate(from);
  std::size_t copied = 0;
  for (const auto& [offset, size] : spans) {
    out.append(std::string_view(tail).substr(copied, offset - copied));
    appendText(out, std::string_view(tail).substr(offset, size), false);
    copied = offset + size;
  }
  out.append(std::string_view(tail).substr(copied));
}

void appendJsonString(std::string& out, std::string_view text) {
  std::size_t plain = 0, i = 0;
  const auto flush = [&] { out.append(text.data() + plain, i - plain); };
  while (i < text.size()) {
    const auto c = static_cast<unsigned char>(text[i]);
    if (c >= 0x20 && c < 0x7f && c != '"' && c != '\\') {
      ++i;
      continue;
    }
    if (c < 0x80) {
      flush();
      if (c == '"' || c == '\\') {
        out += '\\';
        out += static_cast<char>(c);
      } else if (const char letter = shortEscape(c)) {
        out += '\\';
        out += letter;
      } else {
        appendUnicodeEscape(out, c);
      }
      plain = ++i;
      continue;
    }
    const std::size_t length = utf8Length(text, i);
    if (length == 2 && isC1At(text, i)) {
      flush();
      appendUnicodeEscape(out, static_cast<unsigned char>(text[i + 1]));
      plain = i += 2;
    } else if (length == 0) {
      flush();
      appendUnicodeEscape(out, c);
      plain = ++i;
    } else {
      i += length;
    }
  }
  flush();
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

} // namespace Orvane::decoding
