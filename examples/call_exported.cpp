// Calling the plug-in's exported formatters directly from another program: link
// against the plug-in library and include the subsystem headers.
#include "address/GenericPrefix.h"
#include "address/Ip.h"

#include <iostream>
#include <sstream>

int main() {
  // An IPv4 prefix: native-order u32 address 10.1.0.0, then the length 16.
  const unsigned char prefix[] = {0x00, 0x00, 0x01, 0x0a, 16};
  std::ostringstream text;
  const unsigned consumed = Orvane::formatIpPrefix(prefix, text);
  std::cout << text.str() << " (" << consumed << " of " << Orvane::lengthIpPrefix(prefix)
            << " bytes)\n";

  // An optimized generic prefix: tag 1 (IPv4), length 20, three address bytes.
  const unsigned char optimized[] = {0x01, 20, 0x0a, 0x01, 0x10};
  Orvane::formatIpGenPrefixOptimized(optimized, std::cout);
  std::cout << "\n";
}
