// Keys of forwarding-chip resources: FAP masks, out-AC keys, SVI egress keys and UDF
// descriptors: ids "F", "OUTACTYPE", "OUTAC", "SVIEVE", "SVIESEM" and "UDF".
//
// Fields other than the FAP mask are the host's u8, u16, u32, bool and string values,
// each read where the previous field's count ends.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"
#include "registry/TextRun.h"

#include <ostream>

namespace Orvane {

/// "F": a 128-bit mask of FAP ids, two native u64 words (bit i of the second word is
/// id 64 + i), printed as runs: bits 0, 2, 3, 4 and 127 print (0,2-4,127), no bit
/// prints (). Runs cross the word boundary. Returns 16.
ORVANE_API unsigned formatFapmask(const unsigned char* p, std::ostream& os);
ORVANE_API unsigned lengthFapmask(const unsigned char* p); ///< 16
/// The append form (TextRun.h) of formatFapmask.
unsigned appendFapmask(const unsigned char* p, TextRun& text);

/// The table of "OUTACTYPE" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kOutAcTypeKeyFields;
/// "OUTACTYPE": "(fapId: " u16 ", acIndex: " u32 ", outAcType: " u8 ")".
ORVANE_API unsigned formatOutAcTypeKey(const unsigned char* p, std::ostream& os);
/// lengthU16 + lengthU32 + lengthU8.
ORVANE_API unsigned lengthOutAcTypeKey(const unsigned char* p);

/// The table of "OUTAC" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kOutAcKeyFields;
/// "OUTAC": "(fapMask: " mask as "F" ", acFormat: " u32 ", " u32 ", " u32 ", acIndex: "
/// u32 ", pool: " u8 ", appId: " u8 ", intfId: " string ", vlanId: " u16
/// ", innerOutlif: " u32 ", isL2SubIntf: " bool ")". The second and third u32 have no
/// label.
ORVANE_API unsigned formatOutAcKey(const unsigned char* p, std::ostream& os);
/// 16 + the host lengths of the fields after the mask, each asked at its field.
ORVANE_API unsigned lengthOutAcKey(const unsigned char* p);

/// The table of "SVIEVE" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kSviEgressEveKeyFields;
/// "SVIEVE": "(vlanIntfId: " string ", intfId: " string ", fapId: " u16 ", lagIntfId: "
/// string ")".
ORVANE_API unsigned formatSviEgressEveKey(const unsigned char* p, std::ostream& os);
/// The four host lengths in order.
ORVANE_API unsigned lengthSviEgressEveKey(const unsigned char* p);

/// The table of "SVIESEM" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kSviEgressEsemRequestKeyFields;
/// "SVIESEM": "(eveKey: " an "SVIEVE" key ", outAcTypeKey: " an "OUTACTYPE" key ")".
ORVANE_API unsigned formatSviEgressEsemRequestKey(const unsigned char* p, std::ostream& os);
/// lengthSviEgressEveKey + lengthOutAcTypeKey after it.
ORVANE_API unsigned lengthSviEgressEsemRequestKey(const unsigned char* p);

/// The table of "UDF" (FieldKind.h): its fields in order, then its closing text.
ORVANE_API extern const FieldTable kUdfDescFields;
/// "UDF": string " ethtype:0x" u16 hex " " string " ipProto:" u8 " innerEthType:0x" u16
/// hex " offset:" u8 " length:" u8 " lagMask:0x" u32 hex " priority:" u8. The stream is
/// left in decimal.
ORVANE_API unsigned formatUdfDesc(const unsigned char* p, std::ostream& os);
/// The nine host lengths in order.
ORVANE_API unsigned lengthUdfDesc(const unsigned char* p);

/// As a field of composite keys.
inline constexpr FieldKind kFapmaskField{formatFapmask, lengthFapmask, appendFapmask,
                                         "FAP id mask (128 bits)", 16};

} // namespace Orvane
