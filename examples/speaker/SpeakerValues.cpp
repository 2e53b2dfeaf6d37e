#include "speaker/SpeakerValues.h"

#include <cstring>

namespace Speaker {
namespace {

// Type tags and codes of the encodings below (the formatters' docs and examples).
constexpr unsigned char kFamilyIpv4 = 1, kFamilyIpv6 = 2;
constexpr unsigned char kPeerKeyAddressAndIntf = 5;
constexpr unsigned char kNextHopL3 = 1, kNextHopIpAndMac = 3;
constexpr std::uint16_t kLocalAs = 65000;

/// 10.0.0.N as a native u32, the form "I" and the generic addresses read.
std::uint32_t peerIpv4(std::uint32_t peer) { return 0x0a000000u | (peer + 1); }

/// The count-prefixed interface name etN.
void appendIntfName(Bytes& bytes, std::uint32_t peer) {
  const unsigned char digit = static_cast<unsigned char>('1' + peer % 9);
  bytes.add({3, 'e', 't', digit});
}

} // namespace

Bytes SpeakerValues::peerKey(std::uint32_t peer) {
  Bytes bytes{kPeerKeyAddressAndIntf, kFamilyIpv4};
  bytes.addNative(peerIpv4(peer));
  appendIntfName(bytes, peer);
  return bytes;
}

Bytes SpeakerValues::peerAddress(std::uint32_t peer) {
  Bytes bytes;
  bytes.addNative(peerIpv4(peer));
  return bytes;
}

Bytes SpeakerValues::peerAddress6(std::uint32_t peer) {
  Bytes bytes{0x20, 0x01, 0x0d, 0xb8};
  bytes.padTo(15);
  bytes.add({static_cast<unsigned char>(peer + 1)});
  return bytes;
}

Bytes SpeakerValues::routerMac(std::uint32_t peer) {
  return {0x00,
          0x1c,
          0x73,
          static_cast<unsigned char>(peer),
          static_cast<unsigned char>(below(256)),
          static_cast<unsigned char>(below(256))};
}

Bytes SpeakerValues::asPath() {
  const std::uint32_t hops = 1 + below(4);
  Bytes bytes{static_cast<unsigned char>(hops), ' '};
  for (std::uint32_t hop = 0; hop < hops; ++hop) {
    const std::uint32_t as = 64512 + below(2000) + (below(4) == 0 ? 70000 : 0);
    if (as > 0xffff) {
      bytes.add({4});
      bytes.addNative(as);
    } else {
      bytes.add({2});
      bytes.addNative(static_cast<std::uint16_t>(as));
    }
  }
  return bytes;
}

Bytes SpeakerValues::prefix() {
  const unsigned char length = static_cast<unsigned char>(16 + below(13));
  const unsigned char address[] = {10, static_cast<unsigned char>(below(256)),
                                   static_cast<unsigned char>(below(256) & 0xf0), 0};
  Bytes bytes{kFamilyIpv4, length};
  bytes.add(address, (length + 7) / 8u);
  return bytes;
}

Bytes SpeakerValues::prefix6() {
  Bytes bytes{kFamilyIpv6, 0x20, 0x01, 0x0d, 0xb8, 0x00, static_cast<unsigned char>(below(256))};
  bytes.padTo(17);
  bytes.add({48});
  return bytes;
}

Bytes SpeakerValues::vpnRouteKey() {
  constexpr unsigned char kVpnIpv4 = 0x12;
  Bytes bytes{kVpnIpv4, kNextHopL3};
  bytes.addNative(1 + below(8)); // VRF id
  Bytes rd = routeDistinguisher();
  bytes.add(rd);
  bytes.addNative(0x0a000000u | below(256) << 16); // 10.N.0.0
  bytes.add({16});
  return bytes;
}

Bytes SpeakerValues::evpnRouteKey(std::uint32_t peer) {
  constexpr unsigned char kEvpnMacIp = 0x04, kL2 = 0x00, kMacIpParts = 0x6d;
  Bytes bytes{kEvpnMacIp, kL2};
  bytes.addNative(10 + below(4)); // VRF id
  bytes.add({kMacIpParts});
  Bytes rd = routeDistinguisher();
  bytes.add(rd);
  bytes.padTo(bytes.size() + 8); // Ethernet tag ids
  Bytes mac = routerMac(peer);
  bytes.add(mac);
  bytes.add({kFamilyIpv4});
  bytes.addNative(0x0a640000u | below(0x10000)); // 10.100.x.y
  return bytes;
}

Bytes SpeakerValues::unicastRouteKey() {
  constexpr std::uint16_t kAfiIpv4 = 1;
  constexpr unsigned char kSafiUnicast = 1, kNlriIpv4Unicast = 1;
  Bytes bytes;
  bytes.addNative(kAfiIpv4);
  bytes.add({kSafiUnicast, kNlriIpv4Unicast, kNextHopL3});
  bytes.addNative(std::uint32_t{1});              // VRF id
  bytes.addNative(0xc0a80000u | below(256) << 8); // 192.168.N.0
  bytes.add({24});
  return bytes;
}

Bytes SpeakerValues::nextHop(std::uint32_t peer) {
  Bytes bytes{kNextHopL3};
  bytes.addNative(1 + below(8)); // VRF id
  bytes.add({kNextHopIpAndMac});
  bytes.addNative(peerIpv4(peer));
  Bytes mac = routerMac(peer);
  bytes.add(mac);
  return bytes;
}

Bytes SpeakerValues::label() {
  Bytes bytes;
  bytes.addNative(16 + below(0xfffff - 16));
  return bytes;
}

Bytes SpeakerValues::labelOperation() {
  constexpr unsigned char kPush = 0, kSwap = 2;
  const unsigned char count = static_cast<unsigned char>(1 + below(2));
  Bytes bytes{below(2) == 0 ? kPush : kSwap, count};
  for (unsigned char index = 0; index < count; ++index) bytes.addNative(16 + below(100000));
  return bytes;
}

Bytes SpeakerValues::routeDistinguisher() {
  Bytes bytes;
  bytes.addNative(100 + below(900)); // assigned number
  bytes.addNative(kLocalAs);
  bytes.addNative(std::uint16_t{0}); // type 0: AS and number
  return bytes;
}

Bytes SpeakerValues::evpnAttributes() {
  constexpr std::uint32_t kMtus[] = {1500, 9000, 9216};
  Bytes bytes{0x07, 0x01, 0x01, 0x00};
  bytes.addNative(kMtus[below(3)]);
  return bytes;
}

Bytes SpeakerValues::packet() {
  // An ICMP echo request from 10.1.1.1 to 10.2.2.2 behind an 802.1Q tag.
  static constexpr unsigned char kIcmpHeader[] = {0x45, 0x00, 0x00, 0x54, 0x3c, 0x1c, 0x40,
                                                  0x00, 0x40, 0x01, 0xf5, 0xa2, 0x0a, 0x01,
                                                  0x01, 0x01, 0x0a, 0x02, 0x02, 0x02};
  Bytes bytes{0x00, 0x81};                                       // TPID 0x8100, native
  bytes.addNative(static_cast<std::uint16_t>(100 + below(100))); // VLAN id
  bytes.add({1, 0, 0, sizeof kIcmpHeader});                      // tagged, count
  bytes.add(kIcmpHeader, sizeof kIcmpHeader);
  return bytes;
}

} // namespace Speaker
