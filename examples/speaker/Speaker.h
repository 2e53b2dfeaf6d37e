// The simulated BGP speaker: brings its peers up, then learns, withdraws and programs
// routes and receives packets, tracing each step with typed values.
#pragma once

#include <cstdint>
#include <string>

namespace Speaker {

/// What to simulate; the seed and the router name fix every traced value.
struct SpeakerOptions {
  std::string router = "r1"; ///< traced in every event but bench_route
  std::uint32_t seed = 1;
  std::uint64_t events = 40; ///< events to trace, peer_up ones included
  bool bench = false;        ///< trace bench_route events only
};

/// Traces `options.events` events of the simulation: a peer_up per peer first, then
/// route updates, withdrawals, label operations, EVPN routes and packets in an order the
/// seed draws.
void simulate(const SpeakerOptions& options);

/// Traces `options.events` bench_route events (three typed fields and a sequence
/// number), cycling through values drawn before the first, so that the loop does nothing
/// but trace.
void bench(const SpeakerOptions& options);

} // namespace Speaker
