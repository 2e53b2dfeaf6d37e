#include "tools/ovfmt/RecordPrinter.h"

#include "decoding/Problems.h"
#include "tools/ovfmt/Hex.h"

#include <algorithm>

namespace Orvane::ovfmt {
namespace {

// Parses `hex` straight into the walker's buffer as the record. On bad hex returns
// false, sets `error` (see parseHexInto) and leaves an empty record, the bytes parsed
// before the error zeroed again: they lie in the guard of the next record.
bool loadHex(decoding::RecordWalker& walker, std::string_view hex, std::string& error) {
  std::size_t written = 0;
  const bool parsed = parseHexInto(hex, walker.prepare(maxHexBytes(hex)), written, error);
  walker.place(written);
  if (!parsed) walker.place(0);
  return parsed;
}

} // namespace

bool RecordPrinter::print(const Where& where, std::string_view idList, std::string_view hex,
                          Output& output) {
  if (!resolve(where, idList, output)) return false;
  std::string hexError;
  if (!loadHex(walker_, hex, hexError)) return fail(where, hexError, output);
  return options_.counts ? printCounts(where, output) : printText(where, output);
}

bool RecordPrinter::resolve(const Where& where, std::string_view idList, Output& output) {
  if (const auto* known = typeLists_.find(idList)) { // remembered only when it fit
    types_ = *known;
    return true;
  }
  decoding::splitIdList(idList, ids_);
  if (!fitsTemplate(ids_.size())) return templateMisfit(where, ids_.size(), output);
  resolved_.clear();
  for (std::size_t i = 0; i < ids_.size(); ++i) {
    const host::FormatterPair* formatter = host::findFormatter(ids_[i]);
    if (std::string problem = decoding::formatterProblem(ids_[i], formatter); !problem.empty())
      return fail(where,
                  decoding::argumentPrefix(i + 1, ids_.size(), ids_[i]) + problem +
                      (formatter ? "" : " (ovfmt --list shows the ids)"),
                  output);
    resolved_.push_back({ids_[i], formatter});
  }
  typeLists_.remember(idList, resolved_);
  types_ = resolved_;
  return true;
}

bool RecordPrinter::templateMisfit(const Where& where, std::size_t count, Output& output) {
  return fail(where, decoding::placeholderCountProblem(options_.layout->placeholders(), count),
              output);
}

bool RecordPrinter::printCounts(const Where& where, Output& output) {
  const auto arguments = walker_.walk(types_);
  decoding::TextStream& text = output.text();
  for (const decoding::Argument& argument : arguments) {
    text.append(argument.id);
    text.append('\t');
    text.append(std::to_string(argument.length));
    text.append('\t');
    text.append(std::to_string(argument.consumed));
    text.append('\t');
    text.append(argument.text);
    text.append('\n');
  }
  if (arguments.size() < types_.size())
    return fail(where, prefix(arguments.size()) + decoding::notReachedProblem(arguments.size()),
                output);
  reportLeftover(where, arguments, output);
  return true;
}

bool RecordPrinter::printText(const Where& where, Output& output) {
  // Each text goes straight into the output after its gap; a record that fails takes
  // back what it printed.
  decoding::TextStream& text = output.text();
  const std::size_t start = text.size();
  const bool gapped = options_.layout || types_.size() > 1;
  const auto arguments =
      walker_.walk(types_, text, gapped ? gaps() : std::span<std::string_view>());
  const std::size_t recordSize = walker_.size();
  const bool clean =
      std::all_of(arguments.begin(), arguments.end(), [&](const decoding::Argument& a) {
        return decoding::faultOf(a, recordSize) == decoding::Fault::None;
      });
  if (!clean) {
    text.truncate(start);
    return fail(where, decoding::firstFaultProblem(arguments, types_.size(), recordSize), output);
  }
  if (options_.layout) text.append(options_.layout->literal(types_.size()));
  text.append('\n');
  reportLeftover(where, arguments, output);
  return true;
}

std::span<const std::string_view> RecordPrinter::gaps() {
  const std::size_t count = types_.size();
  if (gaps_.size() != count) {
    gaps_.clear();
    for (std::size_t i = 0; i < count; ++i)
      gaps_.push_back(options_.layout ? options_.layout->literal(i)
                      : i == 0        ? std::string_view()
                                      : std::string_view(options_.separator));
  }
  return gaps_;
}

void RecordPrinter::reportLeftover(const Where& where,
                                   std::span<const decoding::Argument> arguments, Output& output) {
  if (std::string problem = decoding::leftoverProblem(walker_, arguments); !problem.empty())
    fail(where, problem, output);
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
  return decoding::argumentPrefix(index + 1, types_.size(), types_[index].id);
}

} // namespace Orvane::ovfmt
