#include <velmora/platform/graphics/cairo/ShapeCache.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>

namespace velmora {
namespace {

constexpr int large = 512;  // a side of a shape of a quarter of a megabyte

ShapeKey keyOf(std::uint64_t number) {
  ShapeKey key;
  key.add(number);
  return key;
}

CairoSurface pixels(int side) {
  return CairoSurface(cairo_image_surface_create(CAIRO_FORMAT_A8, side, side));
}

int countKept(const ShapeCache& cache, std::uint64_t shapes) {
  int count = 0;
  for (std::uint64_t i = 0; i < shapes; ++i) count += cache.find(keyOf(i)) == nullptr ? 0 : 1;
  return count;
}

TEST(ShapeCache, FindsWhatItKeeps) {
  ShapeCache cache;
  EXPECT_EQ(cache.find(keyOf(1)), nullptr);
  cairo_surface_t* const first = cache.keep(keyOf(1), pixels(large));
  cairo_surface_t* const second = cache.keep(keyOf(2), pixels(large));
  EXPECT_EQ(cache.find(keyOf(1)), first);
  EXPECT_EQ(cache.find(keyOf(2)), second);
}

TEST(ShapeCache, NeverKeepsMoreThanSixteenMegabytes) {
  ShapeCache cache;
  int most = 0;
  for (std::uint64_t i = 0; i < 200; ++i) {
    cache.keep(keyOf(i), pixels(large));
    EXPECT_NE(cache.find(keyOf(i)), nullptr) << i;
    most = std::max(most, countKept(cache, i + 1));
  }
  EXPECT_GT(most, 48);
  EXPECT_LE(most, 64);
}

TEST(ShapeCache, CountsWhatAShapeTakesBesideItsPixels) {
  ShapeCache cache;
  constexpr std::uint64_t shapes = 20000;
  for (std::uint64_t i = 0; i < shapes; ++i) cache.keep(keyOf(i), pixels(1));
  EXPECT_LT(countKept(cache, shapes), 17000);
}

}  // namespace
}  // namespace velmora
