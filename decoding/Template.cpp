#include "decoding/Template.h"

namespace Orvane::decoding {
std::optional<Template> Template::parse(std::string_view text, std::string& error) {
  Template parsed;
  parsed.literals_.emplace_back();
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    const char next = i + 1 < text.size() ? text[i + 1] : '\0';
    if (c == '{' && next == '}') {
      parsed.literals_.emplace_back();
    } else if ((c == '{' || c == '}') && next == c) {
      parsed.literals_.back() += c;
    } else if (c == '{' || c == '}') {
      error = std::string("template: stray '") + c + "' at column " + std::to_string(i + 1) +
              " (write {} for an argument, {{ or }} for a brace)";
      return std::nullopt;
    } else {
      parsed.literals_.back() += c;
      continue;
    }
    ++i; // a pair of characters
  }
  return parsed;
}

void Template::render(std::span<const std::string_view> texts, std::string& out) const {
  out += literals_.front();
  for (std::size_t i = 0; i < texts.size(); ++i) {
    out += texts[i];
    out += literals_[i + 1];
  }
}

} // namespace Orvane::decoding
