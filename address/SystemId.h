// IS-IS and DSF system identifiers: ids "IS" and "DSFID".
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"

#include <ostream>

namespace Orvane {

/// "IS": 6 raw bytes as 0100.0000.0001 (lowercase hex). Returns 6.
ORVANE_API unsigned formatIsisSystemId(const unsigned char* p, std::ostream& os);
/// The append form (TextRun.h) of formatIsisSystemId.
unsigned appendIsisSystemId(const unsigned char* p, TextRun& text);
ORVANE_API unsigned lengthIsisSystemId(const unsigned char* p); ///< 6

/// The table of "DSFID" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kDsfSystemIdFields;
/// "DSFID": "SystemId(" u8 ", " u16 ", " string ")" through the host's base formatters.
/// Returns the three fields' counts added.
ORVANE_API unsigned formatDsfSystemId(const unsigned char* p, std::ostream& os);
/// lengthU8 + lengthU16 + lengthString, each measured where the previous field ends.
ORVANE_API unsigned lengthDsfSystemId(const unsigned char* p);

} // namespace Orvane
