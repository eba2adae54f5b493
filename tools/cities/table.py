"""Writes the table of cities in the form that docs/data.md describes and velmora/cities reads."""

import collections
import unicodedata

from spelling import folded

NONE = 0xFFFF
BLOCK = 16  # keys
ONE_BYTE_SYMBOLS = 238  # the rest have two, the first of them from 239 on
LONGEST_FOLD = 4  # bytes


class Alphabet:
    """The letters of keys as bytes, the most frequent in one, the others in two."""

    def __init__(self, keys):
        counts = collections.Counter(letter for key in keys for letter in key)
        ranked = sorted(counts, key=lambda letter: (-counts[letter], letter))
        self._bytes = {letter: self._symbol(rank) for rank, letter in enumerate(ranked)}

    @staticmethod
    def _symbol(rank):
        if rank < ONE_BYTE_SYMBOLS:
            return bytes([rank + 1])
        high, low = divmod(rank - ONE_BYTE_SYMBOLS, 256)
        return bytes([ONE_BYTE_SYMBOLS + 1 + high, low])

    def encoded(self, key):
        return b"".join(self._bytes[letter] for letter in key)

    def folds(self):
        """What each character of the basic plane becomes in a key: of those that become anything."""
        for code in range(0x10000):
            character = chr(code)
            if unicodedata.category(character) in ("Cn", "Cs"):
                continue
            letters = folded(character)
            if letters and all(letter in self._bytes for letter in letters):
                fold = self.encoded(letters)
                if len(fold) <= LONGEST_FOLD:
                    yield code, fold


class Texts:
    """A heap of texts, each once, after a byte that counts its bytes."""

    def __init__(self):
        self.bytes = bytearray()
        self._places = {}

    def place_of(self, text):
        if text not in self._places:
            encoded = text.encode()
            assert len(encoded) < 256, text
            self._places[text] = len(self.bytes)
            self.bytes += bytes([len(encoded)]) + encoded
        return self._places[text].to_bytes(3, "little")


def common_length(a, b):
    size = 0
    while size < min(len(a), len(b)) and a[size] == b[size]:
        size += 1
    return size


def front_coded(entries):
    """The places of the blocks and the bytes of sorted (key, city, is own name)."""
    places, data, former = [], bytearray(), b""
    for number, (key, city, is_own) in enumerate(entries):
        if number % BLOCK == 0:
            places.append(len(data))
            former = b""
        shared = min(15, common_length(key, former))
        rest = key[shared:]
        data.append(shared << 4 | min(15, len(rest)))
        if len(rest) >= 15:
            data.append(len(rest) - 15)
        data += rest + (city | is_own << 15).to_bytes(2, "little")
        former = key
    return places, data


def unsigned(value, size):
    return value.to_bytes(size, "little")


def signed(value, size):
    return value.to_bytes(size, "little", signed=True)


def place_on_earth(city):
    return signed(round(city.latitude * 1e4), 3) + signed(round(city.longitude * 1e4), 3)


def written(folds, countries, regions, zones, cities, key_places, keys, texts):
    """The file: "VMCT", version, then place and count of each section, then the sections."""
    folds = list(folds)
    sections = [
        (len(folds), b"".join(unsigned(code, 2) + bytes([len(fold)]) + fold.ljust(LONGEST_FOLD, b"\0")
                              for code, fold in folds)),
        (len(countries), b"".join(texts.place_of(code) + texts.place_of(name) for code, name in countries)),
        (len(regions), b"".join(texts.place_of(country) + texts.place_of(code) + texts.place_of(name)
                                for country, code, name in regions)),
        (len(zones), b"".join(texts.place_of(name) + unsigned(zone, 2) + unsigned(city, 2)
                              for name, zone, city in zones)),
        (len(cities), b"".join(place_on_earth(city) + unsigned(city.people, 4) + unsigned(zone, 2) +
                               unsigned(region, 2) + texts.place_of(city.name)
                               for city, zone, region in cities)),
        (len(key_places), b"".join(unsigned(place, 3) for place in key_places)),
        (len(keys), bytes(keys)),
    ]
    sections.append((len(texts.bytes), bytes(texts.bytes)))

    header = b"VMCT" + unsigned(1, 4)
    place = len(header) + 8 * len(sections)
    for count, data in sections:
        header += unsigned(place, 4) + unsigned(count, 4)
        place += len(data)
    return header + b"".join(data for _, data in sections)
