// The host's view of what plug-ins registered: lookup by id and the call log.
#pragma once

#include "registry/Export.h"
#include "registry/Formatter.h"

#include <string>
#include <string_view>
#include <vector>

namespace Orvane::host {

/// The functions registered for one type id. Either may be empty when a plug-in
/// registered only one of the two.
struct FormatterPair {
  FormatFn format;
  LengthFn length;
};

/// One call a plug-in made into the registry, in call order.
struct RegistrationCall {
  enum class Kind { Format, Length };
  std::string id;
  Kind kind;
};

/// The pair registered for `id`, or nullptr when the id is unknown.
ORVANE_API const FormatterPair* findFormatter(std::string_view id);

/// Every registered id, sorted.
ORVANE_API std::vector<std::string> registeredIds();

/// Every registration call received so far, duplicates included, in order.
ORVANE_API std::vector<RegistrationCall> registrationLog();

} // namespace Orvane::host
