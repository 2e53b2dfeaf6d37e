#include "tools/ovfmt/Record.h"

#include "tools/ovfmt/Hex.h"

#include <algorithm>

namespace Orvane::ovfmt {

void RecordWalker::load(std::span<const unsigned char> bytes) {
  std::copy(bytes.begin(), bytes.end(), buffer_.prepare(bytes.size()));
  buffer_.setSize(bytes.size());
}

bool RecordWalker::loadHex(std::string_view hex, std::string& error) {
  std::size_t written = 0;
  const bool parsed = parseHexInto(hex, buffer_.prepare(maxHexBytes(hex)), written, error);
  buffer_.setSize(written);
  if (!parsed) buffer_.clear();
  return parsed;
}

std::span<const Argument> RecordWalker::walk(std::span<const ArgumentType> types,
                                             std::span<const unsigned char> record) {
  arguments_.clear();
  textEnds_.clear();
  text_.clear();
  std::size_t offset = 0;
  finished_ = true;
  for (const ArgumentType& type : types) {
    const unsigned char* value = record.data() + offset;
    Argument& argument = arguments_.emplace_back();
    argument.id = type.id;
    argument.offset = offset;
    argument.length = type.formatter->length(value);
    argument.consumed = type.formatter->format(value, text_.fresh());
    textEnds_.push_back(text_.size());
    const Fault fault = faultOf(argument, record.size());
    if (fault == Fault::InvalidLength || fault == Fault::PastEnd) {
      finished_ = false;
      break;
    }
    offset += argument.length;
  }
  size_ = record.size();
  end_ = offset;
  // Texts are cut out only now: the stream's buffer may move while later ones print.
  std::size_t begin = 0;
  for (std::size_t i = 0; i < arguments_.size(); ++i) {
    arguments_[i].text = text_.text(begin, textEnds_[i]);
    begin = textEnds_[i];
  }
  return arguments_;
}

} // namespace Orvane::ovfmt
