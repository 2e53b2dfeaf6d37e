#include "registry/PlainDecimal.h"

#include <locale>

namespace Orvane {
namespace {

// What the stream's iword at localeIndex() knows about its locale. Zero, the value of
// an iword never written, means the stream has not been seen yet.
enum LocaleKnowledge : long { kNotSeen = 0, kClassic, kOther, kStale };

int localeIndex() {
  static const int index = std::ios_base::xalloc();
  return index;
}

// Imbuing changes the locale; copyfmt copies the locale together with the iwords
// (and this callback) of another stream. Either way the remembered answer may be
// wrong now. Erasing needs nothing: the stream is going away or being overwritten.
void forgetLocale(std::ios_base::event event, std::ios_base& stream, int index) {
  if (event != std::ios_base::erase_event) stream.iword(index) = kStale;
}

bool localeIsClassic(std::ostream& os) {
  const int index = localeIndex();
  long& known = os.iword(index);
  if (known == kClassic || known == kOther) return known == kClassic;
  if (known == kNotSeen) os.register_callback(forgetLocale, index);
  known = os.getloc() == std::locale::classic() ? kClassic : kOther;
  return known == kClassic;
}

} // namespace

bool formatsPlainDecimal(std::ostream& os) {
  constexpr auto kLookedAt =
      std::ios_base::basefield | std::ios_base::showpos | std::ios_base::showbase;
  return (os.flags() & kLookedAt) == std::ios_base::dec && localeIsClassic(os);
}

} // namespace Orvane
