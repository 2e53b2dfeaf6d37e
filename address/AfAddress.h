// The family-tagged (socket-style) address: id "A".
//
// Byte 0 is the record's total length N (itself included), byte 1 the family code:
//   2   IPv4: up to 4 raw bytes at 4 (fewer when N < 8; missing bytes print as zero)
//   10  IPv6: up to 16 raw bytes at 8 (fewer when N < 24)
//   254 IPv6 with zone: as 10, then "%" and the zone: the zone name at 24 when N > 24,
//       else the big-endian u32 at 10 in lowercase hex
//   41  N-2 data bytes at 2; 42: N-3 data bytes at 3 (after one ignored byte). Printed
//       as hex byte pairs joined by ".", an odd last byte after "-" (4900.0102-03);
//       the stream keeps fill '0'
//   44, 45  "second|first|address": big-endian u32s at N-4 and N-8, then the IPv4 (44)
//       or IPv6 (45) address at 4
//   other "<Address in AF F>"
// Records shorter than their family's layout are read as the layout says, which may
// read before or after the record; the host hands over whole records.
#pragma once

#include "registry/Export.h"

#include <ostream>

namespace Orvane {

/// "A": the address by family code. Returns N.
ORVANE_API unsigned formatAfAddr(const unsigned char* p, std::ostream& os);
/// Byte 0, the record's total length.
ORVANE_API unsigned lengthAfAddr(const unsigned char* p);

} // namespace Orvane
