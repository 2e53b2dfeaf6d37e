#include "tools/ovfmt/RecordPrinter.h"

#include "tools/ovfmt/Problems.h"

namespace Orvane::ovfmt {

bool RecordPrinter::print(const Where& where, std::string_view idList, std::string_view hex,
                          Output& output) {
  splitIdList(idList, ids_);
  if (options_.layout && options_.layout->placeholders() != ids_.size())
    return fail(where, placeholderCountProblem(options_.layout->placeholders(), ids_.size()),
                output);
  if (!resolve(where, output)) return false;
  std::string hexError;
  if (!walker_.loadHex(hex, hexError)) return fail(where, hexError, output);

  const auto arguments = walker_.walk(types_);
  return options_.counts ? printCounts(where, arguments, output)
                         : printText(where, arguments, output);
}

bool RecordPrinter::resolve(const Where& where, Output& output) {
  types_.clear();
  for (std::size_t i = 0; i < ids_.size(); ++i) {
    const host::FormatterPair* formatter = formatters_.find(ids_[i]);
    if (!formatter)
      return fail(where, prefix(i) + unknownIdProblem(ids_[i]) + " (ovfmt --list shows the ids)",
                  output);
    if (!formatter->format || !formatter->length)
      return fail(where, prefix(i) + missingFunctionProblem(ids_[i], *formatter), output);
    types_.push_back({ids_[i], formatter});
  }
  return true;
}

bool RecordPrinter::printCounts(const Where& where, std::span<const Argument> arguments,
                                Output& output) {
  std::string& text = output.text();
  for (const Argument& argument : arguments) {
    text += argument.id;
    text += '\t';
    text += std::to_string(argument.length);
    text += '\t';
    text += std::to_string(argument.consumed);
    text += '\t';
    text += argument.text;
    text += '\n';
  }
  if (arguments.size() < types_.size())
    return fail(where, prefix(arguments.size()) + notReachedProblem(arguments.size()), output);
  reportLeftover(where, arguments, output);
  return true;
}

bool RecordPrinter::printText(const Where& where, std::span<const Argument> arguments,
                              Output& output) {
  const std::string problem = firstFaultProblem(arguments, types_.size(), walker_.size());
  if (!problem.empty()) return fail(where, problem, output);
  texts_.clear();
  for (const Argument& argument : arguments) texts_.push_back(argument.text);
  std::string& text = output.text();
  if (options_.layout) {
    options_.layout->render(texts_, text);
  } else {
    for (std::size_t i = 0; i < texts_.size(); ++i) {
      if (i) text += options_.separator;
      text += texts_[i];
    }
  }
  text += '\n';
  reportLeftover(where, arguments, output);
  return true;
}

void RecordPrinter::reportLeftover(const Where& where, std::span<const Argument> arguments,
                                   Output& output) {
  if (walker_.finished() && walker_.leftover() > 0)
    fail(where, prefix(arguments.size() - 1) + leftoverProblem(walker_.leftover()), output);
}

bool RecordPrinter::fail(const Where& where, const std::string& problem, Output& output) {
  std::string line = "ovfmt: ";
  line += where.source;
  if (where.line) {
    line += ':';
    line += std::to_string(where.line);
  }
  line += ": ";
  line += problem;
  line += '\n';
  output.error(std::move(line));
  return false;
}

std::string RecordPrinter::prefix(std::size_t index) const {
  return argumentPrefix(index + 1, ids_.size(), ids_[index]);
}

} // namespace Orvane::ovfmt
