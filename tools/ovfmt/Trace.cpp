#include "tools/ovfmt/Trace.h"

#ifdef ORVANE_WITH_TRACES
#include "tracing/TraceGraph.h"
#endif

#include <cstring>
#include <iostream>
#include <optional>

namespace Orvane::ovfmt {
namespace {

constexpr int kExitOk = 0, kExitFailed = 1, kExitUsage = 2;

const char kTraceUsage[] =
    "Usage: ovfmt [--plugin PATH]... --trace DIR [--json] [--begin T] [--end T]\n"
    "Prints the events of the CTF traces in DIR, one line each, typed fields as\n"
    "their formatters' text, as `babeltrace2 DIR -c sink.orvane.text` does; --json\n"
    "prints JSON Lines (docs/traces.md); --begin and --end keep the events in that\n"
    "time range (T as babeltrace2 takes it: [YYYY-MM-DD] HH:MM[:SS[.NNNNNNNNN]] or\n"
    "SECONDS[.NNN]).\n";

struct TraceOptions {
  std::string path;
  bool json = false;
  std::string begin, end;
  std::vector<std::string> plugins;
};

int usage(const std::string& problem) {
  std::cerr << "ovfmt: " << problem << "\n" << kTraceUsage;
  return kExitUsage;
}

/// Reads the options of a --trace command; returns a usage problem or nothing.
std::optional<std::string> parse(int argc, char** argv, TraceOptions& options) {
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    const char* value = i + 1 < argc ? argv[i + 1] : nullptr;
    std::string* target = arg == "--trace"   ? &options.path
                          : arg == "--begin" ? &options.begin
                          : arg == "--end"   ? &options.end
                                             : nullptr;
    if (arg == "--json") {
      options.json = true;

    } else if (arg == "--plugin" && value) {
      options.plugins.push_back(argv[++i]);
    } else if (target && value && target->empty()) {
      *target = argv[++i];
    } else if (target || arg == "--plugin") {
      return arg + " needs one value";
    } else {
      return "--trace does not go with " + arg;
    }
  }
  return std::nullopt;
}

#ifdef ORVANE_WITH_TRACES
int readTraces(const TraceOptions& options) {
  const auto outcome =
      tracing::readTraces({options.path, options.json, options.begin, options.end});
  for (const auto& problem : outcome.problems) std::cerr << "ovfmt: " << problem << "\n";
  if (outcome.status == tracing::TraceOutcome::Status::NoTrace) return kExitUsage;
  if (outcome.writeFailed) std::cerr << "ovfmt: cannot write the output\n";
  if (outcome.invalidFields > 0)
    std::cerr << "ovfmt: " << options.path << ": " << outcome.invalidFields
              << (outcome.invalidFields == 1 ? " typed field" : " typed fields") << " invalid\n";
  const bool ok = outcome.status == tracing::TraceOutcome::Status::Ok && !outcome.writeFailed &&
                  outcome.invalidFields == 0;
  return ok ? kExitOk : kExitFailed;
}
#else
int readTraces(const TraceOptions&) {
  std::cerr << "ovfmt: --trace is not available: ovfmt was built without libbabeltrace2\n";
  return kExitUsage;
}
#endif

} // namespace

bool isTraceCommand(int argc, char** argv) {
  for (int i = 1; i < argc; ++i)
    if (std::strcmp(argv[i], "--trace") == 0) return true;
  return false;
}

int runTrace(int argc, char** argv, const PluginLoading& loadPlugins) {
  TraceOptions options;
  for (int i = 1; i < argc; ++i)
    if (std::strcmp(argv[i], "--help") == 0 || std::strcmp(argv[i], "-h") == 0) {
      std::cout << kTraceUsage;
      return kExitOk;
    }
  if (const auto problem = parse(argc, argv, options)) return usage(*problem);
  if (!loadPlugins(options.plugins)) return kExitUsage;
  return readTraces(options);
}

} // namespace Orvane::ovfmt
