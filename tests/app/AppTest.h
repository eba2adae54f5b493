#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include <app/program/Run.h>
#include <app/text/Json.h>
#include <app/text/ValueTexts.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora::app {

/// What one run of the program left behind.
struct Outcome {
  int status;
  std::string out;
  std::string err;
};

inline Outcome runProgram(const std::vector<std::string>& arguments, const std::string& input = "") {
  std::istringstream in(input);
  std::ostringstream out, err;
  const int status = run(arguments, in, out, err);
  return {status, out.str(), err.str()};
}

inline std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

inline std::size_t charactersOf(const std::string& text) {
  std::size_t count = 0;
  for (const char byte : text) count += (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U ? 1 : 0;
  return count;
}

/// Runs the program in American English, the process's zone UTC, at noon (UTC) of 20 June 2024.
class AppTest : public ::testing::Test {
 protected:
  static std::string answer(const std::vector<std::string>& arguments) {
    const Outcome outcome = runProgram(arguments);
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_EQ(outcome.err, "");
    return outcome.out;
  }

  static Json json(std::vector<std::string> arguments) {
    arguments.emplace_back("--json");
    return Json::parse(answer(arguments));
  }

  static Instant instant(const char* text) { return instantFromText(text).value(); }

 private:
  ScopedLocale _locale{"en_US"};
  ScopedDefaultTimeZone _zone{"UTC"};
  ScopedNow _now{instant("2024-06-20T12:00:00Z")};
};

}  // namespace velmora::app
