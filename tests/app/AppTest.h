#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include <app/program/Run.h>
#include <app/text/Json.h>
#include <app/text/ValueTexts.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/time/TimeZone.h>

/// Compiled once for all tests, in AppTest.cpp.
extern template class nlohmann::basic_json<nlohmann::ordered_map>;

namespace velmora::app {

/// What one run of the program left behind.
struct Outcome {
  int status;
  std::string out;
  std::string err;
};

Outcome runProgram(const std::vector<std::string>& arguments, const std::string& input = "");

std::vector<std::string> linesOf(const std::string& text);

std::size_t charactersOf(const std::string& text);

/// Runs the program in American English, the process's zone UTC, at noon (UTC) of 20 June 2024.
class AppTest : public ::testing::Test {
 protected:
  static std::string answer(const std::vector<std::string>& arguments);
  static Json json(std::vector<std::string> arguments);
  static Instant instant(const char* text) { return instantFromText(text).value(); }

 private:
  ScopedLocale _locale{"en_US"};
  ScopedDefaultTimeZone _zone{"UTC"};
  ScopedNow _now{instant("2024-06-20T12:00:00Z")};
};

}  // namespace velmora::app
