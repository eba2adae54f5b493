#include <algorithm>
#include <cmath>

#include <app/answers/SeenEclipses.h>
#include <app/answers/SkyPositions.h>
#include <app/text/ClockText.h>
#include <app/text/TextTable.h>
#include <app/text/ValueTexts.h>
#include <velmora/platform/resources/Words.h>
#include <velmora/platform/time/NumberText.h>

namespace velmora::app {
namespace {

using almanac::Body;
using almanac::ContactName;
using almanac::EclipseKind;
using almanac::LocalEclipse;

std::string kindWord(EclipseKind kind) {
  switch (kind) {
    case EclipseKind::total:
      return words("total");
    case EclipseKind::annular:
      return words("annular");
    case EclipseKind::hybrid:
      return words("hybrid");
    case EclipseKind::partial:
      return words("partial");
    case EclipseKind::penumbral:
      return words("penumbral");
  }
  return "";
}

std::string momentWord(ContactName contact) {
  switch (contact) {
    case ContactName::C1:
    case ContactName::U1:
      return words("Partial phase begins");
    case ContactName::C2:
    case ContactName::U2:
      return words("Total phase begins");
    case ContactName::C3:
    case ContactName::U3:
      return words("Total phase ends");
    case ContactName::C4:
    case ContactName::U4:
      return words("Partial phase ends");
    case ContactName::P1:
      return words("Penumbral phase begins");
    case ContactName::P4:
      return words("Penumbral phase ends");
  }
  return "";
}

std::string momentWord(const almanac::Contact& contact, EclipseKind kind) {
  if (kind == EclipseKind::annular && contact.name == ContactName::C2) return words("Annular phase begins");
  if (kind == EclipseKind::annular && contact.name == ContactName::C3) return words("Annular phase ends");
  return momentWord(contact.name);
}

/// The first and the last contact of what counts as seen.
ContactName firstOfShadow(const LocalEclipse& local) {
  return local.kind == EclipseKind::penumbral ? ContactName::P1 : ContactName::U1;
}
ContactName lastOfShadow(const LocalEclipse& local) {
  return local.kind == EclipseKind::penumbral ? ContactName::P4 : ContactName::U4;
}

bool isBelowAt(const LocalEclipse& local, ContactName name) {
  return std::any_of(local.contacts.begin(), local.contacts.end(), [&](const almanac::Contact& contact) {
    return contact.name == name && !contact.moment.isUp;
  });
}

/// Which part lies below the horizon; empty for none.
std::string hiddenText(const LocalEclipse& local) {
  const bool isSolar = local.body == Body::sun;
  const bool risesDuring = isBelowAt(local, isSolar ? ContactName::C1 : firstOfShadow(local));
  const bool setsDuring = isBelowAt(local, isSolar ? ContactName::C4 : lastOfShadow(local));
  if (risesDuring && setsDuring) return words("partly below the horizon");
  if (risesDuring) return isSolar ? words("partly before sunrise") : words("partly before moonrise");
  if (setsDuring) return isSolar ? words("partly after sunset") : words("partly after moonset");
  return "";
}

std::string withHidden(const std::string& text, const std::string& hidden) {
  return hidden.empty() ? text : words("%1, %2", {text, hidden});
}

/// The part, a step below 1 at most where it falls short of the whole, so that it is not rounded up to it.
double shortOfWhole(double part, double step) { return part < 1 ? std::min(part, 1 - step) : part; }

std::string magnitudeText(const LocalEclipse& local, int fractionDigits) {
  return decimalText(shortOfWhole(local.bestMagnitude, std::pow(10, -fractionDigits)), fractionDigits);
}

/// The covered part of the Sun's disc where the maximum is seen, in whole percent; none below one half.
std::optional<std::string> coverText(const LocalEclipse& local) {
  constexpr double percent = 0.01;
  if (local.body != Body::sun || !local.maximum.isUp || local.obscuration < percent / 2) return std::nullopt;
  return percentText(shortOfWhole(local.obscuration, percent));
}

/// "partial 36%": of a partial eclipse of the Sun the covered part of its disc, of the Moon the magnitude.
std::string sizeText(const LocalEclipse& local) {
  const EclipseKind kind = seenKind(local);
  if (kind != EclipseKind::partial) return kindWord(kind);
  return kindWord(kind) + " " + coverText(local).value_or(magnitudeText(local, 2));
}

/// The same in a sentence.
std::string sizeSentence(const LocalEclipse& local) {
  const std::string magnitude = magnitudeText(local, 3);
  const auto cover = coverText(local);
  return cover ? words("magnitude %1, %2 of the Sun covered", {magnitude, *cover})
               : words("magnitude %1", {magnitude});
}

void addMoment(TextTable& table, const std::string& what, const almanac::EclipseMoment& moment,
               const Query& query) {
  table.add({what, clockTextToTheSecond(moment.at, query.place.zone, query.use24HourClock),
             moment.isUp ? degreesText(moment.altitude) : words("below the horizon"),
             moment.isUp ? compassPoint(moment.azimuth) : ""});
}

}  // namespace

std::string seenText(const SeenEclipse& seen) {
  if (!seen.isVisible()) return words("not seen from here");
  const LocalEclipse& local = *seen.local;
  return withHidden(sizeText(local), hiddenText(local));
}

std::string momentsText(const LocalEclipse& local, const Query& query) {
  TextTable table({"", words("Time"), words("Elevation"), words("Direction")});
  bool hasMaximum = false;
  for (const almanac::Contact& contact : local.contacts) {
    if (!hasMaximum && contact.moment.at > local.maximum.at) {
      addMoment(table, words("Maximum"), local.maximum, query);
      hasMaximum = true;
    }
    addMoment(table, momentWord(contact, local.kind), contact.moment, query);
  }
  return table.text(query.boldHeadings);
}

std::string describedInLines(const SeenEclipse& seen, const Query& query) {
  if (!seen.isVisible()) return words("Not seen from here.");
  const LocalEclipse& local = *seen.local;
  const auto clock = [&](Instant at) { return localText(at, query.place.zone, query.use24HourClock); };
  return words("Seen from here: %1, %2.",
               {withHidden(kindWord(seenKind(local)), hiddenText(local)), sizeSentence(local)}) +
         "\n" +
         words("From %1 to %2, most at %3.",
               {clock(local.visibleFrom), clock(local.visibleTo), clock(local.best.at)});
}

}  // namespace velmora::app
