// The host's own base formatters, registered under type ids of their own so that a
// record or a command line can name a plain field ("u32", "str") beside plug-in ids.
#pragma once

#include "registry/Export.h"

#include <span>
#include <string_view>

namespace Orvane::host {

/// The base-type ids, in the order they are documented: "u8", "u16", "u32", "u64",
/// "x16", "x32", "bool", "str". All lower case, so no plug-in id collides with them.
ORVANE_API std::span<const std::string_view> baseTypeIds();

/// Whether `id` is one of baseTypeIds().
ORVANE_API bool isBaseTypeId(std::string_view id);

/// Registers every base-type id with MessageFormatter: "u8".."u64" print decimal
/// numbers, "x16" and "x32" hexadecimal ones, "bool" "True" or "False", "str" a host
/// string. A host calls this once, after loading its plug-ins, so that a plug-in's
/// load-time code finds the registry as it was before any registration. The registry
/// keeps an id's first registration: the ids are lower case so that none collides.
ORVANE_API void registerBaseTypes();

} // namespace Orvane::host
