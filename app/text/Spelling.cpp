#include <app/text/Spelling.h>

#include <algorithm>
#include <numeric>
#include <utility>

namespace velmora::app {

std::size_t editDistance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), 0U);
  for (std::size_t i = 0; i < a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i + 1);
    for (std::size_t j = 0; j < b.size(); ++j) {
      const std::size_t replaced = diagonal + (a[i] == b[j] ? 0 : 1);
      diagonal = row[j + 1];
      row[j + 1] = std::min({replaced, diagonal + 1, row[j] + 1});
    }
  }
  return row.back();
}

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
