#pragma once

#include <cstdint>
#include <iostream>

#include <velmora/platform/resources/Bundle.h>
#include <velmora/service/MoonPhaseData.h>

/// Selects the day and says whether the library has a table for it; says what is missing where it has not.
inline bool selectDay(velmora::MoonPhaseData& moon, std::int64_t day, std::int64_t month, std::int64_t year) {
  moon.changeSelectedDay(day, month, year);
  const bool isSelected =
      moon.currentDay() == day && moon.currentMonth() == month && moon.currentYear() == year;
  if (isSelected && moon.rawDataDictionary()) return true;
  std::cerr << "no table for " << year << '-' << month << '-' << day << " in "
            << velmora::Bundle::library().directory() << "; there are tables for 2000 to 2040\n";
  return false;
}
