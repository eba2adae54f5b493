#pragma once

#include <optional>

namespace velmora {

/// The side on which reading starts.
enum class LayoutDirection { leftToRight, rightToLeft };

/// What the embedding device says of its screen. Whether it is a tablet stands in SettingsModel.
struct Device {
  double screenWidth = 390;  ///< in points
  double screenScale = 1;    ///< pixels a point
  /// The direction that the host wants whatever the language; none follows the process's locale.
  std::optional<LayoutDirection> forcedDirection = std::nullopt;

  /// The direction of layouts: the forced one, else that of the process's locale.
  LayoutDirection layoutDirection() const;

  /// The device the process draws for, as last set. For the main thread only.
  static const Device& current();
  static void setCurrent(const Device& device);

  friend bool operator==(const Device&, const Device&) = default;
};

/// Sets the device for as long as it lives, then puts the former one back.
class ScopedDevice {
 public:
  /// Sets the device.
  explicit ScopedDevice(const Device& device);
  ~ScopedDevice();
  ScopedDevice(const ScopedDevice&) = delete;
  ScopedDevice& operator=(const ScopedDevice&) = delete;

 private:
  Device _former;
};

}  // namespace velmora
