import type { App } from "./app";
import type { Day } from "./days";
import { h, s } from "./dom";
import type { Body, DayInTheSky, Moment, PhaseName, SkyEvent, SkyEventKind } from "./velmora";
import { t, w } from "./words";

export const phaseNames: Record<PhaseName, string> = {
  new: "New Moon", waxingCrescent: "Waxing Crescent", firstQuarter: "First Quarter", waxingGibbous: "Waxing Gibbous",
  full: "Full Moon", waningGibbous: "Waning Gibbous", lastQuarter: "Last Quarter", waningCrescent: "Waning Crescent",
};

export type Row = readonly [label: string, value: string, note?: string];

export function card(title: string, rows: readonly Row[], className = ""): HTMLElement {
  return h("section", { class: `card ${className}` }, h("h2", {}, title),
    factList(rows));
}

function factList(rows: readonly Row[]): HTMLElement {
  return h("dl", {}, ...rows.map(([label, value, note]) => h("div", { class: "fact" },
    h("dt", {}, label), h("dd", {}, h("span", {}, value), note ? h("small", {}, note) : undefined))));
}

function eventsOf(sky: DayInTheSky, body: Body, kinds: readonly SkyEventKind[]): SkyEvent[] {
  return sky.events.filter((event) => event.body === body && kinds.includes(event.kind));
}

const eventNames: Record<Body, Partial<Record<SkyEventKind, string>>> = {
  sun: { rise: "Sunrise", transit: "Noon", set: "Sunset" },
  moon: { rise: "Moonrise", transit: "Transit", set: "Moonset" },
};

/** Rise, transit and set in the order of the day; those of rise and set that there are not say so. */
function eventRows(app: App, sky: DayInTheSky, body: Body): Row[] {
  const state = sky[body];
  if (state !== "rises or sets") {
    const transits = eventsOf(sky, body, ["transit"]);
    return [[w(body === "sun" ? "Sun" : "Moon"), w(state === "up" ? "up all day" : "down all day")],
      ...(state === "up" ? transits.map((event) => eventRow(app, body, event)) : [])];
  }
  const events = eventsOf(sky, body, ["rise", "transit", "set"])
    .filter((event) => event.kind !== "transit" || event.altitude > 0);
  const rows: Row[] = events.map((event) => eventRow(app, body, event));
  for (const kind of ["rise", "set"] as const) {
    if (!events.some((event) => event.kind === kind)) rows.push([w(eventNames[body][kind]!), w("none")]);
  }
  return rows;
}

function eventRow(app: App, body: Body, event: SkyEvent): Row {
  const { format } = app;
  const note = event.kind === "transit" ? `${format.degrees(event.altitude)}` : format.direction(event.azimuth);
  return [w(eventNames[body][event.kind]!), format.time(event.at), note];
}

/** A body's day, and below it where the body stands at the moment that is shown. */
export interface BodyCard {
  readonly root: HTMLElement;
  show(moment: Moment): void;
}

export function bodyCard(app: App, sky: DayInTheSky, body: Body): BodyCard {
  const { format } = app;
  const altitude = h("span", {});
  const direction = h("small", {});
  const last = h("span", {}, format.duration(sky.daylight));
  const fact = (label: string, ...values: Node[]): HTMLElement =>
    h("div", { class: "fact" }, h("dt", {}, label), h("dd", {}, ...values));
  const root = card(w(body === "moon" ? "Moon" : "Sun"), eventRows(app, sky, body));
  root.querySelector("dl")!.append(fact(w("Elevation"), altitude, direction),
    fact(w(body === "moon" ? "Distance" : "Daylight"), last));
  return {
    root,
    show(moment) {
      const position = moment[body];
      altitude.textContent = format.degrees(position.altitude);
      direction.textContent = format.direction(position.azimuth);
      if (body === "moon") last.textContent = format.kilometres(Math.round(position.distance));
    },
  };
}

export function twilightCard(app: App, sky: DayInTheSky): HTMLElement {
  const { format } = app;
  const time = (kind: SkyEventKind): string => {
    const times = eventsOf(sky, "sun", [kind]).map((event) => format.time(event.at));
    return times.length > 0 ? times.join(", ") : "–";
  };
  const rows: [string, SkyEventKind, SkyEventKind][] = [
    [w("Civil"), "civilDawn", "civilDusk"],
    [w("Naut."), "nauticalDawn", "nauticalDusk"],
    [w("Astr."), "astronomicalDawn", "astronomicalDusk"],
  ];
  return h("section", { class: "card" }, h("h2", {}, t("Twilight")),
    h("table", {},
      h("thead", {}, h("tr", {}, h("td", {}), h("th", { scope: "col" }, w("Dawn")), h("th", { scope: "col" }, w("Dusk")))),
      h("tbody", {}, ...rows.map(([name, dawn, dusk]) =>
        h("tr", {}, h("th", { scope: "row" }, name), h("td", {}, time(dawn)), h("td", {}, time(dusk)))))),
    h("dl", {}, h("div", { class: "fact" }, h("dt", {}, t("Darkness")), h("dd", {}, format.duration(sky.darkness)))));
}

/** A small disc of a principal phase, as it stands at the meridian of the hemisphere. */
export function phaseDisc(phase: PhaseName, isSouthern: boolean): SVGSVGElement {
  const isRightLit = (phase === "firstQuarter") !== isSouthern;
  const half = isRightLit ? "M16 3a13 13 0 0 1 0 26z" : "M16 3a13 13 0 0 0 0 26z";
  return s("svg", { class: "phase-disc", viewBox: "0 0 32 32", "aria-hidden": "true" },
    s("circle", { class: "dark", cx: 16, cy: 16, r: 13 }),
    phase === "full" ? s("circle", { class: "lit", cx: 16, cy: 16, r: 13 }) : undefined,
    phase === "firstQuarter" || phase === "lastQuarter" ? s("path", { class: "lit", d: half }) : undefined);
}

export function phasesCard(app: App): HTMLElement {
  const { format } = app;
  return h("section", { class: "card wide" }, h("h2", {}, t("Next phases")),
    h("ul", { class: "phases" }, ...app.moon.nextPhases(app.at).map(({ at, phase }) =>
      h("li", {}, phaseDisc(phase, app.place.latitude < 0), h("strong", {}, w(phaseNames[phase])),
        h("span", {}, format.shortDate(at)), h("small", {}, format.time(at))))));
}

/** The selected day at a glance, below a calendar. */
export function dayPanel(app: App, day: Day): HTMLElement {
  const { format } = app;
  const sky = app.moon.skyOfDay(day);
  const calendar = app.moon.calendarDay(day);
  const open = h("button", { type: "button", class: "plain", click: () => app.go("today") }, t("Show this day"));
  const phase = calendar ? w(phaseNames[calendar.phase]) : "";
  const age = calendar ? w("day %1 of the lunation", format.number(calendar.age)) : "";
  return h("section", { class: "card panel", "aria-label": t("The selected day") },
    h("div", { class: "panel-head" }, h("h2", {}, format.fullDay(day)), open),
    h("p", { class: "panel-phase" }, h("strong", {}, phase), " ", h("small", {}, age)),
    sky ? h("div", { class: "panel-columns" },
      factList(eventRows(app, sky, "moon")), factList(eventRows(app, sky, "sun"))) : undefined);
}
