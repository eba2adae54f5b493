"""Names as they are compared in a search, and which of a city's names the table holds."""

import unicodedata

# Letters that Unicode does not take apart.
SPECIAL = {
    "ø": "o", "æ": "ae", "œ": "oe", "đ": "d", "ð": "d", "ħ": "h", "ł": "l", "ı": "i", "þ": "th", "ə": "e",
    "ى": "ي", "ی": "ي", "ک": "ك", "ۀ": "ه", "ة": "ه", "ہ": "ه", "ھ": "ه", "ە": "ه",
}

VIRAMA = 9  # joins letters, where other marks are accents


def is_accent(character):
    return unicodedata.combining(character) not in (0, VIRAMA)


def is_letter_or_digit(character):
    if unicodedata.category(character) == "Lm":  # ー and 々 belong to a word, ʻ and ـ do not
        return unicodedata.name(character, "").startswith(("KATAKANA", "IDEOGRAPHIC", "THAI", "LAO"))
    return unicodedata.category(character)[0] in "LMN"


def folded(text):
    """Letters without case and accents, and digits: "São Paulo" and "SAO-PAULO" are "saopaulo"."""
    letters = (c for c in unicodedata.normalize("NFKD", unicodedata.normalize("NFKC", text).casefold())
               if is_letter_or_digit(c) and not is_accent(c))
    return unicodedata.normalize("NFC", "".join(SPECIAL.get(c, c) for c in letters))


def script(key):
    letter = next((c for c in key if not c.isdigit()), key[0])
    return unicodedata.name(letter, "").split(" ")[0].split("-")[0]


# The scripts, beside the Latin one, of the library's languages: names in these are kept of large cities.
SCRIPTS = {"ARABIC", "CJK", "CYRILLIC", "DEVANAGARI", "GREEK", "HANGUL", "HEBREW", "HIRAGANA", "KATAKANA"}
ARABIC_LETTERS = set("ءابتثجحخدذرزسشصضطظعغفقكلمنهوي0123456789")
LARGE_CITY = 100_000

# The script a country writes its towns in (CLDR, likely subtags); Latin where it is not listed.
OWN_SCRIPTS = {
    "ARABIC": "AE AF BH DJ DZ EG EH IQ IR JO KM KW LB LY MA MR OM PK PS QA SA SD SY TD TN YE",
    "ARMENIAN": "AM", "BENGALI": "BD", "CYRILLIC": "BG BY KG KZ MK MN RS RU TJ UA", "CJK": "CN HK JP MO TW",
    "DEVANAGARI": "IN NP", "ETHIOPIC": "ER ET", "GEORGIAN": "GE", "GREEK": "CY GR", "HANGUL": "KP KR",
    "HEBREW": "IL", "HIRAGANA": "JP", "KATAKANA": "JP", "KHMER": "KH", "LAO": "LA", "MYANMAR": "MM",
    "SINHALA": "LK", "THAANA": "MV", "THAI": "TH", "TIBETAN": "BT",
}


def is_own_script(name_of_script, country):
    return country in OWN_SCRIPTS.get(name_of_script, "").split()


def is_code(name):
    """An airport's."""
    return len(name) == 3 and name.isascii() and name.isupper()


def is_kept(name, key, place):
    """Whether the table holds that other name of a place."""
    if name.isascii() and name[0].islower():
        return False  # the gazetteer's own transliterations: "dong jing", "mynkn"
    if is_code(name) and place.people < 5 * LARGE_CITY:
        return False
    name_of_script = script(key)
    if name_of_script == "LATIN" or is_own_script(name_of_script, place.country):
        return True
    if name_of_script == "ARABIC" and set(key) - ARABIC_LETTERS:
        return False  # Persian, Urdu and others
    return name_of_script in SCRIPTS and place.people >= LARGE_CITY


def is_nearly(a, b):
    """Whether one letter inserted, removed or replaced turns one into the other."""
    start = 0
    while start < min(len(a), len(b)) and a[start] == b[start]:
        start += 1
    end = 0
    while end < min(len(a), len(b)) - start and a[-1 - end] == b[-1 - end]:
        end += 1
    return max(len(a), len(b)) - start - end <= 1


def german(name):
    """As it is written without umlauts: "Muenchen"."""
    return folded(name.translate({ord("ä"): "ae", ord("ö"): "oe", ord("ü"): "ue"}))


def keys(place):
    """Every spelling under which a place is found, and whether it is its own name: {"munich": True, …}. Of a
    city that is not large, other names a letter away from one that is kept are left to the search for near
    ones."""
    found = {folded(name): True for name in (place.name, place.ascii_name)}
    exact = {german(place.name)} | {folded(name) for name in place.zone_names}
    for name in place.other_names:
        key = folded(name)
        if not key or key in found or not is_kept(name, key, place):
            continue
        if key in exact or place.people >= LARGE_CITY or not any(is_nearly(key, other) for other in found):
            found[key] = False
    found.pop("", None)
    return found
