#include "tools/ovfmt/Escape.h"

#include "registry/HexDigits.h"

#include <algorithm>
#include <string>
#include <vector>

namespace Orvane::ovfmt {
namespace {

bool hasControl(std::string_view text) { return std::any_of(text.begin(), text.end(), isControl); }

} // namespace

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
  const auto first = std::find_if(arguments.begin(), arguments.end(),
                                  [](const decoding::Argument& a) { return hasControl(a.text); });
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
