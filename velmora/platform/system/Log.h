#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace velmora {

/// Where the library's messages go: one replaceable sink, standard error unless a host sets another.
class Log {
 public:
  /// Takes one message, without a line end.
  using Sink = std::function<void(std::string_view text)>;

  /// Hands one message, without a line end, to the sink.
  static void write(std::string_view text);

  /// Puts another sink in place and returns the one that was there. An empty sink is standard error.
  static Sink setSink(Sink sink);
};

/// Records the messages written while it lives, then restores the former sink.
class ScopedLogRecord {
 public:
  ScopedLogRecord();
  ~ScopedLogRecord();
  ScopedLogRecord(const ScopedLogRecord&) = delete;
  ScopedLogRecord& operator=(const ScopedLogRecord&) = delete;

  /// The messages so far, oldest first.
  const std::vector<std::string>& messages() const { return _messages; }

 private:
  std::vector<std::string> _messages;
  Log::Sink _former;
};

}  // namespace velmora
