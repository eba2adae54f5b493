#include <app/answers/SeenEclipses.h>
#include <app/text/ValueTexts.h>

namespace velmora::app {
namespace {

using almanac::Body;
using almanac::ContactName;
using almanac::EclipseKind;

const char* nameOf(EclipseKind kind) {
  switch (kind) {
    case EclipseKind::total:
      return "total";
    case EclipseKind::annular:
      return "annular";
    case EclipseKind::hybrid:
      return "hybrid";
    case EclipseKind::partial:
      return "partial";
    case EclipseKind::penumbral:
      return "penumbral";
  }
  return "";
}

const char* nameOf(ContactName contact) {
  switch (contact) {
    case ContactName::C1:
      return "C1";
    case ContactName::C2:
      return "C2";
    case ContactName::C3:
      return "C3";
    case ContactName::C4:
      return "C4";
    case ContactName::P1:
      return "P1";
    case ContactName::U1:
      return "U1";
    case ContactName::U2:
      return "U2";
    case ContactName::U3:
      return "U3";
    case ContactName::U4:
      return "U4";
    case ContactName::P4:
      return "P4";
  }
  return "";
}

Json momentJson(const almanac::EclipseMoment& moment) {
  return {{"instant", instantText(moment.at)},
          {"altitude", moment.altitude},
          {"azimuth", moment.azimuth},
          {"isUp", moment.isUp}};
}

Json localJson(const almanac::LocalEclipse& local) {
  Json json{{"kind", nameOf(seenKind(local))}, {"magnitude", local.magnitude}};
  if (local.body == Body::sun) json["obscuration"] = local.obscuration;
  json["maximum"] = momentJson(local.maximum);
  json["contacts"] = Json::array();
  for (const almanac::Contact& contact : local.contacts) {
    Json named{{"name", nameOf(contact.name)}};
    named.update(momentJson(contact.moment));
    json["contacts"].push_back(named);
  }
  return json;
}

}  // namespace

Json eclipseJson(const std::optional<SeenEclipse>& seen) {
  if (!seen) return nullptr;
  const almanac::Eclipse& eclipse = seen->eclipse;
  return {{"key", eclipseKey(eclipse)},
          {"title", eclipseTitle(eclipse)},
          {"datetime", instantText(eclipse.maximum)},
          {"isLunarEvent", eclipse.body == Body::moon},
          {"isVisible", seen->isVisible()},
          {"local", seen->isVisible() ? localJson(*seen->local) : Json(nullptr)}};
}

const std::vector<std::string>& eclipseColumns() {
  static const std::vector<std::string> names = {
      "key",     "title",    "datetime", "isLunarEvent", "isVisible", "kind", "magnitude", "obscuration",
      "maximum", "altitude", "azimuth",  "isUp",         "C1",        "C2",   "C3",        "C4",
      "P1",      "U1",       "U2",       "U3",           "U4",        "P4"};
  return names;
}

Json eclipseRow(const SeenEclipse& eclipse) {
  Json row = eclipseJson(eclipse);
  if (!eclipse.isVisible()) return row;
  const Json local = row["local"];
  row.update({{"kind", local["kind"]}, {"magnitude", local["magnitude"]}});
  if (local.contains("obscuration")) row["obscuration"] = local["obscuration"];
  row.update({{"maximum", local["maximum"]["instant"]},
              {"altitude", local["maximum"]["altitude"]},
              {"azimuth", local["maximum"]["azimuth"]},
              {"isUp", local["maximum"]["isUp"]}});
  for (const Json& contact : local["contacts"]) row[contact["name"].get<std::string>()] = contact["instant"];
  return row;
}

}  // namespace velmora::app
