#pragma once

#include <string>

#include <app/text/CivilTime.h>

namespace velmora::app {

/// How much of a date is written out.
enum class DateForm {
  weekday,       ///< "Thu", with blanks behind where other weekdays are wider
  month,         ///< "June"
  monthAndYear,  ///< "June 2024"
  whole          ///< "Thursday 20 June 2024"
};

/// The date in the language of the words around it.
std::string localDate(CivilDate date, DateForm form);

}  // namespace velmora::app
