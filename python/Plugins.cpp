#include "python/Plugins.h"

#include "host/BaseTypes.h"
#include "host/PluginLoader.h"
#include "host/Registry.h"
#include "python/Errors.h"

#include <dlfcn.h>
#include <filesystem>

namespace Orvane::python {
namespace {

bool pluginLoaded = false;
bool baseTypesRegistered = false;

std::string modulePath() {
  Dl_info info{};
  if (dladdr(reinterpret_cast<const void*>(&modulePath), &info) == 0 || !info.dli_fname) return {};
  std::error_code ec;
  const auto resolved = std::filesystem::canonical(info.dli_fname, ec);
  return ec ? std::string(info.dli_fname) : resolved.string();
}

} // namespace

const std::string& defaultPluginPath() {
  static const std::string path = [] {
    const std::string module = modulePath();
    return module.substr(0, module.rfind('/') + 1) + ORVANE_PLUGIN_FROM_MODULE;
  }();
  return path;
}

void loadPlugins(const std::string& path) {
  const std::size_t callsBefore = host::registrationLog().size();
  const auto errors = host::loadPluginPath(path);
  // A plug-in loaded once before registers nothing the second time, and is no error.
  if (errors.empty() || host::registrationLog().size() > callsBefore) pluginLoaded = true;
  if (pluginLoaded && !baseTypesRegistered) {
    host::registerBaseTypes();
    baseTypesRegistered = true;
  }
  if (errors.empty()) return;
  std::string message;
  for (const auto& error : errors) {
    if (!message.empty()) message += "; ";
    message += "cannot load plug-in " + error.path + ": " + error.reason;
  }
  throw LoadError(message);
}

void ensurePluginLoaded() {
  if (!pluginLoaded) loadPlugins(defaultPluginPath());
}

} // namespace Orvane::python
