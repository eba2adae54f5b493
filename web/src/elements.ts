import type { App } from "./app";
import { type Day, addDays, addMonths, dayText, sameDay, sameMonth, weekdayOf } from "./days";
import { h } from "./dom";
import type { HostedView, ViewElement } from "./velmora";

/**
 * The elements of a view as elements of the page, over the canvas and in reading order: the days of a month as
 * a grid, days that lie elsewhere as a list, all else as named pictures. Of the days one is a tab stop.
 */
export class ElementLayer {
  readonly root = h("div", { class: "elements" });
  private readonly cells = new Map<string, HTMLElement>();
  private nodes: HTMLElement[] = [];
  private shown: readonly ViewElement[] = [];
  private tabStop: HTMLElement | undefined;
  /** The day that gets the focus once the view shows it. */
  private wanted: Day | undefined;

  constructor(private readonly app: App, private readonly view: HostedView, private readonly label: string) {
    this.root.addEventListener("keydown", (event) => this.key(event));
  }

  private get isGrid(): boolean {
    return this.view.kind === "month" || this.view.kind === "pictures";
  }

  /** Where the days are those of before, changes only what is said of them. */
  refresh(): void {
    const elements = this.view.elements();
    const before = this.shown;
    const hasOtherDays = !isEqual(elements.map(({ day }) => day), before.map(({ day }) => day));
    const changed = [...elements.keys()].filter((index) => hasOtherDays || !isEqual(elements[index], before[index]));
    this.shown = elements;
    if (!hasOtherDays && changed.length === 0) return;
    const hadFocus = this.root.contains(document.activeElement);
    if (hasOtherDays) this.build(elements);
    const today = this.app.moon.today();
    for (const index of changed) describe(this.nodes[index]!, elements[index]!, today);
    this.putTabStop([...this.cells.values()].find((cell) => cell.ariaSelected === "true"));
    if (hadFocus || this.wanted) this.focusSelected();
  }

  private build(elements: readonly ViewElement[]): void {
    this.cells.clear();
    this.nodes = elements.map((element, index) =>
      element.day ? this.cell(element.day, index) : h("div", { role: "img" }));
    const days = elements.flatMap(({ day }) => day ?? []);
    const parts = this.nodes.filter((_, index) => !elements[index]!.day);
    if (days.length > 0) parts.push(this.isGrid ? this.grid(days) : this.list());
    this.root.replaceChildren(...parts);
  }

  private grid(days: readonly Day[]): HTMLElement {
    const grid = h("div", { role: "grid", "aria-label": this.label });
    const { weekStart } = this.app.moon.settings;
    const heads = Array.from({ length: 7 }, (_, column) => h("span", { role: "columnheader" },
      this.app.format.weekday((weekStart + column) % 7)));
    grid.append(h("div", { role: "row", class: "spoken" }, ...heads));
    let row: HTMLElement | undefined;
    for (const day of days) {
      const column = (weekdayOf(day) - weekStart + 7) % 7;
      if (!row || column === 0) {
        row = h("div", { role: "row" });
        grid.append(row);
      }
      const cell = this.cells.get(dayText(day))!;
      cell.setAttribute("aria-colindex", String(column + 1));
      row.append(cell);
    }
    return grid;
  }

  private list(): HTMLElement {
    return h("div", { role: "listbox", "aria-label": this.label }, ...this.cells.values());
  }

  private cell(day: Day, index: number): HTMLElement {
    const cell = h("div", {
      role: this.isGrid ? "gridcell" : "option", class: "day", "data-day": dayText(day), tabindex: -1,
      // A screen reader's tap comes here, a finger's goes to the canvas below.
      click: () => this.view.perform(index, 0),
    });
    this.cells.set(dayText(day), cell);
    return cell;
  }

  /** On the cell; on the first where there is none. */
  private putTabStop(cell: HTMLElement | undefined): void {
    if (this.tabStop) this.tabStop.tabIndex = -1;
    this.tabStop = cell ?? this.cells.values().next().value;
    if (this.tabStop) this.tabStop.tabIndex = 0;
  }

  focusSelected(): void {
    const day = this.wanted ?? this.app.day;
    const cell = this.cells.get(dayText(day)) ?? this.root.querySelector<HTMLElement>("[tabindex='0']");
    this.wanted = undefined;
    if (!cell) return;
    this.putTabStop(cell);
    cell.focus({ preventScroll: this.isGrid });
  }

  private key(event: KeyboardEvent): void {
    const focused = (event.target as HTMLElement).dataset["day"];
    if (!focused || event.ctrlKey || event.metaKey || event.altKey) return;
    const days = [...this.cells.keys()];
    const day = dayOf(focused);
    const target = this.isGrid ? this.gridTarget(event, day) : this.listTarget(event, day, days);
    if (event.key === "Enter" || event.key === " ") {
      event.preventDefault();
      (event.target as HTMLElement).click();
    } else if (target) {
      event.preventDefault();
      this.moveTo(target);
    }
  }

  /** Arrows a day or a week, Home and End of the week, pages a month, with Shift a year. */
  private gridTarget(event: KeyboardEvent, day: Day): Day | undefined {
    const onward = this.app.isRightToLeft ? -1 : 1;
    const column = (weekdayOf(day) - this.app.moon.settings.weekStart + 7) % 7;
    switch (event.key) {
      case "ArrowRight": return addDays(day, onward);
      case "ArrowLeft": return addDays(day, -onward);
      case "ArrowDown": return addDays(day, 7);
      case "ArrowUp": return addDays(day, -7);
      case "Home": return addDays(day, -column);
      case "End": return addDays(day, 6 - column);
      default: return this.pageTarget(event, day);
    }
  }

  private listTarget(event: KeyboardEvent, day: Day, days: readonly string[]): Day | undefined {
    const place = days.indexOf(dayText(day));
    const at = (index: number): Day | undefined => {
      const text = days[Math.max(0, Math.min(days.length - 1, index))];
      return text ? dayOf(text) : undefined;
    };
    const onward = this.app.isRightToLeft ? -1 : 1;
    switch (event.key) {
      case "ArrowDown": return at(place + 1);
      case "ArrowUp": return at(place - 1);
      case "ArrowRight": return at(place + onward);
      case "ArrowLeft": return at(place - onward);
      case "Home": return at(0);
      case "End": return at(days.length - 1);
      default: return this.pageTarget(event, day);
    }
  }

  private pageTarget(event: KeyboardEvent, day: Day): Day | undefined {
    const months = event.shiftKey || this.view.kind === "year" ? 12 : 1;
    switch (event.key) {
      case "PageDown": return addMonths(day, months);
      case "PageUp": return addMonths(day, -months);
      case "t":
      case "T": return this.app.moon.today();
      default: return undefined;
    }
  }

  /** Within what is shown the focus moves alone; a day of another month is selected, so that it is shown. */
  private moveTo(day: Day): void {
    const cell = this.cells.get(dayText(day));
    if (cell) {
      this.putTabStop(cell);
      cell.focus();
      return;
    }
    this.wanted = day;
    if (sameDay(day, this.app.day) || sameMonth(day, this.app.day)) this.focusSelected();
    else this.app.selectDay(day);
  }
}

function dayOf(text: string): Day {
  const [year, month, day] = text.split("-").map(Number);
  return { year: year!, month: month!, day: day! };
}

/** Of values as JSON has them. */
function isEqual(one: unknown, other: unknown): boolean {
  return one === other || JSON.stringify(one) === JSON.stringify(other);
}

/** What the node says of the element, and where it lies. */
function describe(node: HTMLElement, element: ViewElement, today: Day): void {
  const { frame, day, isSelected } = element;
  // Of a day the label says all: the month's value names the month and day again, in English.
  const value = day ? "" : element.value;
  node.setAttribute("aria-label", [element.label, value].filter(Boolean).join(", "));
  node.style.left = `${frame.x}px`;
  node.style.top = `${frame.y}px`;
  node.style.width = `${frame.width}px`;
  node.style.height = `${frame.height}px`;
  if (!day) return;
  node.setAttribute("aria-selected", String(isSelected));
  if (sameDay(day, today)) node.setAttribute("aria-current", "date");
  else node.removeAttribute("aria-current");
}
