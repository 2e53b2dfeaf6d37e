// libFuzzer target over every registered type id.
//
// Input: the first byte selects an id (index into the sorted ids), the rest are the
// value's bytes. With ORVANE_FUZZ_ID=<id> set, the id is fixed and the whole input is
// the value (the per-id smoke run uses that).
//
// For each input the harness asks the length function L, then:
//  * L is a real size the input covers: the value is copied into a heap block of exactly
//    L bytes, so AddressSanitizer reports any read past it by the length or the format
//    function, and format must return L;
//  * L is larger than the input: the value is zero-extended to L bytes and tried again
//    when it still measures L (short inputs then reach whole values quickly);
//  * L is 0xFFFFFFFF (an impossible encoding): format runs on a zero-padded copy and
//    must return 0xFFFFFFFF as well.
// The one sanctioned format/length difference is "LO" with an operation code 4..254.
//
// Guard areas. A few layouts read outside their own reported length by design, and only
// those get bytes around the block that may be read:
//  * "A": a family-tagged record shorter than its family's layout is read as the layout
//    says: the numbers at N-8 and N-4 (before the record when N < 8), the address at 4
//    (up to 20 bytes) and the zone index at 10..13.
//  * Keys whose count wraps: after a field that reports 0xFFFFFFFF the next field is read
//    one byte before the value ("CPK", "MFGKO"), and a wrapped total can be smaller than
//    the bytes the walk examined ("RRRKO", "PGKRO", "FMO", "MFGKO", the BGP route key
//    wrappers around a link-state prefix with a bad tag or an unknown family, and "GR"
//    and "GRO" around a sequence with a bad width after up to 255 elements of 9 bytes).
// Any other read outside the block is a bug in the formatter.
//
// Records (with ORVANE_FUZZ_RECORDS=1 set): the first byte gives the argument count
// (1 + byte % 8), the next bytes pick each argument's id (an index into the sorted ids,
// then the host's base types), the rest is the record. The record walker decodes it in
// its guarded buffer as ovfmt does; then the arguments that fit are walked again in
// place in a heap block of exactly their bytes, and must give the same lengths, counts
// and texts; the texts escaped in place, as ovfmt escapes a line, must read as each text
// escaped alone. Ids with guard areas above are left out of records: they read outside
// their own length.
//
// Trace fields (with ORVANE_FUZZ_TRACE=1 set, and a build with the trace reader): the
// first byte picks an id (every registered id, then one nobody registered), the rest is
// a typed field's bytes in a heap block of exactly their size, decoded as the trace
// reader decodes it. The verdict must match the length function's, and the text, once
// escaped for a text line and for JSON, must hold no control character.
#include "decoding/Escape.h"
#include "decoding/GuardedBuffer.h"
#include "decoding/Record.h"
#include "host/BaseTypes.h"
#include "host/Registry.h"
#include "registry/FormatMap.h"
#ifdef ORVANE_FUZZ_TRACING
#include "tracing/TypedValue.h"
#endif

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

namespace {

using namespace Orvane;

struct Guard {
  std::size_t before = 0;
  std::size_t after = 0;
};

const std::map<std::string, Guard> kGuards = {
    {"A", {8, 24}},    {"CPK", {1, 0}},  {"MFGKO", {1, 4}},  {"RRRKO", {0, 4}},
    {"PGKRO", {0, 4}}, {"FMO", {0, 4}},  {"GR", {0, 2300}},  {"GRO", {0, 2300}},
    {"BRK", {0, 16}},  {"BRY", {0, 16}}, {"BMPRK", {0, 16}},
};

struct Target {
  std::string id;
  FormatFn format;
  LengthFn length;
  Guard guard;
};

std::vector<Target> collectTargets() {
  const char* only = std::getenv("ORVANE_FUZZ_ID");
  std::vector<Target> targets;
  for (const auto& [id, functions] : formatMap) {
    if (only && id != only) continue;
    auto guard = kGuards.find(id);
    targets.push_back(
        {id, functions.first, functions.second, guard == kGuards.end() ? Guard{} : guard->second});
  }
  std::sort(targets.begin(), targets.end(),
            [](const Target& a, const Target& b) { return a.id < b.id; });
  if (targets.empty()) {
    std::fprintf(stderr, "no registered id matches ORVANE_FUZZ_ID=%s\n", only ? only : "");
    std::exit(2);
  }
  return targets;
}

const std::vector<Target>& targets() {
  static const std::vector<Target> all = collectTargets();
  return all;
}

bool formatMayDiffer(const Target& t, const unsigned char* value) {
  return t.id == "LO" && value[1] <= 13 && value[0] >= 4 && value[0] <= 254;
}

void expectSame(const Target& t, unsigned length, unsigned consumed, const unsigned char* value) {
  if (consumed == length || formatMayDiffer(t, value)) return;
  std::fprintf(stderr, "id %s: length function says %u, format function consumed %u\n",
               t.id.c_str(), length, consumed);
  std::abort();
}

// The value in a heap block of exactly `length` bytes plus its id's guard areas. The
// guard after the value holds the bytes that followed it, as in a trace buffer: a
// wrapped length can be decided by bytes past it.
void formatExact(const Target& t, const unsigned char* bytes, unsigned length) {
  const std::size_t size = t.guard.before + length + t.guard.after;
  std::unique_ptr<unsigned char[]> block(new unsigned char[size ? size : 1]());
  unsigned char* value = block.get() + t.guard.before;
  std::memcpy(value, bytes, length + t.guard.after);

  if (t.length(value) != length) {
    std::fprintf(stderr, "id %s: length changed when the value moved\n", t.id.c_str());
    std::abort();
  }
  std::ostringstream os;
  expectSame(t, length, t.format(value, os), value);
}

// An impossible encoding: the layout decides what is read, so pad generously.
void formatInvalid(const Target& t, const std::vector<unsigned char>& padded, std::size_t at) {
  std::ostringstream os;
  const unsigned char* value = padded.data() + at;
  expectSame(t, kInvalidLength, t.format(value, os), value);
}

constexpr std::size_t kPadBefore = decoding::kGuardBefore, kPadAfter = decoding::kGuardAfter;
// Longest zero extension tried for an input shorter than its length.
constexpr unsigned kMaxExtended = 4096;

void fuzzOne(const Target& t, const unsigned char* data, std::size_t size) {
  std::vector<unsigned char> padded(kPadBefore + size + kPadAfter, 0);
  std::memcpy(padded.data() + kPadBefore, data, size);
  const unsigned char* value = padded.data() + kPadBefore;
  const unsigned length = t.length(value);

  if (length == kInvalidLength)
    formatInvalid(t, padded, kPadBefore);
  else if (length <= std::max<std::size_t>(size, kMaxExtended))
    formatExact(t, value, length); // zero-extended when the input is shorter
}

// The ids a record may hold, by selector: the sorted plug-in ids, then the base types.
// An id with a guard area has no pair here and ends the input.
std::vector<const host::FormatterPair*> recordIds() {
  host::registerBaseTypes();
  std::vector<std::string> ids;
  for (const Target& t : targets()) ids.push_back(t.id);
  for (auto id : host::baseTypeIds()) ids.emplace_back(id);
  std::vector<const host::FormatterPair*> pairs;
  for (const auto& id : ids) pairs.push_back(kGuards.count(id) ? nullptr : host::findFormatter(id));
  return pairs;
}

void fail(const char* what, std::size_t argument) {
  std::fprintf(stderr, "record argument %zu: %s differs in place\n", argument + 1, what);
  std::abort();
}

void fuzzRecord(const unsigned char* data, std::size_t size) {
  static const auto pairs = recordIds();
  if (size == 0) return;
  const std::size_t count = 1 + data[0] % 8;
  if (size < 1 + count) return;
  std::vector<decoding::ArgumentType> types;
  for (std::size_t i = 0; i < count; ++i) {
    const host::FormatterPair* pair = pairs[data[1 + i] % pairs.size()];
    if (!pair) return;
    types.push_back({"", pair});
  }
  static decoding::RecordWalker guarded, exact;
  guarded.load({data + 1 + count, size - 1 - count});
  const auto arguments = guarded.walk(types);
  const std::size_t fit = arguments.size() - (guarded.finished() ? 0 : 1);
  const std::size_t end = fit ? arguments[fit - 1].offset + arguments[fit - 1].length : 0;

  std::unique_ptr<unsigned char[]> block(new unsigned char[end ? end : 1]);
  std::memcpy(block.get(), data + 1 + count, end);
  const auto again = exact.walk(std::span(types).first(fit), {block.get(), end});
  if (again.size() != fit || !exact.finished() || exact.leftover() != 0) fail("the walk", fit);
  for (std::size_t i = 0; i < fit; ++i) {
    if (again[i].offset != arguments[i].offset || again[i].length != arguments[i].length ||
        again[i].consumed != arguments[i].consumed)
      fail("a count", i);
    if (again[i].text != arguments[i].text) fail("the text", i);
  }

  // Escaped in place as ovfmt escapes a line, tabs between the texts, the line is each
  // text escaped alone with its tab before it.
  static decoding::TextStream line;
  static const std::vector<std::string_view> tabs(8, "\t");
  line.clear();
  const auto printed = guarded.walk(types, line, tabs);
  std::string expected;
  for (const decoding::Argument& argument : printed) {
    expected += '\t';
    decoding::appendEscapedText(expected, argument.text);
  }
  decoding::escapeTexts(printed, line);
  if (line.text() != expected) fail("the escaped line", printed.size() - 1);
}

#ifdef ORVANE_FUZZ_TRACING
void expectPrintable(const std::string& escaped, const char* layout) {
  for (std::size_t i = 0; i < escaped.size(); ++i)
    if (decoding::isControl(static_cast<unsigned char>(escaped[i])) ||
        decoding::isC1At(escaped, i)) {
      std::fprintf(stderr, "trace field: a control character left in the %s layout\n", layout);
      std::abort();
    }
}

void fuzzTraceField(const unsigned char* data, std::size_t size) {
  static const std::vector<std::string> ids = [] {
    host::registerBaseTypes();
    auto all = host::registeredIds();
    all.push_back("NOPE");
    return all;
  }();
  if (size == 0) return;
  const std::string& id = ids[data[0] % ids.size()];
  const std::size_t length = size - 1;
  std::unique_ptr<unsigned char[]> block(new unsigned char[length ? length : 1]);
  std::memcpy(block.get(), data + 1, length);
  static tracing::TypedValueDecoder decoder;
  const tracing::TypedResult result = decoder.decode(id, {block.get(), length});

  // The length function's own verdict, on a guarded copy of the same bytes.
  const host::FormatterPair* pair = host::findFormatter(id);
  std::vector<unsigned char> padded(kPadBefore + length + kPadAfter, 0);
  std::memcpy(padded.data() + kPadBefore, data + 1, length);
  const unsigned needs = pair ? pair->length(padded.data() + kPadBefore) : kInvalidLength;
  if (result.valid && (length == 0 || needs == kInvalidLength || needs > length)) {
    std::fprintf(stderr, "trace field %s: valid, but %zu bytes and a length of %u\n", id.c_str(),
                 length, needs);
    std::abort();
  }
  std::string text, json;
  decoding::appendEscapedText(text, result.valid ? result.text : result.reason);
  decoding::appendJsonString(json, result.valid ? result.text : result.reason);
  expectPrintable(text, "text");
  expectPrintable(json, "JSON");
}
#endif

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, std::size_t size) {
  static const bool records = std::getenv("ORVANE_FUZZ_RECORDS") != nullptr;
  if (records) {
    fuzzRecord(data, size);
    return 0;
  }
#ifdef ORVANE_FUZZ_TRACING
  static const bool traceFields = std::getenv("ORVANE_FUZZ_TRACE") != nullptr;
  if (traceFields) {
    fuzzTraceField(data, size);
    return 0;
  }
#endif
  const auto& all = targets();
  if (all.size() == 1) {
    fuzzOne(all.front(), data, size);
  } else if (size > 0) {
    fuzzOne(all[data[0] % all.size()], data + 1, size - 1);
  }
  return 0;
}
