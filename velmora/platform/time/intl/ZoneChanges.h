#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <mutex>
#include <optional>
#include <vector>

namespace [[gnu::visibility("hidden")]] velmora {

/// What an engine returns for one zone; times are whole seconds since 1970.
struct ZoneQuestions {
  std::function<std::int64_t(std::int64_t)> offset;
  /// The next change after a time; the largest number if there is none, none where the engine cannot say.
  std::function<std::optional<std::int64_t>(std::int64_t)> nextChange;
};

/// A change of a zone's offset from GMT.
struct ZoneChange {
  std::int64_t at;
  std::int64_t before, after;  ///< offsets in seconds
};

/// The changes of one zone, found by its offsets and kept year by year. Usable from any thread.
class ZoneChanges {
 public:
  explicit ZoneChanges(ZoneQuestions questions) : _questions(std::move(questions)) {}

  /// The offset in force at the time, that of the change itself included.
  std::int64_t offset(std::int64_t time) const;

  /// The changes in [from, to), in order.
  std::vector<ZoneChange> between(std::int64_t from, std::int64_t to) const;

 private:
  struct Year {
    std::int64_t firstOffset;
    std::vector<ZoneChange> changes;
  };

  const Year& year(std::int64_t number) const;
  Year searched(std::int64_t number) const;
  std::vector<ZoneChange> changes(std::int64_t from, std::int64_t to) const;
  std::int64_t bisected(std::int64_t from, std::int64_t to, std::int64_t offsetBefore) const;

  ZoneQuestions _questions;
  mutable std::mutex _mutex;
  mutable std::map<std::int64_t, Year> _years;
};

}  // namespace velmora
