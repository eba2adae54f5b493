#include <velmora/almanac/Executor.h>

#include <atomic>
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

namespace velmora::almanac {
namespace {

TEST(ThreadsOfAnExecutor, DoEveryPartOnce) {
  for (const unsigned threads : {0U, 1U, 3U, 50U}) {
    std::vector<std::atomic<int>> done(17);
    onThreads(threads)(done.size(), [&](std::size_t part) { ++done[part]; });
    for (const std::atomic<int>& times : done) EXPECT_EQ(times, 1) << threads;
  }
}

TEST(ThreadsOfAnExecutor, HaveNothingToDoWithoutParts) {
  onThreads(4)(0, [](std::size_t) { FAIL(); });
}

TEST(ThreadsOfAnExecutor, HandOnWhatIsThrown) {
  const auto throws = [](std::size_t part) {
    if (part == 5) throw std::out_of_range("five");
  };
  EXPECT_THROW(onThreads(3)(100, throws), std::out_of_range);
}

}  // namespace
}  // namespace velmora::almanac
