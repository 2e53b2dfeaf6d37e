#include "host/PluginLoader.h"
#include "host/Registry.h"

#include <algorithm>
#include <dlfcn.h>
#include <filesystem>
#include <mutex>
#include <set>
#include <sys/stat.h>
#include <system_error>

namespace Orvane::host {
namespace {

// Handles of the plug-ins loaded so far. Loading the same object twice gives the same
// handle and runs no initialiser again, which is not an error.
bool firstLoad(void* handle) {
  static std::mutex mutex;
  static std::set<void*> loaded;
  std::lock_guard lock(mutex);
  return loaded.insert(handle).second;
}

// std::filesystem::is_directory(path, ec) without std::filesystem: a host that loads
// one plug-in file would otherwise page in the library's filesystem code and build a
// path object for this one stat (a fifth of a load's time).
bool isDirectory(const std::string& path) {
  struct stat status;
  return ::stat(path.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

} // namespace

std::vector<LoadError> loadPlugin(const std::string& path) {
  const auto callsBefore = registrationCount();
  // The handle is deliberately never closed: the registry holds the plug-in's functions.
  void* handle = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  if (!handle) {
    const char* why = dlerror();
    return {{path, why ? why : "the dynamic loader rejected it"}};
  }
  if (firstLoad(handle) && registrationCount() == callsBefore)
    return {{path, "it registered no formatter (not a formatter plug-in)"}};
  return {};
}

std::vector<LoadError> loadPluginDirectory(const std::string& directory) {
  namespace fs = std::filesystem;
  std::error_code ec;
  std::vector<std::string> objects;
  for (fs::directory_iterator it(directory, ec), end; !ec && it != end; it.increment(ec))
    if (it->path().extension() == ".so") objects.push_back(it->path().string());
  if (ec) return {{directory, ec.message()}};
  if (objects.empty()) return {{directory, "the directory holds no plug-in (*.so)"}};

  std::sort(objects.begin(), objects.end());
  std::vector<LoadError> errors;
  for (const auto& object : objects) {
    auto failed = loadPlugin(object);
    errors.insert(errors.end(), failed.begin(), failed.end());
  }
  return errors;
}

std::vector<LoadError> loadPluginPath(const std::string& path) {
  return isDirectory(path) ? loadPluginDirectory(path) : loadPlugin(path);
}

} // namespace Orvane::host
