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

} // namespace

unsigned formatCspfVertex(const unsigned char* p, std::ostream& os) {
  if (!isValidVertex(p[0])) return kInvalidLength;
  return 1 + kVertexBodies[p[0]](p + 1, os);
}
unsigned lengthCspfVertex(const unsigned char* p) {
  return isValidVertex(p[0]) ? kVertexSizes[p[0]] : kInvalidLength;
}

// A fixed 4 for the id: the size table alone decides this key's size.
constexpr LabeledField kCspfPathKeyRows[] = {
    {"dst=", &kCspfVertexField}, {", id=", &kU32FixedField}, {""}};
constexpr FieldTable kCspfPathKeyFields{kCspfPathKeyRows};
unsigned formatCspfPathKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kCspfPathKeyRows>(p, os);
}
unsigned lengthCspfPathKey(const unsigned char* p) { return lengthTable<kCspfPathKeyRows>(p); }

// The client key's bodies, after its kind byte.
constexpr FieldKind kPathKeyField{formatCspfPathKey, lengthCspfPathKey, nullptr, "CSPF path key"};
constexpr FieldKind kP2mpPathKeyField{formatCspfP2mpPathKey, lengthCspfP2mpPathKey, nullptr,
                                      "CSPF P2MP path key", 4};
constexpr LabeledField kPathKeyFields[] = {{"pathKey=<", &kPathKeyField}, {">"}};
constexpr LabeledField kP2mpPathKeyFields[] = {{"p2mpPathKey=<", &kP2mpPathKeyField}, {">"}};
// Indexed by the kind byte.
constexpr const LabeledField* kClientPathBodies[] = {kPathKeyFields, kP2mpPathKeyFields};

constexpr FieldVariants kCspfClientPathKeyVariants{
    "the kind (byte 0), the body starting at byte 1 (any other kind is invalid)",
    std::size(kClientPathBodies), [](unsigned kind) { return kClientPathBodies[kind]; }};

namespace {

// The body the kind byte picks; any other kind has none.
VariantBody clientPathBody(const unsigned char* p) {
  if (p[0] >= std::size(kClientPathBodies)) return {};
  return {kClientPathBodies[p[0]], 1};
}

} // namespace

unsigned formatCspfClientPathKey(const unsigned char* p, std::ostream& os) {
  return formatVariant(clientPathBody(p), p, os);
}
unsigned lengthCspfClientPathKey(const unsigned char* p) {
  return lengthVariant(clientPathBody(p), p);
}

constexpr LabeledField kCspfP2mpPathKeyRows[] = {{"id=", &kU32FixedField}, {""}};
constexpr FieldTable kCspfP2mpPathKeyFields{kCspfP2mpPathKeyRows};
unsigned formatCspfP2mpPathKey(const unsigned char* p, std::ostream& os) {
  return formatTable<kCspfP2mpPathKeyRows>(p, os);
}
unsigned lengthCspfP2mpPathKey(const unsigned char* p) {
  return lengthTable<kCspfP2mpPathKeyRows>(p);
}

} // namespace Orvane
