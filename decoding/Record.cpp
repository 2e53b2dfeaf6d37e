#include "decoding/Record.h"

#include <algorithm>

namespace Orvane::decoding {

void RecordWalker::load(std::span<const unsigned char> bytes) {
  std::copy(bytes.begin(), bytes.end(), buffer_.prepare(bytes.size()));
  buffer_.setSize(bytes.size());
}

std::span<const Argument> RecordWalker::walkInto(std::span<const ArgumentType> types,
                                                 std::span<const unsigned char> record,
                                                 TextStream& out,
                                                 std::span<const std::string_view> gaps) {
  arguments_.clear();
  textBounds_.clear();
  std::size_t offset = 0;
  finished_ = true;
  for (std::size_t i = 0; i < types.size(); ++i) {
    const unsigned char* value = record.data() + offset;
    if (i < gaps.size()) out.append(gaps[i]);
    textBounds_.push_back(out.size());
    Argument& argument = arguments_.emplace_back();
    argument.id = types[i].id;
    argument.offset = offset;
    argument.length = types[i].formatter->length(value);
    argument.consumed = types[i].formatter->format(value, out.fresh());
    textBounds_.push_back(out.size());
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
  for (std::size_t i = 0; i < arguments_.size(); ++i)
    arguments_[i].text = out.text(textBounds_[2 * i], textBounds_[2 * i + 1]);
  return arguments_;
}

} // namespace Orvane::decoding
