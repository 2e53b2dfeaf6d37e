// The tagged generic address, its Opt form, and their address/mask pairs: ids "IG",
// "IGO", "IGM", "IGMO".
//
// Generic address (21 bytes): u8 tag (0 unknown, 1 IPv4, 2 IPv6), a native u32 IPv4
// slot at 1 and a 16-byte IPv6 slot at 5; both slots are always present.
// Opt form: the tag, then only the slot the tag names: 5, 17 or 1 bytes.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"
#include "registry/TextRun.h"

#include <ostream>

namespace Orvane {

/// "IG": the slot the tag names, or "unknown" for any other tag. Returns 21.
ORVANE_API unsigned formatIpGenAddr(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthIpGenAddr(const unsigned char* p); ///< 21

/// "IGO": as "IG" over the Opt form. Returns 5 (tag 1), 17 (tag 2) or 1.
ORVANE_API unsigned formatIpGenAddrOpt(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthIpGenAddrOpt(const unsigned char* p); ///< 5, 17 or 1 by the tag

/// The append forms (TextRun.h) of formatIpGenAddr and formatIpGenAddrOpt.
unsigned appendIpGenAddr(const unsigned char* p, TextRun& text);
unsigned appendIpGenAddrOpt(const unsigned char* p, TextRun& text);

/// The table of "IGM" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kIpGenAddrWithFullMaskFields;
/// "IGM": address "/" mask, both generic addresses, e.g. 10.1.0.0/255.255.0.0. Returns 42.
ORVANE_API unsigned formatIpGenAddrWithFullMask(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthIpGenAddrWithFullMask(const unsigned char* p); ///< 42

/// The table of "IGMO" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kIpGenAddrOptWithFullMaskFields;
/// "IGMO": as "IGM" over two Opt addresses, the mask starting where the address ends.
ORVANE_API unsigned formatIpGenAddrOptWithFullMask(const unsigned char* p, std::ostream& os);
/// The two Opt lengths added.
ORVANE_API unsigned lengthIpGenAddrWithFullMaskOpt(const unsigned char* p);

// As fields of composite keys.
inline constexpr FieldKind kIpGenAddrField{formatIpGenAddr, lengthIpGenAddr, appendIpGenAddr,
                                           "generic address (tag, IPv4 slot, IPv6 slot)", 21};
inline constexpr FieldKind kIpGenAddrOptField{
    formatIpGenAddrOpt,     lengthIpGenAddrOpt, appendIpGenAddrOpt, "generic address, Opt form", 0,
    "5, 17 or 1 by its tag"};

} // namespace Orvane
