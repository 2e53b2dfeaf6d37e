// Multicast route keys, flags, join states and tunnel types: ids "MK", "MKO", "MF",
// "MIJ", "MIR", "MFK", "MFGK", "MFGKO", "MTT".
//
// The "O" forms hold Opt generic addresses or Optimized generic prefixes and print the
// same text as the plain forms. The second address or prefix starts where the first
// ends, unchecked: after an Optimized prefix with an unknown tag (size 0xFFFFFFFF) the
// second one is read one byte before the value, and the wrapped total is the result.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"
#include "registry/NameTable.h"

#include <ostream>
#include <utility>

namespace Orvane {

/// The flag letters of "MF": letter i names flag byte i. Initially "RWSJTBKZNMACO".
/// Writable and exported: both "MF" functions read it at every call, so replacing it
/// changes the letters and the encoded size of every later value. The library itself
/// never writes it.
ORVANE_API extern const char* mRouteFlags;

/// Contents of the multicast tunnel type name table.
inline constexpr std::pair<unsigned, const char*> kMulticastTunnelTypeNameEntries[] = {
    {0, "tunnelTypePimSm"}, {1, "tunnelTypePimSsm"}, {2, "tunnelTypePimBidir"}};

/// Multicast tunnel type names by code; built at load time (KaMessageFormatter.cpp).
extern const NameTable multicastTunnelTypeNames;

/// The table of "MK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kMRouteKeyFields;
/// "MK": "(" generic address ", " generic address ")". Returns 42.
ORVANE_API unsigned formatMRouteKey(const unsigned char* p, std::ostream& os);
/// 42.
ORVANE_API unsigned lengthMRouteKey(const unsigned char* p);

/// The table of "MKO" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kMRouteKeyOptimizedFields;
/// "MKO": as "MK" with Opt addresses.
ORVANE_API unsigned formatMRouteKeyOptimized(const unsigned char* p, std::ostream& os);
/// The two Opt address sizes (5, 17 or 1 each) added.
ORVANE_API unsigned lengthMRouteKeyOptimized(const unsigned char* p);

/// "MF": one byte per letter of mRouteFlags; prints the letters of the non-zero bytes
/// in order, then "E" when bytes 1 and 2 (W and S) are both zero: no flag set prints
/// "E", R, S and J set print "RSJ". The string is re-read and re-measured at every step.
/// Returns the length of the string mRouteFlags points at.
ORVANE_API unsigned formatMRouteFlags(const unsigned char* p, std::ostream& os);
/// The length of the string mRouteFlags points at (13 initially).
ORVANE_API unsigned lengthMRouteFlags(const unsigned char* p);
/// The append form (TextRun.h) of "MF".
unsigned appendMRouteFlags(const unsigned char* p, TextRun& text);

/// "MIJ": u32 join state: 0 "noInfo", 1 "prunePending", any other "joined". Returns 4.
ORVANE_API unsigned formatMRouteIntfJoinState(const unsigned char* p, std::ostream& os);
/// 4.
ORVANE_API unsigned lengthMRouteIntfJoinState(const unsigned char* p);

/// "MIR": u32 RPT join state: 0 "rptNoInfo", 1 "rptPruned", any other
/// "rptPrunePending". Returns 4.
ORVANE_API unsigned formatMRouteIntfRptJoinState(const unsigned char* p, std::ostream& os);
/// 4.
ORVANE_API unsigned lengthMRouteIntfRptJoinState(const unsigned char* p);

/// The table of "MFK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kMfibRouteKeyFields;
/// "MFK": "(" IPv4 "/" u8 ", " IPv4 "/" u8 ")", the lengths in decimal:
/// (10.0.0.1/32, 239.1.1.1/32). Returns 10.
ORVANE_API unsigned formatMfibRouteKey(const unsigned char* p, std::ostream& os);
/// 10.
ORVANE_API unsigned lengthMfibRouteKey(const unsigned char* p);

/// The table of "MFGK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kMfibGenRouteKeyFields;
/// "MFGK": "(" generic prefix ", " generic prefix ")". Returns 36.
ORVANE_API unsigned formatMfibGenRouteKey(const unsigned char* p, std::ostream& os);
/// 36.
ORVANE_API unsigned lengthMfibGenRouteKey(const unsigned char* p);

/// The table of "MFGKO" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kMfibGenRouteKeyOptimizedFields;
/// "MFGKO": as "MFGK" with Optimized prefixes.
ORVANE_API unsigned formatMfibGenRouteKeyOptimized(const unsigned char* p, std::ostream& os);
/// The two Optimized prefix sizes added, in wrapping 32-bit arithmetic.
ORVANE_API unsigned lengthMfibGenRouteKeyOptimized(const unsigned char* p);

/// "MTT": the tunnel type's name, or the code in decimal when it has none. Returns 1.
ORVANE_API unsigned formatMulticastTunnelType(const unsigned char* p, std::ostream& os);
/// 1.
ORVANE_API unsigned lengthMulticastTunnelType(const unsigned char* p);

} // namespace Orvane
