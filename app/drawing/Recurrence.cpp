#include <app/drawing/Recurrence.h>

#include <algorithm>

#include <app/text/Errors.h>

namespace velmora::app {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month;
using std::chrono::year_month_day;
using DayCount = std::chrono::days;

constexpr int daysInWeek = 7, monthsInYear = 12;

/// From the first day to before the end.
struct Period {
  sys_days first, end;

  /// The day's number, from 1.
  int number(sys_days day) const { return static_cast<int>((day - first).count()) + 1; }
  /// The same from the end, from -1 down.
  int numberFromEnd(sys_days day) const { return -static_cast<int>((end - day).count()); }
};

sys_days weekOf(sys_days day, std::chrono::weekday weekStart) {
  return day - (std::chrono::weekday(day) - weekStart);
}

Period monthOf(sys_days day) {
  const year_month_day date(day);
  const year_month month = date.year() / date.month();
  return {month / 1, (month + std::chrono::months(1)) / 1};
}

Period yearOf(sys_days day) {
  const std::chrono::year year = year_month_day(day).year();
  return {year / 1 / 1, (year + std::chrono::years(1)) / 1 / 1};
}

bool holds(const std::vector<int>& numbers, int number) {
  return std::find(numbers.begin(), numbers.end(), number) != numbers.end();
}

bool isAmong(const std::vector<int>& numbers, sys_days day, const Period& period) {
  return numbers.empty() || holds(numbers, period.number(day)) || holds(numbers, period.numberFromEnd(day));
}

/// By the number of the week, the first of a year being that with four of its days.
bool isInWeeks(const std::vector<int>& weeks, sys_days day, std::chrono::weekday weekStart) {
  if (weeks.empty()) return true;
  const sys_days middle = weekOf(day, weekStart) + DayCount(3);
  const Period year = yearOf(middle);
  const int number = (year.number(middle) - 1) / daysInWeek + 1;
  const int fromEnd = (year.numberFromEnd(middle) + 1) / daysInWeek - 1;
  return holds(weeks, number) || holds(weeks, fromEnd);
}

/// Follows one rule from a start.
class Follower {
 public:
  Follower(const Recurrence& rule, sys_days start) : _rule(completed(rule, start)), _start(start) {}

  std::vector<sys_days> days(sys_days from, sys_days to, DaysToLookAt& limit) const {
    const sys_days last = _rule.until ? std::min(to, *_rule.until) : to;
    std::vector<sys_days> found;
    int count = 0;
    // What came before needs to be known only where it is counted.
    for (int index = _rule.count ? 0 : indexBefore(from);; ++index) {
      const Period period = periodAt(index);
      limit.takeOne();
      if (period.first > last) return found;
      for (const sys_days day : daysIn(period, limit)) {
        if (day < _start) continue;
        if (day > last || (_rule.count && ++count > *_rule.count)) return found;
        if (day >= from) found.push_back(day);
      }
    }
  }

 private:
  using Frequency = Recurrence::Frequency;

  /// With what the rule takes from the start where it says nothing.
  static Recurrence completed(Recurrence rule, sys_days start) {
    constexpr int longerThanAnyCalendar = 5000;  // years; more would leave the years that a date can have
    const year_month_day date(start);
    rule.interval = std::clamp(rule.interval, 1, longerThanAnyCalendar);
    const bool hasNoDays = rule.yearDays.empty() && rule.monthDays.empty() && rule.weekdays.empty();
    if (!hasNoDays) return rule;
    const auto dayOfMonth = static_cast<int>(static_cast<unsigned>(date.day()));
    if (rule.frequency == Frequency::weekly || !rule.weeks.empty()) {
      rule.weekdays = {{std::chrono::weekday(start), 0}};
    } else if (rule.frequency == Frequency::monthly || rule.frequency == Frequency::yearly) {
      rule.monthDays = {dayOfMonth};
      if (rule.frequency == Frequency::yearly && rule.months.empty())
        rule.months = {static_cast<int>(static_cast<unsigned>(date.month()))};
    }
    return rule;
  }

  Period periodAt(int index) const {
    const int ahead = index * _rule.interval;
    const year_month_day date(_start);
    const auto month = date.year() / date.month() + std::chrono::months(ahead);
    const auto year = date.year() + std::chrono::years(ahead);
    const sys_days week = weekOf(_start, _rule.weekStart) + DayCount(daysInWeek) * ahead;
    switch (_rule.frequency) {
      case Frequency::daily:
        return {_start + DayCount(ahead), _start + DayCount(ahead + 1)};
      case Frequency::weekly:
        return {week, week + DayCount(daysInWeek)};
      case Frequency::monthly:
        return monthOf(month / 1);
      case Frequency::yearly:
        return yearOf(year / 1 / 1);
    }
    return {};
  }

  /// Of a period that begins no later than the day, and is the first or near it.
  int indexBefore(sys_days day) const {
    constexpr int daysInYear = 366, daysInMonth = 31;
    const auto ahead = static_cast<int>((day - _start).count());
    const int length = _rule.frequency == Frequency::daily     ? 1
                       : _rule.frequency == Frequency::weekly  ? daysInWeek
                       : _rule.frequency == Frequency::monthly ? daysInMonth
                                                               : daysInYear;
    return std::max(ahead / length / _rule.interval - 1, 0);
  }

  std::vector<sys_days> daysIn(const Period& period, DaysToLookAt& limit) const {
    std::vector<sys_days> found;
    for (sys_days day = period.first; day < period.end; day += DayCount(1)) {
      limit.takeOne();
      if (matches(day)) found.push_back(day);
    }
    if (_rule.positions.empty()) return found;
    std::vector<sys_days> chosen;
    const auto size = static_cast<int>(found.size());
    for (int i = 0; i < size; ++i)
      if (holds(_rule.positions, i + 1) || holds(_rule.positions, i - size))
        chosen.push_back(found[static_cast<std::size_t>(i)]);
    return chosen;
  }

  bool matches(sys_days day) const {
    const auto month = static_cast<int>(static_cast<unsigned>(year_month_day(day).month()));
    return (_rule.months.empty() || holds(_rule.months, month)) &&
           isAmong(_rule.monthDays, day, monthOf(day)) && isAmong(_rule.yearDays, day, yearOf(day)) &&
           isInWeeks(_rule.weeks, day, _rule.weekStart) && isOnWeekday(day);
  }

  bool isOnWeekday(sys_days day) const {
    if (_rule.weekdays.empty()) return true;
    const bool isOfMonth = _rule.frequency == Frequency::monthly || !_rule.months.empty();
    const Period period = isOfMonth ? monthOf(day) : yearOf(day);
    const int number = (period.number(day) - 1) / daysInWeek + 1;
    const int fromEnd = (period.numberFromEnd(day) + 1) / daysInWeek - 1;
    return std::any_of(_rule.weekdays.begin(), _rule.weekdays.end(), [&](const Recurrence::Weekday& wanted) {
      const bool isTheOne = wanted.number == 0 || wanted.number == number || wanted.number == fromEnd;
      return wanted.day == std::chrono::weekday(day) && isTheOne;
    });
  }

  const Recurrence _rule;
  const sys_days _start;
};

}  // namespace

void DaysToLookAt::takeOne() {
  if (--_left < 0) throw BadInput("has events that recur too often to be followed");
}

std::vector<sys_days> Recurrence::days(sys_days start, sys_days from, sys_days to,
                                       DaysToLookAt& limit) const {
  return Follower(*this, start).days(from, to, limit);
}

}  // namespace velmora::app
