// Address-binding keys: ids "DMBK", "IPMACV2", "IPMACV2O", "MV", "MVP", "VIP", "VIPO",
// "VIDP" and "VSP".
//
// Bracketed lists separate their fields with a bare ","; the "O" ids hold their
// generic address in the Opt form ("IGO") instead of the 21-byte one ("IG") and print
// the same text. MAC addresses print as "E".
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"

#include <ostream>

namespace Orvane {

/// The table of "DMBK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kDuidMacBindingKeyFields;
/// "DMBK": "duid(type: " u16 ", hwtype: " u16 ", lladdr: " MAC ", uuid: " string
/// ", entno: " u32 ", entId: " string ")".
ORVANE_API unsigned formatDuidMacBindingKey(const unsigned char* p, std::ostream& os);
/// Twice the width lengthU16 gives for the first u16, then 6, lengthString, lengthU32
/// and lengthString.
ORVANE_API unsigned lengthDuidMacBindingKey(const unsigned char* p);

/// The table of "IPMACV2" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kIpMacV2Fields;
/// "IPMACV2": "[" address as "IG" "," MAC "," u32 "," u8 "]".
ORVANE_API unsigned formatIpMacV2(const unsigned char* p, std::ostream& os);
/// 27 + lengthU32 + lengthU8.
ORVANE_API unsigned lengthIpMacV2(const unsigned char* p);

/// The table of "IPMACV2O" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kIpMacV2OptimizedFields;
/// "IPMACV2O": as "IPMACV2" with the address as "IGO".
ORVANE_API unsigned formatIpMacV2Optimized(const unsigned char* p, std::ostream& os);
/// lengthIpGenAddrOpt + 6 + lengthU32 + lengthU8.
ORVANE_API unsigned lengthIpMacV2Optimized(const unsigned char* p);

/// The table of "MV" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kMacVtepFields;
/// "MV": "[" MAC "," IPv4 address as "I" "," u32 "," u8 "]".
ORVANE_API unsigned formatMacVtep(const unsigned char* p, std::ostream& os);
/// 10 + lengthU32 + lengthU8.
ORVANE_API unsigned lengthMacVtep(const unsigned char* p);

/// The table of "MVP" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kMacVlanPairFields;
/// "MVP": "[" MAC "," u16 "]".
ORVANE_API unsigned formatMacVlanPair(const unsigned char* p, std::ostream& os);
/// 6 + lengthU16.
ORVANE_API unsigned lengthMacVlanPair(const unsigned char* p);

/// The table of "VIP" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kVlanIpPairFields;
/// "VIP": "[" u16 VLAN "," address as "IG" "]".
ORVANE_API unsigned formatVlanIpPair(const unsigned char* p, std::ostream& os);
/// lengthU16 + 21.
ORVANE_API unsigned lengthVlanIpPair(const unsigned char* p);

/// The table of "VIPO" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kVlanIpPairOptimizedFields;
/// "VIPO": as "VIP" with the address as "IGO".
ORVANE_API unsigned formatVlanIpPairOptimized(const unsigned char* p, std::ostream& os);
/// lengthU16 + lengthIpGenAddrOpt of the address after it.
ORVANE_API unsigned lengthVlanIpPairOptimized(const unsigned char* p);

/// The table of "VIDP" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kVrfIdPairFields;
/// "VIDP": "(" u32 "-" u32 ")".
ORVANE_API unsigned formatVrfIdPair(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthVrfIdPair(const unsigned char* p); ///< 8

/// The table of "VSP" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kVniSourcePairFields;
/// "VSP": "[" u32 VNI "," string "," string "]".
ORVANE_API unsigned formatVniSourcePair(const unsigned char* p, std::ostream& os);
/// lengthU32 + lengthString + lengthString.
ORVANE_API unsigned lengthVniSourcePair(const unsigned char* p);

} // namespace Orvane
