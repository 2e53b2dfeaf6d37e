// ovfmt: the command-line host. Loads formatter plug-ins and decodes records given as
// "ID[,ID...] HEX..." on the command line, one per line of a batch, or as a hex dump.
#include "decoding/Problems.h"
#include "host/BaseTypes.h"
#include "host/Registry.h"
#include "tools/ovfmt/Batch.h"
#include "tools/ovfmt/Describe.h"
#include "tools/ovfmt/HexDump.h"
#include "tools/ovfmt/Options.h"
#include "tools/ovfmt/Plugins.h"
#include "tools/ovfmt/RecordPrinter.h"
#include "tools/ovfmt/Trace.h"

#include <cerrno>
#include <climits>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <string>
#include <unistd.h>
#include <vector>

namespace {

using namespace Orvane;
using ovfmt::Mode;
using ovfmt::Options;

constexpr int kExitOk = 0, kExitValueFailed = 1, kExitUsage = 2;

std::string defaultPlugin() {
  char self[PATH_MAX];
  const ssize_t n = readlink("/proc/self/exe", self, sizeof self - 1);
  if (n <= 0) return ORVANE_PLUGIN_FROM_BIN;
  const std::string exe(self, static_cast<std::size_t>(n));
  return exe.substr(0, exe.rfind('/') + 1) + ORVANE_PLUGIN_FROM_BIN;
}

int usageError(const std::string& problem) {
  std::cerr << "ovfmt: " << problem << "\nTry 'ovfmt --help'.\n";
  return kExitUsage;
}

// Reports output that could not be written (a full disk, a closed pipe).
int writeFailed(const std::string& reason) {
  std::cerr << "ovfmt: cannot write the output: " << reason << "\n";
  return kExitValueFailed;
}

// Writes what `output` holds; `status` unless the writing fails.
int writeOut(ovfmt::Output& output, int status) {
  if (!output.writeTo(STDOUT_FILENO, STDERR_FILENO)) return writeFailed(std::strerror(errno));
  return status;
}

int printText(std::string_view text) {
  ovfmt::Output output;
  output.text().append(text);
  return writeOut(output, kExitOk);
}

// Plug-in ids first, then, apart after a blank line, the host's base-type ids.
int listIds() {
  ovfmt::Output output;
  for (const auto& id : host::registeredIds()) {
    if (host::isBaseTypeId(id)) continue;
    output.text().append(id);
    output.text().append('\n');
  }
  output.text().append('\n');
  for (const auto id : host::baseTypeIds()) {
    output.text().append(id);
    output.text().append('\n');
  }
  return writeOut(output, kExitOk);
}

int formatRecord(const Options& options) {
  std::string hex;
  for (std::size_t i = 1; i < options.positional.size(); ++i) hex += options.positional[i] + " ";
  const std::string& ids = options.positional.front();
  const std::string shown = decoding::printable(ids);
  ovfmt::RecordPrinter printer(options.print);
  ovfmt::Output output;
  const bool printed = printer.print({shown}, ids, hex, output);
  return writeOut(output, printed ? kExitOk : kExitValueFailed);
}

// An input file opened for reading, or standard input for "-".
struct Input {
  std::string name; ///< as messages name it
  int fd = -1;
  explicit Input(const std::string& path)
      : name(path == "-" ? "<stdin>" : path),
        fd(path == "-" ? STDIN_FILENO : open(path.c_str(), O_RDONLY | O_CLOEXEC)) {
    if (fd < 0) std::cerr << "ovfmt: cannot open " << path << ": " << std::strerror(errno) << "\n";
  }
  ~Input() {
    if (fd > STDERR_FILENO) close(fd);
  }
  Input(const Input&) = delete;
  Input& operator=(const Input&) = delete;
};

int formatBatchFile(const Options& options, const std::string& path) {
  const Input in(path);
  if (in.fd < 0) return kExitUsage;
  const auto summary =
      ovfmt::formatBatch(in.fd, in.name, options.print, options.jobs, STDOUT_FILENO, STDERR_FILENO);
  if (!summary.writeError.empty()) return writeFailed(summary.writeError);
  if (!summary.readError.empty()) {
    std::cerr << "ovfmt: cannot read " << in.name << ": " << summary.readError << "\n";
    return kExitUsage;
  }
  if (summary.records == 0) std::cerr << "ovfmt: " << in.name << ": no values to format\n";
  return summary.allPrinted ? kExitOk : kExitValueFailed;
}

// Each FILE in turn (standard input when none is given); the worst status of them.
int formatBatch(const Options& options) {
  const std::vector<std::string> files =
      options.positional.empty() ? std::vector<std::string>{"-"} : options.positional;
  int status = kExitOk;
  for (const auto& file : files) status = std::max(status, formatBatchFile(options, file));
  return status;
}

// Everything `fd` holds; false (with `error` set) when a read fails.
bool readAll(int fd, std::string& text, std::string& error) {
  char block[65536];
  for (ssize_t n; (n = read(fd, block, sizeof block)) != 0;) {
    if (n > 0) {
      text.append(block, static_cast<std::size_t>(n));
    } else if (errno != EINTR) {
      error = std::strerror(errno);
      return false;
    }
  }
  return true;
}

int formatHexDump(const Options& options) {
  const Input in(options.positional.size() > 1 ? options.positional[1] : "-");
  if (in.fd < 0) return kExitUsage;
  std::string dump, error;
  if (!readAll(in.fd, dump, error)) {
    std::cerr << "ovfmt: cannot read " << in.name << ": " << error << "\n";
    return kExitUsage;
  }
  std::vector<unsigned char> bytes;
  if (!ovfmt::readHexDump(dump, bytes, error)) {
    std::cerr << "ovfmt: " << in.name << ": " << error << "\n";
    return kExitValueFailed;
  }
  const std::string& ids = options.positional.front();
  const std::string shown = decoding::printable(ids);
  ovfmt::RecordPrinter printer(options.print);
  ovfmt::Output output;
  const bool printed = printer.print({shown}, ids, bytes, output);
  return writeOut(output, printed ? kExitOk : kExitValueFailed);
}

} // namespace

int main(int argc, char** argv) {
  Options options;
  if (std::string problem = ovfmt::readOptions(argc, argv, options); !problem.empty())
    return usageError(problem);
  if (options.help) return printText(ovfmt::helpText());
  if (options.version) return printText("ovfmt " ORVANE_VERSION "\n");
  if (!ovfmt::loadPlugins(options.plugins, options.defaultPlugin, defaultPlugin()))
    return kExitUsage;
  host::registerBaseTypes();

  switch (options.mode) {
  case Mode::List: return listIds();
  case Mode::Describe: return ovfmt::describe(options.positional.front(), std::cout, std::cerr);
  case Mode::Batch: return formatBatch(options);
  case Mode::HexDump: return formatHexDump(options);
  case Mode::Trace: return ovfmt::runTrace(options);
  case Mode::Record: break;
  }
  return formatRecord(options);
}
