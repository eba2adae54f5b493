import type { App } from "../app";
import { type BodyCard, bodyCard, phaseNames, phasesCard, twilightCard } from "../cards";
import { addDays } from "../days";
import { h } from "../dom";
import { eclipseCard } from "./eclipses";
import { icon } from "../icons";
import { type Light, MoonFace } from "../moon-face";
import { Ruler } from "../ruler";
import { Stage } from "../stage";
import type { Moment } from "../velmora";
import { t, w } from "../words";
import type { Screen } from "./screen";

/** Turned as it is seen from the place, or with north up; down where the Moon goes through the north. */
function lightOf(app: App, { fraction, tilt, isWaxing, north }: Moment): Light {
  if (app.choices.isTilted) return { fraction, tilt, north };
  const isSouthern = app.place.latitude < 0;
  return { fraction, tilt: isWaxing !== isSouthern ? 270 : 90, north: isSouthern ? 180 : 0 };
}

export function todayScreen(app: App): Screen {
  const options = (): object => ({ at: app.at, isTilted: app.choices.isTilted });
  const disc = new Stage(app, "disc", w("Moon"), (width) => width, options());
  const ruler = new Ruler(app);
  const face = new MoonFace((name) => app.file(name), () => disc.cover());
  const date = h("h2", { class: "date" });
  const clock = h("p", { class: "clock" });
  const phase = h("p", { class: "phase" });
  const lit = h("p", { class: "lit" });
  const now = h("button", { type: "button", class: "plain", click: () => app.showNow() }, t("Now"));
  const glow = h("div", { class: "glow", "aria-hidden": "true" });
  const ofDay = h("div", { class: "part" });
  let bodies: BodyCard[] = [];
  const later = h("div", { class: "part" });

  const step = (days: number, label: string, name: "back" | "forward"): HTMLElement =>
    h("button", { type: "button", class: "round step", "aria-label": label,
      click: () => app.selectDay(addDays(app.day, days)) }, icon(name));
  const hero = h("section", { class: "hero" },
    h("div", { class: "date-line" }, step(-1, t("Previous day"), "back"), date, step(1, t("Next day"), "forward")),
    h("div", { class: "moon" }, glow, disc.root, face.canvas),
    h("div", { class: "hero-texts" }, phase, lit));
  const time = h("section", { class: "time", "aria-label": t("Time of the day") },
    h("div", { class: "time-line" }, clock, now), ruler.root);
  const root = h("div", { class: "today" }, hero, time, h("div", { class: "cards" }, ofDay, later));

  const showMoment = (): void => {
    const moment = app.moon.moment(app.at);
    clock.textContent = app.format.time(app.at);
    now.hidden = app.followsClock;
    disc.view.setOptions(options());
    ruler.showMoment();
    if (!moment) return;
    phase.textContent = w(phaseNames[moment.phase]);
    lit.textContent = t("%1 lit", app.format.percent(moment.fraction));
    face.show(lightOf(app, moment));
    glow.style.opacity = (0.15 + 0.85 * moment.fraction).toFixed(2);
    for (const body of bodies) body.show(moment);
  };
  const showDay = (): void => {
    date.textContent = app.format.fullDay(app.day);
    const sky = app.moon.skyOfDay(app.day);
    bodies = sky ? [bodyCard(app, sky, "moon"), bodyCard(app, sky, "sun")] : [];
    ofDay.replaceChildren(...bodies.map(({ root }) => root), ...(sky ? [twilightCard(app, sky)] : []));
    ruler.showDay();
    showMoment();
    const eclipse = app.moon.nextEclipses(app.at, 1)[0];
    later.replaceChildren(phasesCard(app),
      ...(eclipse ? [eclipseCard(app, eclipse, t("Next eclipse seen from here"))] : []));
  };
  showDay();

  return {
    root,
    title: t("Today"),
    view: disc.view,
    refresh: (change) => (change === "day" ? showDay() : showMoment()),
    close() {
      disc.close();
      ruler.close();
    },
  };
}
