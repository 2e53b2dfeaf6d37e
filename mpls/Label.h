// MPLS labels, label-stack operations, EVPN label words, MPLS router ids, global FEC ids
// and LFIB via keys: ids "ML", "LO", "EL", "MRTR", "GFID" and "LVK".
//
// A label is a u32. Wherever a label is printed through formatMplsLabel (and in "LO"),
// 3 prints "ImplicitNull", 0x100000 (one past the 20-bit range: no label) prints "Null"
// and anything else prints in decimal.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"
#include "registry/TextRun.h"
#include "registry/ValueLayout.h"

#include <ostream>

namespace Orvane {

/// Writes the label: "ImplicitNull", "Null" or the number. No wrapper. Returns `os`.
ORVANE_API std::ostream& formatMplsLabel(unsigned int label, std::ostream& os);

/// "ML": "MplsLabel(" the u32 label ")", e.g. MplsLabel(ImplicitNull). Returns 4.
ORVANE_API unsigned formatMplsLabel(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthMplsLabel(const unsigned char* p); ///< 4

/// "LO": u8 operation, u8 count, count u32 labels. Prints the operation ("push", "pop",
/// "swap", "forward", 255 "unknown") and the labels in brackets, e.g.
/// swap[ImplicitNull, 16]. A count above 13 prints nothing and returns 0xFFFFFFFF (the
/// count is checked first); an operation 4..254 prints nothing more and returns
/// 0xFFFFFFFF. Otherwise returns 2 + 4 * count.
ORVANE_API unsigned formatMplsLabelOperation(const unsigned char* p, std::ostream& os);
/// The layout of "LO" (ValueLayout.h) for the reference: its bytes and the operation
/// codes, whose names the formatter prints from this table.
ORVANE_API extern const ValueLayout kMplsLabelOperationLayout;
/// 2 + 4 * count, or 0xFFFFFFFF for a count above 13. Looks at the count byte only, so
/// for an operation 4..254 it differs from what formatting reports.
ORVANE_API unsigned lengthMplsLabelOperation(const unsigned char* p);

/// "EL": u32 word, type in bits 24..31, value in bits 0..23. Type 0 prints "NotPresent",
/// 1 "VNI:" value, 2 "MplsLabel:" (value >> 4), others "UnsupportedType:" value, all
/// plain decimal. Returns 4.
ORVANE_API unsigned formatEvpnLabel(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthEvpnLabel(const unsigned char* p); ///< 4
/// The append form (TextRun.h) of "EL".
unsigned appendEvpnLabel(const unsigned char* p, TextRun& text);

/// "MRTR": u8 kind and six id bytes. Kind 3 prints the bytes as a system id
/// (1921.6800.1001); any other kind prints bytes 1..4 as an IPv4 address in network
/// order, ":" and bytes 5..6 as a big-endian u16, e.g. 10.0.0.1:7. Returns 7.
ORVANE_API unsigned formatMplsRouterId(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthMplsRouterId(const unsigned char* p); ///< 7

/// The append forms (TextRun.h) of "ML", "LO" and "MRTR".
unsigned appendMplsLabel(const unsigned char* p, TextRun& text);
unsigned appendMplsLabelOperation(const unsigned char* p, TextRun& text);
unsigned appendMplsRouterId(const unsigned char* p, TextRun& text);

/// "GFID": u64 fecId, u16 tableId. Prints "fecId: " fecId ", tableId: " and then the low
/// 16 bits of the fecId, not the stored tableId: that is the established output and is
/// kept. Returns 10.
ORVANE_API unsigned formatGlobalFecId(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthGlobalFecId(const unsigned char* p); ///< 10

/// The table of "LVK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kLfibViaKeyFields;
/// "LVK": "(" u8 "," u32 "," u8 ")" through the host's base formatters. Returns 6.
ORVANE_API unsigned formatLfibViaKey(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthLfibViaKey(const unsigned char* p); ///< 6

} // namespace Orvane
