#include "tracing/TraceDiscovery.h"

#include "tracing/TraceRequest.h"

#include <algorithm>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <map>
#include <regex>

namespace Orvane::tracing {
namespace {

namespace fs = std::filesystem;

/// The UUID of the trace whose metadata file is `metadata`, as a key to group by: the 16
/// bytes of its first packet's header when it is packetized, else the `uuid` of its
/// text's trace block. Empty when it names none. Traces of one UUID are copies of one
/// trace, as babeltrace2 groups them.
std::string traceUuid(const fs::path& metadata) {
  std::ifstream in(metadata, std::ios::binary);
  std::string text(20, '\0'); // a packet header's magic and UUID: all a packetized file needs
  text.resize(static_cast<std::size_t>(in.read(text.data(), 20).gcount()));
  constexpr std::uint32_t kPacketMagic = 0x75d11d57;
  std::uint32_t magic = 0;
  if (text.size() == 20) std::memcpy(&magic, text.data(), sizeof magic);
  if (magic == kPacketMagic || magic == __builtin_bswap32(kPacketMagic)) return text.substr(4, 16);
  text.append(std::istreambuf_iterator<char>(in), {});
  static const std::regex kTraceUuid(R"re(trace\s*\{[^}]*?uuid\s*=\s*"([0-9A-Fa-f-]{36})")re");
  std::smatch found;
  return std::regex_search(text, found, kTraceUuid) ? found[1].str() : "";
}

/// A trace directory found, with the input that led to it.
struct Found {
  std::string dir, group; ///< the group: the trace's UUID
  std::string below;      ///< its path below that input
};

class Search {
public:
  Discovery discovery;

  void input(const std::string& path) {
    std::error_code ec;
    if (!fs::is_directory(path, ec)) {
      discovery.problems.push_back("cannot read " + path + ": " +
                                   (ec ? ec.message() : "not a directory"));
      return;
    }
    walk(path, "");
  }

  /// Groups what was found into sources, in the order first found.
  void group() {
    std::map<std::string, std::size_t> byGroup;
    std::vector<std::vector<const Found*>> groups;
    for (const Found& found : found_) {
      if (found.group.empty()) {
        groups.push_back({&found});
        continue;
      }
      const auto [at, added] = byGroup.try_emplace(found.group, groups.size());
      if (added) groups.emplace_back();
      groups[at->second].push_back(&found);
    }
    for (const auto& members : groups) {
      TraceSource source;
      for (const Found* found : members) source.inputs.push_back(found->dir);
      if (members.size() == 1) source.name = members.front()->below;
      discovery.sources.push_back(std::move(source));
    }
  }

private:
  void walk(const std::string& dir, const std::string& below) {
    std::error_code ec;
    if (const fs::path metadata = fs::path(dir) / "metadata"; fs::is_regular_file(metadata, ec)) {
      found_.push_back({dir, traceUuid(metadata), below});
      return;
    }
    std::vector<fs::path> children;
    // A link to a directory is not followed: it may lead back up (/proc/self/root).
    for (fs::directory_iterator it(dir, ec), end; !ec && it != end; it.increment(ec))
      if (it->symlink_status(ec).type() == fs::file_type::directory) children.push_back(it->path());
    if (ec) {
      discovery.problems.push_back("cannot read the directory " + dir + ": " + ec.message());
      ec.clear();
    }
    std::sort(children.begin(), children.end());
    for (const fs::path& child : children) {
      const std::string name = child.filename().string();
      walk(child.string(), below.empty() ? name : below + "/" + name);
    }
  }

  std::vector<Found> found_;
};

} // namespace

Discovery discoverTraces(const std::vector<std::string>& inputs) {
  Search search;
  std::vector<TraceSource> live;
  for (const std::string& input : inputs) {
    if (isLiveUrl(input))
      live.push_back({true, {input}, {}});
    else
      search.input(input);
  }
  search.group();
  Discovery discovery = std::move(search.discovery);
  discovery.sources.insert(discovery.sources.end(), live.begin(), live.end());
  return discovery;
}

} // namespace Orvane::tracing
