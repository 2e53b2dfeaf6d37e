// ARP input configuration and priority keys: ids "ARPICK", "ARPICE", "ARPIPK" and
// "ARPIPIK". Each prints as bracketed fields without blanks: [10.0.0.1][Ethernet1].
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"

#include <ostream>

namespace Orvane {

/// The table of "ARPICK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kArpInputConfigKeyFields;
/// "ARPICK": "[" address as "IGO" "][" interface string "]". An address tag other than
/// 1 or 2 makes the address one byte long and print [unknown].
ORVANE_API unsigned formatArpInputConfigKey(const unsigned char* p, std::ostream& os);
/// lengthIpGenAddrOpt + lengthString.
ORVANE_API unsigned lengthArpInputConfigKey(const unsigned char* p);

/// "ARPICE": an "ARPICK" key, then "[" MAC "][" u8 flag "][" u32 "]"; when the flag
/// byte is 1, two more u32 follow: ...[flag][a][b][c].
ORVANE_API unsigned formatArpInputConfigEntry(const unsigned char* p, std::ostream& os);
/// The key, 6, lengthU8 and lengthU32, plus two lengthU32 when the flag byte is 1.
ORVANE_API unsigned lengthArpInputConfigEntry(const unsigned char* p);
/// The two layouts of "ARPICE" (FieldKind.h), indexed by whether the flag byte is 1;
/// its format and length functions walk the layout picked here.
ORVANE_API extern const FieldVariants kArpInputConfigEntryVariants;
/// The append form (TextRun.h) of "ARPICE".
unsigned appendArpInputConfigEntry(const unsigned char* p, TextRun& text);

/// The table of "ARPIPK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kArpInputPriorityKeyFields;
/// "ARPIPK": "[" u8 "][" u32 "]".
ORVANE_API unsigned formatArpInputPriorityKey(const unsigned char* p, std::ostream& os);
/// lengthU8 + lengthU32.
ORVANE_API unsigned lengthArpInputPriorityKey(const unsigned char* p);

/// The table of "ARPIPIK" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kArpInputPriorityInterfaceKeyFields;
/// "ARPIPIK": an "ARPIPK" key, then "[" interface string "]".
ORVANE_API unsigned formatArpInputPriorityInterfaceKey(const unsigned char* p, std::ostream& os);
/// lengthArpInputPriorityKey + lengthString.
ORVANE_API unsigned lengthArpInputPriorityInterfaceKey(const unsigned char* p);

} // namespace Orvane
