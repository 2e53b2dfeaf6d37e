// Whole traced packets: id "PKT".
//
// Layout: u16 TPID and u16 TCI of the VLAN tag (native order; TCI bits 0-11 VLAN id,
// bit 12 CFI, bits 13-15 priority), u8 VLAN-present flag, 2 unused bytes, then a host
// string holding the packet: count byte n at offset 7 and the n bytes from offset 8.
#pragma once

#include "registry/Export.h"

#include <ostream>

namespace Orvane {

/// "PKT": the packet library's decoder text with every newline replaced by a single
/// backslash; without a decoder a hex dump: for a tagged packet "(tpid 0x" TPID in hex
/// " vlan " id, " p " priority when TCI > 0x1FFF, " CFI" when bit 12 is set, ") ", then
/// every byte as two lowercase hex digits, e.g. (tpid 0x8100 vlan 100 p 1 CFI) 4500.
/// The hex dump leaves the stream in decimal with fill '0'. Returns n + 8.
ORVANE_API unsigned formatKanetPkt(const unsigned char* p, std::ostream& os);
/// 7 + lengthString at offset 7.
ORVANE_API unsigned lengthKanetPkt(const unsigned char* p);

} // namespace Orvane
