#!/usr/bin/env python3
"""Writes locale_texts.txt: dates and numbers as the languages of the program write them.

Source: Babel (Debian package python3-babel 2.10, CLDR 41). Rows, separated by tabs: locale, what is asked for,
the pattern or number, the text. Spaces of every width stand as " ", digits as European ones, marks of direction are
left out. A text that other versions of CLDR, or engines, have otherwise is followed by theirs.
Run with the system's Python: /usr/bin/python3 make_locale_texts.py > locale_texts.txt
"""
import datetime

from babel import Locale, dates, numbers

LOCALES = "ar_EG de_DE en_US es_ES fr_FR he_IL hi_IN it_IT ja_JP ko_KR nl_NL pl_PL pt_BR ru_RU tr_TR zh_Hans_CN \
zh_Hant_TW fi_FI uk_UA".split()
PATTERNS = ["EEE d MMMM yyyy", "EEEE MMM", "hh:mm a", "yyyy-MM-dd HH:mm"]
MOMENTS = [datetime.datetime(2024, 6, 20, 17, 5), datetime.datetime(2027, 3, 7, 0, 40)]
# Of a locale what stands otherwise elsewhere. Finnish: as JavaScript tells it, whose dates have months as numbers.
OTHERS = {
    "he_IL": [("לפנה״צ", "AM"), ("אחה״צ", "PM")],
    "ko_KR": [("AM", "오전"), ("PM", "오후")],
    "nl_NL": [("jun.", "jun"), ("mrt.", "mrt")],
    "fi_FI": [("torstaina kesäk.", "torstai kesä"), ("sunnuntaina maalisk.", "sunnuntai maalis"),
              ("20. kesäk.", "20.6."), ("7. maalisk.", "7.3.")],
}


def plain(text):
    for wide in "\u00a0\u202f\u2009":
        text = text.replace(wide, " ")
    return text.translate({0x200e: None, 0x200f: None, 0x061c: None})


def row(locale, *fields):
    text = plain(fields[-1])
    other = text
    for here, there in OTHERS.get(locale, []):
        other = other.replace(here, there)
    print("\t".join([locale, *fields[:-1], text] + [other] * (other != text)))


print("# Made by make_locale_texts.py: locale, asked for, pattern or number, text, text elsewhere")
for name in LOCALES:
    locale = Locale.parse(name)
    for moment in MOMENTS:
        for pattern in PATTERNS:
            row(name, moment.isoformat(" ", "minutes"), pattern, dates.format_datetime(moment, pattern, locale=locale))
        row(name, moment.isoformat(" ", "minutes"), "short time", dates.format_time(moment, "short", locale=locale))
        row(name, moment.isoformat(" ", "minutes"), "medium date", dates.format_date(moment, "medium", locale=locale))
        row(name, moment.isoformat(" ", "minutes"), "MMMd", dates.format_skeleton("MMMd", moment, locale=locale))
    if name != "ar_EG":  # Babel writes its numbers with the signs of European digits
        row(name, "number", "1234567.5", numbers.format_decimal(1234567.5, locale=locale))
        row(name, "number", "-0.25", numbers.format_decimal(-0.25, locale=locale))
