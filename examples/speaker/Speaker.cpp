#include "speaker/Speaker.h"

#include "speaker/SpeakerTracepoints.h"
#include "speaker/SpeakerValues.h"

#include <array>

namespace Speaker {
namespace {

constexpr std::uint32_t kPeers = 4;
constexpr std::uint32_t kFirstPeerAs = 65001;

void tracePeerUp(SpeakerValues& values, const char* router, std::uint32_t peer) {
  const Bytes key = values.peerKey(peer), address = values.peerAddress(peer),
              address6 = values.peerAddress6(peer), mac = values.routerMac(peer);
  lttng_ust_tracepoint(orvane_speaker, peer_up, router, key.data(), address.data(), address6.data(),
                       mac.data(), kFirstPeerAs + peer);
}

void traceRouteUpdate(SpeakerValues& values, const char* router, std::uint32_t peer) {
  const Bytes route = values.vpnRouteKey(), prefix = values.prefix(), path = values.asPath(),
              nexthop = values.nextHop(peer), label = values.label(),
              rd = values.routeDistinguisher();
  lttng_ust_tracepoint(orvane_speaker, route_update, router, route.data(), prefix.data(),
                       path.data(), nexthop.data(), label.data(), rd.data());
}

void traceRouteWithdraw(SpeakerValues& values, const char* router) {
  const Bytes route = values.unicastRouteKey(), prefix6 = values.prefix6();
  lttng_ust_tracepoint(orvane_speaker, route_withdraw, router, route.data(), prefix6.data());
}

void traceLabelProgram(SpeakerValues& values, const char* router) {
  const Bytes prefix = values.prefix(), operation = values.labelOperation();
  lttng_ust_tracepoint(orvane_speaker, label_program, router, prefix.data(), operation.data());
}

void traceEvpnMac(SpeakerValues& values, const char* router, std::uint32_t peer) {
  const Bytes route = values.evpnRouteKey(peer), attributes = values.evpnAttributes(),
              mac = values.routerMac(peer);
  lttng_ust_tracepoint(orvane_speaker, evpn_mac, router, route.data(), attributes.data(),
                       mac.data());
}

void tracePacketIn(SpeakerValues& values, const char* router, std::uint32_t peer) {
  const Bytes key = values.peerKey(peer), packet = values.packet();
  lttng_ust_tracepoint(orvane_speaker, packet_in, router, key.data(), packet.data(),
                       static_cast<std::uint32_t>(packet.size()));
}

/// One event after the peers are up, of a kind and from a peer the generator draws.
void traceActivity(SpeakerValues& values, const char* router) {
  const std::uint32_t peer = values.below(kPeers);
  switch (values.below(5)) {
  case 0: traceRouteUpdate(values, router, peer); break;
  case 1: traceRouteWithdraw(values, router); break;
  case 2: traceLabelProgram(values, router); break;
  case 3: traceEvpnMac(values, router, peer); break;
  default: tracePacketIn(values, router, peer); break;
  }
}

} // namespace

void simulate(const SpeakerOptions& options) {
  SpeakerValues values(options.seed);
  const char* router = options.router.c_str();
  for (std::uint64_t event = 0; event < options.events; ++event) {
    if (event < kPeers)
      tracePeerUp(values, router, static_cast<std::uint32_t>(event));
    else
      traceActivity(values, router);
  }
}

void bench(const SpeakerOptions& options) {
  struct Route {
    Bytes prefix, peer, nexthop;
  };
  SpeakerValues values(options.seed);
  std::array<Route, 64> routes;
  for (Route& route : routes) {
    const std::uint32_t peer = values.below(kPeers);
    route = {values.prefix(), values.peerKey(peer), values.nextHop(peer)};
  }
  for (std::uint64_t sequence = 0; sequence < options.events; ++sequence) {
    const Route& route = routes[sequence % routes.size()];
    lttng_ust_tracepoint(orvane_speaker, bench_route, route.prefix.data(), route.peer.data(),
                         route.nexthop.data(), sequence);
  }
}

} // namespace Speaker
