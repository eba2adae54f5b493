import type { App } from "../app";
import { isZone } from "../format";
import { h } from "../dom";
import { icon } from "../icons";
import type { City, Place } from "../velmora";
import { t, w } from "../words";
import type { Screen } from "./screen";

const mostFound = 12;

function coordinates(app: App, { latitude, longitude }: Place): string {
  const { format } = app;
  const part = (value: number, positive: string, negative: string): string =>
    `${format.degrees(Math.abs(value), 2)} ${w(value < 0 ? negative : positive)}`;
  return `${part(latitude, "N", "S")}, ${part(longitude, "E", "W")}`;
}

function countryName(app: App, code: string): string {
  try {
    return new Intl.DisplayNames(app.format.locale, { type: "region" }).of(code) ?? code;
  } catch {
    return code;
  }
}

function placeOfCity({ latitude, longitude, name, zone }: City): Place {
  return { latitude, longitude, name, zone };
}

export function placeScreen(app: App, warn: (message: string) => void): Screen {
  let isLeft = false;
  const use = (place: Place): boolean => {
    const isShown = app.usePlace(place);
    if (isShown) app.go("today");
    return isShown;
  };

  // Those that were used before.
  const kept = h("ul", { class: "rows" }, ...app.places.map((place, index) => {
    const choose = h("button", { type: "button", class: "row", click: () => use(place) }, icon("place"),
      h("span", { class: "row-texts" }, h("strong", {}, place.name || coordinates(app, place)),
        h("small", {}, `${coordinates(app, place)} · ${place.zone}`)));
    if (index === 0) choose.setAttribute("aria-current", "true");
    const forget = h("button", { type: "button", class: "round", id: `remove-${index}`,
      "aria-label": t("Remove %1", place.name || coordinates(app, place)), click: () => app.forgetPlace(place) }, icon("close"));
    return h("li", {}, choose, index === 0 ? undefined : forget);
  }));

  // The device's own.
  const locate = h("button", { type: "button", class: "wide-button" }, icon("locate"), h("span", { class: "label" }, t("My position")));
  const refused = (error: GeolocationPositionError): void => {
    if (isLeft) return;
    locate.disabled = false;
    warn(error.code === error.PERMISSION_DENIED
      ? t("The position was refused. Search a city, or write the coordinates.")
      : t("The position is not known. Search a city, or write the coordinates."));
  };
  const found = async ({ coords }: GeolocationPosition): Promise<void> => {
    const city = await app.moon.cityNear(coords.latitude, coords.longitude).catch(() => undefined);
    if (isLeft) return;  // a position that comes late takes nobody away from another section
    use({
      latitude: Number(coords.latitude.toFixed(4)),
      longitude: Number(coords.longitude.toFixed(4)),
      name: city?.name ?? t("My position"),
      zone: city?.zone ?? Intl.DateTimeFormat().resolvedOptions().timeZone,
    });
  };
  locate.addEventListener("click", () => {
    if (!("geolocation" in navigator)) return warn(t("The position is not known. Search a city, or write the coordinates."));
    locate.disabled = true;
    navigator.geolocation.getCurrentPosition((position) => void found(position), refused, { maximumAge: 600_000 });
  });

  // A city.
  const results = h("ul", { class: "rows", id: "cities" });
  const count = h("p", { class: "lead", role: "status" });
  const search = h("input", { type: "search", id: "city", autocomplete: "off", spellcheck: "false", enterkeyhint: "search",
    "aria-controls": "cities" });
  let asked = 0;
  search.addEventListener("input", () => void show(search.value.trim()));
  const show = async (prefix: string): Promise<void> => {
    const mine = ++asked;
    if (prefix === "") {
      results.replaceChildren();
      count.textContent = "";
      return;
    }
    let cities: readonly City[] = [];
    try {
      cities = await app.moon.cities(prefix, mostFound);
    } catch {
      count.textContent = t("The list of cities could not be read.");
      return;
    }
    if (mine !== asked) return;
    count.textContent = cities.length === 0 ? t("No city begins so.") : "";
    results.replaceChildren(...cities.map((city) => h("li", {},
      h("button", { type: "button", class: "row", click: () => use(placeOfCity(city)) },
        h("span", { class: "row-texts" }, h("strong", {}, city.name),
          h("small", {}, [city.region, countryName(app, city.country)].filter(Boolean).join(", ")))))));
  };

  // Coordinates by hand.
  const field = (id: string, label: string, attributes: Record<string, string>): [HTMLElement, HTMLInputElement] => {
    const input = h("input", { id, name: id, ...attributes });
    return [h("div", { class: "field" }, h("label", { for: id }, label), input), input];
  };
  const [latitudeField, latitude] = field("latitude", t("Latitude"), { inputmode: "decimal", placeholder: "60.1699", dir: "ltr" });
  const [longitudeField, longitude] = field("longitude", t("Longitude"), { inputmode: "decimal", placeholder: "24.9384", dir: "ltr" });
  const [zoneField, zone] = field("zone", t("Time zone"), { list: "zones", spellcheck: "false", dir: "ltr", autocomplete: "off" });
  const [nameField, name] = field("name", t("Name"), { maxlength: "80", autocomplete: "off" });
  zone.value = Intl.DateTimeFormat().resolvedOptions().timeZone;
  const zones = h("datalist", { id: "zones" }, ...zoneNames().map((one) => h("option", { value: one })));
  const problem = h("p", { class: "problem", role: "alert", id: "problem" });
  const form = h("form", { class: "coordinates", novalidate: true },
    h("div", { class: "pair" }, latitudeField, longitudeField), zoneField, nameField, zones, problem,
    h("button", { type: "submit", class: "wide-button" }, t("Use these coordinates")));
  const refuse = (input: HTMLInputElement, text: string): void => {
    input.setAttribute("aria-invalid", "true");
    input.setAttribute("aria-describedby", "problem");
    problem.textContent = text;
    input.focus();
  };
  form.addEventListener("submit", (event) => {
    event.preventDefault();
    const values: [HTMLInputElement, boolean, string][] = [
      [latitude, isWithin(latitude.value, 90), t("The latitude is a number from −90 to 90, such as 60.17.")],
      [longitude, isWithin(longitude.value, 180), t("The longitude is a number from −180 to 180, such as 24.94.")],
      [zone, isZone(zone.value.trim()), t("The time zone has a name such as Europe/Helsinki.")],
    ];
    problem.textContent = "";
    for (const [input] of values) input.removeAttribute("aria-invalid");
    const wrong = values.find(([, isRight]) => !isRight);
    if (wrong) return refuse(wrong[0], wrong[2]);
    const isShown = use({ latitude: numberOf(latitude.value), longitude: numberOf(longitude.value),
      zone: zone.value.trim(), name: name.value.trim() });
    if (!isShown) refuse(zone, values[2]![2]);
  });

  const root = h("div", { class: "place" },
    h("section", { class: "card" }, h("h2", {}, t("A city")),
      h("div", { class: "search" }, icon("search"), h("label", { for: "city", class: "spoken" }, t("Search a city")), search),
      count, results, locate),
    h("section", { class: "card" }, h("h2", {}, t("Kept places")), kept),
    h("section", { class: "card" }, h("h2", {}, t("Coordinates")), form));
  search.placeholder = t("Search a city");
  return { root, title: t("Place"), refresh() {}, close: () => void (isLeft = true) };
}

function numberOf(text: string): number {
  return Number(text.trim().replace(",", ".").replace("−", "-"));
}

function isWithin(text: string, limit: number): boolean {
  return /^[-−+]?\d{1,3}([.,]\d{1,6})?$/.test(text.trim()) && Math.abs(numberOf(text)) <= limit;
}

function zoneNames(): readonly string[] {
  const intl = Intl as typeof Intl & { supportedValuesOf?: (key: "timeZone") => string[] };
  return intl.supportedValuesOf?.("timeZone") ?? [];
}
