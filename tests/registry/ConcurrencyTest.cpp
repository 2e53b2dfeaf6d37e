// Formatting every id from several threads at once, each on its own stream, and the
// host's lookups while ids register. This is a test program of its own so that the
// threads start before any lazily built table exists: the first calls race to build them.
#include "decoding/Decode.h"
#include "host/Registry.h"
#include "registry/FormatMap.h"
#include "registry/HostInterface.h"
#include "tools/ovfmt/Hex.h"

#include <gtest/gtest.h>

#include <barrier>
#include <fstream>
#include <sstream>
#include <thread>

namespace Orvane::test {
namespace {

struct Sample {
  host::FormatterPair formatter;
  std::vector<unsigned char> bytes;
};

// Every value of the demo trace, which holds at least one of each registered id.
std::vector<Sample> demoSamples() {
  std::vector<Sample> samples;
  std::ifstream in(DEMO_PATH);
  for (std::string line; std::getline(in, line);) {
    if (line.empty() || line[0] == '#') continue;
    const auto space = line.find(' ');
    const auto& functions = formatMap.at(line.substr(0, space));
    std::string error;
    auto bytes = ovfmt::parseHex(line.substr(space + 1), error);
    if (!bytes) throw std::runtime_error(error);
    samples.push_back({{functions.first, functions.second}, std::move(*bytes)});
  }
  return samples;
}

std::vector<std::string> formatAll(const std::vector<Sample>& samples, int rounds) {
  std::vector<std::string> texts;
  for (int round = 0; round < rounds; ++round)
    for (const auto& sample : samples)
      texts.push_back(decoding::decodeValue(sample.formatter, sample.bytes).text);
  return texts;
}

TEST(Concurrency, EveryIdFromSeveralThreadsGivesTheSameText) {
  constexpr int kThreads = 4, kRounds = 20;
  const auto samples = demoSamples();
  ASSERT_FALSE(samples.empty());

  std::vector<std::vector<std::string>> results(kThreads);
  std::barrier start(kThreads);
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t)
    threads.emplace_back([&, t] {
      start.arrive_and_wait();
      results[t] = formatAll(samples, kRounds);
    });
  for (auto& thread : threads) thread.join();

  const auto expected = formatAll(samples, kRounds);
  for (int t = 0; t < kThreads; ++t) EXPECT_EQ(results[t], expected) << "thread " << t;
}

// Here, not beside the other host tests: the ids it registers would reach every test
// of a program that compares the registry with the documented ids.
TEST(Registry, LookupsWhileEnoughIdsToGrowTheTableRegister) {
  auto id = [](int i) { return std::to_string(i % 400).append("T"); };
  std::thread reader([&] {
    for (int i = 0; i < 400000; i += 7) {
      const auto* pair = host::findFormatter(id(i));
      EXPECT_TRUE(!pair || (pair->format && (!pair->length || pair->length(nullptr) == 1)));
    }
  });
  for (int i = 0; i < 400; ++i) {
    MessageFormatter::addNewFormattersById(id(i), formatU8);
    MessageFormatter::addNewLengthById(id(i), lengthU8);
    MessageFormatter::addNewFormattersById(id(i), formatU16); // the first stays
  }
  reader.join();
  for (int i = 0; i < 400; ++i)
    EXPECT_EQ(*host::findFormatter(id(i))->format.target<FormatPtr>(), &formatU8) << i;
}

} // namespace
} // namespace Orvane::test
