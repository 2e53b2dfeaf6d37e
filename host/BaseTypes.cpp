#include "host/BaseTypes.h"

#include "registry/HostInterface.h"

#include <algorithm>
#include <array>
#include <string>

namespace Orvane::host {
namespace {

struct BaseType {
  std::string_view id;
  FormatPtr format;
  LengthPtr length;
};

constexpr std::array<BaseType, 8> kBaseTypes = {{
    {"u8", formatU8, lengthU8},
    {"u16", formatU16, lengthU16},
    {"u32", formatU32, lengthU32},
    {"u64", formatU64, lengthU64},
    {"x16", formatU16Hex, lengthU16},
    {"x32", formatU32Hex, lengthU32},
    {"bool", formatBool, lengthBool},
    {"str", formatString, lengthString},
}};

constexpr std::array<std::string_view, kBaseTypes.size()> kIds = [] {
  std::array<std::string_view, kBaseTypes.size()> ids{};
  for (std::size_t i = 0; i < ids.size(); ++i) ids[i] = kBaseTypes[i].id;
  return ids;
}();

} // namespace

std::span<const std::string_view> baseTypeIds() { return kIds; }

bool isBaseTypeId(std::string_view id) {
  return std::find(kIds.begin(), kIds.end(), id) != kIds.end();
}

void registerBaseTypes() {
  for (const BaseType& type : kBaseTypes) {
    MessageFormatter::addNewFormattersById(std::string(type.id), type.format);
    MessageFormatter::addNewLengthById(std::string(type.id), type.length);
  }
}

} // namespace Orvane::host
