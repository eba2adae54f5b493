#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <filesystem>

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
using testing::runProcess;

const std::vector<std::string> position = {"--lat", "1", "--lon", "2", "--now", "2024-06-20T12:00:00Z"};

std::vector<std::string> at(std::vector<std::string> question) {
  question.insert(question.end(), position.begin(), position.end());
  return question;
}

Json jsonOf(const End& end) {
  EXPECT_EQ(end.status, 0) << end.err;
  EXPECT_EQ(end.err, "");
  return jsonFromText(end.out);
}

TEST(WithoutZoneDatabase, WhatNeedsAZoneSaysThatItIsMissing) {
  const TemporaryFolder empty;
  const std::vector<std::pair<std::vector<std::string>, std::string>> cases = {
      {{"today"}, "America/Los_Angeles"},
      {{"today", "--city", "Tokyo"}, "Asia/Tokyo"},
      {at({"today", "--tz", "Europe/Kyiv"}), "Europe/Kyiv"},
  };
  for (const auto& [question, zone] : cases) {
    const End end = runProcess({.arguments = question, .environment = {{"TZDIR", empty.path()}}});
    EXPECT_EQ(end.status, 1) << zone;
    EXPECT_EQ(end.out, "") << zone;
    EXPECT_EQ(end.err, "velmora: time zone '" + zone + "' is missing in the system's zone database\n");
  }
}

TEST(WithoutZoneDatabase, FixedOffsetsAreAnsweredAndThePlacesOwnZoneIsGmt) {
  const TemporaryFolder empty;
  const auto zoneOf = [&](const std::vector<std::string>& options) {
    std::vector<std::string> question = at({"today", "--json"});
    question.insert(question.end(), options.begin(), options.end());
    return jsonOf(
        runProcess({.arguments = question,
                    .environment = {{"TZDIR", empty.path()}, {"TZ", "Europe/Kyiv"}}}))["place"]["timezone"];
  };
  EXPECT_EQ(zoneOf({"--gmt-offset", "20700"}), "GMT+05:45");
  EXPECT_EQ(zoneOf({"--tz", "GMT-03:30"}), "GMT-03:30");
  EXPECT_EQ(zoneOf({"--tz", "UTC"}), "UTC");
  EXPECT_EQ(zoneOf({}), "GMT");
}

TEST(WithoutZoneDatabase, ADamagedZoneIsMissing) {
  for (const char* content : {"", "TZif", "no zone at all\n"}) {
    const TemporaryFolder zones;
    zones.write("Asia/Tokyo", content);
    const End end =
        runProcess({.arguments = {"today", "--city", "Tokyo"}, .environment = {{"TZDIR", zones.path()}}});
    EXPECT_EQ(end.status, 1) << content;
    EXPECT_EQ(end.err, "velmora: time zone 'Asia/Tokyo' is missing in the system's zone database\n");
  }
}

TEST(ZoneOfTheEnvironment, ThatIsNoZoneIsGmt) {
  const std::string huge(100'000, 'x');
  for (const std::string& zone :
       {std::string(), std::string(":"), std::string(":/etc/passwd"), std::string("../../etc/passwd"),
        std::string("/etc/passwd"), std::string("/dev/zero"), std::string("zone.tab"), std::string("Europe"),
        std::string("Europe/Nowhere"), std::string("\xFF\xFE\x01"), std::string("CET-1CEST,M3.5.0,M10.5.0/3"),
        huge, ":/" + huge, "../" + huge}) {
    const Json answer =
        jsonOf(runProcess({.arguments = at({"today", "--json"}), .environment = {{"TZ", zone}}}));
    EXPECT_EQ(answer["place"]["timezone"], "GMT") << zone.substr(0, 40);
  }
}

TEST(LocaleOfTheEnvironment, ThatIsNoLocaleIsAmericanEnglish) {
  const auto answerIn = [](const std::optional<std::string>& locale) {
    return runProcess(
        {.arguments = {"today", "--now", "2024-06-20T12:00:00Z"},
         .environment = {{"LC_ALL", locale},
                         {"LC_TIME", locale},
                         {"LANG", locale},
                         {"LD_PRELOAD", std::nullopt}}});  // tools/run-everywhere adopts locales by it
  };
  const End english = answerIn("en_US.UTF-8");
  EXPECT_EQ(english.status, 0);
  const std::string huge(100'000, 'x');
  for (const std::optional<std::string>& locale :
       {std::optional<std::string>(), std::optional<std::string>(""), std::optional<std::string>("C"),
        std::optional<std::string>("POSIX"), std::optional<std::string>("../../etc/passwd"),
        std::optional<std::string>("/etc/passwd"), std::optional<std::string>("\xFF\xFE\x01"),
        std::optional<std::string>("en_US_"), std::optional<std::string>(huge)}) {
    const End end = answerIn(locale);
    EXPECT_EQ(end.status, 0) << locale.value_or("none").substr(0, 40);
    EXPECT_EQ(end.err, "");
    EXPECT_EQ(end.out, english.out) << locale.value_or("none").substr(0, 40);
  }
  EXPECT_EQ(answerIn("xx_YY.UTF-8").status, 0) << "a locale that nobody knows";
}

/// Draws the month into a file of the ending; answers how it ended and what the file holds.
std::pair<End, std::string> drawnMonth(const std::string& ending,
                                       const std::map<std::string, std::optional<std::string>>& environment,
                                       const std::function<void()>& inChild = {}) {
  const TemporaryFolder folder;
  const fs::path picture = folder.path() / ("month." + ending);
  const End end = runProcess({.arguments = {"draw", "month", "--now", "2024-06-20T12:00:00Z", "-o", picture},
                              .environment = environment,
                              .inChild = inChild});
  return {end, bytesOfFile(picture)};
}

TEST(WithoutFonts, APictureHasNoTextsAndItIsSaidWhichAreMissing) {
  const TemporaryFolder folder;
  const auto none = folder.write("fonts.conf", "<?xml version=\"1.0\"?>\n<fontconfig></fontconfig>\n");
  for (const char* ending : {"png", "svg", "pdf"}) {
    const auto [end, picture] = drawnMonth(ending, {{"FONTCONFIG_FILE", none}});
    EXPECT_EQ(end.status, 0) << end.err;
    EXPECT_NE(end.err.find("velmora: no installed font has '"), std::string::npos) << end.err;
    EXPECT_GT(picture.size(), 1000U);
  }
}

TEST(WithoutFonts, EveryViewIsDrawn) {
  const TemporaryFolder folder;
  const auto none = folder.write("fonts.conf", "<?xml version=\"1.0\"?>\n<fontconfig></fontconfig>\n");
  for (const char* view : {"disc", "year", "riseset", "images", "compass", "azel", "chart", "timeline"}) {
    const End end = runProcess({.arguments = {"draw", view, "-o", folder.path() / "view.png"},
                                .environment = {{"FONTCONFIG_FILE", none}}});
    EXPECT_EQ(end.status, 0) << view << end.err;
  }
}

TEST(Drawing, NeedsNeitherAHomeNorATemporaryFolder) {
  const auto usual = drawnMonth("png", {});
  const auto bare = drawnMonth("png", {{"HOME", std::nullopt},
                                       {"TMPDIR", "/nonexistent"},
                                       {"XDG_CACHE_HOME", "/nonexistent"},
                                       {"PATH", std::nullopt}});
  EXPECT_EQ(bare.first.status, 0) << bare.first.err;
  EXPECT_EQ(bare.second, usual.second);
}

#ifndef VELMORA_SANITIZED  // which reserves terabytes of addresses
TEST(LittleMemory, GivesTheAnswerOrAnEndThatIsNoSuccess) {
  const auto usual = drawnMonth("png", {});
  const End usualAnswer = runProcess({.arguments = at({"month", "2024-06"})});
  for (rlim_t megabytes = 40; megabytes <= 160; megabytes += 20) {
    const auto limit = [megabytes] {
      const rlimit addresses{megabytes << 20, megabytes << 20}, noCore{0, 0};
      setrlimit(RLIMIT_AS, &addresses);
      setrlimit(RLIMIT_CORE, &noCore);
      alarm(20);  // Pango may wait for ever for its thread of fonts, when that found no memory
    };
    const auto [end, picture] = drawnMonth("png", {}, limit);
    EXPECT_TRUE(end.status == 0 ? !picture.empty() : picture.empty()) << megabytes;
    const End answer = runProcess({.arguments = at({"month", "2024-06"}), .inChild = limit});
    EXPECT_EQ(answer.out, answer.status == 0 ? usualAnswer.out : "") << megabytes;
  }
  EXPECT_EQ(usual.first.status, 0);
}
#endif

}  // namespace
}  // namespace velmora::app
