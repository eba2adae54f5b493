import { type Day, sameDay } from "./days";
import { w } from "./words";

const oneMinute = 60_000;
const utcNoon = (day: Day): number => Date.UTC(day.year, day.month - 1, day.day, 12);

/** Days, clocks and numbers as the language writes them, by the clocks of the place. */
export class Format {
  private readonly made = new Map<string, Intl.DateTimeFormat>();
  private readonly madeForNumbers = new Map<string, Intl.NumberFormat>();

  constructor(
    readonly locale: string,
    readonly zone: string,
    private readonly clock: 12 | 24,
  ) {}

  private dates(zone: string, options: Intl.DateTimeFormatOptions): Intl.DateTimeFormat {
    const name = zone + JSON.stringify(options);
    let format = this.made.get(name);
    if (!format) {
      format = new Intl.DateTimeFormat(this.locale, { timeZone: zone, calendar: "gregory", ...options });
      this.made.set(name, format);
    }
    return format;
  }

  /** "9:09 PM", to the nearest minute. */
  time(at: number): string {
    const options: Intl.DateTimeFormatOptions = { hour: "numeric", minute: "2-digit", hourCycle: this.hourCycle };
    return this.dates(this.zone, options).format(Math.round(at / oneMinute) * oneMinute);
  }

  /** "9 PM", "21": for a scale of hours. */
  hour(at: number): string {
    return this.dates(this.zone, { hour: "numeric", hourCycle: this.hourCycle }).format(at);
  }

  private get hourCycle(): "h12" | "h23" {
    return this.clock === 12 ? "h12" : "h23";
  }

  /** The time, with the day before it where it is not the one given. */
  timeOn(at: number, day: Day): string {
    return sameDay(this.dayAt(at), day) ? this.time(at) : `${this.shortDate(at)}, ${this.time(at)}`;
  }

  /** "Apr 8" */
  shortDate(at: number): string {
    return this.dates(this.zone, { day: "numeric", month: "short" }).format(at);
  }

  /** "Mon, Apr 8, 2024" */
  date(at: number): string {
    return this.dates(this.zone, { weekday: "short", day: "numeric", month: "short", year: "numeric" }).format(at);
  }

  /** "Monday, April 8, 2024" */
  fullDay(day: Day): string {
    return this.dates("UTC", { weekday: "long", day: "numeric", month: "long", year: "numeric" }).format(utcNoon(day));
  }

  /** "Mon, Apr 8" */
  mediumDay(day: Day): string {
    return this.dates("UTC", { weekday: "short", day: "numeric", month: "short" }).format(utcNoon(day));
  }

  /** "April 2024" */
  month(day: Day): string {
    return this.dates("UTC", { month: "long", year: "numeric" }).format(utcNoon(day));
  }

  year(day: Day): string {
    return this.dates("UTC", { year: "numeric" }).format(utcNoon(day));
  }

  /** "Monday", of 0 Sunday to 6. */
  weekday(number: number, width: "long" | "short" = "long"): string {
    return this.dates("UTC", { weekday: width }).format(Date.UTC(2023, 0, 1 + number, 12));
  }

  private numbers(options: Intl.NumberFormatOptions): Intl.NumberFormat {
    const name = JSON.stringify(options);
    let format = this.madeForNumbers.get(name);
    if (!format) {
      format = new Intl.NumberFormat(this.locale, options);
      this.madeForNumbers.set(name, format);
    }
    return format;
  }

  number(value: number, digits = 0): string {
    return this.numbers({ minimumFractionDigits: digits, maximumFractionDigits: digits }).format(value);
  }

  percent(share: number): string {
    return this.numbers({ style: "percent", maximumFractionDigits: 0 }).format(share);
  }

  degrees(value: number, digits = 0): string {
    const rounded = Number(value.toFixed(digits));
    return `${this.number(rounded === 0 ? 0 : rounded, digits)}°`;
  }

  kilometres(value: number): string {
    return this.numbers({ style: "unit", unit: "kilometer", maximumFractionDigits: 0 }).format(value);
  }

  /** "14h 5m" */
  duration(seconds: number): string {
    const minutes = Math.round(seconds / 60);
    const text = (value: number): string => this.number(value);
    return w("%1h %2m", text(Math.floor(minutes / 60)), text(minutes % 60));
  }

  /** "SSE 162°" */
  direction(azimuth: number): string {
    const names = [
      "N", "NNE", "NE", "ENE", "E", "ESE", "SE", "SSE", "S", "SSW", "SW", "WSW", "W", "WNW", "NW", "NNW",
    ];
    return `${w(names[Math.round(azimuth / 22.5) % 16]!)} ${this.degrees(azimuth)}`;
  }

  dayAt(at: number): Day {
    return clockAt(at, this.zone).day;
  }
}

const clocks = new Map<string, Intl.DateTimeFormat>();

/** What the clocks of the zone show: the day, and the minutes after its midnight. */
export function clockAt(at: number, zone: string): { day: Day; minutes: number } {
  let clock = clocks.get(zone);
  if (!clock) {
    clock = new Intl.DateTimeFormat("en-US-u-nu-latn", {
      timeZone: zone, calendar: "gregory", hourCycle: "h23",
      year: "numeric", month: "numeric", day: "numeric", hour: "numeric", minute: "numeric",
    });
    clocks.set(zone, clock);
  }
  const part: Record<string, number> = {};
  for (const { type, value } of clock.formatToParts(at)) part[type] = Number(value);
  return {
    day: { year: part["year"]!, month: part["month"]!, day: part["day"]! },
    minutes: part["hour"]! * 60 + part["minute"]!,
  };
}

/** When the clocks of the zone show that; what they skip comes out as late after as it was skipped. */
export function instantOf(day: Day, minutes: number, zone: string): number {
  const wanted = Date.UTC(day.year, day.month - 1, day.day, 0, minutes);
  let at = wanted;
  for (let step = 0; step < 2; ++step) {
    const shown = clockAt(at, zone);
    at += wanted - Date.UTC(shown.day.year, shown.day.month - 1, shown.day.day, 0, shown.minutes);
  }
  return at;
}

export function isZone(name: string): boolean {
  if (!/^[A-Za-z][A-Za-z0-9_+\-/]*$/.test(name)) return false;
  try {
    new Intl.DateTimeFormat("en-US", { timeZone: name });
    return true;
  } catch {
    return false;
  }
}
