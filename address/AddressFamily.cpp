#include "address/AddressFamily.h"

namespace Orvane {

unsigned formatAf(const unsigned char* p, std::ostream& os) {
  printName(os, addressFamilyNames, p[0]);
  return lengthAf(p);
}

unsigned lengthAf(const unsigned char*) { return 1; }

} // namespace Orvane
