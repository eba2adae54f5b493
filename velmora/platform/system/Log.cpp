#include <velmora/platform/system/Log.h>

#include <cstdio>
#include <mutex>
#include <utility>

namespace velmora {
namespace {

std::mutex sinkMutex;

Log::Sink& sink() {
  static Log::Sink current;
  return current;
}

}  // namespace

void Log::write(std::string_view text) {
  Sink current;
  {
    const std::lock_guard lock(sinkMutex);
    current = sink();
  }
  if (current) {
    current(text);
  } else {
    const std::string line = std::string(text) + '\n';
    std::fwrite(line.data(), 1, line.size(), stderr);
  }
}

Log::Sink Log::setSink(Sink replacement) {
  const std::lock_guard lock(sinkMutex);
  return std::exchange(sink(), std::move(replacement));
}

ScopedLogRecord::ScopedLogRecord()
    : _former(Log::setSink([this](std::string_view text) { _messages.emplace_back(text); })) {}

ScopedLogRecord::~ScopedLogRecord() { Log::setSink(std::move(_former)); }

}  // namespace velmora
