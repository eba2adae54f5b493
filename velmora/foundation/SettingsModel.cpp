#include <velmora/foundation/SettingsModel.h>

#include <atomic>
#include <mutex>

namespace velmora {
namespace {

std::mutex creationMutex;
std::atomic<SettingsModel*> instance{nullptr};
std::atomic<bool> tabletFlag{false};

}  // namespace

SettingsModel& SettingsModel::sharedInstance() {
  // Tested once without and once with the lock, so that the lock is taken only while there is no instance.
  SettingsModel* existing = instance.load(std::memory_order_acquire);
  if (existing != nullptr) return *existing;

  const std::lock_guard lock(creationMutex);
  existing = instance.load(std::memory_order_relaxed);
  if (existing == nullptr) {
    existing = new SettingsModel;  // lives until the process ends
    instance.store(existing, std::memory_order_release);
  }
  return *existing;
}

bool SettingsModel::isIPad() { return tabletFlag; }

void SettingsModel::setIsIPad(bool isTablet) { tabletFlag = isTablet; }

}  // namespace velmora
