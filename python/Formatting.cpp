#include "python/Formatting.h"

#include "host/Registry.h"
#include "python/Errors.h"
#include "tools/ovfmt/GuardedBuffer.h"
#include "tools/ovfmt/Problems.h"

#include <algorithm>
#include <stdexcept>

namespace Orvane::python {

ovfmt::ArgumentType resolve(std::string_view id) {
  const host::FormatterPair* formatter = host::findFormatter(id);
  if (!formatter) throw UnknownIdError(ovfmt::unknownIdProblem(id));
  if (!formatter->format || !formatter->length)
    throw UnknownIdError(ovfmt::missingFunctionProblem(id, *formatter));
  return {id, formatter};
}

unsigned measure(const ovfmt::ArgumentType& type, std::span<const unsigned char> bytes) {
  // Its own guarded buffer: a short value's length function may read past the bytes.
  thread_local ovfmt::GuardedBuffer buffer;
  std::copy(bytes.begin(), bytes.end(), buffer.prepare(bytes.size()));
  buffer.setSize(bytes.size());
  ovfmt::Argument value;
  value.id = type.id;
  // Nothing is formatted: the length stands in for what was consumed, so that only the
  // length's own faults (invalid, past the end) show.
  value.length = value.consumed = type.formatter->length(buffer.data());
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
  if (problem.empty() && walker.finished() && walker.leftover() > 0)
    problem = ovfmt::argumentPrefix(count, count, arguments.back().id) +
              ovfmt::leftoverProblem(walker.leftover());
  return problem;
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
