// Generic containers: a sequence of unsigned integers of mixed widths ("US"), a set of
// small ids kept as 64-bit bitmap words ("IDS"), and a generic range that is a prefix,
// a sequence or an address pair ("GR" and its compact form "GRO").
//
// "US": u8 count C, u8 separator character, then C elements, each a width byte w (1, 2,
// 4 or 8) and w bytes of the value in native order.
// "IDS": u8 count C, then C entries of u8 word index k and a native u64 bitmap whose
// bit i stands for id 64k + i; entries are expected in ascending k.
// "GR"/"GRO": u8 kind, then the body: 0 none, 1 a generic prefix ("PG"; "PGO" for
// "GRO"), 2 an "US" sequence, 255 two generic addresses ("IG"; "IGO" for "GRO");
// kinds 3 to 254 are invalid.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"

#include <ostream>

namespace Orvane {

/// "US": the elements through formatU8/U16/U32/U64 by width, the separator byte
/// written as one character between them; an empty sequence prints nothing. A width
/// other than 1, 2, 4 or 8 ends the walk: the separator before that element is still
/// printed (it is an element of the sequence), nothing of the element itself, and the
/// result is 0xFFFFFFFF. Otherwise returns the offset after the last element.
ORVANE_API unsigned formatUnsignedSequence(const unsigned char* p, std::ostream& os);
/// 2 + the sum of 1 + w over the elements, or 0xFFFFFFFF at the first bad width.
ORVANE_API unsigned lengthUnsignedSequence(const unsigned char* p);

/// "IDS": the ids as runs in brackets, e.g. (1-3,10); an empty set prints ().
///
/// Runs continue across entries whose word indexes are adjacent. When an entry is not
/// adjacent to the previous one, a run of two or more open at the gap is closed with
/// the id just after the previous word (its base + 64), one more than the run's true
/// last id: (62-64,128) for bits 62, 63 of word 0 and bit 0 of word 2. This skew is
/// kept deliberately. Returns 9C + 1.
ORVANE_API unsigned formatIdSet(const unsigned char* p, std::ostream& os);
/// 9C + 1.
ORVANE_API unsigned lengthIdSet(const unsigned char* p);

/// "GR": kind 0 prints "n/a"; 1 the prefix as "PG"; 2 the sequence as "US"; 255 the two
/// addresses as "IG" joined by "/"; other kinds print nothing. Returns 1 + the body's
/// count, 0xFFFFFFFF for an invalid kind.
ORVANE_API unsigned formatGenRange(const unsigned char* p, std::ostream& os);
/// 1, 19, 1 + the "US" length, 43 or 0xFFFFFFFF by kind.
ORVANE_API unsigned lengthGenRange(const unsigned char* p);
/// The bodies of "GR" and "GRO" by kind, for the reference (FieldKind.h).
ORVANE_API extern const FieldVariants kGenRangeVariants;
ORVANE_API extern const FieldVariants kGenRangeOptimizedVariants;

/// "GRO": as "GR" with the prefix as "PGO" and the addresses as "IGO", the second
/// starting where the first ends.
ORVANE_API unsigned formatGenRangeOptimized(const unsigned char* p, std::ostream& os);
/// 1 + the body's length; an invalid "PGO" tag (0xFFFFFFFF) wraps this to 0, and an
/// invalid kind gives 0xFFFFFFFF.
ORVANE_API unsigned lengthGenRangeOptimized(const unsigned char* p);

} // namespace Orvane
