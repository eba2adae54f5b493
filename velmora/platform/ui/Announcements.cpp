#include <velmora/platform/ui/Announcements.h>

#include <utility>

namespace velmora {
namespace {

Announcements::Sink& currentSink() {
  static Announcements::Sink sink;
  return sink;
}

}  // namespace

void Announcements::post(const std::string& text) {
  const Sink sink = currentSink();  // a copy: the sink may replace itself
  if (sink) sink(text);
}

Announcements::Sink Announcements::setSink(Sink sink) {
  return std::exchange(currentSink(), std::move(sink));
}

ScopedAnnouncementSink::ScopedAnnouncementSink(Announcements::Sink sink)
    : _former(Announcements::setSink(std::move(sink))) {}

ScopedAnnouncementSink::~ScopedAnnouncementSink() { Announcements::setSink(std::move(_former)); }

}  // namespace velmora
