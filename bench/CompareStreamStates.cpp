// Proves that two builds of the plug-in print the same on a stream in any state, not
// only in the new stream's state that ovfmt formats on (bench/compare_output.py covers
// that one through two ovfmt builds).
//
//   compare_stream_states OLD_PLUGIN NEW_PLUGIN VALUE_FILE [VALUES_PER_ID [SEED]]
//   compare_stream_states --freeze PLUGIN VALUE_FILE... > tests/vectors/stream-states.digests
//
// Loads both plug-ins into this one host process, each with its own functions (they
// are bound inside each library), and takes each one's formatMap. Every value of
// VALUE_FILE (a batch file, or the vector file itself: its digests are ignored) and
// VALUES_PER_ID random values of every id (the first 8 bytes small in half of them, so
// that tags and counts hit their valid ranges) are formatted by both, on a new stream set
// up in each of the states below, in a zero-guarded buffer as ovfmt places them.
// Compared: the text, the count returned, and the stream afterwards (flags, width, fill,
// rdstate). With VALUES_PER_ID 0, only the file's values: what a failure of the vectors
// test means, state by state.
//
// --freeze prints the vector file the test suite checks
// (tests/formatters/StreamStatesTest.cpp): each value line of the files with the digest
// of what PLUGIN does with it in every state (stateDigest), comments and blank lines as
// they are. Freezing the vector file itself refreshes its digests.
//
// One difference is expected and counted apart: when the stream buffer refuses text,
// text that several insertions wrote may now be one insertion, which fails once (bad)
// where the later ones added failbit. Prints a line per state and exits 1 when anything
// else differed.
#include "decoding/GuardedBuffer.h"
#include "registry/FormatMap.h"
#include "tests/support/RandomValues.h"
#include "bench/StreamStates.h"

#include <dlfcn.h>
#include <fstream>
#include <functional>
#include <iomanip>
#include <iostream>
#include <random>
#include <sstream>
#include <stdexcept>

namespace {

using namespace Orvane;
using namespace Orvane::test;
using FormatMap = decltype(formatMap);

const FormatMap& loadFormatMap(const std::string& path) {
  void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!handle) throw std::runtime_error(dlerror());
  // The mangled name of Orvane::formatMap (its type carries the cxx11 ABI tag).
  void* map = dlsym(handle, "_ZN6Orvane9formatMapB5cxx11E");
  if (!map) throw std::runtime_error(path + " has no formatMap");
  return *static_cast<const FormatMap*>(map);
}

std::string hexOf(const std::vector<unsigned char>& bytes) {
  std::ostringstream hex;
  hex << std::hex << std::setfill('0');
  for (unsigned char b : bytes) hex << std::setw(2) << unsigned{b} << ' ';
  return hex.str();
}

struct Tally {
  unsigned long long compared = 0, differed = 0, failbitOnly = 0;
};

void compare(const std::string& id, const std::vector<unsigned char>& bytes, const FormatFn& old,
             const FormatFn& now, const StreamState& state, Tally& tally) {
  // Between zero guards, as ovfmt places values.
  static decoding::GuardedBuffer placed;
  std::copy(bytes.begin(), bytes.end(), placed.prepare(bytes.size()));
  placed.setSize(bytes.size());
  const Outcome before = formatOn(state, old, placed.data()),
                after = formatOn(state, now, placed.data());
  ++tally.compared;
  if (before == after) return;
  Outcome withoutFailbit = before;
  withoutFailbit.state &= ~std::ios::failbit;
  if (withoutFailbit == after && state.room != std::string::npos) {
    ++tally.failbitOnly;
    return;
  }
  if (++tally.differed <= 5)
    std::cout << "  " << id << " " << hexOf(bytes) << ": \"" << before.text << "\" (state "
              << before.state << ") became \"" << after.text << "\" (state " << after.state
              << ")\n";
}

// Calls `line` for every line of the files, in order.
template <typename PerLine> void forEachLine(const std::vector<std::string>& paths, PerLine line) {
  for (const std::string& path : paths) {
    std::ifstream in(path);
    if (!in) throw std::runtime_error("cannot open " + path);
    for (std::string text; std::getline(in, text);) line(text);
  }
}

// The values of a batch or vector file.
std::vector<VectorLine> readValues(const std::string& path) {
  std::vector<VectorLine> values;
  forEachLine({path}, [&](const std::string& line) {
    if (auto value = parseVectorLine(line)) values.push_back(std::move(*value));
  });
  return values;
}

// Prints the files with each value line's digest as `plugin` formats it: the vector file
// tests/vectors/stream-states.digests, which the test StreamStates.FrozenVectors checks.
int freeze(const std::string& plugin, const std::vector<std::string>& paths) {
  const FormatMap& map = loadFormatMap(plugin);
  forEachLine(paths, [&](const std::string& line) {
    const auto value = parseVectorLine(line);
    if (!value) {
      std::cout << line << "\n";
      return;
    }
    std::cout << value->id << " " << hexOf(value->bytes) << "=> "
              << stateDigest(map.at(value->id).first, value->bytes) << "\n";
  });
  return 0;
}

} // namespace

int main(int argc, char** argv) try {
  if (argc >= 4 && std::string(argv[1]) == "--freeze")
    return freeze(argv[2], std::vector<std::string>(argv + 3, argv + argc));
  if (argc < 4) {
    std::cerr
        << "usage: compare_stream_states OLD_PLUGIN NEW_PLUGIN VALUE_FILE [VALUES_PER_ID [SEED]]\n"
           "       compare_stream_states --freeze PLUGIN VALUE_FILE... > "
           "tests/vectors/stream-states.digests\n";
    return 2;
  }
  const FormatMap& old = loadFormatMap(argv[1]);
  const FormatMap& now = loadFormatMap(argv[2]);
  if (&old == &now) throw std::runtime_error("both paths load the same plug-in");
  const auto values = readValues(argv[3]);
  const int perId = argc > 4 ? std::stoi(argv[4]) : 1000;
  const unsigned seed = argc > 5 ? static_cast<unsigned>(std::stoul(argv[5])) : 1;

  bool same = true;
  for (const StreamState& state : streamStates()) {
    Tally tally;
    for (const auto& [id, oldPair] : old) {
      const auto& newPair = now.at(id);
      std::mt19937 rng(seed + std::hash<std::string>{}(id));
      for (const auto& value : values)
        if (value.id == id) compare(id, value.bytes, oldPair.first, newPair.first, state, tally);
      for (int i = 0; i < perId; ++i)
        compare(id, test::randomValue(rng), oldPair.first, newPair.first, state, tally);
    }
    std::cout << state.name << ": " << tally.compared << " compared, " << tally.differed
              << " differed, " << tally.failbitOnly << " without a later failbit\n";
    same = same && tally.differed == 0;
  }
  if (old.size() != now.size()) {
    std::cout << "the plug-ins register " << old.size() << " and " << now.size() << " ids\n";
    same = false;
  }
  return same ? 0 : 1;
} catch (const std::exception& e) {
  std::cerr << "compare_stream_states: " << e.what() << "\n";
  return 2;
}
