// Interface encapsulations and their VLAN tags: ids "IE" and "IE2".
//
// A VLAN tag encapsulation is 5 bytes: u16 VLAN id, u16 TPID (both native order), u8
// priority. It is printed by formatEncap inside "IE2" and is not registered by itself.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"

#include <ostream>

namespace Orvane {

/// A VLAN tag: a standard tag (TPID 0x8100, priority 0) prints only the VLAN id, any
/// other prints "0x" TPID in hex ":p" priority ":" VLAN id, e.g. 0x88a8:p3:10, leaving
/// the stream in decimal. Returns 5.
ORVANE_API unsigned formatEncap(const unsigned char* p, std::ostream& os);
/// lengthU16 + lengthU16 + lengthU8: 5.
ORVANE_API unsigned lengthEncap(const unsigned char* p);

/// The table of "IE" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kIntfEncapFields;
/// "IE": interface string "(" u16 "," u16 ")", e.g. Ethernet1(10,20).
ORVANE_API unsigned formatIntfEncap(const unsigned char* p, std::ostream& os);
/// lengthString + lengthU16 + lengthU16.
ORVANE_API unsigned lengthIntfEncap(const unsigned char* p);

/// The table of "IE2" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kIntfEncapV2Fields;
/// "IE2": interface string "(" outer tag "," inner tag ")", both as formatEncap.
ORVANE_API unsigned formatIntfEncapV2(const unsigned char* p, std::ostream& os);
/// lengthString + two VLAN tags.
ORVANE_API unsigned lengthIntfEncapV2(const unsigned char* p);

} // namespace Orvane
