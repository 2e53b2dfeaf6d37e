// Loading the plug-in into the host: what reaches the registry, and in what order.
#include "host/PluginLoader.h"
#include "host/Registry.h"
#include "registry/Formatter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>

namespace Orvane::test {
namespace {

using Kind = host::RegistrationCall::Kind;

// Every id the plug-in supplies, by subsystem.
const std::set<std::string> kExpectedIds = {
    // address/
    "A", "AF", "AM4", "AM6", "DSFID", "E", "EC", "EM", "ES", "I", "I6", "IG", "IGM", "IGMO",
    "IGO", "IP", "IS", "P", "P6", "PG", "PGO",
    // bgp/ codes, RDs and RTs, mpls/ labels and FECs, bgp/ EVPN layer-2 attributes
    "AFI", "AFS", "EL", "EL2", "EL2V3", "EL2old", "FM", "FMO", "GFID", "LO", "LVK", "ML",
    "MRTR", "NLRI", "NLRI2AFISAFI", "RD", "RT", "RTMRK", "SAFI",
    // mpls/: tunnel, pseudowire, RIB, IGP node, multicast, CSPF and BFD keys
    "BP", "BPO", "CCPK", "CP2MPK", "CPK", "CV", "IGPN", "MF", "MFGK", "MFGKO", "MFK", "MIJ",
    "MIR", "MK", "MKO", "MTT", "PGKR", "PGKRO", "PW", "PWO", "RRRK", "RRRKO", "RRRP", "RVK",
    "TK", "TKG", "TKGO", "VLAFP", "VLAFPV",
    // bgp/ next hop, route keys, peer keys, BMP route keys, adj-RIB-in types
    "BMPRK", "BNH", "BPK", "BRK", "BRY", "RIBINT",
    // keys/ and packet/
    "ARPICE", "ARPICK", "ARPIPIK", "ARPIPK", "C", "DMBK", "F", "GR", "GRO", "HIFK", "IDS", "IE",
    "IE2", "IFK", "IPMACV2", "IPMACV2O", "MV", "MVP", "NDC", "NDK", "NSK", "OUTAC", "OUTACTYPE",
    "PKT", "PMK", "SVIESEM", "SVIEVE", "UDF", "US", "VIDP", "VIP", "VIPO", "VSP",
};

class Registration : public ::testing::Test {
protected:
  static void SetUpTestSuite() { ASSERT_TRUE(host::loadPlugin(PLUGIN_PATH).empty()); }
};

TEST_F(Registration, EveryIdOnceThroughEachCallFormatFirst) {
  std::map<std::string, std::vector<Kind>> callsById;
  for (const auto& call : host::registrationLog()) callsById[call.id].push_back(call.kind);

  std::set<std::string> ids;
  for (const auto& [id, kinds] : callsById) {
    ids.insert(id);
    EXPECT_EQ(kinds, (std::vector<Kind>{Kind::Format, Kind::Length})) << "id " << id;
  }
  EXPECT_EQ(ids, kExpectedIds);
  EXPECT_EQ(ids.size(), 108u);
  EXPECT_EQ(host::registrationLog().size(), 2 * kExpectedIds.size());
}

TEST_F(Registration, FormatAndLengthCallsOfAnIdAreAdjacent) {
  const auto log = host::registrationLog();
  for (std::size_t i = 0; i + 1 < log.size(); i += 2) {
    EXPECT_EQ(log[i].kind, Kind::Format);
    EXPECT_EQ(log[i + 1].id, log[i].id);
  }
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
