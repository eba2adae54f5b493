#pragma once

#include <optional>
#include <utility>

namespace velmora {

/// The values that the views make once and keep for the process: text attributes, labels, formatters. They
/// stay as first made, whatever happens to locale, screen or place afterwards. For the main thread only.
class ProcessValues {
 public:
  /// Forgets them all, the calendar's kept names included: for tests, and for a host between requests that
  /// have nothing to do with each other.
  static void resetAll();

 protected:
  ProcessValues();
  ~ProcessValues();
  ProcessValues(const ProcessValues&) = delete;
  ProcessValues& operator=(const ProcessValues&) = delete;

 private:
  virtual void reset() = 0;
};

/// One such value, made where it is first asked for:
///
///     static OncePerProcess<TextAttributes> attributes;
///     return attributes.get([] { return TextAttributes{.font = Font::systemFont(13)}; });
template <class Value>
class OncePerProcess final : private ProcessValues {
 public:
  /// The kept value; the first time, and the first time after a reset, the one that `make` returns.
  template <class Make>
  Value& get(Make&& make) {
    if (!_value) _value.emplace(std::forward<Make>(make)());
    return *_value;
  }

 private:
  void reset() override { _value.reset(); }

  std::optional<Value> _value;
};

}  // namespace velmora
