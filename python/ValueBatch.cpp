#include "python/ValueBatch.h"

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
      problems_ += itemPrefix(firstIndex + i) + problem;
    else
      texts_ += arguments.front().text;
    textEnds_.push_back(texts_.size());
    problemEnds_.push_back(problems_.size());
    idBegin = value.idEnd;
    bytesBegin = value.bytesEnd;
  }
}

std::size_t ValueBatch::firstFailure() const {
  for (std::size_t i = 0; i < problemEnds_.size(); ++i)
    if (!problem(i).empty()) return i;
  return values_.size();
}

std::string_view ValueBatch::slice(const std::string& joined, const std::vector<std::size_t>& ends,
                                   std::size_t i) {
  const std::size_t begin = i == 0 ? 0 : ends[i - 1];
  return std::string_view(joined).substr(begin, ends[i] - begin);
}

void ValueBatch::clear() {
  values_.clear();
  ids_.clear();
  bytes_.clear();
  texts_.clear();
  textEnds_.clear();
  problems_.clear();
  problemEnds_.clear();
}

} // namespace Orvane::python
