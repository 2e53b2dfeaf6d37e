// Tunnel and pseudowire keys: ids "TK", "TKG", "TKGO", "PW", "PWO".
//
// The "O" forms hold Opt generic addresses (5, 17 or 1 bytes by tag) where the plain
// forms hold 21-byte generic addresses; both print the same text. Integers and strings
// are the host's, measured by the host's length functions at their running offsets.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"

#include <ostream>

namespace Orvane {

/// "TK": "src:" IPv4 ", dst:" IPv4 ", vrf:" u32 ", genId:" u64, read at the fixed
/// offsets 0, 4, 8 and 12. Returns 20 whatever the bytes hold.
ORVANE_API unsigned formatTunnelKey(const unsigned char* p, std::ostream& os);
/// 20.
ORVANE_API unsigned lengthTunnelKey(const unsigned char* p);
/// The append form (TextRun.h) of "TK".
unsigned appendTunnelKey(const unsigned char* p, TextRun& text);

/// The table of "TKG" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kTunnelKeyGenFields;
/// "TKG": as "TK" over two generic addresses, a u32 vrf and a u64 genId, each read at the
/// running offset. Returns the four fields' counts added.
ORVANE_API unsigned formatTunnelKeyGen(const unsigned char* p, std::ostream& os);
/// 42 + lengthU32 + lengthU64.
ORVANE_API unsigned lengthTunnelKeyGen(const unsigned char* p);

/// The table of "TKGO" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kTunnelKeyGenOptimizedFields;
/// "TKGO": as "TKG" with Opt addresses; the second address starts where the first ends.
ORVANE_API unsigned formatTunnelKeyGenOptimized(const unsigned char* p, std::ostream& os);
/// Both Opt address sizes + lengthU32 + lengthU64.
ORVANE_API unsigned lengthTunnelKeyGenOptimized(const unsigned char* p);

/// The table of "PW" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kPseudowireKeyFields;
/// "PW": u32 number "/" host string "/" generic address, with no blanks. An unknown
/// address tag prints "unknown" and still consumes 21 bytes. Returns the counts added.
ORVANE_API unsigned formatPseudowireKey(const unsigned char* p, std::ostream& os);
/// lengthU32 + lengthString + 21.
ORVANE_API unsigned lengthPseudowireKey(const unsigned char* p);

/// The table of "PWO" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kPseudowireKeyOptimizedFields;
/// "PWO": as "PW" with an Opt address.
ORVANE_API unsigned formatPseudowireKeyOptimized(const unsigned char* p, std::ostream& os);
/// lengthU32 + lengthString + the Opt address size.
ORVANE_API unsigned lengthPseudowireKeyOptimized(const unsigned char* p);

} // namespace Orvane
