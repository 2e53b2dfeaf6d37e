// Which plug-ins ovfmt loads: those the command line or $OVFMT_PLUGIN_DIR names, and the
// one installed beside ovfmt unless turned off.
#pragma once

#include <string>
#include <vector>

namespace Orvane::ovfmt {

/// Where `path`, given with --plugin, is opened from: a name without '/' that names a
/// file in the current directory is that file ("./NAME"), not one the dynamic loader
/// searches for; any other path is used as it is.
std::string pluginLocation(const std::string& path);

/// Loads the plug-ins of `paths` (--plugin), else every .so in $OVFMT_PLUGIN_DIR when it
/// is set and not empty; then, when `withDefault`, the plug-in at `defaultPath`. The
/// ones named first register first, so an id they define is theirs. Prints one line on
/// stderr per plug-in that would not load; returns false when any would not.
bool loadPlugins(const std::vector<std::string>& paths, bool withDefault,
                 const std::string& defaultPath);

} // namespace Orvane::ovfmt
