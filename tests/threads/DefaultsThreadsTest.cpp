#include <optional>

#include <tests/threads/ManyThreads.h>
#include <velmora/foundation/DateHelper.h>
#include <velmora/foundation/VelmoraCalendar.h>
#include <velmora/platform/time/Clock.h>
#include <velmora/platform/time/Locale.h>
#include <velmora/platform/time/TimeZone.h>

namespace velmora {
namespace {

constexpr int changes = 500;
const Instant noon = instantFromUnixSeconds(1'718'884'800);  // 2024-06-20T12:00:00Z

/// One thread sets and the others read; each reading must be one of what was set.
template <class Set, class Read>
void changeWhileOthersRead(Set set, Read isOneOfThoseSet) {
  std::vector<int> strangeReadings(test::threadCount);
  test::runTogether(test::threadCount, [&](std::size_t thread) {
    for (int i = 0; i < changes; ++i) {
      if (thread == 0) set(i % 2 == 0);
      if (!isOneOfThoseSet()) ++strangeReadings[thread];
    }
  });
  EXPECT_EQ(strangeReadings, std::vector<int>(test::threadCount));
}

TEST(ManyThreads, ReadADefaultZoneThatAnotherChanges) {
  const ScopedLocale locale("en_US");
  const ScopedDefaultTimeZone zone("Asia/Tokyo");
  changeWhileOthersRead(
      [](bool first) { TimeZone::setDefault(TimeZone::named(first ? "Asia/Kathmandu" : "Asia/Tokyo")); },
      [] {
        const auto text = DateHelper::GetTimeFormattedString(noon, true);
        return text == "17:45" || text == "21:00";
      });
}

TEST(ManyThreads, ReadALocaleThatAnotherChanges) {
  const ScopedLocale locale("de_DE");
  changeWhileOthersRead([](bool first) { Locale::setCurrent(Locale(first ? "en_US" : "de_DE")); },
                        [] {
                          const std::string language = Locale::current().languageCode();
                          return language == "en" || language == "de";
                        });
}

TEST(ManyThreads, ReadAClockThatAnotherChanges) {
  const ScopedNow now(noon);
  changeWhileOthersRead(
      [](bool first) {
        const Instant fixed = first ? noon : noon + std::chrono::hours(1);
        Clock::setSource([fixed] { return fixed; });
      },
      [] {
        const Instant read = Clock::now();
        return read == noon || read == noon + std::chrono::hours(1);
      });
}

TEST(ManyThreads, GetTheSameNamesOfMonthsAndWeekdays) {
  const ScopedLocale locale("en_US");
  VelmoraCalendar::resetSymbols();
  const std::vector<int> questions(20);
  test::expectAnswersOfOneThread(questions, [](int) {
    return VelmoraCalendar::shortMonthStrings().front() + VelmoraCalendar::shortWeekdayStrings().front();
  });
  EXPECT_EQ(VelmoraCalendar::shortMonthStrings().front(), "Jan");
  VelmoraCalendar::resetSymbols();
}

}  // namespace
}  // namespace velmora
