#include "tools/ovfmt/Plugins.h"

#include "host/PluginLoader.h"

#include <cstdlib>
#include <iostream>
#include <unistd.h>

namespace Orvane::ovfmt {

std::string pluginLocation(const std::string& path) {
  const bool local = path.find('/') == std::string::npos && access(path.c_str(), F_OK) == 0;
  return local ? "./" + path : path;
}

bool loadPlugins(const std::vector<std::string>& paths, bool withDefault,
                 const std::string& defaultPath) {
  std::vector<host::LoadError> errors;
  auto add = [&](std::vector<host::LoadError> failed) {
    errors.insert(errors.end(), failed.begin(), failed.end());
  };
  for (const auto& path : paths) add(host::loadPluginPath(pluginLocation(path)));
  const char* dir = std::getenv("OVFMT_PLUGIN_DIR");
  if (paths.empty() && dir && *dir) add(host::loadPluginDirectory(dir));
  if (withDefault) add(host::loadPlugin(defaultPath));
  for (const auto& error : errors)
    std::cerr << "ovfmt: cannot load plug-in " << error.path << ": " << error.reason << "\n";
  return errors.empty();
}

} // namespace Orvane::ovfmt
