import type { Link } from "./link";
import type { Place, SecondCalendar } from "./velmora";
import { type Language, languages } from "./words";

/** What a person chose; "auto" follows the device. */
export interface Choices {
  clock: "auto" | "12" | "24";
  language: "auto" | Language;
  /** 0 is Sunday. */
  weekStart: "auto" | "0" | "1" | "6";
  secondCalendar: SecondCalendar;
  theme: "auto" | "dark" | "light";
  isTilted: boolean;
}

export const secondCalendars: readonly SecondCalendar[] = [
  "none", "hebrew", "islamic", "buddhist", "japanese", "chinese", "indian",
];

export interface Kept {
  choices: Choices;
  /** The first is the one shown. */
  places: readonly Place[];
}

const key = "velmora";
const mostPlaces = 20;

export const defaultChoices: Choices = {
  clock: "auto", language: "auto", weekStart: "auto", secondCalendar: "none", theme: "auto", isTilted: true,
};

function choose<T>(value: unknown, allowed: readonly T[], otherwise: T): T {
  return allowed.find((one) => one === value) ?? otherwise;
}

function choicesOf(value: Record<string, unknown>): Choices {
  return {
    clock: choose(value["clock"], ["auto", "12", "24"], "auto"),
    language: choose(value["language"], ["auto", ...languages], "auto"),
    weekStart: choose(value["weekStart"], ["auto", "0", "1", "6"], "auto"),
    secondCalendar: choose(value["secondCalendar"], secondCalendars, "none"),
    theme: choose(value["theme"], ["auto", "dark", "light"], "auto"),
    isTilted: value["isTilted"] !== false,
  };
}

function record(value: unknown): Record<string, unknown> {
  return typeof value === "object" && value !== null ? (value as Record<string, unknown>) : {};
}

export class Store {
  /** Whether the browser keeps what it is given. */
  keeps = true;

  /** What was kept; what is damaged or missing is left out. `readPlace` is the strict reading of a link. */
  read(readPlace: (link: string) => Link["place"]): Kept {
    let text: string | null = null;
    try {
      text = localStorage.getItem(key);
    } catch {
      this.keeps = false;
    }
    let kept: Record<string, unknown> = {};
    try {
      kept = record(JSON.parse(text ?? "{}"));
    } catch {
      // Not ours: begin anew.
    }
    const links = Array.isArray(kept["places"]) ? kept["places"] : [];
    const places = links
      .map((link) => (typeof link === "string" ? readPlace(link) : undefined))
      .filter((place) => place !== undefined);
    return { choices: choicesOf(record(kept["choices"])), places: places.slice(0, mostPlaces) };
  }

  write(choices: Choices, places: readonly string[]): void {
    try {
      localStorage.setItem(key, JSON.stringify({ choices, places: places.slice(0, mostPlaces) }));
      this.keeps = true;
    } catch {
      this.keeps = false;
    }
  }
}
