#include "decoding/Problems.h"

#include "registry/HexDigits.h"

namespace Orvane::decoding {
namespace {

std::string plural(std::size_t n, const char* one, const char* many) {
  return std::to_string(n) + " " + (n == 1 ? one : many);
}

std::string bytesWord(std::size_t n) { return plural(n, "byte", "bytes"); }

} // namespace

std::string printable(std::string_view text) {
  constexpr std::size_t kMax = 40;
  std::string out;
  for (unsigned char c : text.substr(0, kMax)) {
    if (c >= 0x20 && c < 0x7f) {
      out += static_cast<char>(c);
    } else {
      char digits[2];
      writeHexByte(c, digits);
      out += "\\x";
      out.append(digits, 2);
    }
  }
  if (text.size() > kMax) out += "...";
  return out;
}

std::string argumentPrefix(std::size_t position, std::size_t count, std::string_view id) {
  if (count == 1) return {};
  return "argument " + std::to_string(position) + " of " + std::to_string(count) + " (" +
         printable(id) + "): ";
}

std::string formatterProblem(std::string_view id, const host::FormatterPair* formatter) {
  if (!formatter) return "unknown id \"" + printable(id) + "\"";
  if (formatter->format && formatter->length) return {};
  return "id \"" + printable(id) + "\" has no " + (formatter->format ? "length" : "format") +
         " function registered";
}

std::string faultProblem(const Argument& argument, Fault fault, std::size_t recordSize) {
  const std::string id(argument.id);
  switch (fault) {
  case Fault::InvalidLength:
    return "invalid encoding: the length function of " + id + " returned 0xFFFFFFFF";
  case Fault::PastEnd:
    return "value too short: " + bytesWord(recordSize - argument.offset) +
           (argument.offset == 0 ? " given, " : " left, ") + id + " needs " +
           std::to_string(argument.length);
  case Fault::ConsumedDiffers:
    return "invalid encoding: formatting consumed " + std::to_string(argument.consumed) +
           " bytes, the length function says " + std::to_string(argument.length);
  case Fault::None: break;
  }
  return {};
}

std::string firstFaultProblem(std::span<const Argument> arguments, std::size_t count,
                              std::size_t recordSize) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const Fault fault = faultOf(arguments[i], recordSize);
    if (fault != Fault::None)
      return argumentPrefix(i + 1, count, arguments[i].id) +
             faultProblem(arguments[i], fault, recordSize);
  }
  return {};
}

std::string leftoverProblem(const RecordWalker& walker, std::span<const Argument> arguments) {
  if (!walker.finished() || walker.leftover() == 0) return {};
  return argumentPrefix(arguments.size(), arguments.size(), arguments.back().id) +
         bytesWord(walker.leftover()) + " after the value not consumed";
}

std::string placeholderCountProblem(std::size_t placeholders, std::size_t arguments) {
  return "the template has " + std::to_string(placeholders) + " '{}' but the record has " +
         plural(arguments, "argument", "arguments");
}

} // namespace Orvane::decoding
