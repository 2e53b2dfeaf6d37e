#include "python/Formatting.h"

#include "decoding/Problems.h"
#include "host/Registry.h"
#include "python/Errors.h"

#include <stdexcept>

namespace Orvane::python {

decoding::ArgumentType resolve(std::string_view id) {
  const host::FormatterPair* formatter = host::findFormatter(id);
  if (std::string problem = decoding::formatterProblem(id, formatter); !problem.empty())
    throw UnknownIdError(problem);
  return {id, formatter};
}

unsigned measure(const decoding::ArgumentType& type, std::span<const unsigned char> bytes) {
  // In the guarded buffer: a short value's length function may read past the bytes.
  decoding::RecordWalker& walker = threadWalker();
  walker.load(bytes);
  decoding::Argument value;
  value.id = type.id;
  // Nothing is formatted: the length stands in for what was consumed, so that only the
  // length's own faults (invalid, past the end) show.
  value.length = value.consumed = type.formatter->length(walker.data());
  const decoding::Fault fault = decoding::faultOf(value, bytes.size());
  if (fault != decoding::Fault::None)
    throw FormatError(decoding::faultProblem(value, fault, bytes.size()));
  return value.length;
}

std::vector<std::string> formatRecord(std::span<const decoding::ArgumentType> types,
                                      std::span<const unsigned char> bytes) {
  decoding::RecordWalker& walker = threadWalker();
  walker.load(bytes);
  const auto arguments = walker.walk(types);
  if (std::string problem = walkProblem(walker, arguments, types.size()); !problem.empty())
    throw FormatError(problem);
  std::vector<std::string> texts;
  texts.reserve(arguments.size());
  for (const decoding::Argument& argument : arguments) texts.emplace_back(argument.text);
  return texts;
}

std::string walkProblem(const decoding::RecordWalker& walker,
                        std::span<const decoding::Argument> arguments, std::size_t count) {
  std::string problem = decoding::firstFaultProblem(arguments, count, walker.size());
  return problem.empty() ? decoding::leftoverProblem(walker, arguments) : problem;
}

decoding::RecordWalker& threadWalker() {
  thread_local decoding::RecordWalker walker;
  return walker;
}

decoding::Template parseTemplate(std::string_view text, std::size_t arguments) {
  std::string error;
  std::optional<decoding::Template> parsed = decoding::Template::parse(text, error);
  if (!parsed) throw std::invalid_argument(error);
  if (parsed->placeholders() != arguments)
    throw std::invalid_argument(
        decoding::placeholderCountProblem(parsed->placeholders(), arguments));
  return std::move(*parsed);
}

} // namespace Orvane::python
