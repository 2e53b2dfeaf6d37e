#include "tools/ovfmt/RecordPrinter.h"

#include "decoding/Escape.h"
#include "decoding/Problems.h"
#include "tools/ovfmt/Hex.h"
#include "tools/ovfmt/Suggest.h"

#include <algorithm>

namespace Orvane::ovfmt {
namespace {

// Parses `hex` straight into the walker's buffer as the record. On bad hex returns
// false, sets `error` (see parseHexInto) and leaves an empty record, the bytes parsed
// before the error zeroed again: they lie in the guard of the next record.
bool loadHex(decoding::RecordWalker& walker, std::string_view hex, std::size_t firstColumn,
             std::string& error) {
  std::size_t written = 0;
  const bool parsed =
      parseHexInto(hex, walker.prepare(maxHexBytes(hex)), written, error, firstColumn);
  walker.place(written);
  if (!parsed) walker.place(0);
  return parsed;
}

} // namespace

bool RecordPrinter::print(const Where& where, std::string_view idList, std::string_view hex,
                          Output& output) {
  const std::size_t start = output.text().size();
  if (!resolve(where, idList, output)) return markFailed(where, start, output);
  std::string hexError;
  if (!loadHex(walker_, hex, where.hexColumn, hexError)) {
    fail(where, hexError, output);
    return markFailed(where, start, output);
  }
  return printLoaded(where, output) || markFailed(where, start, output);
}

bool RecordPrinter::print(const Where& where, std::string_view idList,
                          std::span<const unsigned char> bytes, Output& output) {
  const std::size_t start = output.text().size();
  if (!resolve(where, idList, output)) return markFailed(where, start, output);
  walker_.load(bytes);
  return printLoaded(where, output) || markFailed(where, start, output);
}

void RecordPrinter::printSkipped(const Where& where, Output& output) {
  if (!options_.keepLines) return;
  linePrefix(where, output.text());
  output.text().append('\n');
}

bool RecordPrinter::markFailed(const Where& where, std::size_t start, Output& output) {
  if (options_.keepLines && output.text().size() == start) {
    linePrefix(where, output.text());
    output.text().append(options_.failedMarker);
    output.text().append('\n');
  }
  return false;
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
                  decoding::argumentPrefix(i + 1, ids_.size(), ids_[i]) +
                      (formatter ? problem : unknownId(ids_[i])),
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
    linePrefix(where, text);
    text.append(argument.id);
    text.append('\t');
    text.append(std::to_string(argument.length));
    text.append('\t');
    text.append(std::to_string(argument.consumed));
    text.append('\t');
    appendText(argument.text, text);
    text.append('\n');
  }
  // The walk stops only after an argument with a fault: a record it cut short has one.
  const std::string problem = decoding::firstFaultProblem(arguments, types_.size(), walker_.size());
  if (!problem.empty()) return fail(where, problem, output);
  return reportLeftover(where, arguments, output);
}

bool RecordPrinter::printText(const Where& where, Output& output) {
  // Each text goes straight into the output after its gap; a record that fails takes
  // back what it printed.
  decoding::TextStream& text = output.text();
  const std::size_t start = text.size();
  linePrefix(where, text);
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
  if (!options_.raw) decoding::escapeTexts(arguments, text);
  if (options_.layout) text.append(options_.layout->literal(types_.size()));
  text.append('\n');
  return reportLeftover(where, arguments, output);
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

void RecordPrinter::linePrefix(const Where& where, decoding::TextStream& text) const {
  if (options_.nameSource) {
    text.append(where.source);
    text.append(':');
  }
  if (options_.numberLines) {
    text.append(std::to_string(where.line));
    text.append(':');
  }
}

void RecordPrinter::appendText(std::string_view text, decoding::TextStream& out) const {
  if (options_.raw)
    out.append(text);
  else
    decoding::appendEscapedText(out, text);
}

bool RecordPrinter::reportLeftover(const Where& where,
                                   std::span<const decoding::Argument> arguments, Output& output) {
  const std::string problem = decoding::leftoverProblem(walker_, arguments);
  return problem.empty() || fail(where, problem, output);
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

std::string RecordPrinter::unknownId(std::string_view id) {
  const std::string nearest = nearestIds(id, host::registeredIds());
  return decoding::formatterProblem(id, nullptr) +
         (nearest.empty() ? " (ovfmt --list shows the ids)" : "; did you mean " + nearest + "?");
}

} // namespace Orvane::ovfmt
