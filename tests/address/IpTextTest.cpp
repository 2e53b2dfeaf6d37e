// The address converter against the C library's inet_ntop, on a sample of every shape.
#include "address/IpText.h"
#include "tests/support/Ipv6Shapes.h"

#include <arpa/inet.h>
#include <cstring>
#include <gtest/gtest.h>

namespace Orvane::test {
namespace {

using Converter = char* (*)(const unsigned char*, char*, std::size_t);

// The same text as inet_ntop into a buffer that just holds it, and failure one byte short.
void expectLikeInetNtop(int family, Converter convert, const unsigned char* bytes) {
  char expected[64], actual[64];
  ASSERT_TRUE(inet_ntop(family, bytes, expected, sizeof expected));
  const std::size_t length = std::strlen(expected);
  EXPECT_EQ(convert(bytes, actual, length + 1), actual + length) << expected;
  EXPECT_STREQ(actual, expected);
  EXPECT_EQ(convert(bytes, actual, length), nullptr) << expected;
}

TEST(IpText, Ipv4OctetsOfEveryWidthAtEveryPosition) {
  const unsigned char octets[] = {0, 7, 10, 99, 100, 255};
  for (unsigned i = 0; i < 6 * 6 * 6 * 6; ++i) {
    const unsigned char bytes[] = {octets[i % 6], octets[i / 6 % 6], octets[i / 36 % 6],
                                   octets[i / 216]};
    expectLikeInetNtop(AF_INET, ipv4Text, bytes);
  }
}

TEST(IpText, Ipv6OfEveryShape) {
  std::mt19937_64 random(2024);
  for (unsigned shape = 0; shape < 4 * kIpv6Shapes; ++shape)
    expectLikeInetNtop(AF_INET6, ipv6Text, ipv6OfShape(shape, random).data());
}

} // namespace
} // namespace Orvane::test
