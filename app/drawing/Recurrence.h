#pragma once

#include <chrono>
#include <optional>
#include <vector>

namespace velmora::app {

/// How many days may still be looked at, so that no file takes longer than it is worth.
class DaysToLookAt {
 public:
  explicit DaysToLookAt(int left) : _left(left) {}

  /// Throws BadInput where none is left.
  void takeOne();

 private:
  int _left;
};

/// On which days an event recurs (RFC 5545, 3.3.10). Numbers below 0 count from the end.
struct Recurrence {
  enum class Frequency { daily, weekly, monthly, yearly };
  struct Weekday {
    std::chrono::weekday day;
    int number;  ///< of those in the month or the year; 0: each
  };

  Frequency frequency = Frequency::yearly;
  int interval = 1;
  std::optional<int> count = {};
  std::optional<std::chrono::sys_days> until = {};  ///< the last day
  std::vector<int> months = {}, weeks = {}, yearDays = {}, monthDays = {};
  std::vector<Weekday> weekdays = {};
  std::vector<int> positions = {};  ///< among the days of a period
  std::chrono::weekday weekStart = std::chrono::Monday;

  /// The days from the one to the other on which an event that begins at `start` recurs, in order.
  std::vector<std::chrono::sys_days> days(std::chrono::sys_days start, std::chrono::sys_days from,
                                          std::chrono::sys_days to, DaysToLookAt& limit) const;
};

}  // namespace velmora::app
