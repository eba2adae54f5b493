"""The time zone database's own lists: zones with their principal cities, names of old, countries."""

import dataclasses
import math
import re

from spelling import folded

FARTHEST = 150.0  # km between a zone's principal city in the two sources

# What zones of cities begin with; the others, such as US/Pacific, are named after regions.
AREAS = {"Africa", "America", "Antarctica", "Arctic", "Asia", "Atlantic", "Australia", "Europe", "Indian",
         "Pacific"}

# Names of old that tzdata.zi links to a zone of the same clocks far away.
NEARER_ZONES = {
    "Africa/Asmera": "Africa/Asmara", "Africa/Timbuktu": "Africa/Bamako",
    "America/Coral_Harbour": "America/Atikokan", "America/Virgin": "America/St_Thomas",
    "Atlantic/Jan_Mayen": "Arctic/Longyearbyen", "Pacific/Ponape": "Pacific/Pohnpei",
    "Pacific/Truk": "Pacific/Chuuk", "Pacific/Yap": "Pacific/Chuuk",
}


def city_name(zone_name):
    return zone_name.rsplit("/", 1)[1].replace("_", " ")


@dataclasses.dataclass
class Zone:
    name: str
    countries: list
    latitude: float
    longitude: float

    def city_name(self):
        return city_name(self.name)


def degrees(text, digits):
    """"+DDMM", "-DDDMMSS" and the like."""
    whole, minutes, seconds = text[1:1 + digits], text[1 + digits:3 + digits], text[3 + digits:] or "0"
    size = int(whole) + int(minutes) / 60 + int(seconds) / 3600
    return -size if text[0] == "-" else size


def lines(path):
    with open(path, encoding="utf-8") as file:
        return [line.rstrip("\n") for line in file if not line.startswith("#")]


def read_zones(folder):
    zones = []
    for line in lines(f"{folder}/zone.tab"):
        countries, coordinates, name = line.split("\t")[:3]
        latitude, longitude = re.fullmatch(r"([+-]\d+)([+-]\d+)", coordinates).groups()
        zones.append(Zone(name, countries.split(","), degrees(latitude, 2), degrees(longitude, 3)))
    return zones


def read_links(folder):
    """The other names of zones: {"Asia/Calcutta": "Asia/Kolkata"}."""
    fields = (line.split() for line in lines(f"{folder}/tzdata.zi"))
    return {link[2]: link[1] for link in fields if link and link[0] == "L"} | NEARER_ZONES


def read_countries(folder):
    return dict(line.split("\t") for line in lines(f"{folder}/iso3166.tab"))


class ZoneNames:
    """Which names there are, and which zone of zone.tab each stands for."""

    def __init__(self, zones, links):
        self._listed = {zone.name for zone in zones}
        self._links = links

    def zone_of(self, name):
        while name not in self._listed and name in self._links:
            name = self._links[name]
        return name

    def all(self):
        linked = [name for name in self._links if "/" in name and self.zone_of(name) in self._listed]
        return sorted({*self._listed, *linked})


def zone_of_place(place, names, zones_of_country):
    """The gazetteer's, but never another country's where the country has one only."""
    zone, own = names.zone_of(place.zone), zones_of_country.get(place.country, [])
    return own[0] if len(own) == 1 else zone


def distance(place, zone):
    """In km, on a sphere."""
    a, b = math.radians(place.latitude), math.radians(zone.latitude)
    cosine = math.sin(a) * math.sin(b) + math.cos(a) * math.cos(b) * math.cos(
        math.radians(place.longitude - zone.longitude))
    return 6371 * math.acos(max(-1, min(1, cosine)))


def principal_place(zone, places_by_key):
    """The most populous place of the zone's name, near where zone.tab has it."""
    near = [place for place in places_by_key.get(folded(zone.city_name()), [])
            if place.country in zone.countries and distance(place, zone) < FARTHEST]
    return max(near, key=lambda place: place.people, default=None)
