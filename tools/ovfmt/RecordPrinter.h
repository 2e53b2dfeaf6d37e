// Printing records as ovfmt does: one line of text per record, or with --counts one
// line per argument, and one error line on stderr for a record that failed.
#pragma once

#include "decoding/IdList.h"
#include "decoding/Record.h"
#include "decoding/Template.h"
#include "tools/ovfmt/Output.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::ovfmt {

/// How records are printed.
struct PrintOptions {
  /// One "ID<TAB>length<TAB>consumed<TAB>text" line per argument, also for invalid or
  /// incomplete ones, instead of the record's text.
  bool counts = false;
  /// The record's line: the template filled in, else the texts joined by `separator`.
  std::optional<decoding::Template> layout;
  std::string separator = " ";
};

/// Where a record came from, put into words only when a message names it (most records
/// need no message, so no text is built for them).
struct Where {
  std::string_view source; ///< the batch input's name, or the id list of the command line
  std::size_t line = 0;    ///< the batch line, 0 for a record on the command line
};

/// Formats records one after another; one printer serves one thread.
class RecordPrinter {
public:
  /// `options` must outlive the printer.
  explicit RecordPrinter(const PrintOptions& options) : options_(options) {}

  /// Formats the record `idList` ("ID[,ID...]") over the bytes of `hex` and appends what
  /// it prints to `output`: its text, or an error line "ovfmt: WHERE: PROBLEM" and no
  /// text when it failed. Bytes left after the last argument are reported after the
  /// text, and do not make the record fail. Returns false when the record failed.
  bool print(const Where& where, std::string_view idList, std::string_view hex, Output& output);

private:
  /// Sets types_ to the arguments of `idList`; false when the record failed.
  bool resolve(const Where& where, std::string_view idList, Output& output);
  /// Whether the template, if any, has one placeholder for each of `count` arguments.
  bool fitsTemplate(std::size_t count) const {
    return !options_.layout || options_.layout->placeholders() == count;
  }
  /// Reports a record of `count` arguments that does not fit the template.
  bool templateMisfit(const Where& where, std::size_t count, Output& output);
  /// Walks the record loaded and prints it, as the options say.
  bool printCounts(const Where& where, Output& output);
  bool printText(const Where& where, Output& output);
  /// The text before each argument of the current record: the template's literals, or
  /// the separator between arguments (none before the first).
  std::span<const std::string_view> gaps();
  /// Reports the bytes a finished walk left after the record's last argument, if any.
  void reportLeftover(const Where& where, std::span<const decoding::Argument> arguments,
                      Output& output);
  /// Adds "ovfmt: WHERE: PROBLEM" as an error line; returns false for `return fail(...)`.
  bool fail(const Where& where, const std::string& problem, Output& output);
  /// The "argument K of N (ID): " prefix of argument `index` (from 0) of types_.
  std::string prefix(std::size_t index) const;

  const PrintOptions& options_;
  decoding::TypeListCache typeLists_;
  decoding::RecordWalker walker_;
  std::vector<std::string_view> ids_;   ///< the ids of a list not seen before
  std::vector<decoding::ArgumentType> resolved_;  ///< their types, as they are found
  std::span<const decoding::ArgumentType> types_; ///< the current record's types
  std::vector<std::string_view> gaps_;
};

} // namespace Orvane::ovfmt
