#include <velmora/platform/time/icu/ObjectCache.h>

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(ObjectCache, MakesAnObjectOnceUnderItsKey) {
  ObjectCache<std::string> cache;
  EXPECT_EQ(cache.get("full", [] { return "made first"; }), "made first");
  EXPECT_EQ(cache.get("new", [] { return "another"; }), "another");
  EXPECT_EQ(cache.get("full", [] { return "made again"; }), "made first");
}

TEST(ObjectCache, StartsAnewWhenItIsFull) {
  ObjectCache<int> cache;
  int made = 0;
  const auto make = [&made] { return ++made; };
  for (int i = 0; i < 100; ++i) cache.get(std::to_string(i), make);
  EXPECT_EQ(cache.get("99", make), 100) << "the latest is kept";
  EXPECT_EQ(cache.get("0", make), 101) << "the first was given up";
}

}  // namespace
}  // namespace velmora
