// Made by tools/make-data: do not edit.

#include <velmora/ephemeris/SeriesTables.h>

namespace [[gnu::visibility("hidden")]] velmora {
namespace ephemeris {
namespace {

constexpr std::array<Term<double>, 4> largeLongitude = {{
    {34, -172066, 4}, {0, 0, 0}, {0, 0, 0}, {0, 0, 0}}};

constexpr std::array<Product, 19> smallProducts = {{
    {0, 4}, {1, 1}, {3, 3}, {10, 11}, {0, 12}, {1, 12}, {14, 16}, {0, 23}, {2, 2}, {11, 26}, {0, 29},
    {10, 26}, {10, 29}, {0, 35}, {16, 35}, {14, 37}, {0, 41}, {1, 2}, {3, 44}}};

constexpr std::array<Term<float>, 20> smallLongitude = {{
    {5756, 11854, 12}, {3, -2276, 35}, {-1, 2075, 17}, {-83, 1282, 1}, {-1, 711, 0}, {226, 464, 20},
    {0, -387, 31}, {1, -301, 36}, {0, 157, 24}, {-125, -29, 47}, {0, -123, 37}, {0, 63, 14}, {0, 63, 10},
    {0, -60, 41}, {0, 58, 11}, {0, -52, 32}, {0, -48, 23}, {0, 0, 0}, {0, 0, 0}, {0, 0, 0}}};

constexpr std::array<Term<float>, 4> smallLongitudeTimesT = {{
    {712, -344, 12}, {1, -174, 4}, {0, 0, 0}, {0, 0, 0}}};

constexpr std::array<Term<float>, 20> smallObliquity = {{
    {92052, 15, 4}, {-5151, 2503, 12}, {978, 1, 35}, {-897, 0, 17}, {-202, 98, 20}, {201, 0, 31},
    {160, -44, 1}, {129, 0, 36}, {-16, 67, 47}, {-53, 0, 37}, {-33, 0, 10}, {32, 0, 11}, {26, 0, 32},
    {26, 0, 41}, {-24, 0, 30}, {16, 0, 42}, {13, 0, 38}, {11, -5, 18}, {-11, 0, 29}, {0, 0, 0}}};

constexpr std::array<Term<float>, 4> smallObliquityTimesT = {{
    {153, 308, 12}, {0, 0, 0}, {0, 0, 0}, {0, 0, 0}}};

}  // namespace

static_assert(48 <= mostNodes);

const Series nutationSeries = {
    {{}, {{largeLongitude, {}, {}, {}}}},
    {smallProducts, {{smallLongitude, smallLongitudeTimesT, smallObliquity, smallObliquityTimesT}}},
    {{{-14.055},
     {12.705}}}};

}  // namespace ephemeris
}  // namespace velmora
