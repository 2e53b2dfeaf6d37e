// MPLS labels, label operations, EVPN label words, router ids, global FEC ids and LFIB
// via keys.
#include "mpls/Label.h"
#include "registry/Formatter.h"
#include "tests/support/FormatCase.h"

#include <gtest/gtest.h>

#include <sstream>

namespace Orvane::test {
namespace {

TEST(MplsLabel, SpecialValues) {
  expectCases({
      {"ML", "03 00 00 00", "MplsLabel(ImplicitNull)", 4},
      {"ML", "00 00 10 00", "MplsLabel(Null)", 4},
      {"ML", "00 00 00 00", "MplsLabel(0)", 4},
      {"ML", "ff ff 0f 00", "MplsLabel(1048575)", 4},
      {"ML", "01 00 10 00", "MplsLabel(1048577)", 4},
      {"ML", "ff ff ff ff", "MplsLabel(4294967295)", 4},
  });
  std::ostringstream os;
  formatMplsLabel(3u, os) << " ";
  formatMplsLabel(0x100000u, os) << " ";
  formatMplsLabel(24001u, os);
  EXPECT_EQ(os.str(), "ImplicitNull Null 24001");
}

TEST(MplsLabelOperation, OperationsAndStacks) {
  expectCases({
      {"LO", "02 02 03 00 00 00 10 00 00 00", "swap[ImplicitNull, 16]", 10},
      {"LO", "00 01 00 00 10 00", "push[Null]", 6},
      {"LO", "01 00", "pop[]", 2},
      {"LO", "03 01 e8 03 00 00", "forward[1000]", 6},
      {"LO", "ff 00", "unknown[]", 2},
      {"LO", "00 0d", "push[0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0]", 54},
      // The count is checked before the operation, so nothing at all is printed.
      {"LO", "00 0e", "", kInvalidLength},
      {"LO", "07 ff", "", kInvalidLength},
  });
}

// The one case where format and length disagree: the length looks at the count only.
TEST(MplsLabelOperation, OperationFourTo254IsInvalidOnlyWhenFormatted) {
  for (unsigned code : {4u, 100u, 254u}) {
    const unsigned char value[6] = {static_cast<unsigned char>(code), 1, 16, 0, 0, 0};
    std::ostringstream os;
    EXPECT_EQ(formatMplsLabelOperation(value, os), kInvalidLength) << code;
    EXPECT_EQ(os.str(), "") << code;
    EXPECT_EQ(lengthMplsLabelOperation(value), 6u) << code;
  }
}

TEST(EvpnLabel, ByType) {
  expectCases({
      {"EL", "41 06 00 02", "MplsLabel:100", 4},
      {"EL", "13 00 00 02", "MplsLabel:1", 4},
      // The label is a plain number here: 3 is not ImplicitNull.
      {"EL", "30 00 00 02", "MplsLabel:3", 4},
      {"EL", "10 27 00 01", "VNI:10000", 4},
      {"EL", "ff ff ff 00", "NotPresent", 4},
      {"EL", "05 00 00 07", "UnsupportedType:5", 4},
      {"EL", "ff ff ff ff", "UnsupportedType:16777215", 4},
  });
}

TEST(MplsRouterId, SystemIdOrAddressAndNumber) {
  expectCases({
      {"MRTR", "03 19 21 68 00 10 01", "1921.6800.1001", 7},
      {"MRTR", "01 0a 00 00 01 00 07", "10.0.0.1:7", 7},
      {"MRTR", "00 c0 00 02 01 01 00", "192.0.2.1:256", 7},
      {"MRTR", "ff 00 00 00 00 ff ff", "0.0.0.0:65535", 7},
  });
}

TEST(GlobalFecId, TableIdIsTheFecIdsLowHalf) {
  expectCases({
      {"GFID", "00 00 01 00 00 00 00 00 09 00", "fecId: 65536, tableId: 0", 10},
      {"GFID", "34 12 00 00 01 00 00 00 09 00", "fecId: 4294971956, tableId: 4660", 10},
  });
}

TEST(LfibViaKey, ThreeFields) {
  expectCases({
      {"LVK", "01 e8 03 00 00 02", "(1,1000,2)", 6},
      {"LVK", "ff ff ff ff ff 00", "(255,4294967295,0)", 6},
  });
}

} // namespace
} // namespace Orvane::test
