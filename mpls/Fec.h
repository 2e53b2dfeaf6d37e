// MPLS forwarding equivalence classes: ids "FM" and "FMO".
//
// u8 FEC type, then a body by type:
//   0 prefix: generic prefix (FM, 18 bytes) or Optimized prefix (FMO), printed alone;
//   1 RSVP: u32 session, u32 sender: RSVP[Session=7, SP=9];
//   2 MLDP: generic address (FM, 21 bytes) or Opt address (FMO), u32 LSP id:
//     MLDP[Root=10.0.0.1, ID=5];
//   3 prefix with algorithm: prefix as for 0, u32 algorithm: PFXALGO[10.0.0.0/8, 128];
//   4..255: invalid, nothing printed, 0xFFFFFFFF.
// Each field is read where the previous one ended; counts are unsigned 32-bit and wrap.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"

#include <ostream>

namespace Orvane {

/// "FM": the FEC with plain generic addresses and prefixes. Returns 19, 9, 26, 23 by
/// type, or 0xFFFFFFFF for a type above 3.
ORVANE_API unsigned formatMplsFwdEqvClass(const unsigned char* p, std::ostream& os);
/// The bodies of "FM" and "FMO" by FEC type, for the reference (FieldKind.h).
ORVANE_API extern const FieldVariants kMplsFwdEqvClassVariants;
ORVANE_API extern const FieldVariants kMplsFwdEqvClassOptimizedVariants;
/// As formatMplsFwdEqvClass returns, without printing.
ORVANE_API unsigned lengthMplsFwdEqvClass(const unsigned char* p);

/// "FMO": the FEC with Opt addresses and Optimized prefixes; prints the same text as
/// "FM". Returns 1 + the body's counts, or 0xFFFFFFFF for a type above 3.
ORVANE_API unsigned formatMplsFwdEqvClassOptimized(const unsigned char* p, std::ostream& os);
/// Type 0: 1 + the Optimized prefix length; 1: 9; 2: 1 + the Opt address length + 4;
/// 3: 1 + the prefix length + 4; else 0xFFFFFFFF. Sums wrap: a prefix with an unknown
/// family (length 0xFFFFFFFF) gives 0 for type 0 and 4 for type 3.
ORVANE_API unsigned lengthMplsFwdEqvClassOptimized(const unsigned char* p);

} // namespace Orvane
