import english from "../words/en.json";

/** The languages that the library writes in. */
export const languages = [
  "ar", "de", "en", "es", "fr", "he", "hi", "it", "ja", "ko", "nl", "pl", "pt", "ru", "tr", "zh-Hans", "zh-Hant",
] as const;
export type Language = (typeof languages)[number];

/** The page's own texts. */
export type Text = keyof typeof english;

let texts: Partial<Record<string, string>> = english;

/** The text in the language that was set, %1 and %2 replaced by the parts. */
export function t(text: Text, ...parts: readonly string[]): string {
  return w(text, ...parts);
}

/** The same for the words of the library, by their English ones. */
export function w(text: string, ...parts: readonly string[]): string {
  return (texts[text] ?? text).replace(/%(\d)/g, (mark, number) => parts[Number(number) - 1] ?? mark);
}

export function setTexts(translations: Partial<Record<string, string>>): void {
  texts = translations;
}

/** Nothing for a wish that is no language tag: browsers hand on what the system says, such as "C". */
function localeOf(wish: string): Intl.Locale | undefined {
  try {
    return new Intl.Locale(wish).maximize();
  } catch {
    return undefined;
  }
}

/** The language of a wish, if the library writes in it. */
function languageOf(wish: string): Language | undefined {
  const locale = localeOf(wish);
  return locale && (languages.find((language) => language === `${locale.language}-${locale.script}`) ??
    languages.find((language) => language === locale.language));
}

/** The first of the wished languages, BCP 47 with or without a region, that there is; else English. */
export function languageFor(wishes: readonly string[]): Language {
  return wishes.map(languageOf).find((language) => language !== undefined) ?? "en";
}

export function isRightToLeft(language: Language): boolean {
  return language === "ar" || language === "he";
}

/** The language with the region of the wish that led to it: "de-AT". */
export function localeFor(language: Language, wishes: readonly string[]): string {
  return wishes.find((wish) => languageOf(wish) === language) ?? language;
}
