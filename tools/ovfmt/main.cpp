// ovfmt: the command-line host. Loads formatter plug-ins and decodes records given as
// "ID[,ID...] HEX..." on the command line or, with --batch, one per line of a file.
#include "decoding/IdList.h"
#include "decoding/Problems.h"
#include "host/BaseTypes.h"
#include "host/PluginLoader.h"
#include "host/Registry.h"
#include "tools/ovfmt/Batch.h"
#include "tools/ovfmt/Describe.h"
#include "tools/ovfmt/RecordPrinter.h"
#include "tools/ovfmt/Trace.h"

#include <charconv>
#include <climits>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace Orvane;

constexpr int kExitOk = 0, kExitValueFailed = 1, kExitUsage = 2;
constexpr unsigned kMaxJobs = 256;

const char kUsage[] =
    "Usage: ovfmt [--plugin PATH]... [--counts | --sep TEXT | --template TEXT] ID[,ID...] HEX...\n"
    "  or:  ovfmt [--plugin PATH]... [--counts | --sep TEXT | --template TEXT] [--jobs N]\n"
    "             --batch [FILE|-]\n"
    "  or:  ovfmt [--plugin PATH]... --list | --describe ID\n"
    "\n"
    "Formats binary trace values through the registered formatter plug-ins.\n"
    "  ID HEX...        format one value: its type id, then its bytes as pairs of hex digits\n"
    "                   (blanks and ':' may separate the pairs)\n"
    "  ID,ID,... HEX... format a record: consecutive arguments, each starting where the one\n"
    "                   before ends; their texts are printed on one line\n"
    "  --batch FILE     format one record per line 'ID[,ID...] HEX...' of FILE, or of standard\n"
    "                   input when FILE is '-' or absent; blank lines and '#' comments are\n"
    "                   skipped\n"
    "  --sep TEXT       put TEXT between the texts of a record's arguments (default: a blank)\n"
    "  --template TEXT  print TEXT with each '{}' replaced by the next argument's text; '{{'\n"
    "                   and '}}' print a brace; the '{}' must match the arguments one for one\n"
    "  --counts         print 'ID<TAB>length<TAB>consumed<TAB>text' for every argument,\n"
    "                   also invalid or incomplete ones (a record stops after the first\n"
    "                   argument that is invalid or runs past the bytes)\n"
    "  --jobs N         format a batch on N threads (default 1); the output is the same\n"
    "  --list           print every plug-in id, sorted, then a blank line and the host's\n"
    "                   base-type ids (u8 u16 u32 u64 x16 x32 bool str)\n"
    "  --describe ID    print the reference of a plug-in id: fields, length, an example\n"
    "  --plugin PATH    load this plug-in (a .so, or a directory of them) instead of the\n"
    "                   default: every .so in $OVFMT_PLUGIN_DIR, else the one installed\n"
    "                   beside ovfmt\n"
    "  --help           print this help and exit\n"
    "  --version        print the version and exit\n"
    "Exit status: 0 every record printed, 1 a record failed, 2 usage or plug-in error.\n";

struct Options {
  std::vector<std::string> plugins;
  bool list = false;
  std::optional<std::string> describe; // the --describe id
  bool batch = false;
  std::string batchFile = "-";
  unsigned jobs = 1;
  bool separatorGiven = false;
  std::optional<std::string> layout; // the --template text
  ovfmt::PrintOptions print;
  std::vector<std::string> record; // ID[,ID...] then HEX words
};

std::string defaultPlugin() {
  char self[PATH_MAX];
  const ssize_t n = readlink("/proc/self/exe", self, sizeof self - 1);
  if (n <= 0) return ORVANE_PLUGIN_FROM_BIN;
  const std::string exe(self, static_cast<std::size_t>(n));
  return exe.substr(0, exe.rfind('/') + 1) + ORVANE_PLUGIN_FROM_BIN;
}

bool loadPlugins(const Options& options) {
  std::vector<host::LoadError> errors;
  auto load = [&](const std::string& path) {
    auto failed = host::loadPluginPath(path);
    errors.insert(errors.end(), failed.begin(), failed.end());
  };
  if (!options.plugins.empty()) {
    for (const auto& path : options.plugins) load(path);
  } else if (const char* dir = std::getenv("OVFMT_PLUGIN_DIR")) {
    errors = host::loadPluginDirectory(dir);
  } else {
    load(defaultPlugin());
  }
  for (const auto& error : errors)
    std::cerr << "ovfmt: cannot load plug-in " << error.path << ": " << error.reason << "\n";
  return errors.empty();
}

int usageError(const std::string& problem) {
  std::cerr << "ovfmt: " << problem << "\n" << kUsage;
  return kExitUsage;
}

bool parseJobs(const char* text, unsigned& jobs) {
  const char* end = text + std::strlen(text);
  const auto [rest, error] = std::from_chars(text, end, jobs);
  return error == std::errc() && rest == end && jobs >= 1 && jobs <= kMaxJobs;
}

// Checks the options that only make sense together; returns a usage problem or "".
std::string conflicts(const Options& options) {
  const int modes =
      options.list + options.batch + !options.record.empty() + options.describe.has_value();
  if (modes == 0) return "nothing to do: give ID HEX..., --batch or --list";
  if (modes > 1) return "give only one of ID HEX..., --batch, --list and --describe";
  if (options.separatorGiven && options.layout)
    return "give --sep or --template, not both: the template holds the text between arguments";
  if (options.print.counts && (options.separatorGiven || options.layout))
    return "--counts prints a line per argument: --sep and --template do not apply";
  if (options.jobs != 1 && !options.batch) return "--jobs applies to --batch only";
  return "";
}

// Parses the template, and checks it against the record of the command line.
std::string prepareTemplate(Options& options) {
  if (!options.layout) return "";
  std::string error;
  options.print.layout = decoding::Template::parse(*options.layout, error);
  if (!options.print.layout) return error;
  if (options.record.empty()) return "";
  std::vector<std::string_view> ids;
  decoding::splitIdList(options.record.front(), ids);
  if (options.print.layout->placeholders() == ids.size()) return "";
  return decoding::placeholderCountProblem(options.print.layout->placeholders(), ids.size());
}

// Returns the exit status to stop with, or -1 to go on.
int parse(int argc, char** argv, Options& options) {
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    auto value = [&]() -> const char* { return i + 1 < argc ? argv[++i] : nullptr; };
    if (!options.record.empty()) {
      options.record.push_back(arg);
    } else if (arg == "--help" || arg == "-h") {
      std::cout << kUsage;
      return kExitOk;
    } else if (arg == "--version") {
      std::cout << "ovfmt " ORVANE_VERSION "\n";
      return kExitOk;
    } else if (arg == "--plugin") {
      const char* path = value();
      if (!path) return usageError("--plugin needs a path");
      options.plugins.push_back(path);
    } else if (arg == "--counts") {
      options.print.counts = true;
    } else if (arg == "--describe") {
      if (const char* id = value())
        options.describe = id;
      else
        return usageError("--describe needs an id");
    } else if (arg == "--list") {
      options.list = true;
    } else if (arg == "--sep") {
      const char* text = value();
      if (!text) return usageError("--sep needs a text");
      options.print.separator = text;
      options.separatorGiven = true;
    } else if (arg == "--template") {
      const char* text = value();
      if (!text) return usageError("--template needs a text");
      options.layout = text;
    } else if (arg == "--jobs") {
      const char* count = value();
      if (!count || !parseJobs(count, options.jobs))
        return usageError("--jobs needs a number from 1 to " + std::to_string(kMaxJobs));
    } else if (arg == "--batch") {
      options.batch = true;
      // The file is optional: the next word is it unless it is another option.
      if (i + 1 < argc && (argv[i + 1][0] != '-' || std::strcmp(argv[i + 1], "-") == 0))
        options.batchFile = argv[++i];
    } else if (arg.size() > 1 && arg[0] == '-') {
      return usageError("unknown option " + decoding::printable(arg));
    } else if (options.batch) {
      return usageError("--batch takes one FILE");
    } else {
      options.record.push_back(arg);
    }
  }
  if (std::string problem = conflicts(options); !problem.empty()) return usageError(problem);
  if (std::string problem = prepareTemplate(options); !problem.empty()) return usageError(problem);
  return -1;
}

// Plug-in ids first, then, apart after a blank line, the host's base-type ids.
void listIds() {
  for (const auto& id : host::registeredIds())
    if (!host::isBaseTypeId(id)) std::cout << id << "\n";
  std::cout << "\n";
  for (const auto id : host::baseTypeIds()) std::cout << id << "\n";
}

// Reports output that could not be written (a full disk, a closed pipe).
int writeFailed(const std::string& reason) {
  std::cerr << "ovfmt: cannot write the output: " << reason << "\n";
  return kExitValueFailed;
}

int formatRecord(const Options& options) {
  std::string hex;
  for (std::size_t i = 1; i < options.record.size(); ++i) hex += options.record[i] + " ";
  const std::string& ids = options.record.front();
  const std::string shown = decoding::printable(ids);
  ovfmt::RecordPrinter printer(options.print);
  ovfmt::Output output;
  const bool printed = printer.print({shown}, ids, hex, output);
  if (!output.writeTo(STDOUT_FILENO, STDERR_FILENO)) return writeFailed(std::strerror(errno));
  return printed ? kExitOk : kExitValueFailed;
}

int formatBatch(const Options& options) {
  const bool fromStdin = options.batchFile == "-";
  const int in = fromStdin ? STDIN_FILENO : open(options.batchFile.c_str(), O_RDONLY | O_CLOEXEC);
  if (in < 0) {
    std::cerr << "ovfmt: cannot open " << options.batchFile << "\n";
    return kExitUsage;
  }
  const std::string name = fromStdin ? "<stdin>" : options.batchFile;
  const auto summary =
      ovfmt::formatBatch(in, name, options.print, options.jobs, STDOUT_FILENO, STDERR_FILENO);
  if (!fromStdin) close(in);
  if (!summary.writeError.empty()) return writeFailed(summary.writeError);
  if (!summary.readError.empty()) {
    std::cerr << "ovfmt: cannot read " << name << ": " << summary.readError << "\n";
    return kExitUsage;
  }
  if (summary.records == 0) std::cerr << "ovfmt: " << name << ": no values to format\n";
  return summary.allPrinted ? kExitOk : kExitValueFailed;
}

} // namespace

int main(int argc, char** argv) {
  Options options;
  if (ovfmt::isTraceCommand(argc, argv))
    return ovfmt::runTrace(argc, argv, [&](const std::vector<std::string>& plugins) {
      options.plugins = plugins;
      return loadPlugins(options) && (host::registerBaseTypes(), true);
    });
  if (int status = parse(argc, argv, options); status >= 0) return status;
  if (!loadPlugins(options)) return kExitUsage;
  host::registerBaseTypes();

  if (options.describe) return ovfmt::describe(*options.describe, std::cout, std::cerr);
  if (options.list) {
    listIds();
    return kExitOk;
  }
  return options.batch ? formatBatch(options) : formatRecord(options);
}
