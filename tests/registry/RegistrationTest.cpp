// Loading the plug-in into the host: what reaches the registry, and in what order.
#include "host/PluginLoader.h"
#include "host/Registry.h"
#include "registry/Formatter.h"

#include <gtest/gtest.h>

#include <set>

namespace Orvane::test {
namespace {

using Kind = host::RegistrationCall::Kind;

class Registration : public ::testing::Test {
protected:
  static void SetUpTestSuite() { ASSERT_TRUE(host::loadPlugin(PLUGIN_PATH).empty()); }
};

// The README's type-id table names every id (the formatter tests check that list).
TEST_F(Registration, EveryIdOnceThroughEachCallFormatFirst) {
  const auto log = host::registrationLog();
  std::set<std::string> ids;
  for (std::size_t i = 0; i + 1 < log.size(); i += 2) {
    EXPECT_EQ(log[i].kind, Kind::Format) << log[i].id;
    EXPECT_EQ(log[i + 1].kind, Kind::Length) << log[i].id;
    EXPECT_EQ(log[i + 1].id, log[i].id);
    EXPECT_TRUE(ids.insert(log[i].id).second) << log[i].id << " registered twice";
  }
  EXPECT_EQ(ids.size(), 108u);
  EXPECT_EQ(log.size(), 2 * ids.size());
}

TEST_F(Registration, LoadingAgainRegistersNothingNew) {
  const auto before = host::registrationLog().size();
  EXPECT_TRUE(host::loadPlugin(PLUGIN_PATH).empty());
  EXPECT_EQ(host::registrationLog().size(), before);
}

TEST(Loader, ReportsPathsThatAreNotPlugins) {
  auto missing = host::loadPlugin("/nonexistent/libNothing.so");
  ASSERT_EQ(missing.size(), 1u);
  EXPECT_EQ(missing[0].path, "/nonexistent/libNothing.so");
  EXPECT_NE(missing[0].reason.find("No such file"), std::string::npos);

  // A shared object that loads but registers nothing is not a plug-in.
  auto notPlugin = host::loadPlugin("libm.so.6");
  ASSERT_EQ(notPlugin.size(), 1u);
  EXPECT_NE(notPlugin[0].reason.find("registered no formatter"), std::string::npos);

  EXPECT_EQ(host::loadPluginDirectory("/nonexistent-dir").size(), 1u);
}

} // namespace
} // namespace Orvane::test
