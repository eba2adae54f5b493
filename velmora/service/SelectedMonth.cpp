#include <algorithm>

#include <velmora/platform/resources/Bundle.h>
#include <velmora/service/MoonPhaseData.h>
#include <velmora/service/PictureName.h>

namespace velmora {

std::shared_ptr<const MoonPhaseCalc::ImageCalendar> MoonPhaseData::currentMonthImageDictionary() {
  if (_rawDataDictionary && !_currentImageDictionary) {
    _currentImageDictionary = std::make_shared<const ImageCalendar>(
        MoonPhaseCalc::GetImageCalendar(*_rawDataDictionary, _currentMonth - 1, _currentYear,
                                        _currentDate.value_or(Instant()), place(), _use24HrTimeFormat));
  }
  return _currentImageDictionary;
}

std::shared_ptr<const MoonPhaseCalc::PhaseCalendar> MoonPhaseData::currentMonthPhaseDictionary() {
  if (_rawDataDictionary && !_currentPhaseDictionary) _currentPhaseDictionary = phasesOfMonth();
  return _currentPhaseDictionary;
}

/// The phases of the selected month, made anew; needs a table.
std::shared_ptr<const MoonPhaseCalc::PhaseCalendar> MoonPhaseData::phasesOfMonth() const {
  return std::make_shared<const PhaseCalendar>(
      MoonPhaseCalc::GetPhaseCalendar(*_rawDataDictionary, _currentMonth - 1, _currentYear,
                                      _currentDate.value_or(Instant()), place(), _use24HrTimeFormat));
}

std::shared_ptr<const MoonPhaseCalc::PhaseCalendar> MoonPhaseData::monthPhaseDictionaryForDate(
    Instant date) const {
  if (!_rawDataDictionary) return nullptr;
  const DateComponents split = _calendar.components(date);
  return std::make_shared<const PhaseCalendar>(MoonPhaseCalc::GetPhaseCalendar(
      *_rawDataDictionary, split.month - 1, split.year, date, place(), _use24HrTimeFormat));
}

std::shared_ptr<MonthDataItem> MoonPhaseData::monthDataItemForCurrentDay() const {
  const MoonPhaseData& shared = sharedInstance();
  const MonthEvents& events = shared.currentMonthPhases();
  const auto found = std::find_if(events.begin(), events.end(),
                                  [&](const auto& event) { return event->day == shared.currentDay(); });
  return found == events.end() ? nullptr : *found;
}

std::optional<std::string> MoonPhaseData::nameForPhase(std::int64_t phase) const {
  return MoonPhaseCalc::nameForPhase(phase);
}

bool MoonPhaseData::isSouthernHemisphere() const { return place().latitude < 0.0; }

float MoonPhaseData::phaseFullFactorForCurrentDay() const { return 0.2F; }

std::shared_ptr<const Image> MoonPhaseData::phaseImagePlaceholder() {
  if (!_placeHolderImage) _placeHolderImage = Bundle::library().image("IMG_20");
  return _placeHolderImage;
}

std::shared_ptr<const Image> MoonPhaseData::phaseImageForCurrentDate() const {
  MoonPhaseData& shared = sharedInstance();
  const auto pictures = shared.currentMonthImageDictionary();
  std::int64_t number = 0;
  if (pictures) {
    const auto found = pictures->find(shared.currentDay());
    if (found != pictures->end()) number = found->second;
  }
  auto image = Bundle::library().image(pictureName(number));
  return image && isSouthernHemisphere() ? image->mirrored() : image;
}

}  // namespace velmora
