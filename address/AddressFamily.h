// The address family tag of the generic forms and the "AF" id.
#pragma once

#include "registry/Export.h"
#include "registry/FieldKind.h"
#include "registry/NameTable.h"

#include <ostream>
#include <utility>

namespace Orvane {

/// Tag byte of the generic address and prefix forms.
enum AddressFamilyTag : unsigned char { kFamilyUnknown = 0, kFamilyIpv4 = 1, kFamilyIpv6 = 2 };

/// Contents of the address-family name table.
inline constexpr std::pair<unsigned, const char*> kAddressFamilyNameEntries[] = {
    {0, "unknown"}, {1, "ipv4"}, {2, "ipv6"}};

/// Address-family names by tag; built at load time (KaMessageFormatter.cpp).
extern const NameTable addressFamilyNames;

/// "AF": the family's name, or the code in decimal when it has none. Returns 1.
ORVANE_API unsigned formatAf(const unsigned char* p, std::ostream& os);
/// 1.
ORVANE_API unsigned lengthAf(const unsigned char* p);

/// As a field of composite keys.
inline constexpr FieldKind kAfField{formatAf, lengthAf, nullptr, "address family code", 1};

} // namespace Orvane
