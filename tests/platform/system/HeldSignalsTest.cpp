#include <velmora/platform/system/HeldSignals.h>

#include <gtest/gtest.h>

#include <csignal>

namespace velmora {
namespace {

volatile std::sig_atomic_t arrived = 0;

void note(int) { arrived = arrived + 1; }

TEST(HeldSignals, ArriveAtTheEnd) {
  for (const int signal : {SIGHUP, SIGINT, SIGTERM}) {
    arrived = 0;
    const auto former = std::signal(signal, note);
    {
      const HeldSignals outer;
      {
        const HeldSignals inner;
        std::raise(signal);
        EXPECT_EQ(arrived, 0);
      }
      EXPECT_EQ(arrived, 0) << "held by the outer one still";
    }
    EXPECT_EQ(arrived, 1);
    std::raise(signal);
    EXPECT_EQ(arrived, 2) << "no longer held";
    std::signal(signal, former);
  }
}

}  // namespace
}  // namespace velmora
