import type { App } from "../app";
import { isKnown } from "../days";
import { h } from "../dom";
import { eclipseDrawing } from "../eclipse-drawing";
import type { EclipseContact, SeenEclipse } from "../velmora";
import { t, w } from "../words";
import type { Screen } from "./screen";

const titles: Record<SeenEclipse["body"], Record<SeenEclipse["kind"], string>> = {
  sun: {
    total: "Total Solar Eclipse", annular: "Annular Solar Eclipse", partial: "Partial Solar Eclipse",
    penumbral: "Partial Solar Eclipse",
  },
  moon: {
    total: "Total Lunar Eclipse", annular: "Partial Lunar Eclipse", partial: "Partial Lunar Eclipse",
    penumbral: "Penumbra Lunar Eclipse",
  },
};

function contactName(name: EclipseContact["name"], kind: SeenEclipse["kind"]): string {
  switch (name) {
    case "C1": case "U1": return w("Partial phase begins");
    case "C4": case "U4": return w("Partial phase ends");
    case "C2": return w(kind === "annular" ? "Annular phase begins" : "Total phase begins");
    case "C3": return w(kind === "annular" ? "Annular phase ends" : "Total phase ends");
    case "U2": return w("Total phase begins");
    case "U3": return w("Total phase ends");
    case "P1": return w("Penumbral phase begins");
    case "P4": return w("Penumbral phase ends");
  }
}

/** Whether its maximum is seen, and not only what comes before or after. */
const showsMaximum = ({ best, maximum }: SeenEclipse): boolean => best === maximum;

/** The covered part of the Sun is known of the maximum alone. */
function sizeText(app: App, eclipse: SeenEclipse): string {
  const { body, magnitude, obscuration } = eclipse;
  const size = app.format.number(magnitude, 2);
  return body === "sun" && showsMaximum(eclipse)
    ? w("magnitude %1, %2 of the Sun covered", size, app.format.percent(obscuration))
    : w("magnitude %1", size);
}

/** What is seen of an eclipse from the place, with a way to its day. */
export function eclipseCard(app: App, eclipse: SeenEclipse, heading?: string): HTMLElement {
  const { format } = app;
  const title = w(titles[eclipse.body][eclipse.kind]);
  const day = format.dayAt(eclipse.best);
  const time = (at: number): string => format.timeOn(at, day);
  const rows: [string, number][] = [[t("Begin"), eclipse.begin], [w("Maximum"), eclipse.maximum], [t("End"), eclipse.end]];
  const contacts = eclipse.contacts.map(({ name, at, isUp }) => h("div", { class: "fact" },
    h("dt", {}, contactName(name, eclipse.kind)),
    h("dd", {}, h("span", {}, time(at)), isUp ? undefined : h("small", {}, w("below the horizon")))));
  const show = h("button", { type: "button", class: "plain", click: () => {
    app.showInstant(eclipse.best);
  } }, t("Show this day"));
  return h("section", { class: "card wide eclipse-card" },
    heading ? h("h2", {}, heading) : undefined,
    h("div", { class: "eclipse-body" },
      eclipseDrawing(eclipse, showsMaximum(eclipse) ? t("The disc at the maximum") : `${title}, ${time(eclipse.best)}`),
      h("div", { class: "eclipse-texts" },
        h(heading ? "h3" : "h2", {}, title),
        h("p", { class: "eclipse-date" }, format.date(eclipse.best)),
        h("p", {}, h("small", {}, sizeText(app, eclipse))),
        h("p", {}, h("small", {}, w("%1 above the horizon, %2", format.degrees(Math.max(0, eclipse.altitude)),
          format.direction(eclipse.azimuth)))))),
    h("dl", { class: "three" }, ...rows.map(([name, at]) =>
      h("div", {}, h("dt", {}, name), h("dd", {}, time(at)),
        at === eclipse.maximum && !showsMaximum(eclipse) ? h("dd", {}, h("small", {}, w("below the horizon"))) : undefined))),
    h("details", {}, h("summary", {}, t("All its phases")), h("dl", {}, ...contacts)),
    isKnown(day) ? show : undefined);
}

const shownAtOnce = 8;

export function eclipsesScreen(app: App): Screen {
  const list = h("div", { class: "cards eclipses-list" });
  let count = shownAtOnce;
  const more = h("button", { type: "button", class: "wide-button", click: () => {
    count += shownAtOnce;
    fill();
  } }, t("Show more"));
  const fill = (): void => {
    const eclipses = app.moon.nextEclipses(app.at, count);
    list.replaceChildren(...eclipses.map((eclipse) => eclipseCard(app, eclipse)));
    if (eclipses.length === 0) list.append(h("p", {}, w("none seen from here")));
    more.hidden = eclipses.length < count;
  };
  fill();
  const since = h("p", { class: "lead" }, t("Seen from %1, from %2 on", app.place.name || t("here"), app.format.date(app.at)));
  return {
    root: h("div", { class: "eclipses" }, since, list, more),
    title: t("Eclipses"),
    refresh: (change) => {
      if (change === "day") fill();
    },
    close() {},
  };
}
