// The stream-state vectors: every value of tests/vectors/stream-states.digests (the demo file's
// and those where the literal rule shows) formatted on a stream in each state a caller may
// leave it in (widths and fills, bases, showpos, a grouping locale, error states, buffers
// that refuse text). Each line freezes a digest of the texts, counts and streams
// afterwards in every state, so a change in how literals meet a caller's width, or any
// other stream-state behaviour, fails here and names the value whose output drifted.
#include "bench/StreamStates.h"
#include "host/Registry.h"

#include <gtest/gtest.h>

#include <fstream>

namespace Orvane::test {
namespace {

constexpr const char* kVectors = "tests/vectors/stream-states.digests";

constexpr const char* kHowToSee =
    "\nSee what changed, state by state: bench/compare_stream_states OLD_PLUGIN NEW_PLUGIN "
    "tests/vectors/stream-states.digests 0 (OLD_PLUGIN built from the commit that froze the "
    "file). If the change is meant, freeze again: compare_stream_states --freeze PLUGIN "
    "tests/vectors/stream-states.digests > new.txt, and review the diff.";

TEST(StreamStates, FrozenVectors) {
  std::ifstream in(std::string(ORVANE_SOURCE_DIR "/") + kVectors);
  ASSERT_TRUE(in.is_open());
  int number = 0, values = 0;
  for (std::string line; std::getline(in, line);) {
    SCOPED_TRACE(std::string(kVectors) + ":" + std::to_string(++number));
    const auto vector = parseVectorLine(line);
    if (!vector) continue;
    ASSERT_FALSE(vector->digest.empty()) << "a value line without its digest: " << line;
    const host::FormatterPair* formatter = host::findFormatter(vector->id);
    ASSERT_TRUE(formatter) << "unknown id " << vector->id;
    EXPECT_EQ(stateDigest(formatter->format, vector->bytes), vector->digest)
        << line << ": the output differs in some stream state." << kHowToSee;
    ++values;
  }
  EXPECT_GT(values, 0);
}

} // namespace
} // namespace Orvane::test
