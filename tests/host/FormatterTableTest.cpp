// The host's id table on its own: every id placed is found and listed, also ids in the
// first and last slots and after the table has grown, and the first function set wins.
#include "host/FormatterTable.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Orvane::host {
namespace {

unsigned lengthOne(const unsigned char*) { return 1; }
unsigned lengthTwo(const unsigned char*) { return 2; }

TEST(FormatterTable, FindsAndListsEveryIdAcrossGrowth) {
  FormatterTable table;
  std::vector<std::string> ids;
  // 1,000 ids fill the 256 slots it starts with, and every slot of several sizes.
  for (int i = 0; i < 1000; ++i) {
    ids.push_back("id" + std::to_string(i));
    table.setLength(ids.back(), lengthOne);
    ASSERT_TRUE(table.find(ids.front())) << "lost after " << i + 1 << " ids";
    ASSERT_EQ(table.ids().size(), ids.size());
  }
  auto listed = table.ids();
  std::sort(listed.begin(), listed.end());
  std::sort(ids.begin(), ids.end());
  EXPECT_EQ(listed, ids);
  for (const auto& id : ids) {
    const FormatterPair* pair = table.find(id);
    ASSERT_TRUE(pair) << id;
    EXPECT_EQ(pair->length(nullptr), 1u);
    EXPECT_FALSE(pair->format);
  }
  EXPECT_FALSE(table.find("id1000"));
  EXPECT_FALSE(table.find(""));
}

TEST(FormatterTable, TheFirstFunctionSetWins) {
  FormatterTable table;
  table.setLength("A", lengthOne);
  const FormatterPair* before = table.find("A");
  table.setLength("A", lengthTwo);
  table.setFormat("A", [](const unsigned char*, std::ostream&) { return 1u; });
  const FormatterPair* after = table.find("A");
  EXPECT_EQ(after->length(nullptr), 1u);
  EXPECT_TRUE(after->format);
  EXPECT_FALSE(before->format) << "a published pair never changes";
  EXPECT_EQ(table.ids(), std::vector<std::string>{"A"});
}

} // namespace
} // namespace Orvane::host
