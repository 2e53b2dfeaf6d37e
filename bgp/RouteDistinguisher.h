// BGP route distinguishers (RD) and route targets (RT): ids "RD", "RT" and "RTMRK", and
// the by-value printers the route key and next hop formatters call.
//
// Both are 8 bytes read as one native-order (little-endian) u64; bit positions below
// count from its least significant bit. The two text forms differ on purpose: the RD
// takes its type from bits 48-63, the RT from bits 56-63 (the subtype is ignored).
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"
#include "registry/TextRun.h"
#include "registry/ValueLayout.h"

#include <ostream>

namespace Orvane {

/// Prints a route distinguisher by its type (bits 48-63):
///   0: admin (bits 32-47) ":" number (bits 0-31), the number in decimal up to 0xFFFFFF
///      and as a dotted IPv4 address above, e.g. 0:1 and 0:1.0.0.0;
///   1: IPv4 address (bits 16-47) ":" number (bits 0-15), e.g. 192.0.2.1:7;
///   2: AS (bits 16-47) ":" number (bits 0-15), no "L" suffix;
///   other: "0x" and the value in 16 zero-padded lower-case hex digits.
/// An unknown type leaves `os` in hexadecimal with fill '0': whatever the same stream
/// prints next comes out in hex until the caller resets it. This is kept deliberately.
ORVANE_API void formatRouteDistinguisher(unsigned long long rd, std::ostream& os);

/// Prints a route target (extended community) by its type (bits 56-63):
///   0: global (bits 32-47) ":" local (bits 0-31), both decimal;
///   1: IPv4 address (bits 16-47) byte by byte ":" local (bits 0-15);
///   2: AS (bits 16-47), "L" when bits 32-47 are zero, ":" local (bits 0-15), e.g.
///      65000L:100 and 70000:100;
///   other: "INVALID:0x" and the value in upper-case hex, unpadded.
/// `os` is left in decimal with upper case cleared; other flags are not restored.
ORVANE_API void formatRouteTarget(unsigned long long rt, std::ostream& os);

/// "RD": the u64 at `p`, printed as formatRouteDistinguisher. Returns 8.
ORVANE_API unsigned formatRouteDistinguisher(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthRouteDistinguisher(const unsigned char* p); ///< 8

/// "RT": the u64 at `p`, printed as formatRouteTarget. Returns 8.
ORVANE_API unsigned formatRouteTarget(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthRouteTarget(const unsigned char* p); ///< 8

/// The layouts of "RD" and "RT" (ValueLayout.h) for the reference: the one u64, the
/// bits of its type, and the bits each known type gives the administrator and the
/// assigned (or local) number. The formatters read those parts through these tables.
ORVANE_API extern const ValueLayout kRouteDistinguisherLayout;
ORVANE_API extern const ValueLayout kRouteTargetLayout;

/// formatRouteDistinguisher() and formatRouteTarget() by value within a longer text:
/// the same characters, joined to `text` where separate insertions would print the same.
void printRouteDistinguisher(unsigned long long rd, TextRun& text);
void printRouteTarget(unsigned long long rt, TextRun& text);
/// The append forms (TextRun.h) of "RD" and "RT".
unsigned appendRouteDistinguisher(const unsigned char* p, TextRun& text);
unsigned appendRouteTarget(const unsigned char* p, TextRun& text);

/// The table of "RTMRK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kRtMembershipRouteKeyFields;
/// "RTMRK": RT membership route key: u32 origin AS, u64 route target, u8 prefix length.
/// Prints "origin: " AS ";" RT "/" length "; value: 0x" and the RT again in 16
/// zero-padded upper-case hex digits, e.g.
/// origin: 65000;100:5/96; value: 0x0000006400000005. The stream is left in decimal,
/// upper case cleared, with fill '0'. Returns 13.
ORVANE_API unsigned formatRtMembershipRouteKey(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthRtMembershipRouteKey(const unsigned char* p); ///< 13

} // namespace Orvane
