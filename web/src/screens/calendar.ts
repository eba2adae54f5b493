import type { App } from "../app";
import { dayPanel } from "../cards";
import { addMonths, type Day, isKnown } from "../days";
import { h } from "../dom";
import { icon } from "../icons";
import { Pager } from "../pager";
import { Stage } from "../stage";
import type { ViewKind, ViewOptions } from "../velmora";
import { t, type Text, w } from "../words";
import type { Screen } from "./screen";

/** What a calendar asks for besides its view: how it steps, and how it is named. */
interface Calendar {
  kind: ViewKind;
  title: Text;
  /** Months from one page to the next. */
  months: 1 | 12;
  previous: Text;
  next: Text;
  heightOf(width: number): number;
  pulls: boolean;
  options?: ViewOptions;
  /** Above the view. */
  tools?: readonly HTMLElement[];
}

function calendarScreen(app: App, calendar: Calendar): Screen & { stage: Stage } {
  const isYear = calendar.months === 12;
  const name = h("h2", { class: "page-name", "aria-live": "polite" });
  const stage = new Stage(app, calendar.kind, t(calendar.title), calendar.heightOf, calendar.options);
  const beside = (direction: 1 | -1): Day => addMonths(app.day, direction * calendar.months);
  new Pager(app, stage, calendar.pulls ? beside : undefined);
  const step = (direction: 1 | -1, label: Text): HTMLButtonElement =>
    h("button", { type: "button", class: "round step", "aria-label": t(label),
      click: () => app.selectDay(beside(direction)) }, icon(direction < 0 ? "back" : "forward"));
  const back = step(-1, calendar.previous);
  const forward = step(1, calendar.next);
  const today = h("button", { type: "button", class: "plain", click: () => app.showNow() }, t("Today"));
  const head = h("div", { class: "page-head" }, back, name, forward, today);
  const side = h("div", { class: "side" });
  const root = h("div", { class: `calendar calendar-${calendar.kind}` },
    h("div", { class: "page" }, head, ...(calendar.tools ?? []), stage.root), side);

  const show = (): void => {
    name.textContent = isYear ? app.format.year(app.day) : app.format.month(app.day);
    back.disabled = !isKnown(beside(-1));
    forward.disabled = !isKnown(beside(1));
    today.hidden = app.isToday;
    side.replaceChildren(dayPanel(app, app.day));
  };
  show();
  return {
    root,
    stage,
    title: t(calendar.title),
    view: stage.view,
    refresh: (change) => {
      if (change === "day") show();
    },
    close: () => stage.close(),
  };
}

const months = { months: 1, previous: "Previous month", next: "Next month" } as const;

export function monthScreen(app: App): Screen {
  return calendarScreen(app, {
    ...months, kind: "month", title: "Month", pulls: true, heightOf: (width) => Math.min(Math.max(width * 1.2, 320), 680),
  });
}

export function picturesScreen(app: App): Screen {
  return calendarScreen(app, {
    ...months, kind: "pictures", title: "Pictures", pulls: true, heightOf: (width) => Math.max(width * 1.32, 330),
  });
}

export function yearScreen(app: App): Screen {
  const choice = (phase: "full" | "new", text: string): HTMLButtonElement =>
    h("button", { type: "button", "aria-pressed": String(phase === "full"), "data-phase": phase }, text);
  const buttons = [choice("full", w("Full Moon")), choice("new", w("New Moon"))];
  const tools = h("div", { class: "segments", role: "group", "aria-label": w("Phase") }, ...buttons);
  const screen = calendarScreen(app, {
    kind: "year", title: "Year", months: 12, previous: "Previous year", next: "Next year", pulls: true,
    heightOf: (width) => Math.max(width * 1.25, 400), options: { phase: "full" }, tools: [tools],
  });
  for (const button of buttons) {
    button.addEventListener("click", () => {
      for (const other of buttons) other.setAttribute("aria-pressed", String(other === button));
      screen.stage.view.setOptions({ phase: button.dataset["phase"] as "full" | "new" });
    });
  }
  return screen;
}

export function riseSetScreen(app: App): Screen {
  const screen = calendarScreen(app, {
    ...months, kind: "riseset", title: "Rise and set", pulls: false, heightOf: (width) => width,
  });
  const scroll = (): void => {
    const head = document.querySelector(".bar")!.getBoundingClientRect().height;
    const top = screen.stage.root.getBoundingClientRect().top + scrollY;
    scrollTo({ top: top + screen.stage.view.scrollOffset - head, behavior: "instant" });
  };
  return {
    ...screen,
    shown() {
      screen.stage.fit();
      if (app.day.day > 2) scroll();
    },
    refresh(change) {
      const before = screen.stage.view.size.height;
      screen.refresh(change);
      if (change === "day" && screen.stage.view.size.height !== before) screen.stage.fit();
    },
  };
}
