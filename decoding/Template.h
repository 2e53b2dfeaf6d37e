// Message templates: literal text with a "{}" where each argument's text goes.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::decoding {

/// A parsed template. Each "{}" stands for the next argument's text, "{{" and "}}"
/// print single braces, and every other character is literal. A '{' or '}' that is not
/// part of one of those three pairs is an error, so that a typo such as "{0}" or a lone
/// brace is caught rather than printed.
class Template {
public:
  /// Parses `text`. On failure returns nullopt and sets `error` to the stray brace and
  /// its column.
  static std::optional<Template> parse(std::string_view text, std::string& error);

  /// How many "{}" the template holds: the arguments it needs.
  std::size_t placeholders() const { return literals_.size() - 1; }

  /// The literal text before the i-th "{}", or after the last one for i = placeholders().
  std::string_view literal(std::size_t i) const { return literals_[i]; }

  /// Appends the template to `out` with the i-th "{}" replaced by `texts[i]`.
  /// `texts` must hold exactly placeholders() texts.
  void render(std::span<const std::string_view> texts, std::string& out) const;

private:
  std::vector<std::string> literals_; ///< the text around the placeholders, braces unescaped
};

} // namespace Orvane::decoding
