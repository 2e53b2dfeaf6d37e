// Which plug-ins the Python module has loaded into the host, and loading the default one
// on first use.
//
// None of this is thread-safe by itself: the module calls it with the GIL held. That
// also keeps a plug-in from registering ids while another call resolves one, since ids
// are resolved with the GIL held too; only formatting runs without it.
#pragma once

#include <string>

namespace Orvane::python {

/// The plug-in installed or built beside the module: the module's own file (symbolic
/// links resolved) with ORVANE_PLUGIN_FROM_MODULE, the relative path from the module's
/// directory to the plug-in in both trees. Fixed on first call, so a later change of
/// the working directory does not move it.
const std::string& defaultPluginPath();

/// Loads the plug-in at `path` (a .so, or a directory of them) through the host's
/// loader, then, once a plug-in has loaded, the host's base types (once). Loading a
/// plug-in again is harmless. Throws LoadError with one "cannot load plug-in PATH:
/// REASON" per path that failed; the plug-ins of a directory that did load stay loaded.
void loadPlugins(const std::string& path);

/// Loads the default plug-in unless some plug-in has been loaded already.
void ensurePluginLoaded();

} // namespace Orvane::python
