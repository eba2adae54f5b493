#include <velmora/views/OncePerProcess.h>

#include <gtest/gtest.h>

#include <string>

#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

class OncePerProcessTest : public ::testing::Test {
 protected:
  OncePerProcessTest() { ProcessValues::resetAll(); }
  ~OncePerProcessTest() override { ProcessValues::resetAll(); }

  static const std::string& languageOfFirstCall() {
    static OncePerProcess<std::string> language;
    return language.get([] { return Locale::current().languageCode(); });
  }
};

TEST_F(OncePerProcessTest, IsMadeOnTheFirstCallAlone) {
  OncePerProcess<int> value;
  int timesMade = 0;
  const auto make = [&] { return ++timesMade; };
  EXPECT_EQ(timesMade, 0);
  EXPECT_EQ(value.get(make), 1);
  EXPECT_EQ(value.get(make), 1);
}

TEST_F(OncePerProcessTest, StaysWhenTheLocaleChanges) {
  const ScopedLocale english("en_US");
  EXPECT_EQ(languageOfFirstCall(), "en");
  const ScopedLocale german("de_DE");
  EXPECT_EQ(languageOfFirstCall(), "en");
}

TEST_F(OncePerProcessTest, IsMadeAnewAfterAReset) {
  const ScopedLocale english("en_US");
  EXPECT_EQ(languageOfFirstCall(), "en");
  const ScopedLocale german("de_DE");
  ProcessValues::resetAll();
  EXPECT_EQ(languageOfFirstCall(), "de");
}

TEST_F(OncePerProcessTest, AResetReachesEveryValue) {
  OncePerProcess<int> first, second;
  first.get([] { return 1; });
  second.get([] { return 2; });
  ProcessValues::resetAll();
  EXPECT_EQ(first.get([] { return 10; }), 10);
  EXPECT_EQ(second.get([] { return 20; }), 20);
}

TEST_F(OncePerProcessTest, AResetAfterAValueIsGoneLeavesTheOthersWorking) {
  OncePerProcess<int> staying;
  {
    OncePerProcess<int> leaving;
    leaving.get([] { return 1; });
  }
  staying.get([] { return 2; });
  ProcessValues::resetAll();
  EXPECT_EQ(staying.get([] { return 20; }), 20);
}

TEST_F(OncePerProcessTest, AResetForgetsTheCalendarsNamesToo) {
  const ScopedLocale english("en_US");
  EXPECT_EQ(VelmoraCalendar::shortWeekdayStrings().front(), "Sun");
  const ScopedLocale german("de_DE");
  EXPECT_EQ(VelmoraCalendar::shortWeekdayStrings().front(), "Sun");
  ProcessValues::resetAll();
  EXPECT_EQ(VelmoraCalendar::shortWeekdayStrings().front(), "So.");
}

TEST_F(OncePerProcessTest, AKeptValueCanBeChangedInPlace) {
  OncePerProcess<std::string> value;
  value.get([] { return std::string("Full"); }) += " Moon";
  EXPECT_EQ(value.get([] { return std::string("New"); }), "Full Moon");
}

}  // namespace
}  // namespace velmora
