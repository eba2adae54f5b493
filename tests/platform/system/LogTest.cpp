#include <velmora/platform/system/Log.h>

#include <gtest/gtest.h>

namespace velmora {
namespace {

TEST(Log, GoesToStandardErrorByDefault) {
  testing::internal::CaptureStderr();
  Log::write("Invalid entry");
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "Invalid entry\n");
}

TEST(Log, GoesToTheSinkThatIsSet) {
  std::string written;
  const Log::Sink former = Log::setSink([&](std::string_view text) { written += text; });
  EXPECT_FALSE(former);
  Log::write("one ");
  Log::write("two");
  const Log::Sink ours = Log::setSink(former);
  EXPECT_TRUE(ours);
  EXPECT_EQ(written, "one two");
}

TEST(Log, ARecordKeepsMessagesAndPutsTheFormerSinkBack) {
  const ScopedLogRecord outer;
  {
    const ScopedLogRecord inner;
    Log::write("inner");
    EXPECT_EQ(inner.messages(), std::vector<std::string>{"inner"});
  }
  Log::write("outer");
  EXPECT_EQ(outer.messages(), std::vector<std::string>{"outer"});
}

TEST(Log, ASinkMayWriteToTheLogItself) {
  const ScopedLogRecord record;
  Log::Sink former = Log::setSink(nullptr);
  Log::setSink([&former](std::string_view text) {
    Log::setSink(former);
    Log::write(text);
  });
  Log::write("passed on");
  EXPECT_EQ(record.messages(), std::vector<std::string>{"passed on"});
}

}  // namespace
}  // namespace velmora
