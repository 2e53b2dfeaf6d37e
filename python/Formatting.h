// Formatting values and records for the Python module, in plain C++ and the way ovfmt
// does: each record copied into a guarded buffer, each argument formatted on a stream in
// a new stream's state, every problem in ovfmt's words (thrown as the errors of
// Errors.h). Each thread formats on a walker of its own.
#pragma once

#include "decoding/Record.h"
#include "decoding/Template.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::python {

/// The functions registered for `id`, with `id` as their id (the view must outlive the
/// result). Throws UnknownIdError when the id is unknown or lacks a function. Resolve
/// with the GIL held (see Plugins.h).
decoding::ArgumentType resolve(std::string_view id);

/// What the length function of `type` says of the value at the start of `bytes`, which
/// may go on past the value. Throws FormatError for an invalid encoding (0xFFFFFFFF) or
/// a length beyond the end of `bytes`.
unsigned measure(const decoding::ArgumentType& type, std::span<const unsigned char> bytes);

/// The text of each argument of the record `types` (at least one) over `bytes`, in
/// order. Throws FormatError for the first argument that is invalid or runs past the
/// bytes, and for bytes left after the last argument.
std::vector<std::string> formatRecord(std::span<const decoding::ArgumentType> types,
                                      std::span<const unsigned char> bytes);

/// What is wrong with the walk that produced `arguments` for a record of `count`
/// arguments, as ovfmt words it ("argument K of N (ID): " first when `count` > 1): its
/// first faulty argument, else bytes left after a finished walk. Empty when nothing is.
std::string walkProblem(const decoding::RecordWalker& walker,
                        std::span<const decoding::Argument> arguments, std::size_t count);

/// The calling thread's walker: threads format at once, each in its own buffers.
decoding::RecordWalker& threadWalker();

/// `text` parsed as a template for a record of `arguments` arguments. Throws
/// std::invalid_argument with ovfmt's words for a stray brace or a count that differs.
decoding::Template parseTemplate(std::string_view text, std::size_t arguments);

} // namespace Orvane::python
