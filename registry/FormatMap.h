// The plug-in's identifier table and its registration with the host.
#pragma once

#include "registry/Export.h"
#include "registry/Formatter.h"

#include <string>
#include <unordered_map>
#include <utility>

namespace Orvane {

/// Every type id the plug-in supplies, with its (format, length) pair. Built once at
/// load time from a constant list and never changed afterwards.
ORVANE_API extern std::unordered_map<std::string, std::pair<FormatFn, LengthFn>> formatMap;

} // namespace Orvane

/// Registers every entry of formatMap with the host: for each id, in the map's own
/// iteration order, first the format function, then the length function. The one
/// file-scope instance does this when the plug-in is loaded.
class FormatterPlugin {
public:
  FormatterPlugin();
};
