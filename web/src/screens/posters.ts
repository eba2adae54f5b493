import type { App } from "../app";
import { addDays, addMonths, type Day, isKnown } from "../days";
import { h } from "../dom";
import { icon } from "../icons";
import { Stage } from "../stage";
import { t, type Text, w } from "../words";
import type { Screen } from "./screen";

/** A4, whose longer side is √2 times the other, printed with 300 dots an inch. */
const longer = Math.SQRT2;
const paperWidths = { standing: 2480, lying: 3508 } as const;

interface Poster {
  readonly kind: "night" | "darkness" | "poster";
  /** By the library's word for it. */
  readonly title: string;
  readonly paper: keyof typeof paperWidths;
  readonly isOfDay: boolean;
}

const posters: readonly Poster[] = [
  { kind: "night", title: "Night", paper: "lying", isOfDay: true },
  { kind: "darkness", title: "Hours of darkness", paper: "standing", isOfDay: false },
  { kind: "poster", title: "Phases of the Moon", paper: "standing", isOfDay: false },
];

/** The one that was shown last, as long as the page stands. */
let chosen = posters[0]!;

/** Pictures for paper, of the day's night and of its year; "Save and share" saves the one that is shown. */
export function postersScreen(app: App): Screen {
  const name = h("h2", { class: "page-name", "aria-live": "polite" });
  const beside = (direction: 1 | -1): Day => chosen.isOfDay ? addDays(app.day, direction) : addMonths(app.day, 12 * direction);
  const step = (direction: 1 | -1): HTMLButtonElement =>
    h("button", { type: "button", class: "round step", click: () => app.selectDay(beside(direction)) },
      icon(direction < 0 ? "back" : "forward"));
  const back = step(-1), forward = step(1);
  const buttons = posters.map((poster) =>
    h("button", { type: "button", "data-poster": poster.kind, click: () => choose(poster) }, w(poster.title)));
  const sheet = h("div", { class: "sheet-of-paper" });
  let stage: Stage;

  const label = (button: HTMLButtonElement, ofDay: Text, ofYear: Text): void =>
    button.setAttribute("aria-label", t(chosen.isOfDay ? ofDay : ofYear));
  const showDay = (): void => {
    name.textContent = chosen.isOfDay ? app.format.fullDay(app.day) : app.format.year(app.day);
    label(back, "Previous day", "Previous year");
    label(forward, "Next day", "Next year");
    back.disabled = !isKnown(beside(-1));
    forward.disabled = !isKnown(beside(1));
  };
  const makeStage = (): void => {
    const shape = chosen.paper === "standing" ? longer : 1 / longer;
    stage = new Stage(app, chosen.kind, w(chosen.title), (width) => width * shape, { isTilted: app.choices.isTilted });
    sheet.replaceChildren(stage.root);
    for (const button of buttons) button.setAttribute("aria-pressed", String(button.dataset["poster"] === chosen.kind));
    showDay();
  };
  const choose = (poster: Poster): void => {
    stage.close();
    chosen = poster;
    makeStage();
  };
  makeStage();
  return {
    root: h("div", { class: "posters" },
      h("div", { class: "page-head" }, back, name, forward),
      h("div", { class: "segments", role: "group", "aria-label": t("Posters") }, ...buttons), sheet),
    title: t("Posters"),
    get view() {
      return stage.view;
    },
    get pictureWidth() {
      return paperWidths[chosen.paper];
    },
    refresh: (change) => {
      if (change === "day") showDay();
    },
    close: () => stage.close(),
  };
}
