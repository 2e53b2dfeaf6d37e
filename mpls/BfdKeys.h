// BFD peer keys: ids "BP" and "BPO".
//
// Fields in order, each at the running offset: peer address, VRF name (host string),
// source address, interface name (host string), u64 tunnel id, u32 type. "BP" holds
// 21-byte generic addresses, "BPO" Opt ones (5, 17 or 1 bytes by tag); both print the
// same text. An unknown address tag prints "unknown" and the rest of the key follows.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"

#include <ostream>

namespace Orvane {

/// The table of "BP" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kBfdPeerFields;
/// "BP": "peer(ip:" ip ", vrf:" vrf ", srcip:" srcip ", intf:" intf ", tunnelId:" u64
/// ", type:" u32 ")". Returns the six fields' counts added.
ORVANE_API unsigned formatBfdPeer(const unsigned char* p, std::ostream& os);
/// 21 + lengthString + 21 + lengthString + lengthU64 + lengthU32, each at its offset.
ORVANE_API unsigned lengthBfdPeer(const unsigned char* p);

/// The table of "BPO" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kBfdPeerOptimizedFields;
/// "BPO": as "BP" with Opt addresses.
ORVANE_API unsigned formatBfdPeerOptimized(const unsigned char* p, std::ostream& os);
/// As lengthBfdPeer with the two addresses sized by their tags.
ORVANE_API unsigned lengthBfdPeerOptimized(const unsigned char* p);

} // namespace Orvane
