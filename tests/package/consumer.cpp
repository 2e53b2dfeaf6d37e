// Another team's program: prints a value through an exported formatter, then through
// the host's registry, which the plug-in filled as it loaded.
#include "address/GenericPrefix.h"
#include "host/Registry.h"

#include <iostream>

int main() {
  const unsigned char value[] = {0x01, 20, 0x0a, 0x01, 0x10}; // "PGO" 10.1.16.0/20
  Orvane::formatIpGenPrefixOptimized(value, std::cout);
  std::cout << " ";
  Orvane::host::findFormatter("PGO")->format(value, std::cout);
  std::cout << "\n";
}
