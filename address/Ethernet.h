// MAC addresses and Ethernet segment identifiers: ids "E", "EC", "EM", "ES".
// All hex digits are lowercase.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"
#include "registry/TextRun.h"

#include <ostream>

namespace Orvane {

/// "E": 6 raw bytes as three dot-separated groups of four hex digits, each group's first
/// byte high: 00 1c 73 aa bb cc prints 001c.73aa.bbcc. Returns 6.
ORVANE_API unsigned formatEth(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthEth(const unsigned char* p); ///< 6

/// "EC": 6 raw bytes colon-separated, 00:1c:73:aa:bb:cc. Returns 6.
ORVANE_API unsigned formatEthColonSeparated(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthEthColonSeparated(const unsigned char* p); ///< 6

/// The table of "EM" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kEthMaskFields;
/// "EM": MAC "/" mask, both as "E". Returns 12.
ORVANE_API unsigned formatEthMask(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthEthMask(const unsigned char* p); ///< 12

/// "ES": 10 raw bytes as five colon-separated groups of four hex digits. Returns 10.
ORVANE_API unsigned formatEthSegment(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthEthSegment(const unsigned char* p); ///< 10

/// The append forms (TextRun.h) of formatEth and formatEthSegment.
unsigned appendEth(const unsigned char* p, TextRun& text);
unsigned appendEthSegment(const unsigned char* p, TextRun& text);

// As fields of composite keys.
inline constexpr FieldKind kEthField{formatEth, lengthEth, appendEth, "MAC address", 6};
inline constexpr FieldKind kEthSegmentField{formatEthSegment, lengthEthSegment, appendEthSegment,
                                            "Ethernet segment identifier", 10};

} // namespace Orvane
