#include "host/Registry.h"
#include "registry/HostInterface.h"

#include <algorithm>
#include <map>
#include <mutex>

namespace Orvane {
namespace {

// Plug-ins register from their load-time initialisers, which may run before this
// library's own globals are constructed; a function-local static avoids that race.
struct RegistryState {
  std::mutex mutex;
  std::map<std::string, host::FormatterPair, std::less<>> pairs;
  std::vector<host::RegistrationCall> log;
};

RegistryState& state() {
  static RegistryState registry;
  return registry;
}

} // namespace

void MessageFormatter::addNewFormattersById(std::string id, FormatFn fn) {
  auto& s = state();
  std::lock_guard lock(s.mutex);
  s.log.push_back({id, host::RegistrationCall::Kind::Format});
  auto& slot = s.pairs[std::move(id)].format;
  if (!slot) slot = std::move(fn);
}

void MessageFormatter::addNewLengthById(std::string id, LengthFn fn) {
  auto& s = state();
  std::lock_guard lock(s.mutex);
  s.log.push_back({id, host::RegistrationCall::Kind::Length});
  auto& slot = s.pairs[std::move(id)].length;
  if (!slot) slot = std::move(fn);
}

namespace host {

const FormatterPair* findFormatter(std::string_view id) {
  auto& s = state();
  std::lock_guard lock(s.mutex);
  auto it = s.pairs.find(id);
  // Entries are never erased, so the pointer stays valid after the lock is released.
  return it == s.pairs.end() ? nullptr : &it->second;
}

std::vector<std::string> registeredIds() {
  auto& s = state();
  std::lock_guard lock(s.mutex);
  std::vector<std::string> ids;
  for (const auto& entry : s.pairs) ids.push_back(entry.first);
  return ids;
}

std::vector<RegistrationCall> registrationLog() {
  auto& s = state();
  std::lock_guard lock(s.mutex);
  return s.log;
}

} // namespace host
} // namespace Orvane
