// The values a simulated BGP speaker traces, encoded as the plug-in's formatters read
// them. Each comes from a known-good example value with its addresses, numbers and
// names drawn from a seeded generator, so a seed always gives the same values.
#pragma once

#include "speaker/Bytes.h"

#include <cstdint>
#include <random>

namespace Speaker {

/// Draws encoded values from a generator seeded once: the same seed, the same values.
class SpeakerValues {
public:
  explicit SpeakerValues(std::uint32_t seed) : random_(seed) {}

  /// A number below `bound` from the generator (mt19937 output, the same everywhere).
  std::uint32_t below(std::uint32_t bound) { return random_() % bound; }

  Bytes peerKey(std::uint32_t peer);      ///< BPK: 10.0.0.N%etN
  Bytes peerAddress(std::uint32_t peer);  ///< I: 10.0.0.N
  Bytes peerAddress6(std::uint32_t peer); ///< I6: 2001:db8::N
  Bytes routerMac(std::uint32_t peer);    ///< E: 001c.73NN.xxxx
  Bytes asPath();                         ///< US: one to four AS numbers, blank-separated
  Bytes prefix();                         ///< PGO: an IPv4 prefix of 16 to 28 bits
  Bytes prefix6();                        ///< PG: 2001:db8:N::/48
  Bytes vpnRouteKey();                    ///< BRY: an ipv4/mplsVpn route key
  Bytes evpnRouteKey(std::uint32_t peer); ///< BRY: an EVPN type-2 (MAC/IP) route key
  Bytes unicastRouteKey();                ///< BRK: an ipv4/ucast route key
  Bytes nextHop(std::uint32_t peer);      ///< BNH: IPv4 next hop and router MAC
  Bytes label();                          ///< ML: an MPLS label from 16 to 1048575
  Bytes labelOperation();                 ///< LO: push or swap of one or two labels
  Bytes routeDistinguisher();             ///< RD: 65000:N
  Bytes evpnAttributes();                 ///< EL2: layer-2 attributes with an MTU
  Bytes packet();                         ///< PKT: a VLAN-tagged IPv4 packet

private:
  std::mt19937 random_;
};

} // namespace Speaker
