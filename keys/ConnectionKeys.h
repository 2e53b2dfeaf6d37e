// Keys of the address-translation and flow-tracking services: ids "C", "NSK", "NDK",
// "NDC", "PMK", "IFK" and "HIFK".
//
// IPv4 addresses are native-order u32s printed as "I". Ports, VLAN ids and the NAT
// group are native u16s printed in decimal without a byte swap. ACL and interface
// names are host strings.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"

#include <ostream>

namespace Orvane {

/// "C" (13 bytes): source address ":" port " -> " destination address ":" port ","
/// protocol, e.g. 10.0.0.1:1024 -> 10.0.0.2:80,6. The ports and the protocol are
/// inserted directly, so they follow the stream's base. Returns 13.
ORVANE_API unsigned formatConnTuple(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthConnTuple(const unsigned char* p); ///< 13

/// The table of "NSK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kNatStaticKeyFields;
/// "NSK": "acl: " string ", addr: " address ":" port. The port follows the stream's
/// base like those of "C".
ORVANE_API unsigned formatNatStaticKey(const unsigned char* p, std::ostream& os);
/// lengthString + 6.
ORVANE_API unsigned lengthNatStaticKey(const unsigned char* p);

/// The table of "NDK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kNatDynamicKeyFields;
/// "NDK": "acl: " string ", group: " u16.
ORVANE_API unsigned formatNatDynamicKey(const unsigned char* p, std::ostream& os);
/// lengthString + lengthU16.
ORVANE_API unsigned lengthNatDynamicKey(const unsigned char* p);

/// The table of "NDC" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kNatDynamicConnFields;
/// "NDC": "intf: " string ", conn: " a "C" tuple starting where the string ends.
ORVANE_API unsigned formatNatDynamicConn(const unsigned char* p, std::ostream& os);
/// lengthString + 13.
ORVANE_API unsigned lengthNatDynamicConn(const unsigned char* p);

/// The table of "PMK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kUpnpPortMapKeyFields;
/// "PMK": "(" address ":" u16 ":" u8 ")".
ORVANE_API unsigned formatUpnpPortMapKey(const unsigned char* p, std::ostream& os);
/// lengthU32 + lengthU16 + lengthU8.
ORVANE_API unsigned lengthUpnpPortMapKey(const unsigned char* p);

/// The table of "IFK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kIpFlowKeyFields;
/// "IFK": "vrfId:" u32 " vlanId:" u16 " srcAddr:" address " dstAddr:" address
/// " ipProtocol:" u8 " srcPort:" u16 " dstPort:" u16 (19 bytes with the usual host
/// widths).
ORVANE_API unsigned formatIpFlowKey(const unsigned char* p, std::ostream& os);
/// The host lengths of the fields, and 4 for each address.
ORVANE_API unsigned lengthIpFlowKey(const unsigned char* p);

/// The table of "HIFK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kHoIpFlowKeyFields;
/// "HIFK": an "IFK" key, " intf:", then the interface string that follows the key.
ORVANE_API unsigned formatHoIpFlowKey(const unsigned char* p, std::ostream& os);
/// lengthIpFlowKey + lengthString.
ORVANE_API unsigned lengthHoIpFlowKey(const unsigned char* p);

} // namespace Orvane
