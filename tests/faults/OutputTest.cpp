#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <new>
#include <system_error>

#include <app/text/Errors.h>

#include "tests/app/AppTest.h"
#include "tests/faults/Damage.h"
#include "tests/faults/Program.h"
#include "tests/platform/resources/TemporaryFolder.h"

namespace velmora::app {
namespace {

namespace fs = std::filesystem;
using testing::bytesOfFile;
using testing::End;
using testing::RunningProgram;
using testing::runProcess;

/// What the system says of an error, in the language of the process.
std::string systemText(int error) { return std::generic_category().message(error); }

const std::string request = R"({"op": "position", "lat": 1, "lon": 2})"
                            "\n";

void closeOutput() { close(STDOUT_FILENO); }
void fillDisk() { dup2(open("/dev/full", O_WRONLY), STDOUT_FILENO); }

/// Standard output becomes a pipe that nobody reads.
void breakPipe() {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) _exit(1);
  dup2(ends[1], STDOUT_FILENO);
  close(ends[0]);
  close(ends[1]);
}

const std::vector<std::vector<std::string>> questions = {{"month", "2024-06"}, {"year", "2024", "--json"},
                                                         {"--help"},           {"--version"},
                                                         {"draw", "--help"},   {"batch"}};

TEST(Output, ThatIsClosedOrFullIsAFailureThatSaysSo) {
  for (const auto& question : questions) {
    for (void (*breakOutput)() : {closeOutput, fillDisk}) {
      const End end = runProcess({.arguments = question, .input = request, .inChild = breakOutput});
      EXPECT_EQ(end.status, 1) << question.front();
      EXPECT_EQ(end.err, "velmora: standard output cannot be written\n") << question.front();
    }
  }
}

TEST(Output, WhoseReaderHasGoneIsAFailureWithoutAWord) {
  for (const auto& question : questions) {
    for (const auto handling : {SIG_DFL, SIG_IGN}) {
      const End end = runProcess({.arguments = question, .input = request, .inChild = [handling] {
                                    std::signal(SIGPIPE, handling);
                                    breakPipe();
                                  }});
      EXPECT_EQ(end.status, 1) << question.front();
      EXPECT_EQ(end.err, "") << question.front();
    }
  }
}

TEST(Failure, OfMemoryIsNamed) {
  EXPECT_EQ(messageOf(std::bad_alloc()), "out of memory");
  EXPECT_EQ(messageOf(Failure("the file is gone")), "the file is gone");
}

TEST(Output, OfErrorsMayBeClosed) {
  const auto closeErrors = [] { close(STDERR_FILENO); };
  EXPECT_EQ(runProcess({.arguments = {"dance"}, .inChild = closeErrors}).status, 2);
  const End end = runProcess({.arguments = {"--version"}, .inChild = closeErrors});
  EXPECT_EQ(end.status, 0);
  EXPECT_TRUE(end.out.starts_with("velmora "));
}

TEST(Input, ThatIsClosedOrAFolderIsAFailureOfBatch) {
  for (void (*breakInput)() :
       {+[] { close(STDIN_FILENO); }, +[] { dup2(open("/", O_RDONLY | O_DIRECTORY), STDIN_FILENO); }}) {
    const End end = runProcess({.arguments = {"batch"}, .inChild = breakInput});
    EXPECT_EQ(end.status, 1);
    EXPECT_EQ(end.out, "");
    EXPECT_EQ(end.err, "velmora: standard input cannot be read\n");
  }
}

TEST(Input, IsNotNeededByOtherCommands) {
  EXPECT_EQ(runProcess({.arguments = {"month", "2024-06"}, .inChild = [] { close(STDIN_FILENO); }}).status,
            0);
}

/// Whole lines of JSON, each an answer.
void expectWholeAnswers(const std::string& output) {
  EXPECT_TRUE(output.empty() || output.back() == '\n') << output.substr(output.size() - 80);
  for (const std::string& line : linesOf(output))
    ASSERT_TRUE(jsonFromText(line).contains("result")) << line;
}

class BatchSignal : public ::testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Ending, BatchSignal, ::testing::Values(SIGINT, SIGTERM, SIGHUP));

TEST_P(BatchSignal, CutsNoAnswerOfAStream) {
  RunningProgram batch({"batch"});
  std::string many, output;
  for (int i = 0; i < 1000; ++i) many += request;
  for (int i = 0; i < 60; ++i) {
    batch.write(many);
    output += batch.read();
  }
  batch.signal(GetParam());
  for (std::string more = batch.read(); !more.empty(); more = batch.read()) output += more;
  EXPECT_EQ(batch.wait(), -GetParam());
  EXPECT_GT(output.size(), 10'000U);
  expectWholeAnswers(output);
}

TEST_P(BatchSignal, EndsItWhileItWaits) {
  for (const std::string& unfinished : {std::string(), std::string("{\"op\": ")}) {
    RunningProgram batch({"batch"});
    batch.write(request);
    const std::string answer = batch.read();
    batch.write(unfinished);
    batch.signal(GetParam());
    EXPECT_EQ(batch.wait(), -GetParam());
    EXPECT_EQ(linesOf(answer).size(), 1U);
    expectWholeAnswers(answer);
    EXPECT_EQ(batch.read(), "");
  }
}

/// A folder with a picture that is to be replaced.
class PictureOutput : public ::testing::Test {
 protected:
  std::vector<std::string> drawMonth() const {
    return {"draw", "month", "--now", "2024-06-20T12:00:00Z", "-o", picture.string()};
  }

  void expectFormerPictureAlone() const {
    EXPECT_EQ(bytesOfFile(picture), "former");
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1);
  }

  const TemporaryFolder folder;
  const fs::path picture = folder.write("month.png", "former");
};

TEST_F(PictureOutput, OnADiskThatIsFullLeavesTheFormerPicture) {
  for (const rlim_t room : {rlim_t{0}, rlim_t{1000}, rlim_t{20'000}}) {
    const End end = runProcess({.arguments = drawMonth(), .inChild = [room] {
                                  const rlimit limit{room, room};
                                  setrlimit(RLIMIT_FSIZE, &limit);
                                  dup2(open("/dev/null", O_WRONLY), STDOUT_FILENO);
                                }});
    EXPECT_EQ(end.status, 1);
    expectFormerPictureAlone();
  }
}

TEST_F(PictureOutput, IntoAFolderThatIsReadOnlyLeavesTheFormerPicture) {
  fs::permissions(folder.path(), fs::perms::owner_read | fs::perms::owner_exec);
  Outcome outcome;
  {
    const testing::WithoutPrivilege asAnyUser(testing::Privilege::toWrite);
    outcome = runProgram(drawMonth());
  }
  fs::permissions(folder.path(), fs::perms::owner_all);
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.err, "velmora: output '" + picture.string() +
                             "': the picture cannot be written: " + systemText(EACCES) + "\n");
  expectFormerPictureAlone();
}

TEST_F(PictureOutput, OntoAFolderIsAFailure) {
  fs::create_directory(folder.path() / "folder.png");
  const Outcome outcome = runProgram({"draw", "chart", "-o", (folder.path() / "folder.png").string()});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_TRUE(
      outcome.err.ends_with("folder.png': the picture cannot be written: " + systemText(EISDIR) + "\n"))
      << outcome.err;
  EXPECT_TRUE(fs::is_empty(folder.path() / "folder.png"));
}

TEST_F(PictureOutput, InterruptedAnywhereIsTheFormerPictureOrTheNew) {
  const std::string whole = [&] {
    EXPECT_EQ(runProcess({.arguments = drawMonth()}).status, 0);
    return bytesOfFile(picture);
  }();
  for (int delay = 0; delay < 16; ++delay) {
    testing::overwrite(picture, "former");
    RunningProgram program(drawMonth());
    usleep(static_cast<useconds_t>(delay * 10'000));
    program.signal(SIGTERM);
    program.wait();
    EXPECT_TRUE(bytesOfFile(picture) == "former" || bytesOfFile(picture) == whole) << delay;
    EXPECT_EQ(std::distance(fs::directory_iterator(folder.path()), fs::directory_iterator()), 1) << delay;
  }
}

TEST_F(PictureOutput, HoldsNothingElseWhenEveryStreamIsClosed) {
  EXPECT_EQ(runProcess({.arguments = drawMonth()}).status, 0);
  const std::string whole = bytesOfFile(picture);
  const End end =
      runProcess({.arguments = drawMonth(),
                  // whose complaints go to standard error while files are open
                  .environment = {{"FONTCONFIG_FILE", "/nonexistent"}, {"G_MESSAGES_DEBUG", "all"}},
                  .inChild = [] {
                    for (const int descriptor : {0, 1, 2}) close(descriptor);
                  }});
  EXPECT_EQ(end.status, 1) << "where it is written cannot be said";
  EXPECT_TRUE(bytesOfFile(picture).starts_with("\x89PNG"));
  EXPECT_EQ(bytesOfFile(picture).substr(bytesOfFile(picture).size() - 8), whole.substr(whole.size() - 8));
}

}  // namespace
}  // namespace velmora::app
