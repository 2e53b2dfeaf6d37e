// The words of every problem a record can have, shared by every front end (ovfmt, and
// any other that decodes records) so that the same fault reads the same everywhere.
//
// A problem of one argument reads "argument K of N (ID): PROBLEM" when the record has
// more than one argument, and just "PROBLEM" for a single value.
#pragma once

#include "decoding/Record.h"

#include <span>
#include <string>
#include <string_view>

namespace Orvane::decoding {

/// `text` cut to 40 characters, with bytes outside printable ASCII as "\xNN": ids and
/// hex come from untrusted input, and error lines must stay short and printable.
std::string printable(std::string_view text);

/// "argument K of N (ID): " for argument `position` (from 1) of `count`; empty when
/// `count` is 1.
std::string argumentPrefix(std::size_t position, std::size_t count, std::string_view id);

/// Why `formatter`, what the registry found for `id`, cannot format it: `unknown id
/// "ID"` when it is null, `id "ID" has no length function registered` (or "format",
/// whichever is missing); empty when both functions are there.
std::string formatterProblem(std::string_view id, const host::FormatterPair* formatter);

/// What `fault` of `argument` means, in a record of `recordSize` bytes. A value too
/// short says how many bytes were "given" to the first argument and "left" for a later
/// one.
std::string faultProblem(const Argument& argument, Fault fault, std::size_t recordSize);

/// The problem of the first argument of a walk with a fault, prefixed as in a record of
/// `count` arguments over `recordSize` bytes; empty when no argument has one.
std::string firstFaultProblem(std::span<const Argument> arguments, std::size_t count,
                              std::size_t recordSize);

/// `N bytes after the value not consumed`, prefixed as the last of `arguments`, when
/// `walker`'s last walk (which returned them) formatted every argument and left bytes
/// after the last; empty otherwise.
std::string leftoverProblem(const RecordWalker& walker, std::span<const Argument> arguments);

/// The usage problem of a template whose placeholders do not match the arguments, naming
/// both counts.
std::string placeholderCountProblem(std::size_t placeholders, std::size_t arguments);

} // namespace Orvane::decoding
