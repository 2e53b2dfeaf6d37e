// Unsigned sequences, id sets and generic ranges.
#include "tests/support/FormatCase.h"

#include <gtest/gtest.h>

namespace Orvane::test {
namespace {

#define ZERO16 "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"

TEST(Sequences, UnsignedSequence) {
  expectCases({
      {"US", "02 2c 01 05 02 00 01", "5,256", 7},
      {"US", "00 2c", "", 2},
      {"US", "04 2d 01 ff 02 ff ff 04 ff ff ff ff 08 ff ff ff ff ff ff ff ff",
       "255-65535-4294967295-18446744073709551615", 21},
      // A bad width ends the walk: nothing for that element, not even its separator.
      {"US", "03 2c 01 05 03 07 01 06", "5", kInvalidLength},
      {"US", "01 2c 00", "", kInvalidLength},
  });
}

TEST(Sequences, IdSet) {
  expectCases({
      {"IDS", "01 00 0e 04 00 00 00 00 00 00", "(1-3,10)", 10},
      {"IDS", "00", "()", 1},
      // Adjacent words continue a run; a gap closes it one past its last id (kept).
      {"IDS", "02 00 00 00 00 00 00 00 00 80 01 03 00 00 00 00 00 00 00", "(63-65)", 19},
      {"IDS", "02 00 00 00 00 00 00 00 00 c0 02 01 00 00 00 00 00 00 00", "(62-64,128)", 19},
      {"IDS", "02 00 00 00 00 00 00 00 00 80 02 01 00 00 00 00 00 00 00", "(63,128)", 19},
      {"IDS", "01 01 00 00 00 00 00 00 00 c0", "(126-127)", 10},
      {"IDS", "01 03 ff ff ff ff ff ff ff ff", "(192-255)", 10},
  });
}

TEST(Sequences, GenericRange) {
  const std::string v4 = "01 01 00 00 0a " ZERO16, v4b = "01 02 00 00 0a " ZERO16;
  expectCases({
      {"GR", "00", "n/a", 1},
      {"GR", "01 01 0a 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 10", "10.1.0.0/16", 19},
      {"GR", "02 02 2c 01 05 02 00 01", "5,256", 8},
      {"GR", "ff " + v4 + " " + v4b, "10.0.0.1/10.0.0.2", 43},
      {"GR", "07", "", kInvalidLength},
      {"GR", "fe", "", kInvalidLength},
      // An invalid body wraps the total past zero.
      {"GR", "02 01 2c 09", "", 0},
      {"GRO", "00", "n/a", 1},
      {"GRO", "01 01 14 0a 01 10", "10.1.16.0/20", 6},
      {"GRO", "01 03 00", "unknown address family(3)/0", 0},
      {"GRO", "02 00 2c", "", 3},
      {"GRO", "ff 01 01 00 00 0a 02 " ZERO16, "10.0.0.1/::", 23},
      {"GRO", "ff 00 00", "unknown/unknown", 3},
      {"GRO", "03", "", kInvalidLength},
  });
}

} // namespace
} // namespace Orvane::test
