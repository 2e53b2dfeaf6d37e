// The generic prefix and its Optimized form: ids "PG" and "PGO".
//
// Generic prefix (18 bytes): u8 tag, 16 raw address bytes (for IPv4 the first four, in
// network order, not byte-swapped), u8 prefix length.
// Optimized form: u8 tag, u8 prefix length L, then the first ceil(L/8) address bytes;
// no address bytes when L is 255.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"
#include "registry/TextRun.h"

#include <ostream>

namespace Orvane {

/// "PG": address "/" length. An unknown tag prints "unknown address family(N)" with
/// the tag as a signed char (255 prints -1). Returns 18.
ORVANE_API unsigned formatIpGenPrefix(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthIpGenPrefix(const unsigned char* p); ///< 18

/// "PGO". Special cases: tag 1 with L 33, and tags 1/2 with L 255, print the family's
/// zero address with "/255"; tag 0 with L 255 prints nothing. Otherwise as "PG".
ORVANE_API unsigned formatIpGenPrefixOptimized(const unsigned char* p, std::ostream& os);
/// Tag 0: 2; tag other than 0-2: 0xFFFFFFFF; L 255: 2; else 2 + ceil(L/8) (7 for the
/// IPv4 L 33 marker).
ORVANE_API unsigned lengthIpGenPrefixOptimized(const unsigned char* p);

/// The append forms (TextRun.h) of formatIpGenPrefix and formatIpGenPrefixOptimized.
unsigned appendIpGenPrefix(const unsigned char* p, TextRun& text);
unsigned appendIpGenPrefixOptimized(const unsigned char* p, TextRun& text);

// As fields of composite keys.
inline constexpr FieldKind kIpGenPrefixField{formatIpGenPrefix, lengthIpGenPrefix,
                                             appendIpGenPrefix, "generic prefix", 18};
inline constexpr FieldKind kIpGenPrefixOptimizedField{
    formatIpGenPrefixOptimized,
    lengthIpGenPrefixOptimized,
    appendIpGenPrefixOptimized,
    "generic prefix, Optimized form",
    0,
    "2 + the address bytes its length byte needs"};

} // namespace Orvane
