// RIB route and via keys, routing protocols, unicast key references and IGP node ids.
#include "tests/support/FormatCase.h"

#include <gtest/gtest.h>

namespace Orvane::test {
namespace {

#define ZERO16 "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
// 10.1.0.0/16 as a generic prefix and as an Optimized one.
#define GEN_PREFIX "01 0a 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 10"
#define OPT_PREFIX "01 10 0a 01"

TEST(RoutingProtocol, NamesAndNumbers) {
  expectCases({
      {"RRRP", "00", "reserved", 1},
      {"RRRP", "0c", "gribi", 1},
      {"RRRP", "0e", "routeInputRouteCacheConfig", 1},
      {"RRRP", "0f", "15", 1},
      {"VLAFP", "02 03", "(ipv6,bgp)", 2},
      {"VLAFP", "07 63", "(7,99)", 2},
      {"VLAFPV", "01 05 07 00 00 00", "(ipv4,ospf,7)", 6},
      {"VLAFPV", "00 0f ff ff ff ff", "(unknown,15,4294967295)", 6},
      {"RVK", "05 00 00 00 00 00 00 00 00 00 00 00 0c", "(id:5, vrfId:0, proto:gribi)", 13},
      {"RVK", "ff ff ff ff ff ff ff ff 02 00 00 00 20",
       "(id:18446744073709551615, vrfId:2, proto:32)", 13},
  });
}

TEST(RibRouteKey, PrefixForms) {
  expectCases({
      {"RRRK", "2a 00 00 00 " GEN_PREFIX, "(42, 10.1.0.0/16)", 22},
      {"RRRKO", "2a 00 00 00 " OPT_PREFIX, "(42, 10.1.0.0/16)", 8},
      {"RRRKO", "2a 00 00 00 02 ff", "(42, ::/255)", 6},
      {"RRRKO", "2a 00 00 00 00 05", "(42, unknown address family(0)/5)", 6},
      // An unknown prefix tag measures -1: the key wraps to the number's width minus one.
      {"RRRKO", "2a 00 00 00 07 08", "(42, unknown address family(7)/8)", 3},
      {"PGKR", "01 00 " GEN_PREFIX, "vrf:1, ipAddr:10.1.0.0/16", 20},
      {"PGKRO", "01 00 " OPT_PREFIX, "vrf:1, ipAddr:10.1.0.0/16", 6},
      {"PGKRO", "01 00 01 21 00 00 00 00 00", "vrf:1, ipAddr:0.0.0.0/255", 9},
      {"PGKRO", "01 00 ff 08", "vrf:1, ipAddr:unknown address family(-1)/8", 1},
  });
}

TEST(IgpNodeId, ByKind) {
  expectCases({
      {"IGPN", "01 00 00 06 05 04 03 02 01", "0102.0304.0506", 9},
      {"IGPN", "02 00 0a 06 05 04 03 02 01", "0102.0304.0506.0a", 9},
      {"IGPN", "02 ff ff 00 00 00 00 00 00", "0000.0000.0000.ff", 9},
      // The router id overlaps the system id's low bytes; the kind decides.
      {"IGPN", "05 01 00 00 0a 02 01 00 00", "10.0.0.1", 9},
      {"IGPN", "03 00 0a 06 05 04 03 02 01", "unknown", 9},
  });
}

} // namespace
} // namespace Orvane::test
