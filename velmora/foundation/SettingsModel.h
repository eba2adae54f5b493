#pragma once

#include <cstdint>

namespace velmora {

/// The process-wide display preferences. The host application sets them and stores them between runs; the
/// library reads `timeFormat` alone. Reads and writes of the properties are unsynchronised.
class SettingsModel {
 public:
  /// The one instance, made on the first call. May be called from any thread.
  static SettingsModel& sharedInstance();

  /// Whether the device is a tablet, as the embedding device said; a phone until it says otherwise.
  static bool isIPad();
  /// For the embedding device: says once, before the first view is made, whether it is a tablet.
  static void setIsIPad(bool isTablet);

  SettingsModel(const SettingsModel&) = delete;
  SettingsModel& operator=(const SettingsModel&) = delete;

  /// For the host application: the library reads none of these.
  std::int64_t mapMode() const { return _mapMode; }
  void setMapMode(std::int64_t value) { _mapMode = value; }
  std::int64_t mapProvider() const { return _mapProvider; }
  void setMapProvider(std::int64_t value) { _mapProvider = value; }
  std::int64_t mapOrientation() const { return _mapOrientation; }
  void setMapOrientation(std::int64_t value) { _mapOrientation = value; }
  std::int64_t units() const { return _units; }
  void setUnits(std::int64_t value) { _units = value; }
  bool disableScreenOrientation() const { return _disableScreenOrientation; }
  void setDisableScreenOrientation(bool value) { _disableScreenOrientation = value; }

  /// The clock form of the astronomy's texts: exactly 1 is the 24-hour form, every other value the 12-hour
  /// one.
  std::int64_t timeFormat() const { return _timeFormat; }
  void setTimeFormat(std::int64_t value) { _timeFormat = value; }

 private:
  SettingsModel() = default;

  std::int64_t _mapMode = 0;
  std::int64_t _mapProvider = 0;
  std::int64_t _mapOrientation = 0;
  std::int64_t _timeFormat = 0;
  std::int64_t _units = 0;
  bool _disableScreenOrientation = false;
};

}  // namespace velmora
