#pragma once

#include <functional>
#include <string>

namespace velmora {

/// Sentences that a screen reader is to speak. A host puts a sink in place that hands them on; without one
/// they are dropped. For the main thread only.
class Announcements {
 public:
  /// Takes one sentence.
  using Sink = std::function<void(const std::string& text)>;

  /// Hands the text to the sink.
  static void post(const std::string& text);

  /// Puts another sink in place and returns the one that was there. An empty sink drops every text.
  static Sink setSink(Sink sink);
};

/// Sends the announcements elsewhere for as long as it lives, then puts the former sink back.
class ScopedAnnouncementSink {
 public:
  /// Puts the sink in place.
  explicit ScopedAnnouncementSink(Announcements::Sink sink);
  ~ScopedAnnouncementSink();
  ScopedAnnouncementSink(const ScopedAnnouncementSink&) = delete;
  ScopedAnnouncementSink& operator=(const ScopedAnnouncementSink&) = delete;

 private:
  Announcements::Sink _former;
};

}  // namespace velmora
