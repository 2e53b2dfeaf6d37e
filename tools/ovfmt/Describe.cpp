#include "tools/ovfmt/Describe.h"

#include <dlfcn.h>
#include <link.h>

#include <vector>

namespace Orvane::ovfmt {
namespace {

// The plug-in's export `bool Orvane::describeId(const char*, std::ostream&)`, by its
// mangled name: ovfmt loads plug-ins at run time and does not link against them.
using DescribeFn = bool (*)(const char*, std::ostream&);
constexpr const char* kDescribeSymbol = "_ZN6Orvane10describeIdEPKcRSo";

// describeId of every loaded object that exports it, in load order. Plug-ins are loaded
// with RTLD_LOCAL, so each is asked by its own handle.
std::vector<DescribeFn> describers() {
  std::vector<DescribeFn> found;
  dl_iterate_phdr(
      [](dl_phdr_info* info, std::size_t, void* data) {
        void* handle =
            dlopen(info->dlpi_name[0] ? info->dlpi_name : nullptr, RTLD_LAZY | RTLD_NOLOAD);
        if (!handle) return 0;
        if (void* symbol = dlsym(handle, kDescribeSymbol))
          static_cast<std::vector<DescribeFn>*>(data)->push_back(
              reinterpret_cast<DescribeFn>(symbol));
        dlclose(handle);
        return 0;
      },
      &found);
  return found;
}

} // namespace

int describe(const std::string& id, std::ostream& out, std::ostream& err) {
  for (DescribeFn describeId : describers())
    if (describeId(id.c_str(), out)) return 0;
  err << "ovfmt: no loaded plug-in describes " << id << "\n";
  return 1;
}

} // namespace Orvane::ovfmt
