#include "tools/ovfmt/Output.h"

namespace Orvane::ovfmt {

bool Output::writeTo(int out, int err) {
  GatheringWriter writer;
  const bool wrote = queue(writer, out, err) && writer.flush();
  clear();
  return wrote;
}

bool Output::queue(GatheringWriter& writer, int out, int err) const {
  const std::string_view text = text_.text();
  std::size_t queued = 0;
  for (const ErrorLine& error : errors_) {
    if (!writer.add(out, text.substr(queued, error.at - queued)) || !writer.add(err, error.line))
      return false;
    queued = error.at;
  }
  return writer.add(out, text.substr(queued));
}

void Output::clear() {
  text_.clear();
  errors_.clear();
}

} // namespace Orvane::ovfmt
