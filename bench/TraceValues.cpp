#include "bench/TraceValues.h"

#include "decoding/Decode.h"
#include "tools/ovfmt/BatchLine.h"
#include "tools/ovfmt/Hex.h"

#include <fstream>
#include <stdexcept>

namespace Orvane::bench {
namespace {

const host::FormatterPair& registeredPair(const std::string& id) {
  const host::FormatterPair* pair = host::findFormatter(id);
  if (!pair || !pair->format || !pair->length)
    throw std::runtime_error("id " + id + " is not registered");
  return *pair;
}

// What the value prints, checked the way ovfmt checks it.
std::string cleanText(const TraceValue& value, const host::FormatterPair& pair) {
  const auto decoded = decoding::decodeValue(pair, value.bytes);
  if (decoded.length != value.bytes.size() || decoded.consumed != decoded.length)
    throw std::runtime_error("id " + value.id + ": a value does not format cleanly");
  return decoded.text;
}

} // namespace

std::vector<TraceValue> readTraceValues(const std::string& path, std::size_t limit) {
  std::ifstream in(path);
  if (!in) throw std::runtime_error("cannot open " + path);
  std::vector<TraceValue> values;
  std::size_t lineNumber = 0;
  for (std::string line; values.size() < limit && std::getline(in, line);) {
    ++lineNumber;
    const auto parts = ovfmt::splitBatchLine(line);
    if (!parts) continue;
    std::string error;
    auto bytes = ovfmt::parseHex(parts->hex, error);
    if (!bytes) throw std::runtime_error(path + ":" + std::to_string(lineNumber) + ": " + error);
    values.push_back({std::string(parts->id), std::move(*bytes)});
  }
  return values;
}

ValueArena::ValueArena(const std::vector<TraceValue>& values) {
  std::size_t size = decoding::kGuardBefore + decoding::kGuardAfter;
  for (const auto& value : values) size += value.bytes.size();
  buffer_.assign(size, 0);

  unsigned char* next = buffer_.data() + decoding::kGuardBefore;
  for (const auto& value : values) {
    const auto& pair = registeredPair(value.id);
    placed_.push_back({value.id, &pair, next, cleanText(value, pair)});
    next = std::copy(value.bytes.begin(), value.bytes.end(), next);
  }
}

} // namespace Orvane::bench
