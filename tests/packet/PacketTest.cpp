// Whole packets: the hex dump in this process (no packet library can be found here),
// and the packet library's decoder in a child ovfmt that is given a stand-in library.
#include "packet/Packet.h"
#include "tests/support/FormatCase.h"
#include "tests/support/RunOvfmt.h"

#include <gtest/gtest.h>

#include <iomanip>
#include <sstream>

namespace Orvane::test {
namespace {

// TPID 0x8100, TCI 0x3064 (priority 1, CFI, VLAN 100), tagged, two bytes 45 00.
#define TAGGED_PACKET "00 81 64 30 01 00 00 02 45 00"

TEST(Packet, HexDump) {
  expectCases({
      {"PKT", TAGGED_PACKET, "(tpid 0x8100 vlan 100 p 1 CFI) 4500", 10},
      {"PKT", "00 81 64 00 01 00 00 02 45 00", "(tpid 0x8100 vlan 100) 4500", 10},
      {"PKT", "a8 88 00 20 01 00 00 00", "(tpid 0x88a8 vlan 0 p 1) ", 8},
      {"PKT", "a8 88 ff ff 01 00 00 00", "(tpid 0x88a8 vlan 4095 p 7 CFI) ", 8},
      // Without the flag the tag fields are not printed, whatever they hold.
      {"PKT", "00 81 64 30 00 ff ff 04 45 00 00 14", "45000014", 12},
      {"PKT", "00 00 00 00 00 00 00 00", "", 8},
  });
}

TEST(Packet, HexDumpLeavesDecimalBaseAndZeroFill) {
  const unsigned char packet[] = {0x00, 0x81, 0x64, 0x00, 0x01, 0x00, 0x00, 0x01, 0x0a};
  std::ostringstream os;
  formatKanetPkt(packet, os);
  os << " " << 255 << " " << std::setw(3) << 7;
  EXPECT_EQ(os.str(), "(tpid 0x8100 vlan 100) 0a 255 007");
}

// ovfmt formatting one packet with the given extra environment.
std::string formatInChild(const std::vector<std::string>& environment) {
  const auto run = runOvfmt({"PKT", TAGGED_PACKET}, "", environment);
  EXPECT_EQ(run.status, 0) << run.err;
  return run.out;
}

// What the stand-in decoder returns for TAGGED_PACKET, newlines folded. The library is
// opened before the plug-in registers any id.
const std::string kDecoded =
    "tpid 33024 tci 12388 vlan 1\\2 bytes: 45 00\\opened after 0 registrations\\\n";
const std::string kHexDump = "(tpid 0x8100 vlan 100 p 1 CFI) 4500\n";

TEST(Packet, DecoderTextHasItsNewlinesFolded) {
  EXPECT_EQ(formatInChild({"LD_LIBRARY_PATH=" FAKE_KANET_DIR}), kDecoded);
}

TEST(Packet, OnlyOvpktHexTrueForcesTheHexDump) {
  const std::pair<const char*, std::string> cases[] = {
      {"OVPKT_HEX=True", kHexDump},  {"OVPKT_HEX=true", kDecoded}, {"OVPKT_HEX=TRUE", kDecoded},
      {"OVPKT_HEX=True ", kDecoded}, {"OVPKT_HEX=1", kDecoded},    {"OVPKT_HEX=", kDecoded},
  };
  for (const auto& [setting, expected] : cases)
    EXPECT_EQ(formatInChild({"LD_LIBRARY_PATH=" FAKE_KANET_DIR, setting}), expected) << setting;
}

TEST(Packet, LibraryWithoutDecoderFallsBackToHex) {
  EXPECT_EQ(formatInChild({"LD_LIBRARY_PATH=" KANET_WITHOUT_DECODER_DIR}), kHexDump);
}

} // namespace
} // namespace Orvane::test
