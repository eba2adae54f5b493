#pragma once

#include <memory>
#include <string>
#include <vector>

#include <app/answers/Query.h>
#include <velmora/service/EclipseInfo.h>

namespace velmora::app {

/// An eclipse of the catalogue, and whether the eclipsed Sun or Moon is up at the place at its instant. Where
/// the Moon's shadow falls is not computed.
struct SeenEclipse {
  std::shared_ptr<const EclipseInfo> eclipse;
  bool isVisible;
};

/// The earliest eclipse of the day that is visible at the place; none if there is none. Throws Failure if the
/// catalogue cannot be read.
std::shared_ptr<const EclipseInfo> visibleEclipse(CivilDate day, const Place& place);

/// The eclipses of the whole Earth whose day at the place lies in the year. Throws Failure as above.
std::vector<SeenEclipse> eclipsesOfYear(std::chrono::year year, const Place& place);

/// The record's properties by their names; null without an eclipse.
Json eclipseJson(const EclipseInfo* eclipse);

/// "Total Solar Eclipse" in the user's language; the bare code where it is not known.
std::string eclipseTitle(const EclipseInfo& eclipse);

/// What "visible" leaves open of a solar eclipse, a line for people.
extern const char* const shadowNote;

}  // namespace velmora::app
