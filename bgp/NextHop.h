// The generic BGP next hop: id "BNH", and the VRF rendering that next hops and route
// keys share.
//
// Encoding: u8 VRF kind, u32 vrfId, u8 next-hop type (0..32), then a body by type. The
// body's fields are printed one after another, each at the running offset, and the VRF
// is printed last, in parentheses: <ip:10.0.0.1, routerMac:001c.73aa.bbcc> (L3-vrfId:2).
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"
#include "registry/TextRun.h"

#include <ostream>

namespace Orvane {

/// Writes the 5-byte VRF descriptor at `p`: the kind's name ("L2", "L3", "SBD", "VPLS",
/// or "unknown" for kinds 4..255), "-vrfId:" and the u32 at p + 1, e.g. L3-vrfId:5.
/// Returns `os`.
ORVANE_API std::ostream& formatBgpVrfIdForRkAndNh(const unsigned char* p, std::ostream& os);
/// formatBgpVrfIdForRkAndNh() within a longer text: the kind's name and "-vrfId:" join
/// the text pending in `text`, and so does the number where TextRun::number() allows.
void printBgpVrfId(const unsigned char* p, TextRun& text);

/// The bodies of "BNH" by next-hop type, for the reference (FieldKind.h).
ORVANE_API extern const FieldVariants kBgpGenNextHopVariants;
/// "BNH": the body of the next-hop type at p[5], then " (" VRF ")". Type 0 and types
/// above 32 print "NULL" as their body. Layer-2 attributes follow the field before
/// them without a separator of ours (they print their own). Returns 6 plus the counts
/// of the body's fields.
ORVANE_API unsigned formatBgpGenNextHop(const unsigned char* p, std::ostream& os);

/// The size by the next-hop type: 6 for "NULL" types; variable fields (host bool, u8,
/// u16, u32 and string, the Opt generic address of types 28 and 29, and the 8-or-4-byte
/// layer-2 attributes) are measured at their offsets.
ORVANE_API unsigned lengthBgpGenNextHop(const unsigned char* p);
/// The append form (TextRun.h) of "BNH".
unsigned appendBgpGenNextHop(const unsigned char* p, TextRun& text);

} // namespace Orvane
