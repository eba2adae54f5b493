import assert from "node:assert/strict";
import { readdir, readFile } from "node:fs/promises";
import { test } from "node:test";
import { source } from "./source.mjs";

const { languages, languageFor, localeFor } = await source("words");
const folder = new URL("../words/", import.meta.url);
const read = async (language) => JSON.parse(await readFile(new URL(`${language}.json`, folder), "utf8"));
const english = await read("en");
const marks = (text) => [...text.matchAll(/%\d/g)].map(String).sort();

test("ThereAreWordsForEachLanguageOfTheLibrary", async () => {
  const library = (await readdir(new URL("../../velmora/resources/", import.meta.url)))
    .filter((name) => name.endsWith(".lproj")).map((name) => name.replace(".lproj", "")).sort();
  assert.deepEqual([...languages].sort(), library);
  assert.deepEqual((await readdir(folder)).map((name) => name.replace(".json", "")).sort(), library);
});

for (const language of languages) {
  test(`EveryTextIsThereIn ${language}`, async () => {
    const texts = await read(language);
    assert.deepEqual(Object.keys(texts), Object.keys(english));
    for (const [key, text] of Object.entries(texts)) {
      assert.notEqual(text.trim(), "", key);
      assert.deepEqual(marks(text), marks(key), key);
    }
  });
}

test("EveryTextIsSaidSomewhere", async () => {
  const sources = new URL("../src/", import.meta.url);
  const files = (await readdir(sources, { recursive: true })).filter((name) => name.endsWith(".ts"));
  const code = (await Promise.all(files.map((name) => readFile(new URL(name, sources), "utf8")))).join("\n");
  for (const key of Object.keys(english)) assert.ok(code.includes(JSON.stringify(key)), key);
});

test("ALanguageIsFoundByItsRegionAndScript", () => {
  assert.equal(languageFor(["de-AT"]), "de");
  assert.equal(languageFor(["zh-TW"]), "zh-Hant");
  assert.equal(languageFor(["zh"]), "zh-Hans");
  assert.equal(languageFor(["zh-HK", "en"]), "zh-Hant");
  assert.equal(languageFor(["fi", "pt-BR"]), "pt");
  assert.equal(languageFor(["fi"]), "en");
  assert.equal(languageFor([]), "en");
  assert.equal(localeFor("de", ["fi", "de-AT"]), "de-AT");
  assert.equal(localeFor("ja", ["de-AT"]), "ja");
});

test("DatesAreInTheLanguageOfTheTexts", () => {
  assert.equal(localeFor("en", ["fi"]), "en");
  assert.equal(localeFor("en", ["fi", "en-GB"]), "en-GB");
});

test("AWishThatIsNoLanguageIsPassedOver", () => {
  assert.equal(languageFor(["C", "", "ja-JP"]), "ja");
  assert.equal(languageFor(["C"]), "en");
  assert.equal(localeFor("en", ["C"]), "en");
});
