#include <velmora/platform/time/Clock.h>

#include <gtest/gtest.h>

namespace velmora {
namespace {

const Instant first = instantFromUnixSeconds(1'000);
const Instant second = instantFromUnixSeconds(2'000.5);

Instant systemNow() { return Instant(std::chrono::system_clock::now()); }

TEST(Clock, IsTheSystemsClockUnlessReplaced) {
  const Instant before = systemNow();
  const Instant now = Clock::now();
  EXPECT_GE(now, before);
  EXPECT_LE(now, systemNow());
}

TEST(Clock, AnotherSourceStandsUntilTheFormerOneIsPutBack) {
  Instant source = first;
  const Clock::Source former = Clock::setSource([&source] { return source; });
  EXPECT_EQ(Clock::now(), first);
  source = second;
  EXPECT_EQ(Clock::now(), second);
  const Clock::Source replaced = Clock::setSource(former);
  EXPECT_EQ(replaced(), second);
  EXPECT_NE(Clock::now(), second);
}

TEST(Clock, AnEmptySourceIsTheSystemsClock) {
  const ScopedNow fixed(first);
  const Clock::Source former = Clock::setSource({});
  EXPECT_GT(Clock::now(), second);
  Clock::setSource(former);
}

TEST(Clock, ASourceMayReplaceTheClockItself) {
  const Clock::Source former = Clock::setSource([] {
    Clock::setSource([] { return second; });
    return first;
  });
  EXPECT_EQ(Clock::now(), first);
  EXPECT_EQ(Clock::now(), second);
  Clock::setSource(former);
}

TEST(ScopedNow, FixesThePresentAndPutsTheFormerClockBack) {
  const ScopedNow outer(first);
  {
    const ScopedNow inner(second);
    EXPECT_EQ(Clock::now(), second);
    EXPECT_EQ(Clock::now(), second);
  }
  EXPECT_EQ(Clock::now(), first);
}

}  // namespace
}  // namespace velmora
