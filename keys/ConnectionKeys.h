// Keys of the address-translation and flow-tracking services: ids "C", "NSK", "NDK",
// "NDC", "PMK", "IFK" and "HIFK".
//
// IPv4 addresses are native-order u32s printed as "I". Ports, VLAN ids and the NAT
// group are native u16s printed in decimal without a byte swap. ACL and interface
// names are host strings.
#pragma once

#include <ostream>

namespace Orvane {

/// "C" (13 bytes): source address ":" port " -> " destination address ":" port ","
/// protocol, e.g. 10.0.0.1:1024 -> 10.0.0.2:80,6. The ports and the protocol are
/// inserted directly, so they follow the stream's base. Returns 13.
unsigned formatConnTuple(const unsigned char* p, std::ostream& os);
unsigned lengthConnTuple(const unsigned char* p); ///< 13

/// "NSK": "acl: " string ", addr: " address ":" port. The port follows the stream's
/// base like those of "C".
unsigned formatNatStaticKey(const unsigned char* p, std::ostream& os);
/// lengthString + 6.
unsigned lengthNatStaticKey(const unsigned char* p);

/// "NDK": "acl: " string ", group: " u16.
unsigned formatNatDynamicKey(const unsigned char* p, std::ostream& os);
/// lengthString + lengthU16.
unsigned lengthNatDynamicKey(const unsigned char* p);

/// "NDC": "intf: " string ", conn: " a "C" tuple starting where the string ends.
unsigned formatNatDynamicConn(const unsigned char* p, std::ostream& os);
/// lengthString + 13.
unsigned lengthNatDynamicConn(const unsigned char* p);

/// "PMK": "(" address ":" u16 ":" u8 ")".
unsigned formatUpnpPortMapKey(const unsigned char* p, std::ostream& os);
/// lengthU32 + lengthU16 + lengthU8.
unsigned lengthUpnpPortMapKey(const unsigned char* p);

/// "IFK": "vrfId:" u32 " vlanId:" u16 " srcAddr:" address " dstAddr:" address
/// " ipProtocol:" u8 " srcPort:" u16 " dstPort:" u16 (19 bytes with the usual host
/// widths).
unsigned formatIpFlowKey(const unsigned char* p, std::ostream& os);
/// The host lengths of the fields, and 4 for each address.
unsigned lengthIpFlowKey(const unsigned char* p);

/// "HIFK": an "IFK" key, " intf:", then the interface string that follows the key.
unsigned formatHoIpFlowKey(const unsigned char* p, std::ostream& os);
/// lengthIpFlowKey + lengthString.
unsigned lengthHoIpFlowKey(const unsigned char* p);

} // namespace Orvane
