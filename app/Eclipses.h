#pragma once

#include <memory>
#include <string>
#include <vector>

#include <app/commands/Command.h>
#include <velmora/service/EclipseInfo.h>

namespace velmora::app {

/// An eclipse of the catalogue, and whether what is eclipsed is up at the place then.
struct SeenEclipse {
  std::shared_ptr<const EclipseInfo> eclipse;
  bool isVisible;
};

/// The eclipse that is visible at the place on the day; none if there is none. Throws Failure if the
/// catalogue cannot be read.
std::shared_ptr<const EclipseInfo> visibleEclipse(CivilDate day, const Place& place);

/// The eclipses of the whole Earth whose day at the place lies in the year. Throws Failure as above.
std::vector<SeenEclipse> eclipsesOfYear(std::chrono::year year, const Place& place);

/// The record's properties by their names; null without an eclipse.
Json eclipseJson(const EclipseInfo* eclipse);

/// "Total Solar Eclipse" in the user's language; the bare code where it is not known.
std::string eclipseTitle(const EclipseInfo& eclipse);

}  // namespace velmora::app
