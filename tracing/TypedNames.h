// Which fields of a trace hold typed values: by the "__ID" suffix of their name, or by a
// map from event and field names to ids for traces whose tracepoints cannot change.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Orvane::tracing {

/// A field name split at its last "__": `nexthop__BNH` is shown as `nexthop` with id
/// `BNH`. Both parts are views into the name.
struct TypedName {
  std::string_view shown;
  std::string_view id;
};

/// The split of `name` when it ends in "__" and a non-empty id, with something before;
/// nullopt otherwise. Whether the id is registered is the caller's question.
std::optional<TypedName> splitTypedName(std::string_view name);

/// The name of the length field LTTng-UST puts in front of the sequence `name`:
/// "_" + name + "_length".
std::string lengthFieldName(std::string_view name);

/// Field ids given by the reader for fields whose names carry none. Each entry reads
/// "EVENT.FIELD=ID": the payload field FIELD of the event named EVENT (everything before
/// the last '.', so event names may hold dots; "*" matches every event) is read as ID.
class TypeMap {
public:
  /// Adds one "EVENT.FIELD=ID" entry; returns false, changing nothing, when it does not
  /// have that form.
  bool add(std::string_view entry);

  /// The id given for field `field` of event `event`: an entry for the event itself
  /// first, then a "*" one; empty when there is none.
  std::string_view find(std::string_view event, std::string_view field) const;

  /// Whether no entry was added.
  bool empty() const { return entries_.empty(); }

private:
  struct Entry {
    std::string event, field, id;
  };
  std::vector<Entry> entries_;
};

} // namespace Orvane::tracing
