// Connection tuples, NAT keys, UPnP port mappings and IP flow keys.
#include "keys/ConnectionKeys.h"
#include "tests/support/FormatCase.h"
#include "tests/support/HexText.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Orvane::test {
namespace {

// 10.0.0.1:1024 -> 10.0.0.2:80, TCP.
#define TUPLE "01 00 00 0a 00 04 02 00 00 0a 50 00 06"
#define FLOW "07 00 00 00 64 00 01 00 00 0a 02 00 00 0a 11 35 00 00 04"

TEST(ConnectionKeys, TuplesAndNat) {
  const std::string acl = hostString("nat1"), intf = hostString("Et1");
  expectCases({
      {"C", TUPLE, "10.0.0.1:1024 -> 10.0.0.2:80,6", 13},
      {"C", "01 00 00 0a 00 00 02 00 00 0a ff ff 11", "10.0.0.1:0 -> 10.0.0.2:65535,17", 13},
      // The port is native order: stored 50 00 is 80.
      {"NSK", acl + " 01 00 00 0a 50 00", "acl: nat1, addr: 10.0.0.1:80", 5 + 6},
      {"NDK", acl + " 07 00", "acl: nat1, group: 7", 5 + 2},
      {"NDK", "00 ff ff", "acl: , group: 65535", 1 + 2},
      // The tuple starts right after the name's encoded bytes.
      {"NDC", intf + " " TUPLE, "intf: Et1, conn: 10.0.0.1:1024 -> 10.0.0.2:80,6", 4 + 13},
      {"PMK", "0a 01 a8 c0 90 1f 06", "(192.168.1.10:8080:6)", 7},
  });
}

TEST(ConnectionKeys, FlowKeys) {
  const std::string flow =
      "vrfId:7 vlanId:100 srcAddr:10.0.0.1 dstAddr:10.0.0.2 ipProtocol:17 srcPort:53 dstPort:1024";
  expectCases({
      {"IFK", FLOW, flow, 19},
      {"HIFK", FLOW " " + hostString("Ethernet3"), flow + " intf:Ethernet3", 19 + 10},
  });
}

TEST(ConnectionKeys, TuplePortsFollowTheStreamBase) {
  const unsigned char tuple[] = {0x01, 0x00, 0x00, 0x0a, 0x00, 0x04, 0x02,
                                 0x00, 0x00, 0x0a, 0x50, 0x00, 0x11};
  std::ostringstream os;
  os << std::hex;
  formatConnTuple(tuple, os);
  EXPECT_EQ(os.str(), "10.0.0.1:400 -> 10.0.0.2:50,11");
}

} // namespace
} // namespace Orvane::test
