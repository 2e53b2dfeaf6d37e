// StringTable: lookups after many additions, entries that stay put.
#include "decoding/StringTable.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Orvane::decoding {
namespace {

TEST(StringTable, FindsEveryEntryAddedAndNothingElse) {
  StringTable<int> table;
  std::vector<const StringTable<int>::Entry*> added;
  for (int i = 0; i < 300; ++i) { // enough for many probes past a taken slot
    auto* entry = table.add("ID" + std::to_string(i));
    ASSERT_TRUE(entry);
    entry->value = i;
    added.push_back(entry);
  }
  for (int i = 0; i < 300; ++i) {
    const auto* entry = table.find("ID" + std::to_string(i));
    ASSERT_EQ(entry, added[i]) << i; // found, and never moved by later additions
    EXPECT_EQ(entry->value, i);
  }
  for (const char* absent : {"", "ID", "ID300", "id0", "ID0 "})
    EXPECT_EQ(table.find(absent), nullptr) << absent;
}

} // namespace
} // namespace Orvane::decoding
