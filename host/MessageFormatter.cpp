#include "host/FormatterTable.h"
#include "host/Registry.h"
#include "registry/HostInterface.h"

#include <algorithm>
#include <mutex>

namespace Orvane {
namespace {

// Plug-ins register from their load-time initialisers, which may run before this
// library's own globals are constructed; a function-local static avoids that race.
// Registrations are serialised by the mutex; lookups go to the table without it.
struct RegistryState {
  std::mutex mutex;
  host::FormatterTable table;
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
  s.table.setFormat(id, std::move(fn));
  s.log.push_back({std::move(id), host::RegistrationCall::Kind::Format});
}

void MessageFormatter::addNewLengthById(std::string id, LengthFn fn) {
  auto& s = state();
  std::lock_guard lock(s.mutex);
  s.table.setLength(id, std::move(fn));
  s.log.push_back({std::move(id), host::RegistrationCall::Kind::Length});
}

namespace host {

const FormatterPair* findFormatter(std::string_view id) { return state().table.find(id); }

std::vector<std::string> registeredIds() {
  auto& s = state();
  std::unique_lock lock(s.mutex);
  std::vector<std::string> ids = s.table.ids();
  lock.unlock();
  std::sort(ids.begin(), ids.end());
  return ids;
}

std::vector<RegistrationCall> registrationLog() {
  auto& s = state();
  std::lock_guard lock(s.mutex);
  return s.log;
}

std::size_t registrationCount() {
  auto& s = state();
  std::lock_guard lock(s.mutex);
  return s.log.size();
}

} // namespace host
} // namespace Orvane
