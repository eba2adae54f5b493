#include <velmora/platform/ui/Device.h>

#include <velmora/platform/time/Locale.h>

namespace velmora {
namespace {

Device& currentDevice() {
  static Device device;
  return device;
}

}  // namespace

LayoutDirection Device::layoutDirection() const {
  if (forcedDirection) return *forcedDirection;
  return Locale::current().isRightToLeft() ? LayoutDirection::rightToLeft : LayoutDirection::leftToRight;
}

const Device& Device::current() { return currentDevice(); }

void Device::setCurrent(const Device& device) { currentDevice() = device; }

ScopedDevice::ScopedDevice(const Device& device) : _former(Device::current()) { Device::setCurrent(device); }

ScopedDevice::~ScopedDevice() { Device::setCurrent(_former); }

}  // namespace velmora
