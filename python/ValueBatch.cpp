#include "python/ValueBatch.h"

#include "python/Errors.h"
#include "python/Formatting.h"

namespace Orvane::python {

std::string itemPrefix(std::size_t index) { return "item " + std::to_string(index) + ": "; }

void ValueBatch::add(const host::FormatterPair& formatter, std::string_view id,
                     std::span<const unsigned char> bytes) {
  ids_ += id;
  bytes_.insert(bytes_.end(), bytes.begin(), bytes.end());
  values_.push_back({&formatter, ids_.size(), bytes_.size()});
}

void ValueBatch::format(std::size_t firstIndex) {
  decoding::RecordWalker& walker = threadWalker();
  std::size_t idBegin = 0, bytesBegin = 0;
  for (std::size_t i = 0; i < values_.size(); ++i) {
    const Value& value = values_[i];
    const decoding::ArgumentType type{std::string_view(ids_).substr(idBegin, value.idEnd - idBegin),
                                      value.formatter};
    walker.load(std::span(bytes_).subspan(bytesBegin, value.bytesEnd - bytesBegin));
    const auto arguments = walker.walk({&type, 1});
    if (std::string problem = walkProblem(walker, arguments, 1); !problem.empty())
      throw FormatError(itemPrefix(firstIndex + i) + problem);
    texts_ += arguments.front().text;
    textEnds_.push_back(texts_.size());
    idBegin = value.idEnd;
    bytesBegin = value.bytesEnd;
  }
}

std::string_view ValueBatch::text(std::size_t i) const {
  const std::size_t begin = i == 0 ? 0 : textEnds_[i - 1];
  return std::string_view(texts_).substr(begin, textEnds_[i] - begin);
}

void ValueBatch::clear() {
  values_.clear();
  ids_.clear();
  bytes_.clear();
  texts_.clear();
  textEnds_.clear();
}

} // namespace Orvane::python
