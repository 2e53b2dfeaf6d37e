// Forwarding equivalence classes in the plain and the optimized encodings.
#include "tests/support/FormatCase.h"

#include "registry/Formatter.h"

#include <gtest/gtest.h>

namespace Orvane::test {
namespace {

// 10.0.0.0/8 as an 18-byte generic prefix, and 10.0.0.1 as a 21-byte generic address.
const std::string kPrefix = "01 0a 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 08";
const std::string kRoot = "01 01 00 00 0a 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00";

TEST(Fec, PlainEncoding) {
  expectCases({
      {"FM", "00 " + kPrefix, "10.0.0.0/8", 19},
      {"FM", "01 07 00 00 00 09 00 00 00", "RSVP[Session=7, SP=9]", 9},
      {"FM", "02 " + kRoot + " 05 00 00 00", "MLDP[Root=10.0.0.1, ID=5]", 26},
      {"FM", "03 " + kPrefix + " 80 00 00 00", "PFXALGO[10.0.0.0/8, 128]", 23},
      {"FM", "04", "", kInvalidLength},
      {"FM", "ff", "", kInvalidLength},
  });
}

TEST(Fec, OptimizedEncoding) {
  expectCases({
      {"FMO", "00 01 08 0a", "10.0.0.0/8", 4},
      {"FMO", "00 02 20 20 01 0d b8", "2001:db8::/32", 7},
      {"FMO", "01 07 00 00 00 09 00 00 00", "RSVP[Session=7, SP=9]", 9},
      {"FMO", "02 01 01 00 00 0a 05 00 00 00", "MLDP[Root=10.0.0.1, ID=5]", 10},
      {"FMO", "02 02 20 01 0d b8 00 00 00 00 00 00 00 00 00 00 00 01 05 00 00 00",
       "MLDP[Root=2001:db8::1, ID=5]", 22},
      {"FMO", "02 00 05 00 00 00", "MLDP[Root=unknown, ID=5]", 6},
      {"FMO", "03 01 08 0a 80 00 00 00", "PFXALGO[10.0.0.0/8, 128]", 8},
      {"FMO", "04", "", kInvalidLength},
  });
}

// A prefix of unknown family measures 0xFFFFFFFF; the sums wrap and are kept: type 0
// yields 0, and type 3 reads its algorithm one byte before the body (at the type byte)
// and yields 4.
TEST(Fec, OptimizedPrefixOfUnknownFamilyWraps) {
  expectCases({
      {"FMO", "00 05 00", "unknown address family(5)/0", 0},
      {"FMO", "03 05 00", "PFXALGO[unknown address family(5)/0, 1283]", 4},
  });
}

} // namespace
} // namespace Orvane::test
