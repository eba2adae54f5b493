#include <algorithm>
#include <cmath>
#include <iostream>

#include <gtest/gtest.h>

#include <velmora/ephemeris/Evaluation.h>
#include <velmora/ephemeris/TimeScales.h>

#include "tests/ephemeris/EphemerisTesting.h"
#include "tests/ephemeris/reference/TermByTerm.h"

namespace velmora::ephemeris {
namespace {

struct Named {
  const char* name;
  const Series& series;
  double unit;   ///< seconds of arc; of the third coordinate km
  double limit;  ///< as above, for what single precision costs
};

const auto every = {Named{"Moon", moonSeries, 0.001, 0.001}, Named{"Sun", sunSeries, 0.001, 0.001},
                    Named{"nutation", nutationSeries, 0.0001, 0.0001}};

TEST(Series, ProductsOfComplexNumbersGiveWhatSinesTermByTermDo) {
  for (const Named& named : every) {
    double largest = 0;
    for (const Instant instant : anyInstants(2000, 7)) {
      const double t = terrestrialCenturies(instant);
      const auto found = coordinatesOf(named.series, t, anglesAt(t));
      const auto expected = reference::coordinates(named.series, t);
      for (std::size_t i = 0; i < 2; ++i) {
        largest = std::max(largest, std::abs(found[i] - expected[i]) * named.unit);
      }
      EXPECT_NEAR(found[2], expected[2], 1) << named.name;  // 0.01 km, of the Sun 1 km
    }
    std::cout << "  " << named.name << ": largest difference " << largest << "″ of 2000\n";
    EXPECT_LE(largest, named.limit) << named.name;
  }
}

template <class Lanes>
void expectSameBits(const Series& series) {
  const auto instants = anyInstants(laneCount, 8);
  std::array<double, laneCount> t;
  for (std::size_t i = 0; i < laneCount; ++i) t[i] = terrestrialCenturies(instants[i]);
  const auto times = doublesOf<typename Lanes::Doubles>(t);
  const auto together = coordinatesOf(series, times, anglesAt(times));
  for (std::size_t i = 0; i < laneCount; ++i) {
    const auto alone = coordinatesOf(series, t[i], anglesAt(t[i]));
    for (std::size_t k = 0; k < mostCoordinates; ++k) {
      EXPECT_EQ(laidAs<Row<double>>(together[k])[i], alone[k]);
    }
  }
}

TEST(Series, HaveTheSameBitsForOneInstantAndForEightInVectorsOfAnySize) {
  for (const Named& named : every) {
    expectSameBits<Narrow>(named.series);
    expectSameBits<Wide>(named.series);
  }
}

template <class Real>
std::size_t sizeOf(const Part<Real>& part) {
  std::size_t size = part.products.size_bytes() + part.sums.size_bytes();
  for (const Sum<Real>& sum : part.sums) {
    size += sum.groups.size_bytes() + sum.mixed.size_bytes() + sum.pure.size_bytes();
  }
  return size;
}

TEST(Series, TakeNoMoreThanSixteenKilobytes) {
  std::size_t size = sizeof anglePolynomials;
  for (const Named& named : every) {
    size += sizeof named.series + sizeOf(named.series.large) + sizeOf(named.series.small);
  }
  std::cout << "  " << size << " bytes\n";
  EXPECT_LE(size, 16000U);
}

TEST(Series, NodesAreMadeOfEarlierOnesAndAllArePlaced) {
  const auto check = [](const auto& part) {
    std::size_t count = angleCount + 1;
    for (const Product& product : part.products) {
      EXPECT_LT(std::max(product.first, product.second), count);
      count += 2;
    }
    EXPECT_LE(count, mostNodes);
    for (const auto& sum : part.sums) {
      std::size_t mixed = 0, pure = 0;
      for (const Group& group : sum.groups) {
        EXPECT_LT(group.outer, count);
        mixed += group.mixedCount;
        pure += group.pureCount;
      }
      EXPECT_EQ(mixed, sum.mixed.size());
      EXPECT_EQ(pure, sum.pure.size());
      for (const auto& pair : sum.mixed) EXPECT_LT(pair.inner, count);
      for (const auto& pair : sum.pure) EXPECT_LT(pair.inner, count);
    }
  };
  for (const Named& named : every) {
    check(named.series.large);
    check(named.series.small);
  }
}

}  // namespace
}  // namespace velmora::ephemeris
