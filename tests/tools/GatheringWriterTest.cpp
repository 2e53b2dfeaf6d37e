// GatheringWriter over a writev() that takes a few bytes at a time, is interrupted, or
// fails: the bytes come out whole and in order, or the failure is reported. This
// program's writev() replaces the C library's for the writer (linked in statically).
#include "tools/ovfmt/GatheringWriter.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <string>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr int kFakeFd = 1000;

struct FakeDevice {
  std::string written;
  std::size_t takesPerCall = 0; ///< 0: everything
  int interruptions = 0;        ///< calls to fail with EINTR first
  int callsBeforeFailure = -1;  ///< then EIO (-1: never)
  int calls = 0;
} device;

} // namespace

extern "C" ssize_t writev(int fd, const iovec* iov, int count) {
  if (fd != kFakeFd) return syscall(SYS_writev, fd, iov, count);
  ++device.calls;
  if (device.interruptions > 0) return --device.interruptions, errno = EINTR, -1;
  if (device.callsBeforeFailure == 0) return errno = EIO, -1;
  if (device.callsBeforeFailure > 0) --device.callsBeforeFailure;
  std::size_t taken = 0;
  for (int i = 0; i < count; ++i)
    for (std::size_t b = 0; b < iov[i].iov_len; ++b) {
      if (device.takesPerCall && taken == device.takesPerCall) return static_cast<ssize_t>(taken);
      device.written += static_cast<const char*>(iov[i].iov_base)[b];
      ++taken;
    }
  return static_cast<ssize_t>(taken);
}

namespace Orvane::ovfmt {
namespace {

// Many pieces (more than one writev() may take) of several lengths, the empty one too.
std::vector<std::string> pieces() {
  std::vector<std::string> all;
  for (int i = 0; i < 2100; ++i) all.push_back(std::string(i % 7, static_cast<char>('a' + i % 26)));
  return all;
}

TEST(GatheringWriter, ShortAndInterruptedWritesLoseNothing) {
  const std::vector<std::string> queued = pieces(); // valid until the flush
  for (std::size_t takes : {0, 1, 5, 4096}) {
    device = {};
    device.takesPerCall = takes;
    device.interruptions = 2;
    GatheringWriter writer;
    std::string expected;
    for (const std::string& piece : queued) {
      ASSERT_TRUE(writer.add(kFakeFd, piece));
      expected += piece;
    }
    ASSERT_TRUE(writer.flush());
    EXPECT_EQ(device.written, expected) << "taking " << takes << " bytes per call";
  }
}

TEST(GatheringWriter, FailedWriteIsReportedAndDropsTheRest) {
  device = {};
  device.takesPerCall = 3;
  device.callsBeforeFailure = 2;
  GatheringWriter writer;
  ASSERT_TRUE(writer.add(kFakeFd, "0123456789"));
  EXPECT_FALSE(writer.flush());
  EXPECT_EQ(errno, EIO);
  EXPECT_EQ(device.written, "012345");
  device.callsBeforeFailure = -1;
  EXPECT_TRUE(writer.flush()); // nothing left queued
  EXPECT_EQ(device.written, "012345");
}

} // namespace
} // namespace Orvane::ovfmt
