// MAC addresses, Ethernet segments and system identifiers.
#include "tests/support/FormatCase.h"

#include <gtest/gtest.h>

namespace Orvane::test {
namespace {

TEST(Ethernet, MacLayouts) {
  expectCases({
      {"E", "00 1c 73 aa bb cc", "001c.73aa.bbcc", 6},
      {"E", "00 11 22 33 44 55", "0011.2233.4455", 6},
      {"EC", "00 11 22 33 44 55", "00:11:22:33:44:55", 6},
      {"EC", "ff 0a a0 00 01 10", "ff:0a:a0:00:01:10", 6},
      {"EM", "ff ff ff ff ff ff ff ff ff ff ff ff", "ffff.ffff.ffff/ffff.ffff.ffff", 12},
      {"EM", "00 1c 73 00 00 01 ff ff ff 00 00 00", "001c.7300.0001/ffff.ff00.0000", 12},
      {"ES", "00 11 22 33 44 55 66 77 88 99", "0011:2233:4455:6677:8899", 10},
      {"ES", "00 00 00 00 00 00 00 00 00 00", "0000:0000:0000:0000:0000", 10},
  });
}

TEST(SystemId, IsisAndDsf) {
  expectCases({
      {"IS", "01 00 00 00 00 01", "0100.0000.0001", 6},
      {"IS", "19 21 68 00 10 01", "1921.6800.1001", 6},
      // DSFID: host u8, host u16, host string (count byte, then the bytes).
      {"DSFID", "01 02 01 04 6c 63 31 61", "SystemId(1, 258, lc1a)", 8},
      {"DSFID", "ff ff ff 00", "SystemId(255, 65535, )", 4},
  });
}

} // namespace
} // namespace Orvane::test
