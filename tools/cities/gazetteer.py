"""The places of GeoNames as the table takes them over: cities of more than 15,000 people, and capitals."""

import dataclasses
import json

LEAST_PEOPLE = 15_000

# Parts of a city, and places that are no more: another city's name and people, or nobody's.
NO_CITIES = {"PPLX", "PPLH", "PPLQ", "PPLW"}

# Where the gazetteer's zone is not that of the clocks there, by the region or the place's number.
REGION_ZONES = {("CL", "02"): "America/Coyhaique"}  # since 2025
PLACE_ZONES = {
    1521368: "Asia/Qyzylorda",  # Baikonur
    1513331: "Asia/Tashkent",  # Quvasoy
    3662075: "America/Eirunepe",  # Tabatinga
    3514868: "America/Matamoros",  # Valle Hermoso
    3520271: "America/Matamoros",  # Ciudad Río Bravo
    3530590: "America/Matamoros",  # Ciudad Miguel Alemán
    3995050: "America/Matamoros",  # Nava
    4266307: "America/Indiana/Vincennes",  # Vincennes
}


@dataclasses.dataclass
class Place:
    number: int
    name: str
    ascii_name: str
    other_names: list
    latitude: float
    longitude: float
    kind: str
    country: str
    region: str
    people: int
    zone: str
    zone_names: list = dataclasses.field(default_factory=list)  # of its zone, if it is the principal city

    def is_city(self):
        if self.kind in NO_CITIES:
            return False
        return self.people > LEAST_PEOPLE or self.kind == "PPLC"


def place_of_row(row):
    """One line of GeoNames' dump: 19 fields divided by tabs."""
    field = row.rstrip("\n").split("\t")
    number, country, region = int(field[0]), field[8], field[10]
    zone = PLACE_ZONES.get(number) or REGION_ZONES.get((country, region)) or field[17]
    return Place(
        number=number, name=field[1], ascii_name=field[2],
        other_names=[name for name in field[3].split(",") if name],
        latitude=float(field[4]), longitude=float(field[5]), kind=field[7],
        country=country, region=region, people=int(field[14]), zone=zone)


def read_places(path):
    with open(path, encoding="utf-8") as rows:
        return [place_of_row(row) for row in rows]


def read_regions(path):
    """The English names of the first divisions of countries: ("US", "ME") is Maine."""
    with open(path, encoding="utf-8") as file:
        return {tuple(region["code"].split(".", 1)): region["name"] for region in json.load(file)}
