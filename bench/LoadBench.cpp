// Time to load the plug-in into the host: the dynamic loader's work, the plug-in's
// load-time initialisation (its tables and formatMap) and every registration call.
// A plug-in loads once per process, so each run measures one load and prints one JSON
// line; scripts/bench runs it repeatedly and takes the median.
#include "host/PluginLoader.h"
#include "host/Registry.h"

#include <chrono>
#include <iostream>

int main(int argc, char** argv) {
  using namespace Orvane;
  const std::string plugin = argc > 1 ? argv[1] : BENCH_PLUGIN_PATH;

  const auto start = std::chrono::steady_clock::now();
  const auto errors = host::loadPluginPath(plugin);
  const auto elapsed = std::chrono::steady_clock::now() - start;

  for (const auto& error : errors)
    std::cerr << "load_bench: cannot load " << error.path << ": " << error.reason << "\n";
  if (!errors.empty()) return 2;
  std::cout << "{\"load_ns\": " << std::chrono::nanoseconds(elapsed).count()
            << ", \"ids\": " << host::registeredIds().size()
            << ", \"registration_calls\": " << host::registrationLog().size() << "}\n";
  return 0;
}
