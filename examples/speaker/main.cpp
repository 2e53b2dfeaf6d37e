// bgp_speaker: a simulated BGP speaker that traces its peers, routes, next hops, labels
// and packets as typed values through LTTng-UST. Record it with orvane-trace-record
// (scripts/trace-record in the source tree).
#include "speaker/Speaker.h"

#include <charconv>
#include <cstring>
#include <iostream>
#include <string_view>

namespace {

constexpr std::string_view kUsage =
    "usage: bgp_speaker [--events N] [--seed N] [--router NAME] [--bench]\n"
    "  --events N     events to trace (default 40; 1000000 with --bench)\n"
    "  --seed N       seed of every traced value (default 1)\n"
    "  --router NAME  the router name traced in each event (default r1)\n"
    "  --bench        trace bench_route events only: a prefix, a peer, a next hop and a\n"
    "                 sequence number each\n";

/// Parses a whole decimal number into `value`; false when `text` is anything else.
template <typename Number> bool parseNumber(std::string_view text, Number& value) {
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  return error == std::errc() && end == text.data() + text.size() && !text.empty();
}

/// Fills `options` from the command line; false on a usage error.
bool parseOptions(int argc, char** argv, Speaker::SpeakerOptions& options) {
  bool eventsGiven = false;
  for (int index = 1; index < argc; ++index) {
    const std::string_view option = argv[index];
    if (option == "--bench") {
      options.bench = true;
      continue;
    }
    if (index + 1 == argc) return false;
    const std::string_view value = argv[++index];
    if (option == "--events") {
      if (!parseNumber(value, options.events)) return false;
      eventsGiven = true;
    } else if (option == "--seed") {
      if (!parseNumber(value, options.seed)) return false;
    } else if (option == "--router") {
      options.router = value;
    } else {
      return false;
    }
  }
  if (options.bench && !eventsGiven) options.events = 1000000;
  return true;
}

} // namespace

int main(int argc, char** argv) {
  Speaker::SpeakerOptions options;
  if (argc == 2 && std::strcmp(argv[1], "--help") == 0) {
    std::cout << kUsage;
    return 0;
  }
  if (!parseOptions(argc, argv, options)) {
    std::cerr << kUsage;
    return 2;
  }
  if (options.bench)
    Speaker::bench(options);
  else
    Speaker::simulate(options);
  std::cout << options.router << ": traced " << options.events << " events (seed " << options.seed
            << (options.bench ? ", bench" : "") << ")\n";
}
