// Address text against the C library's inet_ntop, on a sample of every shape.
#include "address/Ip.h"
#include "tests/support/Ipv6Shapes.h"

#include <arpa/inet.h>
#include <cstring>
#include <gtest/gtest.h>
#include <sstream>

namespace Orvane::test {
namespace {

// formatIpAddr: inet_ntop's text when the buffer holds it and its NUL, else "unknown".
TEST(IpText, Ipv4OctetsOfEveryWidthAtEveryPosition) {
  const unsigned char octets[] = {0, 7, 10, 99, 100, 255};
  for (unsigned i = 0; i < 6 * 6 * 6 * 6; ++i) {
    const unsigned char native[] = {octets[i % 6], octets[i / 6 % 6], octets[i / 36 % 6],
                                    octets[i / 216]};
    const unsigned char network[] = {native[3], native[2], native[1], native[0]};
    char expected[16], actual[16];
    const std::size_t length = std::strlen(inet_ntop(AF_INET, network, expected, 16));
    EXPECT_STREQ(formatIpAddr(native, actual, length + 1), expected);
    EXPECT_EQ(std::string_view(formatIpAddr(native, actual, length), 7), "unknown") << expected;
  }
}

TEST(IpText, Ipv6OfEveryShape) {
  std::mt19937_64 random(2024);
  for (unsigned shape = 0; shape < 4 * kIpv6Shapes; ++shape) {
    const auto bytes = ipv6OfShape(shape, random);
    char expected[64];
    std::ostringstream actual;
    formatIp6Addr(bytes.data(), actual);
    EXPECT_STREQ(actual.str().c_str(), inet_ntop(AF_INET6, bytes.data(), expected, 64));
  }
}

} // namespace
} // namespace Orvane::test
