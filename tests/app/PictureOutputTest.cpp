#include <sys/resource.h>
#include <sys/stat.h>

#include <csignal>

#include <velmora/platform/system/Log.h>

#include "PictureTesting.h"

namespace velmora::app {
namespace {

using PictureOutputTest = PictureTest;

TEST_F(PictureOutputTest, BatchWritesTheSamePictures) {
  Json request = {{"op", "draw"},       {"view", "month"},      {"output", path("batch.png")},
                  {"size", "768x900"},  {"rtl", true},          {"tablet", true},
                  {"locale", "ar_EG"},  {"calendar", "hebrew"}, {"week-start", "monday"},
                  {"city", "Helsinki"}, {"no-title", false}};
  const std::string plain = jsonLine({{"op", "draw"}, {"view", "month"}, {"output", path("plain.png")}});
  const Outcome outcome =
      runProgram({"batch", "--pictures", folder().path().string()}, jsonLine(request) + "\n" + plain + "\n");
  ASSERT_EQ(linesOf(outcome.out).size(), 2U);
  EXPECT_EQ(jsonFromText(linesOf(outcome.out).front())["result"]["output"], path("batch.png"));
  EXPECT_EQ(bytesOf(path("batch.png")),
            bytesOf(draw({"month", "--size", "768x900", "--rtl", "--tablet", "--locale", "ar_EG",
                          "--calendar", "hebrew", "--week-start", "monday", "--city", "Helsinki"})));
  EXPECT_EQ(bytesOf(path("plain.png")), bytesOf(draw({"month"})));
}

TEST_F(PictureOutputTest, BatchWritesBelowItsFolderAlone) {
  folder().write("outside.png", "what was there");
  std::filesystem::create_directories(path("pictures/inner"));
  std::filesystem::create_symlink(path("outside.png"), path("pictures/link.png"));
  std::filesystem::create_symlink(path("unborn.png"), path("pictures/dangling.png"));
  const auto answerTo = [&](const std::string& output) {
    const std::string line = jsonLine({{"op", "draw"}, {"view", "disc"}, {"output", output}}) + "\n";
    return jsonFromText(runProgram({"batch", "--pictures", path("pictures")}, line).out);
  };
  for (const std::string& output :
       {std::string("a.png"), std::string("inner/../inner/b.svg"), path("pictures/c.pdf")})
    EXPECT_EQ(answerTo(output)["result"]["output"], output);
  EXPECT_TRUE(std::filesystem::exists(path("pictures/a.png")));
  EXPECT_TRUE(std::filesystem::exists(path("pictures/inner/b.svg")));
  for (const std::string& output :
       {std::string("../outside.png"), path("outside.png"), std::string("link.png"),
        std::string("dangling.png"), std::string("inner/../../outside.png"), path("pictures2.png"),
        std::string("-")})
    EXPECT_TRUE(answerTo(output).contains("error")) << output;
  EXPECT_EQ(bytesOf(path("outside.png")), "what was there");
  EXPECT_FALSE(std::filesystem::exists(path("unborn.png")));
}

TEST_F(PictureOutputTest, APictureHasAtMost64MillionPixels) {
  EXPECT_EQ(runProgram({"draw", "disc", "--size", "8000x8001", "-o", path("large.png")}).err,
            "velmora: the picture would have more than 64 million pixels; give a smaller size or scale\n");
  EXPECT_EQ(
      runProgram({"draw", "disc", "--size", "801x800", "--scale", "10", "-o", path("large.png")}).status, 2);
  EXPECT_FALSE(std::filesystem::exists(path("large.png")));
}

TEST_F(PictureOutputTest, AVectorPictureThatBecomesPixelsHasNoMoreThanAPictureOfThem) {
  for (const char* name : {"large.svg", "large.pdf"}) {
    const Outcome outcome =
        runProgram({"draw", "riseset", "--size", "2500x2500", "--background", "none", "-o", path(name)});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_EQ(outcome.err,
              "velmora: the picture cannot stay vector and would be made of more than 64 million pixels; "
              "accepted: a smaller size, or an opaque background\n");
    EXPECT_FALSE(std::filesystem::exists(path(name)));
  }
}

TEST_F(PictureOutputTest, ADashIsStandardOutput) {
  const std::string written = bytesOf(draw({"disc"}));
  EXPECT_EQ(runProgram({"draw", "disc", "-o", "-"}).out, written);
  EXPECT_EQ(runProgram({"draw", "disc", "-o", "-", "--json"}).status, 2);
}

TEST_F(PictureOutputTest, APipeIsRefusedWithoutWaitingForItsReader) {
  ASSERT_EQ(mkfifo(path("pipe.png").c_str(), 0600), 0);
  const Outcome outcome = runProgram({"draw", "disc", "-o", path("pipe.png")});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_NE(outcome.err.find("is a pipe; accepted: "), std::string::npos);
}

TEST_F(PictureOutputTest, WhatIsWrittenIsNamedWithoutOrdersToTheTerminal) {
  EXPECT_EQ(answer({"draw", "disc", "-o", path("a\x1b[1m.png")}),
            "Wrote " + path("a?[1m.png") + ", 240 x 296 pixels\n");
}

TEST_F(PictureOutputTest, AVectorPictureThatBecamePixelsIsNamedInTheLog) {
  const ScopedLogRecord log;
  draw({"riseset", "--background", "none"}, "picture.svg");
  ASSERT_EQ(log.messages().size(), 1U);
  EXPECT_NE(log.messages().front().find("the page is made of pixels"), std::string::npos);
  draw({"riseset", "--background", "none"}, "picture.png");
  draw({"riseset"}, "picture.svg");
  EXPECT_EQ(log.messages().size(), 1U);
}

TEST_F(PictureOutputTest, AFileThatCannotBeWrittenIsAFailureOfOneLine) {
  for (const std::string& file : {path("no/such/folder.png"), std::string("/proc/picture.png")}) {
    const Outcome outcome = runProgram({"draw", "disc", "-o", file});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_EQ(outcome.out, "");
    ASSERT_EQ(linesOf(outcome.err).size(), 1U);
    EXPECT_NE(outcome.err.find("'" + file + "': the picture cannot be written: "), std::string::npos)
        << outcome.err;
  }
}

/// Lets files grow no longer than that many bytes for as long as it lives.
class ScopedFileLimit {
 public:
  explicit ScopedFileLimit(rlim_t bytes) : _formerHandler(std::signal(SIGXFSZ, SIG_IGN)) {
    getrlimit(RLIMIT_FSIZE, &_former);
    const rlimit limit{bytes, _former.rlim_max};
    setrlimit(RLIMIT_FSIZE, &limit);
  }
  ~ScopedFileLimit() {
    setrlimit(RLIMIT_FSIZE, &_former);
    std::signal(SIGXFSZ, _formerHandler);
  }
  ScopedFileLimit(const ScopedFileLimit&) = delete;
  ScopedFileLimit& operator=(const ScopedFileLimit&) = delete;

 private:
  rlimit _former{};
  void (*_formerHandler)(int);
};

TEST_F(PictureOutputTest, AFileThatWasThereStaysWholeWhenWritingFails) {
  for (const char* name : {"old.png", "old.svg", "old.pdf"}) {
    const std::string file = folder().write(name, "what was there").string();
    Outcome outcome;
    {
      const ScopedFileLimit limit(500);
      outcome = runProgram({"draw", "month", "-o", file});
    }
    EXPECT_EQ(outcome.status, 1) << name;
    EXPECT_EQ(bytesOf(file), "what was there");
    std::filesystem::remove(file);
    EXPECT_TRUE(std::filesystem::is_empty(folder().path())) << "nothing is left behind";
  }
}

TEST_F(PictureOutputTest, AFileThatWasThereStaysWholeWhenTheRequestIsRefused) {
  const std::string file = folder().write("old.png", "what was there").string();
  EXPECT_EQ(runProgram({"draw", "month", "--size", "99999x9", "-o", file}).status, 2);
  EXPECT_EQ(runProgram({"draw", "month", "--date", "1999-12-31", "-o", file}).status, 2);
  EXPECT_EQ(bytesOf(file), "what was there");
}

}  // namespace
}  // namespace velmora::app
