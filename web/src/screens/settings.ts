import type { App } from "../app";
import { h } from "../dom";
import { type Choices, secondCalendars } from "../store";
import { languages, t, type Text } from "../words";
import type { Screen } from "./screen";

function languageName(code: string): string {
  const name = new Intl.DisplayNames(code, { type: "language" }).of(code) ?? code;
  return name.charAt(0).toLocaleUpperCase(code) + name.slice(1);
}

/** What `Intl` calls the second calendars. */
const calendarCodes: Record<string, string> = {
  hebrew: "hebrew", islamic: "islamic", buddhist: "buddhist", japanese: "japanese", chinese: "chinese", indian: "indian",
};

export function settingsScreen(app: App): Screen {
  const select = <Key extends keyof Choices>(
    key: Key, label: Text, options: readonly (readonly [Choices[Key] & string, string])[],
  ): HTMLElement => {
    const id = `choice-${key}`;
    const box = h("select", { id }, ...options.map(([value, text]) =>
      h("option", { value, selected: value === app.choices[key], ...(key === "language" && { lang: value === "auto" ? undefined : value }) }, text)));
    box.addEventListener("change", () => void app.choose({ [key]: box.value } as Partial<Choices>));
    return h("div", { class: "setting" }, h("label", { for: id }, t(label)), box);
  };
  const calendarName = (code: string): string =>
    new Intl.DisplayNames(app.format.locale, { type: "calendar" }).of(calendarCodes[code]!) ?? code;
  const tilt = h("input", { type: "checkbox", role: "switch", id: "choice-tilt", checked: app.choices.isTilted });
  tilt.addEventListener("change", () => void app.choose({ isTilted: tilt.checked }));

  const root = h("div", { class: "settings" },
    h("section", { class: "card" }, h("h2", {}, t("Language and time")),
      select("language", "Language", [["auto", t("As the browser")], ...languages.map((code) => [code, languageName(code)] as const)]),
      select("clock", "Clock", [["auto", t("As the language")], ["12", t("12 hours")], ["24", t("24 hours")]]),
      select("weekStart", "First day of the week", [["auto", t("As the language")],
        ...(["0", "1", "6"] as const).map((day) => [day, app.format.weekday(Number(day))] as const)]),
      select("secondCalendar", "Second calendar", secondCalendars.map((code) =>
        [code, code === "none" ? t("None") : calendarName(code)] as const))),
    h("section", { class: "card" }, h("h2", {}, t("Look")),
      select("theme", "Colours", [["auto", t("As the device")], ["dark", t("Dark")], ["light", t("Light")]]),
      h("div", { class: "setting" }, h("label", { for: "choice-tilt" }, t("Tilt the Moon as seen from the place")), tilt)),
    h("section", { class: "card" }, h("h2", {}, t("Privacy")),
      h("p", {}, t("Nothing is sent anywhere. The page reads only its own files; place and settings stay in this browser.")),
      app.keepsChoices ? undefined : h("p", { class: "problem" },
        t("This browser keeps nothing for the page: settings and places last until it is closed."))),
    h("p", { class: "version" }, `Velmora ${app.moon.version}`));
  return { root, title: t("Settings"), refresh() {}, close() {} };
}
