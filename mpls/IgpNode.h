// IGP node identifiers: id "IGPN".
//
// 9 bytes; byte 0 is the node-id kind, and the kind alone says which other bytes count:
//   1  system id: bytes 3-8, a 48-bit little-endian number
//   2  system id (bytes 3-8) and pseudonode number (byte 2)
//   5  IPv4 router id: bytes 1-4, a native u32 (overlapping the system-id bytes 3-4)
#pragma once

#include "registry/Export.h"

#include <ostream>

namespace Orvane {

/// "IGPN". Kind 1 prints the system id as high.middle.low 16-bit groups in four
/// lowercase hex digits (0102.0304.0506); kind 2 appends "." and the pseudonode in two
/// hex digits; kind 5 prints the router id as a dotted IPv4 address; any other kind
/// prints "unknown". Returns 9.
ORVANE_API unsigned formatIgpNodeId(const unsigned char* p, std::ostream& os);
/// 9.
ORVANE_API unsigned lengthIgpNodeId(const unsigned char* p);

} // namespace Orvane
