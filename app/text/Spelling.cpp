#include <app/text/Spelling.h>

#include <algorithm>
#include <utility>

#include <velmora/cities/EditDistance.h>

namespace velmora::app {

std::string nearest(std::string_view text, const std::vector<std::string>& candidates) {
  constexpr std::size_t count = 3;
  constexpr std::size_t longestCompared = 64;
  const std::string wanted = searchForm(text.substr(0, longestCompared));
  std::vector<std::pair<std::size_t, const std::string*>> ranked;
  for (const std::string& candidate : candidates)
    ranked.emplace_back(editDistance(wanted, searchForm(candidate)), &candidate);
  std::stable_sort(ranked.begin(), ranked.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });

  std::string list;
  for (std::size_t i = 0; i < std::min(count, ranked.size()) && ranked[i].first <= ranked[0].first + 1; ++i)
    list += (i == 0 ? "" : ", ") + *ranked[i].second;
  return list;
}

}  // namespace velmora::app
