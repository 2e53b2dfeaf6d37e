// Raw bytes as groups of lowercase hex digits, two digits a byte: the text of MAC
// addresses, Ethernet segment ids and system ids, built from a digit table.
#pragma once

#include "registry/HexDigits.h"
#include "registry/TextRun.h"

#include <ostream>
#include <string_view>

namespace Orvane {

/// Writes `count` bytes at `out` as hex, `groupBytes` bytes a group, groups joined by
/// `separator`, and returns the end: 00 1c 73 aa bb cc in groups of 2 joined by "." is
/// 001c.73aa.bbcc. Writes 2 * count + (count - 1) / groupBytes characters, no NUL.
inline char* writeHexGroups(const unsigned char* bytes, int count, int groupBytes, char separator,
                            char* out) {
  for (int i = 0; i < count; ++i) {
    if (i != 0 && i % groupBytes == 0) *out++ = separator;
    out = writeHexByte(bytes[i], out);
  }
  return out;
}

/// Joins (TextRun::join) the text of writeHexGroups() for at most 16 bytes to `text`:
/// one piece, so a width the caller set pads it whole.
inline void printHexGroups(TextRun& text, const unsigned char* bytes, int count, int groupBytes,
                           char separator) {
  char buffer[48];
  text.join(std::string_view(buffer, writeHexGroups(bytes, count, groupBytes, separator, buffer)));
}

} // namespace Orvane
