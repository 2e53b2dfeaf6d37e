// Proves that two builds of the plug-in print the same on a stream in any state, not
// only in the new stream's state that ovfmt formats on (bench/compare_output.py covers
// that one through two ovfmt builds).
//
//   compare_stream_states OLD_PLUGIN NEW_PLUGIN DEMO_FILE [VALUES_PER_ID [SEED]]
//
// Loads both plug-ins into this one host process, each with its own functions (they
// are bound inside each library), and takes each one's formatMap. Every value of
// DEMO_FILE and VALUES_PER_ID random values of every id (the first 8 bytes small in half
// of them, so that tags and counts hit their valid ranges) are formatted by both, on a
// new stream set up in each of the states below, in a zero-guarded buffer as ovfmt
// places them. Compared: the text, the count returned, and the stream afterwards
// (flags, width, fill, rdstate).
//
// One difference is expected and counted apart: when the stream buffer refuses text,
// text that several insertions wrote may now be one insertion, which fails once (bad)
// where the later ones added failbit. Prints a line per state and exits 1 when anything
// else differed.
#include "bench/TraceValues.h"
#include "decoding/GuardedBuffer.h"
#include "registry/FormatMap.h"
#include "tests/support/RandomValues.h"

#include <dlfcn.h>
#include <functional>
#include <iomanip>
#include <iostream>
#include <random>
#include <sstream>
#include <stdexcept>

namespace {

using namespace Orvane;
using FormatMap = decltype(formatMap);

const FormatMap& loadFormatMap(const std::string& path) {
  void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!handle) throw std::runtime_error(dlerror());
  // The mangled name of Orvane::formatMap (its type carries the cxx11 ABI tag).
  void* map = dlsym(handle, "_ZN6Orvane9formatMapB5cxx11E");
  if (!map) throw std::runtime_error(path + " has no formatMap");
  return *static_cast<const FormatMap*>(map);
}

// Takes at most `room` characters, then refuses: a full or broken device (npos: all).
class LimitedBuffer : public std::streambuf {
public:
  explicit LimitedBuffer(std::size_t room) : room_(room) {}
  const std::string& text() const { return text_; }

protected:
  int_type overflow(int_type c) override {
    if (traits_type::eq_int_type(c, traits_type::eof()) || text_.size() >= room_)
      return traits_type::eof();
    text_ += traits_type::to_char_type(c);
    return c;
  }
  std::streamsize xsputn(const char* s, std::streamsize n) override {
    const auto taken = std::min(static_cast<std::size_t>(n), room_ - text_.size());
    text_.append(s, taken);
    return static_cast<std::streamsize>(taken);
  }

private:
  std::size_t room_;
  std::string text_;
};

struct Thousands : std::numpunct<char> {
  std::string do_grouping() const override { return "\3"; }
  char do_thousands_sep() const override { return '\''; }
};

struct StreamState {
  const char* name;
  std::function<void(std::ostream&)> setUp;
  std::size_t room = std::string::npos; ///< what the stream buffer takes (npos: all)
};

std::vector<StreamState> streamStates() {
  const std::locale grouping(std::locale::classic(), new Thousands);
  return {
      {"new stream", [](std::ostream&) {}},
      {"width 40", [](std::ostream& os) { os << std::setw(40); }},
      {"width 40, left, fill *",
       [](std::ostream& os) { os << std::left << std::setfill('*') << std::setw(40); }},
      {"width 40, internal", [](std::ostream& os) { os << std::internal << std::setw(40); }},
      {"width 3", [](std::ostream& os) { os << std::setw(3); }},
      {"width -5", [](std::ostream& os) { os.width(-5); }},
      {"hex", [](std::ostream& os) { os << std::hex; }},
      {"hex, showbase, uppercase",
       [](std::ostream& os) { os << std::hex << std::showbase << std::uppercase; }},
      {"oct, width 12, fill 0",
       [](std::ostream& os) { os << std::oct << std::setfill('0') << std::setw(12); }},
      {"showpos", [](std::ostream& os) { os << std::showpos; }},
      {"showbase", [](std::ostream& os) { os << std::showbase; }},
      {"grouping locale", [grouping](std::ostream& os) { os.imbue(grouping); }},
      {"grouping locale, width 30",
       [grouping](std::ostream& os) { os.imbue(grouping), os.width(30); }},
      {"failbit", [](std::ostream& os) { os.setstate(std::ios::failbit); }},
      {"badbit, width 9", [](std::ostream& os) { os.setstate(std::ios::badbit), os.width(9); }},
      {"buffer takes 0", [](std::ostream&) {}, 0},
      {"buffer takes 7", [](std::ostream&) {}, 7},
      {"buffer takes 20, width 25", [](std::ostream& os) { os.width(25); }, 20},
  };
}

// What formatting one value left behind.
struct Outcome {
  std::string text;
  unsigned count;
  std::ios::fmtflags flags;
  std::streamsize width;
  char fill;
  std::ios::iostate state;

  bool operator==(const Outcome&) const = default;
};

Outcome format(const FormatFn& fn, const unsigned char* value, const StreamState& state) {
  LimitedBuffer buffer(state.room);
  std::ostream os(&buffer);
  state.setUp(os);
  const unsigned count = fn(value, os);
  return {buffer.text(), count, os.flags(), os.width(), os.fill(), os.rdstate()};
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
  const Outcome before = format(old, placed.data(), state),
                after = format(now, placed.data(), state);
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

} // namespace

int main(int argc, char** argv) try {
  if (argc < 4) {
    std::cerr
        << "usage: compare_stream_states OLD_PLUGIN NEW_PLUGIN DEMO_FILE [VALUES_PER_ID [SEED]]\n";
    return 2;
  }
  const FormatMap& old = loadFormatMap(argv[1]);
  const FormatMap& now = loadFormatMap(argv[2]);
  if (&old == &now) throw std::runtime_error("both paths load the same plug-in");
  const auto demo = bench::readTraceValues(argv[3]);
  const int perId = argc > 4 ? std::stoi(argv[4]) : 1000;
  const unsigned seed = argc > 5 ? static_cast<unsigned>(std::stoul(argv[5])) : 1;

  bool same = true;
  for (const StreamState& state : streamStates()) {
    Tally tally;
    for (const auto& [id, oldPair] : old) {
      const auto& newPair = now.at(id);
      std::mt19937 rng(seed + std::hash<std::string>{}(id));
      for (const auto& value : demo)
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
