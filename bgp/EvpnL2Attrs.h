// EVPN layer-2 attributes (flags, FXC mode, VLAN normalization, MTU) in three encoding
// versions: ids "EL2V3", "EL2" and "EL2old".
//
// u32 flags word, then a u32 mtu only when bit 0 (present) is set. Flags: bit 1 C,
// bit 2 P, bit 3 B, bit 4 F (printed by version 3 only), bits 8..15 FxcMode, bits
// 16..23 VlanNormalization. The versions differ in their name tables: version 1 has
// codes 1 and 2 of both tables the other way round from versions 2 and 3, deliberately.
// Each version's tables are built on its first call and read-only afterwards.
#pragma once

#include "registry/Export.h"
#include "registry/NameTable.h"
#include "registry/TextRun.h"

#include <ostream>

namespace Orvane {

/// 8 when bit 0 of the u32 at `p` is set, otherwise 4.
ORVANE_API unsigned lengthEvpnL2Attrs(const unsigned char* p);

/// The shared worker. Bit 0 clear: prints nothing, returns 4. Otherwise prints
/// ", evpnL2Attrs:" (it always follows another field), the B, P and C letters (upper
/// case when set), the F letter too when `printF`, then ";" and the FxcMode name (or
/// ";FxcMode(N)" for a code not in `fxcModeNames`), the same for VlanNormalization
/// (";VlanNormalization(N)"), a code 0 printing nothing in either, then ";mtu=" and the
/// mtu. Returns 8. A null name in a table sets the stream's bad bit.
ORVANE_API unsigned formatEvpnL2Attrs(const unsigned char* p, std::ostream& os,
                                      const NameTable& fxcModeNames,
                                      const NameTable& vlanNormalizationNames, bool printF);
/// The append form (TextRun.h) of formatEvpnL2Attrs.
unsigned appendEvpnL2Attrs(const unsigned char* p, TextRun& text, const NameTable& fxcModeNames,
                           const NameTable& vlanNormalizationNames, bool printF);

/// "EL2old": version 1 tables (1 fxcVlanUnaware, 2 fxcVlanAware; 1 normalizedDoubleVlan,
/// 2 normalizedSingleVlan), no F letter.
ORVANE_API unsigned formatEvpnL2AttrsV1(const unsigned char* p, std::ostream& os);
/// "EL2": version 2 tables (1 fxcVlanSignaled, 2 fxcDefault; 1 normalizedSingleVlan,
/// 2 normalizedDoubleVlan), no F letter.
ORVANE_API unsigned formatEvpnL2AttrsV2(const unsigned char* p, std::ostream& os);
/// "EL2V3": the version 2 tables, with the F letter, e.g.
/// , evpnL2Attrs:BpcF;fxcUndefined;normalizedSingleVlan;mtu=1500
ORVANE_API unsigned formatEvpnL2AttrsV3(const unsigned char* p, std::ostream& os);

} // namespace Orvane
