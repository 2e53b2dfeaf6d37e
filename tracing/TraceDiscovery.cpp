#include "tracing/TraceDiscovery.h"

#include "tracing/TraceRequest.h"

#include <babeltrace2/babeltrace.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <memory>

namespace Orvane::tracing {
namespace {

namespace fs = std::filesystem;

struct PutValue {
  void operator()(const bt_value* value) const { bt_value_put_ref(value); }
};
using Value = std::unique_ptr<const bt_value, PutValue>;

/// What babeltrace2's CTF reader says of a directory: whether it is a trace, and the
/// group (its UUID) of the traces that are copies of one another.
struct Claim {
  bool trace = false;
  std::string group;
};

/// Asks source.ctf.fs, as babeltrace2's command line does, whether `dir` is a trace.
class CtfReader {
public:
  CtfReader() {
    if (bt_plugin_find("ctf", BT_TRUE, BT_TRUE, BT_TRUE, BT_TRUE, BT_FALSE, &plugin_) ==
        BT_PLUGIN_FIND_STATUS_OK)
      fs_ = bt_plugin_borrow_source_component_class_by_name_const(plugin_, "fs");
  }
  ~CtfReader() { bt_plugin_put_ref(plugin_); }
  CtfReader(const CtfReader&) = delete;
  CtfReader& operator=(const CtfReader&) = delete;

  Claim claim(const std::string& dir) const {
    std::error_code ec;
    if (!fs::is_regular_file(fs::path(dir) / "metadata", ec)) return {};
    if (!fs_) return {true, {}}; // the source will say what is missing
    Value params(bt_value_map_create());
    bt_value* map = const_cast<bt_value*>(params.get());
    bt_value_map_insert_string_entry(map, "input", dir.c_str());
    bt_value_map_insert_string_entry(map, "type", "directory");
    bt_query_executor* query = bt_query_executor_create(
        bt_component_class_source_as_component_class_const(fs_), "babeltrace.support-info", map);
    const bt_value* result = nullptr;
    Claim claim{true, {}};
    if (query && bt_query_executor_query(query, &result) == BT_QUERY_EXECUTOR_QUERY_STATUS_OK) {
      const bt_value* group = bt_value_map_borrow_entry_value_const(result, "group");
      if (group && bt_value_is_string(group)) claim.group = bt_value_string_get(group);
    }
    bt_current_thread_clear_error(); // a metadata file it cannot read: the source says why
    bt_value_put_ref(result);
    bt_query_executor_put_ref(query);
    return claim;
  }

private:
  const bt_plugin* plugin_ = nullptr;
  const bt_component_class_source* fs_ = nullptr;
};

/// A trace directory found, with the input that led to it.
struct Found {
  std::string dir, group;
  std::string below; ///< its path below that input
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
    if (const Claim claim = reader_.claim(dir); claim.trace) {
      found_.push_back({dir, claim.group, below});
      return;
    }
    std::error_code ec;
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

  CtfReader reader_;
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
