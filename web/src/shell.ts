import type { App } from "./app";
import { h } from "./dom";
import { icon, type IconName } from "./icons";
import { type ViewName, viewNames } from "./link";
import { t, type Text } from "./words";

export const viewTitles: Record<ViewName, Text> = {
  today: "Today", month: "Month", year: "Year", riseset: "Rise and set", sky: "Sky",
  eclipses: "Eclipses", pictures: "Pictures", posters: "Posters", place: "Place", settings: "Settings",
};

/** Those that a phone's bar has room for; the others stand behind "More". */
const firstViews: readonly ViewName[] = ["today", "month", "riseset", "sky"];

function button(name: IconName, text: string, attributes: Record<string, string> = {}): HTMLButtonElement {
  return h("button", { type: "button", ...attributes }, icon(name), h("span", { class: "label" }, text));
}

/** What stands around every screen: title, sections, spoken sentences, sheets. */
export class Shell {
  readonly main = h("main", { id: "content", tabindex: "-1" });
  private readonly title = h("h1", {});
  private readonly placeName = h("span", { class: "label" });
  private readonly sections = h("nav", { class: "sections" });
  private readonly spoken = h("div", { class: "spoken", "aria-live": "polite", role: "status" });
  private readonly notice = h("div", { class: "notice", role: "alert" });
  private sheet: HTMLDialogElement | undefined;

  constructor(private readonly app: App, private readonly openShare: () => void) {}

  build(): void {
    const placeButton = h("button", { type: "button", class: "place-button", click: () => this.app.go("place") },
      icon("place"), this.placeName);
    placeButton.setAttribute("aria-describedby", "place-hint");
    const share = h("button", { type: "button", class: "round share", "aria-label": t("Save and share"),
      click: () => this.openShare() }, icon("share"));
    const skip = h("a", { class: "skip", href: "#content", click: (event: Event) => {
      event.preventDefault();
      this.main.focus();
    } }, t("Skip to content"));
    const hint = h("span", { id: "place-hint", hidden: true }, t("Change the place"));
    const header = h("header", { class: "bar" }, this.title, h("div", { class: "tools" }, placeButton, hint, share));
    this.sections.setAttribute("aria-label", t("Sections"));
    document.body.replaceChildren(skip, this.sections, h("div", { class: "column" }, header, this.notice, this.main),
      this.spoken);
    this.buildSections();
  }

  private buildSections(): void {
    const buttons = viewNames.map((view) => {
      const one = button(view, t(viewTitles[view]), { "data-view": view });
      if (!firstViews.includes(view)) one.classList.add("further");
      one.addEventListener("click", () => this.app.go(view));
      return one;
    });
    const more = button("more", t("More"), { class: "more", "aria-haspopup": "dialog" });
    more.addEventListener("click", () => this.openMore());
    this.sections.replaceChildren(h("div", { class: "mark", "aria-hidden": "true" }, "Velmora"), ...buttons, more);
  }

  /** Title, place and the section shown; makes room for the new screen. */
  show(title: string): void {
    this.title.textContent = title;
    document.title = `${title} · ${this.app.place.name || t("Place")} · Velmora`;
    this.placeName.textContent = this.app.place.name || this.coordinates();
    for (const one of this.sections.querySelectorAll("button")) {
      const isShown = one.dataset["view"] === this.app.view ||
        (one.classList.contains("more") && !firstViews.includes(this.app.view));
      if (isShown) one.setAttribute("aria-current", "page");
      else one.removeAttribute("aria-current");
    }
  }

  private coordinates(): string {
    const { latitude, longitude } = this.app.place;
    return `${this.app.format.degrees(latitude, 2)}, ${this.app.format.degrees(longitude, 2)}`;
  }

  say(sentence: string): void {
    this.spoken.textContent = sentence;
  }

  /** A message that stays until it is closed. */
  warn(message: string): void {
    const close = h("button", { type: "button", class: "round", "aria-label": t("Close"),
      click: () => this.notice.replaceChildren() }, icon("close"));
    this.notice.replaceChildren(h("p", {}, message), close);
  }

  /** A message with something to do about it. */
  offer(message: string, action: string, act: () => void): void {
    this.warn(message);
    const button = h("button", { type: "button", class: "plain", click: act }, action);
    this.notice.lastElementChild!.before(button);
  }

  clearWarning(): void {
    this.notice.replaceChildren();
  }

  private openMore(): void {
    const further = viewNames.filter((view) => !firstViews.includes(view));
    this.openSheet(t("More"), further.map((view) => {
      const one = button(view, t(viewTitles[view]), { class: "row" });
      if (view === this.app.view) one.setAttribute("aria-current", "page");
      one.addEventListener("click", () => {
        this.closeSheet();
        this.app.go(view);
      });
      return one;
    }));
  }

  /** A dialogue that comes up from the lower edge; Escape or a tap beside it closes it. */
  openSheet(title: string, content: readonly Node[]): void {
    this.closeSheet();
    const close = h("button", { type: "button", class: "round", "aria-label": t("Close"),
      click: () => this.closeSheet() }, icon("close"));
    const sheet = h("dialog", { class: "sheet", "aria-labelledby": "sheet-title" },
      h("div", { class: "sheet-head" }, h("h2", { id: "sheet-title" }, title), close), ...content);
    sheet.addEventListener("click", (event) => {
      if (event.target === sheet) this.closeSheet();
    });
    sheet.addEventListener("close", () => sheet.remove());
    document.body.append(sheet);
    sheet.showModal();
    this.sheet = sheet;
  }

  closeSheet(): void {
    this.sheet?.close();
    this.sheet = undefined;
  }
}
