// The stream-state vectors: every value of the demo file (and of
// registry/stream-state-values.txt, where the literal rule shows) formatted on a stream in each
// state a caller may leave it in (widths and fills, bases, showpos, a grouping locale,
// error states, buffers that refuse text), with the text, the count and the stream
// afterwards frozen in registry/stream-states.txt. A change in how literals meet a
// caller's width, or any other stream-state behaviour, fails here.
//
// The file is what bench/compare_stream_states --freeze printed for the plug-in it was
// taken from; a deliberate change is frozen again the same way and reviewed as a diff.
#include "tests/support/StreamStates.h"
#include "decoding/GuardedBuffer.h"
#include "host/Registry.h"
#include "tools/ovfmt/Hex.h"

#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <regex>

namespace Orvane::test {
namespace {

TEST(StreamStates, FrozenVectors) {
  std::map<std::string, StreamState> states;
  for (const StreamState& state : streamStates()) states.emplace(state.name, state);
  std::map<std::string, int> linesPerState;

  std::ifstream in(ORVANE_SOURCE_DIR "/registry/stream-states.txt");
  ASSERT_TRUE(in.is_open());
  const std::regex vector(R"(\[([^\]]+)\] (\S+) ((?:[0-9a-f]{2} )*)=> (.*))");
  decoding::GuardedBuffer placed;
  int number = 0;
  for (std::string line; std::getline(in, line);) {
    SCOPED_TRACE("registry/stream-states.txt:" + std::to_string(++number));
    std::smatch m;
    ASSERT_TRUE(std::regex_match(line, m, vector)) << line;
    const auto state = states.find(m[1]);
    ASSERT_NE(state, states.end()) << "no stream state " << m[1];
    const host::FormatterPair* formatter = host::findFormatter(m.str(2));
    ASSERT_TRUE(formatter) << "unknown id " << m[2];
    std::string error;
    const auto bytes = ovfmt::parseHex(m.str(3), error);
    ASSERT_TRUE(bytes) << error;
    std::copy(bytes->begin(), bytes->end(), placed.prepare(bytes->size()));
    placed.setSize(bytes->size());
    EXPECT_EQ(outcomeLine(formatOn(state->second, formatter->format, placed.data())), m.str(4))
        << m[2] << " " << m[3];
    ++linesPerState[m[1]];
  }
  // Every state, each with the same values.
  ASSERT_EQ(linesPerState.size(), states.size());
  for (const auto& [name, lines] : linesPerState)
    EXPECT_EQ(lines, linesPerState.begin()->second) << name;
}

} // namespace
} // namespace Orvane::test
