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

TEST_F(Registration, AliasesRegisterTheSameFunctions) {
  for (auto [alias, id] : {std::pair{"P", "AM4"}, std::pair{"P6", "AM6"}}) {
    const auto* a = host::findFormatter(alias);
    const auto* b = host::findFormatter(id);
    ASSERT_TRUE(a && b);
    EXPECT_EQ(*a->format.target<FormatPtr>(), *b->format.target<FormatPtr>()) << alias;
    EXPECT_EQ(*a->length.target<LengthPtr>(), *b->length.target<LengthPtr>()) << alias;
  }
}

TEST_F(Registration, EvpnL2VersionsShareOnlyTheirLengthFunction) {
  const auto* v3 = host::findFormatter("EL2V3");
  const auto* v2 = host::findFormatter("EL2");
  const auto* v1 = host::findFormatter("EL2old");
  ASSERT_TRUE(v3 && v2 && v1);
  const LengthPtr length = *v3->length.target<LengthPtr>();
  EXPECT_EQ(*v2->length.target<LengthPtr>(), length);
  EXPECT_EQ(*v1->length.target<LengthPtr>(), length);
  const std::set<FormatPtr> formats{*v3->format.target<FormatPtr>(),
                                    *v2->format.target<FormatPtr>(),
                                    *v1->format.target<FormatPtr>()};
  EXPECT_EQ(formats.size(), 3u);
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
