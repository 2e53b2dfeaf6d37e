// IP addresses, prefixes and the generic address and prefix forms.
#include "address/AfAddress.h"
#include "address/Ip.h"
#include "tests/support/FormatCase.h"

#include <gtest/gtest.h>
#include <iomanip>
#include <sstream>

namespace Orvane::test {
namespace {

// 10.0.0.1 as a native-order u32, and as raw network-order bytes.
#define V4_NATIVE "01 00 00 0a"
#define V4_RAW "0a 00 00 01"
#define V6_DOC "20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 01"
#define ZERO16 "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"

TEST(Ip, PlainAddressesAndPrefixes) {
  expectCases({
      {"I", V4_NATIVE, "10.0.0.1", 4},
      {"I", "ff ff ff ff", "255.255.255.255", 4},
      {"I6", V6_DOC, "2001:db8::1", 16},
      {"I6", ZERO16, "::", 16},
      {"P", "00 00 00 0a 08", "10.0.0.0/8", 5},
      {"AM4", "00 00 00 0a 08", "10.0.0.0/8", 5},
      {"P6", V6_DOC " 40", "2001:db8::1/64", 17},
      {"AM6", V6_DOC " 80", "2001:db8::1/128", 17},
      {"IP", V4_NATIVE " b3 00", "10.0.0.1:179", 6},
      {"IP", V4_NATIVE " ff ff", "10.0.0.1:65535", 6},
  });
}

TEST(Ip, FormatIpAddrWritesIntoTheCallersBuffer) {
  const unsigned char address[] = {0x01, 0x02, 0xa8, 0xc0};
  char buffer[24];
  EXPECT_STREQ(formatIpAddr(address, buffer, sizeof buffer), "192.168.2.1");
  EXPECT_EQ(formatIpAddr(address, buffer, sizeof buffer), buffer);
  // Too small for the text: the conversion fails and "unknown" is copied instead.
  char tiny[8];
  EXPECT_STREQ(formatIpAddr(address, tiny, sizeof tiny), "unknown");
}

TEST(GenericAddress, EveryTagConsumesItsSlots) {
  const std::string v4Slot = V4_NATIVE, v6Slot = V6_DOC;
  expectCases({
      {"IG", "01 " + v4Slot + " " ZERO16, "10.0.0.1", 21},
      {"IG", "02 00 00 00 00 " + v6Slot, "2001:db8::1", 21},
      {"IG", "00 " + v4Slot + " " + v6Slot, "unknown", 21},
      {"IG", "07", "unknown", 21},
      {"IGO", "01 " + v4Slot, "10.0.0.1", 5},
      {"IGO", "02 " + v6Slot, "2001:db8::1", 17},
      {"IGO", "00", "unknown", 1},
      {"IGO", "07", "unknown", 1},
  });
}

TEST(GenericAddress, MaskFollowsTheAddress) {
  const std::string address = "01 00 00 01 0a " ZERO16, mask = "01 00 00 ff ff " ZERO16;
  expectCases({
      {"IGM", address + " " + mask, "10.1.0.0/255.255.0.0", 42},
      {"IGM", "07", "unknown/unknown", 42},
      // Opt: the mask starts where the address ends, whatever size the tag gives it.
      {"IGMO", "01 00 00 01 0a 01 00 00 ff ff", "10.1.0.0/255.255.0.0", 10},
      {"IGMO", "02 " V6_DOC " 01 00 00 ff ff", "2001:db8::1/255.255.0.0", 22},
      {"IGMO", "00 02 " V6_DOC, "unknown/2001:db8::1", 18},
      {"IGMO", "09 09", "unknown/unknown", 2},
  });
}

TEST(GenericPrefix, FixedForm) {
  expectCases({
      // IPv4 bytes of "PG" are raw, those of "IG" native: the same 01 00 00 0a differ.
      {"PG", "01 01 00 00 0a 00 00 00 00 00 00 00 00 00 00 00 00 08", "1.0.0.10/8", 18},
      {"PG", "02 " V6_DOC " 30", "2001:db8::1/48", 18},
      {"PG", "ff " ZERO16 " 18", "unknown address family(-1)/24", 18},
      {"PG", "00 " ZERO16 " 00", "unknown address family(0)/0", 18},
      {"PG", "7f " ZERO16 " 01", "unknown address family(127)/1", 18},
  });
}

TEST(GenericPrefix, OptimizedForm) {
  expectCases({
      {"PGO", "01 14 0a 01 10", "10.1.16.0/20", 5},
      {"PGO", "01 18 0a 01 10", "10.1.16.0/24", 5},
      {"PGO", "01 00", "0.0.0.0/0", 2},
      {"PGO", "01 20 c0 a8 01 01", "192.168.1.1/32", 6},
      {"PGO", "02 30 20 01 0d b8 00 01", "2001:db8:1::/48", 8},
      {"PGO", "02 80 " V6_DOC, "2001:db8::1/128", 18},
      // The IPv4 length 33 marker prints like 255 and measures by the formula.
      {"PGO", "01 21 00 00 00 00 00", "0.0.0.0/255", 7},
      {"PGO", "01 ff", "0.0.0.0/255", 2},
      {"PGO", "02 ff", "::/255", 2},
      {"PGO", "00 ff", "", 2},
      {"PGO", "00 05", "unknown address family(0)/5", 2},
      {"PGO", "03 00", "unknown address family(3)/0", kInvalidLength},
      {"PGO", "03 ff", "", kInvalidLength},
      {"PGO", "ff 08", "unknown address family(-1)/8", kInvalidLength},
  });
}

TEST(AfAddress, ByFamily) {
  expectCases({
      {"A", "08 02 00 50 0a 00 00 01", "10.0.0.1", 8},
      // Short records print the bytes present and zeros for the rest.
      {"A", "06 02 00 00 01 02", "1.2.0.0", 6},
      {"A", "04 02 00 00", "0.0.0.0", 4},
      {"A", "18 0a 00 00 00 00 00 00 " V6_DOC, "2001:db8::1", 24},
      {"A", "0a 0a 00 00 00 00 00 00 fe 80", "fe80::", 10},
      // Zone by index (N <= 24): big-endian u32 from record bytes 10-13, in hex.
      {"A", "18 fe 00 00 00 00 00 00 fe 80 00 00 01 2a 00 00 00 00 00 00 00 00 00 01",
       "fe80:0:12a::1%12a", 24},
      // Zone by name (N > 24).
      {"A", "1b fe 00 00 00 00 00 00 fe 80 00 00 00 00 00 00 00 00 00 00 00 00 00 01 65 74 30",
       "fe80::1%et0", 27},
      {"A", "1c fe 00 00 00 00 00 00 fe 80 00 00 00 00 00 00 00 00 00 00 00 00 00 01 65 00 31 32",
       "fe80::1%e", 28},
      {"A", "07 29 49 00 01 02 03", "4900.0102-03", 7},
      {"A", "03 29 49", "-49", 3},
      {"A", "06 29 49 00 01 02", "4900.0102", 6},
      {"A", "06 2a ff 49 00 01", "4900-01", 6},
      {"A", "02 29", "", 2},
      {"A", "10 2c 00 00 0a 00 00 01 00 00 00 07 00 00 00 09", "9|7|10.0.0.1", 16},
      {"A", "1c 2d 00 00 " V6_DOC " 00 00 00 07 00 00 00 09", "9|7|2001:db8::1", 28},
      {"A", "02 00", "<Address in AF 0>", 2},
      {"A", "05 2b 01 02 03", "<Address in AF 43>", 5},
      {"A", "02 ff", "<Address in AF 255>", 2},
      {"AF", "00", "unknown", 1},
      {"AF", "01", "ipv4", 1},
      {"AF", "02", "ipv6", 1},
      {"AF", "07", "7", 1},
  });
}

TEST(AfAddress, DataBytesLeaveZeroFillButDecimalBase) {
  const unsigned char record[] = {0x05, 0x29, 0x0a, 0x0b, 0x0c};
  std::ostringstream os;
  formatAfAddr(record, os);
  os << " " << std::setw(3) << 255;
  EXPECT_EQ(os.str(), "0a0b-0c 255");
  os << " " << std::setw(4) << 7;
  EXPECT_EQ(os.str(), "0a0b-0c 255 0007");
}

} // namespace
} // namespace Orvane::test
