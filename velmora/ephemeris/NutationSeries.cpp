// Made by tools/make-data: do not edit.

#include <velmora/ephemeris/SeriesTables.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {
namespace {

static_assert(33 <= mostNodes);

constexpr std::array<Product, 11> smallProducts = {{
    {0, 0}, {1, 1}, {1, 2}, {3, 3}, {4, 4}, {1, 13}, {11, 17}, {0, 24}, {2, 2}, {4, 27}, {19, 27}}};

constexpr std::array<Group, 9> small0Groups = {{
    {4, 1, 1}, {13, 1, 0}, {1, 1, 0}, {21, 1, 0}, {15, 1, 0}, {10, 0, 4}, {31, 0, 3}, {29, 0, 2}, {19, 0, 1}}};

constexpr std::array<MixedPair<float>, 5> small0Mixed = {{
    {34, 0, -172066, 0, 10}, {5756, 0, 11854, 0, 10}, {-83, 0, 1282, 0, 10}, {226, 0, 464, 0, 10},
    {-125, -29, 29, -125, 3}}};

constexpr std::array<PurePair<float>, 11> small0Pure = {{
    {5, 121, 0}, {0, 711, 0}, {0, 157, 26}, {0, 63, 17}, {0, 48, 24}, {-2276, 0, 10}, {-178, -424, 0},
    {-60, -60, 26}, {-387, 0, 10}, {-52, -52, 0}, {2075, 0, 10}}};

constexpr std::array<Group, 2> small0TGroups = {{
    {13, 1, 0}, {4, 0, 1}}};

constexpr std::array<MixedPair<float>, 1> small0TMixed = {{
    {712, 0, -344, 0, 10}}};

constexpr std::array<PurePair<float>, 1> small0TPure = {{
    {-174, 0, 10}}};

constexpr std::array<Group, 8> small1Groups = {{
    {13, 2, 0}, {4, 1, 1}, {21, 1, 0}, {1, 1, 0}, {15, 1, 0}, {31, 0, 5}, {29, 0, 3}, {19, 0, 1}}};

constexpr std::array<MixedPair<float>, 6> small1Mixed = {{
    {-5151, 0, 2503, 0, 10}, {11, -5, -5, -11, 0}, {92052, 0, 15, 0, 10}, {-202, 0, 98, 0, 10},
    {160, 0, -44, 0, 10}, {-16, 67, -67, -16, 3}}};

constexpr std::array<PurePair<float>, 10> small1Pure = {{
    {-1, 65, 0}, {978, 0, 10}, {76, -182, 0}, {26, -26, 26}, {16, -16, 17}, {13, -13, 11}, {201, 0, 10},
    {15, -37, 0}, {-24, -24, 11}, {-897, 0, 10}}};

constexpr std::array<Group, 1> small1TGroups = {{
    {13, 1, 0}}};

constexpr std::array<MixedPair<float>, 1> small1TMixed = {{
    {153, 0, 308, 0, 10}}};

constexpr std::array<Sum<float>, 4> smallSums = {{
    {0, false, false, small0Groups, small0Mixed, small0Pure},
    {0, true, false, small0TGroups, small0TMixed, small0TPure},
    {1, false, true, small1Groups, small1Mixed, small1Pure},
    {1, true, true, small1TGroups, small1TMixed, {}}}};

}  // namespace

const Series nutationSeries = {
    {{}, {}},
    {smallProducts, smallSums},
    {{{-14.037},
      {12.703}}}};

}  // namespace ephemeris
}  // namespace velmora
