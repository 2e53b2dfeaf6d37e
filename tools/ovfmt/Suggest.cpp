#include "tools/ovfmt/Suggest.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace Orvane::ovfmt {
namespace {

// Ids are a few characters long: anything longer is no typo of one, and is not compared.
constexpr std::size_t kLongestCompared = 32;
constexpr std::size_t kMostSuggested = 3;

bool sameLetter(char a, char b) {
  return std::toupper(static_cast<unsigned char>(a)) == std::toupper(static_cast<unsigned char>(b));
}

// Insertions, deletions and substitutions that turn `a` into `b`, case ignored.
std::size_t editDistance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), 0);
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = row[0];
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t above = row[j];
      row[j] = std::min({above + 1, row[j - 1] + 1, diagonal + !sameLetter(a[i - 1], b[j - 1])});
      diagonal = above;
    }
  }
  return row[b.size()];
}

} // namespace

std::string nearestIds(std::string_view id, const std::vector<std::string>& known) {
  if (id.empty() || id.size() > kLongestCompared) return "";
  std::size_t best = id.size() >= 5 ? 2 : 1;
  std::vector<std::string_view> nearest;
  for (const std::string& candidate : known) {
    const std::size_t distance = editDistance(id, candidate);
    if (distance > best) continue;
    if (distance < best) nearest.clear();
    best = distance;
    nearest.push_back(candidate);
  }
  std::string joined;
  for (std::size_t i = 0; i < std::min(nearest.size(), kMostSuggested); ++i)
    joined += (i ? " or " : "") + std::string(nearest[i]);
  return joined;
}

} // namespace Orvane::ovfmt
