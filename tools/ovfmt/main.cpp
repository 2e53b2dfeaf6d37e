// ovfmt: the command-line host. Loads formatter plug-ins and decodes values given as
// "ID HEX..." on the command line or, with --batch, one per line of a file.
#include "host/PluginLoader.h"
#include "host/Registry.h"
#include "registry/HexDigits.h"
#include "tools/ovfmt/BatchLine.h"
#include "tools/ovfmt/Decode.h"
#include "tools/ovfmt/Hex.h"

#include <climits>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <sstream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace Orvane;

constexpr int kExitOk = 0, kExitValueFailed = 1, kExitUsage = 2;

const char kUsage[] =
    "Usage: ovfmt [--plugin PATH]... [--counts] ID HEX...\n"
    "  or:  ovfmt [--plugin PATH]... [--counts] --batch [FILE|-]\n"
    "  or:  ovfmt [--plugin PATH]... --list\n"
    "\n"
    "Formats binary trace values through the registered formatter plug-ins.\n"
    "  ID HEX...      format one value: its type id, then its bytes as pairs of hex digits\n"
    "                 (blanks and ':' may separate the pairs)\n"
    "  --batch FILE   format one value per line 'ID HEX...' of FILE, or of standard input\n"
    "                 when FILE is '-' or absent; blank lines and '#' comments are skipped\n"
    "  --counts       print 'ID<TAB>length<TAB>consumed<TAB>text' for every value,\n"
    "                 also invalid or incomplete ones\n"
    "  --list         print every registered id, sorted\n"
    "  --plugin PATH  load this plug-in (a .so, or a directory of them) instead of the\n"
    "                 default: every .so in $OVFMT_PLUGIN_DIR, else the one installed\n"
    "                 beside ovfmt\n"
    "  --help         print this help and exit\n"
    "  --version      print the version and exit\n"
    "Exit status: 0 every value printed, 1 a value failed, 2 usage or plug-in error.\n";

struct Options {
  std::vector<std::string> plugins;
  bool counts = false;
  bool list = false;
  bool batch = false;
  std::string batchFile = "-";
  std::vector<std::string> value; // ID then HEX words
};

// Ids and hex come from untrusted input: keep error lines short and printable.
std::string printable(std::string_view text) {
  constexpr std::size_t kMax = 40;
  std::string out;
  for (unsigned char c : text.substr(0, kMax)) {
    if (c >= 0x20 && c < 0x7f) {
      out += static_cast<char>(c);
    } else {
      char digits[2];
      writeHexByte(c, digits);
      out += "\\x";
      out.append(digits, 2);
    }
  }
  if (text.size() > kMax) out += "...";
  return out;
}

std::string bytesWord(std::size_t n) { return std::to_string(n) + (n == 1 ? " byte" : " bytes"); }

// Where a value came from, put into words only when a message names it (most values
// need no message, so no text is built for them).
struct Where {
  std::string_view source; ///< the batch input's name, or the id given on the command line
  std::size_t line = 0;    ///< the batch line, 0 for a value on the command line
};

std::ostream& operator<<(std::ostream& os, const Where& where) {
  os << where.source;
  if (where.line) os << ':' << where.line;
  return os;
}

// Formats one value and prints it; returns false when the value failed.
bool formatOne(const Where& where, std::string_view id, std::string_view hex,
               bool counts, ovfmt::Decoder& decoder) {
  auto fail = [&](const std::string& problem) {
    std::cerr << "ovfmt: " << where << ": " << problem << "\n";
    return false;
  };
  const host::FormatterPair* formatter = host::findFormatter(id);
  if (!formatter) return fail("unknown id \"" + printable(id) + "\" (ovfmt --list shows the ids)");
  if (!formatter->format || !formatter->length)
    return fail("id \"" + printable(id) + "\" has no " +
                (formatter->format ? "length" : "format") + " function registered");
  std::string hexError;
  auto bytes = ovfmt::parseHex(hex, hexError);
  if (!bytes) return fail(hexError);

  const ovfmt::Decoded decoded = decoder.decode(*formatter, *bytes);
  const std::size_t given = bytes->size();
  if (counts) {
    std::cout << id << '\t' << decoded.length << '\t' << decoded.consumed << '\t' << decoded.text
              << '\n';
  } else if (decoded.length == kInvalidLength) {
    return fail("invalid encoding: the length function of " + std::string(id) +
                " returned 0xFFFFFFFF");
  } else if (decoded.length > given) {
    return fail("value too short: " + bytesWord(given) + " given, " + std::string(id) +
                " needs " + std::to_string(decoded.length));
  } else if (decoded.consumed != decoded.length) {
    return fail("invalid encoding: formatting consumed " + std::to_string(decoded.consumed) +
                " bytes, the length function says " + std::to_string(decoded.length));
  } else {
    std::cout << decoded.text << '\n';
  }
  if (decoded.length < given && decoded.length != kInvalidLength)
    std::cerr << "ovfmt: " << where << ": " << bytesWord(given - decoded.length)
              << " after the value not consumed\n";
  return true;
}

int formatBatch(const Options& options) {
  std::ifstream file;
  const bool fromStdin = options.batchFile == "-";
  if (!fromStdin) {
    file.open(options.batchFile);
    if (!file) {
      std::cerr << "ovfmt: cannot open " << options.batchFile << "\n";
      return kExitUsage;
    }
  }
  std::istream& in = fromStdin ? std::cin : file;
  const std::string name = fromStdin ? "<stdin>" : options.batchFile;

  bool allPrinted = true;
  std::size_t values = 0, lineNumber = 0;
  ovfmt::Decoder decoder;
  for (std::string line; std::getline(in, line);) {
    ++lineNumber;
    const auto parts = ovfmt::splitBatchLine(line);
    if (!parts) continue;
    ++values;
    allPrinted &= formatOne({name, lineNumber}, parts->id, parts->hex, options.counts, decoder);
  }
  if (values == 0) std::cerr << "ovfmt: " << name << ": no values to format\n";
  return allPrinted ? kExitOk : kExitValueFailed;
}

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

// Returns the exit status to stop with, or -1 to go on.
int parse(int argc, char** argv, Options& options) {
  auto usageError = [](const std::string& problem) {
    std::cerr << "ovfmt: " << problem << "\n" << kUsage;
    return kExitUsage;
  };
  for (int i = 1; i < argc; ++i) {
    const std::string arg = argv[i];
    if (!options.value.empty()) {
      options.value.push_back(arg);
    } else if (arg == "--help" || arg == "-h") {
      std::cout << kUsage;
      return kExitOk;
    } else if (arg == "--version") {
      std::cout << "ovfmt " ORVANE_VERSION "\n";
      return kExitOk;
    } else if (arg == "--plugin") {
      if (++i == argc) return usageError("--plugin needs a path");
      options.plugins.push_back(argv[i]);
    } else if (arg == "--counts") {
      options.counts = true;
    } else if (arg == "--list") {
      options.list = true;
    } else if (arg == "--batch") {
      options.batch = true;
      if (i + 1 < argc) options.batchFile = argv[++i];
      if (i + 1 < argc) return usageError("--batch takes one FILE");
    } else if (arg.size() > 1 && arg[0] == '-') {
      return usageError("unknown option " + printable(arg));
    } else {
      options.value.push_back(arg);
    }
  }
  const int modes = options.list + options.batch + !options.value.empty();
  if (modes == 0) return usageError("nothing to do: give ID HEX..., --batch or --list");
  if (modes > 1) return usageError("give only one of ID HEX..., --batch and --list");
  return -1;
}

} // namespace

int main(int argc, char** argv) {
  Options options;
  if (int status = parse(argc, argv, options); status >= 0) return status;
  if (!loadPlugins(options)) return kExitUsage;

  if (options.list) {
    for (const auto& id : host::registeredIds()) std::cout << id << "\n";
    return kExitOk;
  }
  if (options.batch) return formatBatch(options);

  std::string hex;
  for (std::size_t i = 1; i < options.value.size(); ++i) hex += options.value[i] + " ";
  const std::string& id = options.value.front();
  ovfmt::Decoder decoder;
  const std::string shownId = printable(id);
  return formatOne({shownId}, id, hex, options.counts, decoder) ? kExitOk : kExitValueFailed;
}
