// Traces one orvane_test:value event per row of kRows, for bound_test.sh to read back,
// and prints how many times the length function of `stated` ran.
#define LTTNG_UST_TRACEPOINT_CREATE_PROBES
#define LTTNG_UST_TRACEPOINT_DEFINE
#include "BoundTracepoints.h"

#include <iostream>
#include <vector>

namespace {

constexpr unsigned char kPop[] = {0x01, 0x00};                    // LO: pop[], 2 bytes
constexpr unsigned char kTooManyLabels[] = {0x00, 0x0e};          // LO: invalid
constexpr unsigned char kPrefix[] = {0x01, 20, 0x0a, 0x01, 0x10}; // PGO: 10.1.16.0/20

struct Row {
  std::uint32_t stated;
  const unsigned char* operation;
  const unsigned char* prefix;
};

constexpr Row kRows[] = {
    {4, kPop, kPrefix},          {0xffff, kTooManyLabels, nullptr},
    {0x10000, kPop, kPrefix},    {0xfffffffe, kPop, kPrefix}, // a wrapped sum of two invalid parts
    {0xffffffff, kPop, kPrefix},
};

} // namespace

int main() {
  std::vector<unsigned char> value(0x10000 + sizeof(std::uint32_t), 0xab);
  for (const Row& row : kRows) {
    std::memcpy(value.data(), &row.stated, sizeof row.stated);
    lttng_ust_tracepoint(orvane_test, value, value.data(), row.operation, row.prefix);
  }
  std::cout << statedSizeCalls << "\n";
}
