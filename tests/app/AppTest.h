#pragma once

#include <gtest/gtest.h>

#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include <app/program/Run.h>
#include <app/text/Json.h>
#include <app/text/ValueTexts.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/time/TimeZone.h>

namespace nlohmann {
/// How a value is shown where a test fails: as a line, not as a container.
void PrintTo(const ordered_json& value, std::ostream* out);
}  // namespace nlohmann

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

/// An environment variable with another value for as long as it lives.
class ScopedVariable {
 public:
  ScopedVariable(const char* name, const std::string& value) : _name(name) {
    if (const char* former = std::getenv(name)) _former = former;
    setenv(name, value.c_str(), 1);
  }
  ~ScopedVariable() { _former ? setenv(_name, _former->c_str(), 1) : unsetenv(_name); }
  ScopedVariable(const ScopedVariable&) = delete;
  ScopedVariable& operator=(const ScopedVariable&) = delete;

 private:
  const char* _name;
  std::optional<std::string> _former;
};

/// Runs the program in American English, the process's zone UTC, at noon (UTC) of 20 June 2024, for a user
/// without a place of their own.
class AppTest : public ::testing::Test {
 protected:
  static std::string answer(const std::vector<std::string>& arguments);
  static Json json(std::vector<std::string> arguments);
  static Instant instant(const char* text) { return instantFromText(text).value(); }

  /// Seconds from one instant's text to another's.
  static double secondsBetween(const Json& from, const std::string& to) {
    return (instantFromText(to).value() - instantFromText(from.get<std::string>()).value()).count();
  }

 private:
  ScopedVariable _settings{"XDG_CONFIG_HOME", "/nonexistent"};
  ScopedLocale _locale{"en_US"};
  ScopedDefaultTimeZone _zone{"UTC"};
  ScopedNow _now{instant("2024-06-20T12:00:00Z")};
};

}  // namespace velmora::app
