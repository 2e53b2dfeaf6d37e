#include "tracing/TypedValue.h"

#include "decoding/Problems.h"

namespace Orvane::tracing {

TypedResult TypedValueDecoder::invalid(std::string reason) {
  reason_ = std::move(reason);
  return {false, {}, reason_};
}

TypedResult TypedValueDecoder::decode(std::string_view id, const host::FormatterPair* formatter,
                                      std::span<const unsigned char> bytes) {
  if (std::string problem = decoding::formatterProblem(id, formatter); !problem.empty())
    return invalid(std::move(problem));
  if (bytes.empty()) return invalid("empty value: the writer recorded no bytes");
  walker_.load(bytes);
  const decoding::ArgumentType type{id, formatter};
  const decoding::Argument& value = walker_.walk({&type, 1}).front();
  const decoding::Fault fault = decoding::faultOf(value, bytes.size());
  if (fault != decoding::Fault::None)
    return invalid(decoding::faultProblem(value, fault, bytes.size()));
  return {true, value.text, {}};
}

} // namespace Orvane::tracing
