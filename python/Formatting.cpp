#include "python/Formatting.h"

#include "host/Registry.h"
#include "python/Errors.h"
#include "tools/ovfmt/Problems.h"

#include <stdexcept>

namespace Orvane::python {

ovfmt::ArgumentType resolve(std::string_view id) {
  const host::FormatterPair* formatter = host::findFormatter(id);
  if (std::string problem = ovfmt::formatterProblem(id, formatter); !problem.empty())
    throw UnknownIdError(problem);
  return {id, formatter};
}

unsigned measure(const ovfmt::ArgumentType& type, std::span<const unsigned char> bytes) {
  // In the guarded buffer: a short value's length function may read past the bytes.
  ovfmt::RecordWalker& walker = threadWalker();
  walker.load(bytes);
  ovfmt::Argument value;
  value.id = type.id;
  // Nothing is formatted: the length stands in for what was consumed, so that only the
  // length's own faults (invalid, past the end) show.
  value.length = value.consumed = type.formatter->length(walker.data());
  const ovfmt::Fault fault = ovfmt::faultOf(value, bytes.size());
  if (fault != ovfmt::Fault::None)
    throw FormatError(ovfmt::faultProblem(value, fault, bytes.size()));
  return value.length;
}

std::vector<std::string> formatRecord(std::span<const ovfmt::ArgumentType> types,
                                      std::span<const unsigned char> bytes) {
  ovfmt::RecordWalker& walker = threadWalker();
  walker.load(bytes);
  const auto arguments = walker.walk(types);
  if (std::string problem = walkProblem(walker, arguments, types.size()); !problem.empty())
    throw FormatError(problem);
  std::vector<std::string> texts;
  texts.reserve(arguments.size());
  for (const ovfmt::Argument& argument : arguments) texts.emplace_back(argument.text);
  return texts;
}

std::string walkProblem(const ovfmt::RecordWalker& walker,
                        std::span<const ovfmt::Argument> arguments, std::size_t count) {
  std::string problem = ovfmt::firstFaultProblem(arguments, count, walker.size());
  return problem.empty() ? ovfmt::leftoverProblem(walker, arguments) : problem;
}

ovfmt::RecordWalker& threadWalker() {
  thread_local ovfmt::RecordWalker walker;
  return walker;
}

ovfmt::Template parseTemplate(std::string_view text, std::size_t arguments) {
  std::string error;
  std::optional<ovfmt::Template> parsed = ovfmt::Template::parse(text, error);
  if (!parsed) throw std::invalid_argument(error);
  if (parsed->placeholders() != arguments)
    throw std::invalid_argument(ovfmt::placeholderCountProblem(parsed->placeholders(), arguments));
  return std::move(*parsed);
}

} // namespace Orvane::python
