#include "tools/ovfmt/CommandLine.h"

#include "decoding/Problems.h"
#include "tools/ovfmt/Suggest.h"

#include <optional>

namespace Orvane::ovfmt {
namespace {

// The column where the help of every option starts.
constexpr std::size_t kHelpColumn = 24;

const OptionRow* findLong(std::span<const OptionRow> rows, std::string_view name) {
  for (const OptionRow& row : rows)
    if (row.name == name) return &row;
  return nullptr;
}

const OptionRow* findShort(std::span<const OptionRow> rows, char name) {
  for (const OptionRow& row : rows)
    if (row.shortName == name) return &row; // `name` is never 0: it is a character of argv
  return nullptr;
}

// An option word split into its row and the value written into the word itself.
struct OptionWord {
  const OptionRow* row = nullptr;
  std::optional<std::string_view> value; ///< after '=' or after "-X"
};

OptionWord splitOptionWord(std::span<const OptionRow> rows, std::string_view word) {
  if (word.starts_with("--")) {
    const std::string_view body = word.substr(2);
    const std::size_t equals = body.find('=');
    OptionWord split{findLong(rows, body.substr(0, equals)), std::nullopt};
    if (equals != std::string_view::npos) split.value = body.substr(equals + 1);
    return split;
  }
  OptionWord split{findShort(rows, word[1]), std::nullopt};
  if (word.size() > 2) split.value = word.substr(2);
  return split;
}

// "  -X, --name=VALUE", or "      --name=VALUE" for an option without a short form.
std::string entryNames(const OptionRow& row) {
  std::string names(6, ' ');
  if (row.shortName) {
    names[2] = '-';
    names[3] = row.shortName;
    names[4] = ',';
  }
  names.append("--").append(row.name);
  if (!row.valueName.empty()) names.append("=").append(row.valueName);
  return names;
}

// Appends, rather than "'" + text + "'", which g++ 12 -O3 wrongly warns about (-Wrestrict).
std::string quoted(std::string_view word) {
  std::string text(1, '\'');
  text += decoding::printable(word);
  text += '\'';
  return text;
}

// "unknown option '--jsn' (did you mean --json?)": a long option near one of the table's.
std::string unknownOption(std::span<const OptionRow> rows, std::string_view word) {
  std::string problem = "unknown option " + quoted(word);
  if (!word.starts_with("--")) return problem;
  std::vector<std::string> names;
  for (const OptionRow& row : rows) names.push_back("--" + std::string(row.name));
  const std::string near = nearestIds(word.substr(0, word.find('=')), names);
  return near.empty() ? problem : problem + " (did you mean " + near + "?)";
}

} // namespace

std::string parseCommandLine(std::span<const char* const> args, std::span<const OptionRow> rows,
                             Options& options, std::vector<std::string>& positional) {
  bool optionsEnded = false;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string_view word = args[i];
    if (optionsEnded || word.size() < 2 || word[0] != '-') {
      positional.emplace_back(word);
      continue;
    }
    if (word == "--") {
      optionsEnded = true;
      continue;
    }
    const auto [row, inlineValue] = splitOptionWord(rows, word);
    // "-nX" is no cluster of flags: a flag's short form stands alone.
    if (!row || (inlineValue && row->valueName.empty() && !word.starts_with("--")))
      return unknownOption(rows, word);
    std::string_view value;
    if (row->valueName.empty()) {
      if (inlineValue) return "option '--" + std::string(row->name) + "' takes no value";
    } else if (inlineValue) {
      value = *inlineValue;
    } else if (i + 1 < args.size()) {
      value = args[++i];
    } else {
      return "option '--" + std::string(row->name) + "' needs a value (" +
             std::string(row->valueName) + ")";
    }
    if (std::string problem = row->apply(options, value); !problem.empty()) return problem;
  }
  return "";
}

std::string optionsHelp(std::span<const OptionRow> rows) {
  std::string help;
  for (const OptionRow& row : rows) {
    const std::string names = entryNames(row);
    help += names;
    // A name too long for its column puts the help on the next line.
    help += names.size() + 2 <= kHelpColumn ? std::string(kHelpColumn - names.size(), ' ')
                                            : "\n" + std::string(kHelpColumn, ' ');
    for (char c : row.help) {
      help += c;
      if (c == '\n') help += std::string(kHelpColumn, ' ');
    }
    help += '\n';
  }
  return help;
}

} // namespace Orvane::ovfmt
