// CSPF vertices and path keys: ids "CV", "CPK", "CCPK", "CP2MPK".
//
// A vertex is a type byte and a body; its whole size comes from the type alone:
//   type  size  body (after the type byte)              text
//   0     1     none                                    "n/a"
//   1     6     native u32 IPv4 address, u8 length      10.0.0.0/8
//   2     18    16-byte IPv6 address, u8 length         2001:db8::/32
//   3, 6  5     native u32 IPv4 address                 10.0.0.1
//   4     17    16-byte IPv6 address                    2001:db8::1
//   5     7     6-byte IS-IS system id                  1921.6800.1001
//   7..   0xFFFFFFFF, nothing printed
// The path keys do not check the vertex: after an invalid one the id is read at the
// wrapped offset, one byte before the vertex, and the wrapped total is the result (3
// for "CPK", 4 for a kind-0 "CCPK"). Length and format agree on those totals.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"

#include <ostream>

namespace Orvane {

/// "CV": the vertex text from the table above. Returns the vertex size, or 0xFFFFFFFF
/// with nothing printed for a type above 6.
ORVANE_API unsigned formatCspfVertex(const unsigned char* p, std::ostream& os);
/// The vertex size by type; 0xFFFFFFFF for a type above 6.
ORVANE_API unsigned lengthCspfVertex(const unsigned char* p);

/// The table of "CPK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kCspfPathKeyFields;
/// "CPK": "dst=" vertex ", id=" u32. Returns the vertex and u32 counts added.
ORVANE_API unsigned formatCspfPathKey(const unsigned char* p, std::ostream& os);
/// The vertex size + 4 (3 after an invalid vertex, wrapped).
ORVANE_API unsigned lengthCspfPathKey(const unsigned char* p);

/// "CCPK": kind byte, then kind 0 prints "pathKey=<" and a "CPK" key and ">", kind 1
/// prints "p2mpPathKey=<" and a "CP2MPK" key and ">"; the kind byte counts 1 more.
/// Any other kind prints nothing and returns 0xFFFFFFFF.
ORVANE_API unsigned formatCspfClientPathKey(const unsigned char* p, std::ostream& os);
/// The bodies of "CCPK" by kind, for the reference (FieldKind.h).
ORVANE_API extern const FieldVariants kCspfClientPathKeyVariants;
/// Kind 0: 5 + the vertex size at byte 1 (4 after an invalid vertex, wrapped); kind 1:
/// 5; any other kind: 0xFFFFFFFF.
ORVANE_API unsigned lengthCspfClientPathKey(const unsigned char* p);

/// The table of "CP2MPK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kCspfP2mpPathKeyFields;
/// "CP2MPK": "id=" u32. Returns the u32 count.
ORVANE_API unsigned formatCspfP2mpPathKey(const unsigned char* p, std::ostream& os);
/// 4.
ORVANE_API unsigned lengthCspfP2mpPathKey(const unsigned char* p);

/// As a field of composite keys.
inline constexpr FieldKind kCspfVertexField{formatCspfVertex,
                                            lengthCspfVertex,
                                            nullptr,
                                            "CSPF vertex",
                                            0,
                                            "1 + the body its type byte names"};

} // namespace Orvane
