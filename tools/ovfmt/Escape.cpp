#include "tools/ovfmt/Escape.h"

#include "registry/Bytes.h"
#include "registry/HexDigits.h"

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

namespace Orvane::ovfmt {
namespace {

constexpr std::uint64_t kEveryByte = 0x0101010101010101;
constexpr std::uint64_t kHighBits = 0x8080808080808080;

/// Whether one of the eight bytes of `word` is below 0x20 or is 0x7f. A byte below n
/// (n at most 0x80) borrows into its high bit when n is subtracted from it, and `~word`
/// drops bytes whose high bit was set already; a borrow can only mark bytes above one
/// that matched, so the answer for the word as a whole is exact.
bool wordHasControl(std::uint64_t word) {
  const std::uint64_t belowSpace = (word - kEveryByte * 0x20) & ~word;
  const std::uint64_t delAsZero = word ^ (kEveryByte * 0x7f);
  const std::uint64_t isDel = (delAsZero - kEveryByte) & ~delAsZero;
  return ((belowSpace | isDel) & kHighBits) != 0;
}

} // namespace

bool containsControl(std::string_view text) {
  constexpr std::size_t kWord = sizeof(std::uint64_t);
  if (text.size() < kWord) return std::any_of(text.begin(), text.end(), isControl);
  const auto* bytes = reinterpret_cast<const unsigned char*>(text.data());
  for (std::size_t at = 0; at + kWord < text.size(); at += kWord)
    if (wordHasControl(load<std::uint64_t>(bytes + at))) return true;
  // The last word ends with the text, overlapping the one before when the size is not
  // a multiple of eight.
  return wordHasControl(load<std::uint64_t>(bytes + text.size() - kWord));
}

void appendEscaped(std::string_view text, decoding::TextStream& out) {
  std::size_t plain = 0; // the start of the run of characters that need no escape
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (!isControl(text[i])) continue;
    out.append(text.substr(plain, i - plain));
    char escape[4] = {'\\', 'x'};
    writeHexByte(static_cast<unsigned char>(text[i]), escape + 2);
    out.append(std::string_view(escape, sizeof escape));
    plain = i + 1;
  }
  out.append(text.substr(plain));
}

void escapeTexts(std::span<const decoding::Argument> arguments, decoding::TextStream& out) {
  if (arguments.empty()) return;
  // The texts lie in order in `out`: one scan from the first to the end of the last
  // passes most records. What it finds may be in a gap (a tab separator), so each text
  // is then looked at alone.
  const char* begin = arguments.front().text.data();
  const std::string_view last = arguments.back().text;
  if (!containsControl(std::string_view(begin, last.data() + last.size()))) return;
  const auto first =
      std::find_if(arguments.begin(), arguments.end(),
                   [](const decoding::Argument& a) { return containsControl(a.text); });
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
    appendEscaped(std::string_view(tail).substr(offset, size), out);
    copied = offset + size;
  }
  out.append(std::string_view(tail).substr(copied));
}

} // namespace Orvane::ovfmt
