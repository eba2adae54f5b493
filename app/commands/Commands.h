#pragma once

#include <app/answers/Query.h>

namespace velmora::app {

/// How the command of that name is answered; none for one that is answered elsewhere.
const Answer* findAnswer(std::string_view command);

// One source file each.
extern const Answer todayAnswer;      ///< the day at a glance: the Moon, rise, set, twilight, positions
extern const Answer monthAnswer;      ///< each day of a month
extern const Answer yearAnswer;       ///< the principal phases of a year, month by month
extern const Answer phasesAnswer;     ///< those of a range of days
extern const Answer nextAnswer;       ///< what comes next
extern const Answer riseSetAnswer;    ///< rise, set and twilight of each day of a range, or of one day
extern const Answer positionAnswer;   ///< where the Sun or the Moon stands at one moment
extern const Answer trackAnswer;      ///< its path through a day
extern const Answer elevationAnswer;  ///< when it crosses an elevation
extern const Answer eclipseAnswer;    ///< the eclipse of a day
extern const Answer eclipsesAnswer;   ///< those of a year
extern const Answer icsAnswer;        ///< phases and eclipses as a calendar file
extern const Answer ownPlaceAnswer;   ///< the place of commands that name none

}  // namespace velmora::app
