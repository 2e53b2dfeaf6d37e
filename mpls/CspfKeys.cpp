#include "mpls/CspfKeys.h"

#include "address/Ip.h"
#include "address/SystemId.h"
#include "registry/Fields.h"
#include "registry/HostInterface.h"

#include <iterator>

namespace Orvane {
namespace {

// The type-0 vertex has no body and prints a placeholder.
unsigned formatNoBody(const unsigned char*, std::ostream& os) {
  os << "n/a";
  return 0;
}

// Vertex sizes (type byte included) and body printers, indexed by the vertex type.
constexpr unsigned kVertexSizes[] = {1, 6, 18, 5, 17, 7, 5};
constexpr FormatPtr kVertexBodies[] = {formatNoBody,  formatIpPrefix,     formatIp6Prefix, formatIp,
                                       formatIp6Addr, formatIsisSystemId, formatIp};
static_assert(std::size(kVertexSizes) == std::size(kVertexBodies));

bool isValidVertex(unsigned char type) { return type < std::size(kVertexSizes); }

enum ClientPathKind : unsigned char { kPathKey = 0, kP2mpPathKey = 1 };

} // namespace

unsigned formatCspfVertex(const unsigned char* p, std::ostream& os) {
  if (!isValidVertex(p[0])) return kInvalidLength;
  return 1 + kVertexBodies[p[0]](p + 1, os);
}
unsigned lengthCspfVertex(const unsigned char* p) {
  return isValidVertex(p[0]) ? kVertexSizes[p[0]] : kInvalidLength;
}

unsigned formatCspfPathKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "dst=", formatCspfVertex, ", id=", formatU32);
}
unsigned lengthCspfPathKey(const unsigned char* p) {
  // A fixed 4 for the id: the size table alone decides this key's size.
  return measureFields(p, lengthCspfVertex, 4u);
}

unsigned formatCspfClientPathKey(const unsigned char* p, std::ostream& os) {
  switch (p[0]) {
  case kPathKey: return 1 + formatFields(p + 1, os, "pathKey=<", formatCspfPathKey, ">");
  case kP2mpPathKey:
    return 1 + formatFields(p + 1, os, "p2mpPathKey=<", formatCspfP2mpPathKey, ">");
  default: return kInvalidLength;
  }
}
unsigned lengthCspfClientPathKey(const unsigned char* p) {
  switch (p[0]) {
  case kPathKey: return 1 + lengthCspfPathKey(p + 1);
  case kP2mpPathKey: return 1 + lengthCspfP2mpPathKey(p + 1);
  default: return kInvalidLength;
  }
}

unsigned formatCspfP2mpPathKey(const unsigned char* p, std::ostream& os) {
  return formatFields(p, os, "id=", formatU32);
}
unsigned lengthCspfP2mpPathKey(const unsigned char*) { return 4; }

} // namespace Orvane
