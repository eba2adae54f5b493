#include <algorithm>
#include <map>

#include <tests/support/ErrorSummary.h>
#include <tests/support/PlainNumbers.h>
#include <tests/support/Tables.h>

#include "AppTest.h"

namespace velmora::app {
namespace {

using testing::ErrorSummary;

/// A letter of the table and seconds after the day's beginning.
struct Timed {
  char letter;
  double seconds;
  friend auto operator<=>(const Timed&, const Timed&) = default;
};

/// A civil day as the table has it.
struct CivilDay {
  std::string where, request;
  double latitude = 0, hours = 0;
  std::vector<Timed> events = {};
};

CivilDay civilDay(testing::TableRow& row) {
  CivilDay day{.where = row.where, .request = {}};
  double longitude = 0;
  std::string date;
  row.fields >> day.latitude >> longitude >> date >> day.hours;
  for (std::string text; row.fields >> text;)
    day.events.push_back({text.front(), testing::leadingNumber(text.substr(1))});
  std::sort(day.events.begin(), day.events.end());
  day.request =
      Json{{"op", "riseset"}, {"tz", row.kind}, {"lat", day.latitude}, {"lon", longitude}, {"date", date}}
          .dump();
  return day;
}

std::vector<CivilDay> civilDays() {
  std::vector<CivilDay> days;
  for (auto& row : testing::tableRows("civil_days.txt")) days.push_back(civilDay(row));
  return days;
}

char letterOf(const Json& event) {
  static const std::map<std::string, char> letters = {{"sun rise", 'R'},
                                                      {"sun set", 'S'},
                                                      {"sun transit", 'T'},
                                                      {"moon rise", 'r'},
                                                      {"moon set", 's'},
                                                      {"moon transit", 't'},
                                                      {"sun civilDawn", 'C'},
                                                      {"sun civilDusk", 'c'},
                                                      {"sun nauticalDawn", 'N'},
                                                      {"sun nauticalDusk", 'n'},
                                                      {"sun astronomicalDawn", 'A'},
                                                      {"sun astronomicalDusk", 'a'}};
  return letters.at(event["body"].get<std::string>() + " " + event["event"].get<std::string>());
}

std::string lettersOf(const std::vector<Timed>& events) {
  std::string letters;
  for (const Timed& event : events) letters += event.letter;
  return letters;
}

class CivilDaysTest : public AppTest {
 protected:
  /// The program's answers to the days, in order.
  static std::vector<Json> answersTo(const std::vector<CivilDay>& days) {
    std::string requests;
    for (const CivilDay& day : days) requests += day.request + "\n";
    std::vector<Json> answers;
    for (const std::string& line : linesOf(runProgram({"batch"}, requests).out))
      answers.push_back(jsonFromText(line)["result"][0]);
    return answers;
  }

  static std::vector<Timed> eventsOf(const Json& answer, Instant start) {
    std::vector<Timed> events;
    for (const Json& event : answer["events"]) {
      const Instant at = *instantFromText(event["instant"].get<std::string>());
      events.push_back({letterOf(event), (at - start).count()});
    }
    std::sort(events.begin(), events.end());
    return events;
  }

  static Instant startOf(const CivilDay& day) {
    const Json request = jsonFromText(day.request);
    const TimeZone zone = *TimeZone::named(request["tz"].get<std::string>());
    return zone.lookup(LocalTime(std::chrono::local_days(*dateFromText(request["date"].get<std::string>()))))
        .change;
  }
};

TEST_F(CivilDaysTest, HaveTheEventsOfTheSwissEphemeris) {
  ErrorSummary elsewhere("events of civil days up to 66°", " s", 1.1), polar("nearer to the poles", " s", 2);
  const std::vector<CivilDay> days = civilDays();
  const std::vector<Json> answers = answersTo(days);
  ASSERT_EQ(answers.size(), days.size());
  EXPECT_GE(days.size(), 3000U);
  for (std::size_t i = 0; i < days.size(); ++i) {
    const CivilDay& day = days[i];
    const std::vector<Timed> events = eventsOf(answers[i], startOf(day));
    ASSERT_EQ(lettersOf(events), lettersOf(day.events)) << day.where << ' ' << day.request;
    ErrorSummary& errors = std::abs(day.latitude) < 66 ? elsewhere : polar;
    for (std::size_t k = 0; k < events.size(); ++k)
      errors.add(events[k].seconds - day.events[k].seconds, day.where + " " + events[k].letter);
  }
  elsewhere.print();
  polar.print();
  EXPECT_LE(elsewhere.rms(), 0.4);  // of instants to the second 0.29
  EXPECT_LE(polar.rms(), 0.4);
}

TEST_F(CivilDaysTest, HoldDaysOfEveryLength) {
  std::map<double, int> lengths;
  for (const CivilDay& day : civilDays()) ++lengths[day.hours];
  for (const double hours : {23.0, 23.5, 24.0, 24.5, 25.0}) EXPECT_GT(lengths[hours], 10) << hours;
}

}  // namespace
}  // namespace velmora::app
