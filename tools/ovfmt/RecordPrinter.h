// Printing records as ovfmt does: one line of text per record, or with --counts one
// line per argument, and one error line on stderr for a record that failed.
#pragma once

#include "decoding/IdList.h"
#include "decoding/Record.h"
#include "decoding/Template.h"
#include "tools/ovfmt/Output.h"

#include <optional>
#include <span>
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
  /// The formatters' texts as they made them, control characters included; otherwise
  /// they are escaped by the text rule of decoding/Escape.h (a control as "\xNN").
  bool raw = false;
  /// Start every output line with "FILE:" (the source's name), then "LINE:" (its line).
  bool nameSource = false;
  bool numberLines = false;
  /// One output line per input line: an empty one for a blank or comment line, and
  /// `failedMarker` for a record that failed (its error still goes to stderr).
  bool keepLines = false;
  std::string failedMarker = "?";
};

/// Where a record came from, put into words only when a message names it (most records
/// need no message, so no text is built for them).
struct Where {
  std::string_view source;   ///< the batch input's name, or the id list of the command line
  std::size_t line = 0;      ///< the batch line, 0 for a record on the command line
  std::size_t hexColumn = 1; ///< where the hex starts in its line, for error columns
};

/// Formats records one after another; one printer serves one thread.
class RecordPrinter {
public:
  /// `options` must outlive the printer.
  explicit RecordPrinter(const PrintOptions& options) : options_(options) {}

  /// Formats the record `idList` ("ID[,ID...]") over the bytes of `hex` and appends what
  /// it prints to `output`: its text, or an error line "ovfmt: WHERE: PROBLEM" and no
  /// text when it failed. Bytes left after the last argument are reported after the
  /// text, which stays, and make the record fail; so does, with --counts, an argument
  /// that is invalid or runs past the bytes. Returns false when the record failed.
  bool print(const Where& where, std::string_view idList, std::string_view hex, Output& output);
  /// print() over `bytes` instead of hex text.
  bool print(const Where& where, std::string_view idList, std::span<const unsigned char> bytes,
             Output& output);
  /// Prints what a blank or comment line gives when the options keep every line: an
  /// empty line, with its prefix.
  void printSkipped(const Where& where, Output& output);

private:
  /// Prints the record loaded into walker_ as the options say.
  bool printLoaded(const Where& where, Output& output) {
    return options_.counts ? printCounts(where, output) : printText(where, output);
  }
  /// Ends a record that failed: when the options keep every line and it printed
  /// nothing since `start`, prints the marker in its place. Returns false.
  bool markFailed(const Where& where, std::size_t start, Output& output);
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
  /// Starts an output line with what the options put before it: "FILE:", "LINE:".
  void linePrefix(const Where& where, decoding::TextStream& text) const;
  /// Appends a formatter's text, escaped unless the options say raw.
  void appendText(std::string_view text, decoding::TextStream& out) const;
  /// Reports the bytes a finished walk left after the record's last argument, if any;
  /// returns false when it did.
  bool reportLeftover(const Where& where, std::span<const decoding::Argument> arguments,
                      Output& output);
  /// Adds "ovfmt: WHERE: PROBLEM" as an error line; returns false for `return fail(...)`.
  bool fail(const Where& where, const std::string& problem, Output& output);
  /// Why `id` is unknown, with the nearest known ids.
  static std::string unknownId(std::string_view id);

  const PrintOptions& options_;
  decoding::TypeListCache typeLists_;
  decoding::RecordWalker walker_;
  std::vector<std::string_view> ids_;             ///< the ids of a list not seen before
  std::vector<decoding::ArgumentType> resolved_;  ///< their types, as they are found
  std::span<const decoding::ArgumentType> types_; ///< the current record's types
  std::vector<std::string_view> gaps_;
};

} // namespace Orvane::ovfmt
