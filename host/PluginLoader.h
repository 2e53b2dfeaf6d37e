// Loading formatter plug-ins into the host.
//
// A plug-in registers its formatters from its load-time initialisation, so loading is
// all it takes. Plug-ins are never unloaded: the registry keeps their functions for the
// life of the process.
#pragma once

#include "registry/Export.h"

#include <string>
#include <vector>

namespace Orvane::host {

/// Why a plug-in path could not be used.
struct LoadError {
  std::string path;
  std::string reason;
};

/// Loads the shared object at `path`. Fails when the loader rejects it or when it
/// registers no formatter (it is not a plug-in).
ORVANE_API std::vector<LoadError> loadPlugin(const std::string& path);

/// Loads every `*.so` in `directory`, in name order. Fails for a directory that cannot
/// be read or holds no `*.so`; one bad file does not stop the others from loading.
ORVANE_API std::vector<LoadError> loadPluginDirectory(const std::string& directory);

/// loadPluginDirectory() for a directory, loadPlugin() for anything else.
ORVANE_API std::vector<LoadError> loadPluginPath(const std::string& path);

} // namespace Orvane::host
