import type { CivilDate } from "./velmora";

/** A day of the Gregorian calendar at the place; month 1 is January. */
export type Day = CivilDate;

/** The years that the calendars' tables know. */
export const firstYear = 2000;
export const lastYear = 2040;

const oneDay = 86_400_000;

function utc(day: Day): number {
  return Date.UTC(day.year, day.month - 1, day.day);
}

function ofUtc(milliseconds: number): Day {
  const date = new Date(milliseconds);
  return { year: date.getUTCFullYear(), month: date.getUTCMonth() + 1, day: date.getUTCDate() };
}

export function daysIn(year: number, month: number): number {
  return new Date(Date.UTC(year, month, 0)).getUTCDate();
}

export function isDay({ year, month, day }: Day): boolean {
  return month >= 1 && month <= 12 && day >= 1 && day <= daysIn(year, month);
}

export function isKnown(day: Day): boolean {
  return day.year >= firstYear && day.year <= lastYear;
}

export function sameDay(a: Day, b: Day): boolean {
  return a.year === b.year && a.month === b.month && a.day === b.day;
}

export function sameMonth(a: Day, b: Day): boolean {
  return a.year === b.year && a.month === b.month;
}

/** 0 is Sunday, 6 Saturday. */
export function weekdayOf(day: Day): number {
  return new Date(utc(day)).getUTCDay();
}

export function addDays(day: Day, count: number): Day {
  return ofUtc(utc(day) + count * oneDay);
}

/** The same day of another month, or that month's last. */
export function addMonths(day: Day, count: number): Day {
  const months = day.year * 12 + day.month - 1 + count;
  const year = Math.floor(months / 12);
  const month = months - year * 12 + 1;
  return { year, month, day: Math.min(day.day, daysIn(year, month)) };
}

/** The nearest day within the years that are known. */
export function nearestKnown(day: Day): Day {
  if (day.year < firstYear) return { year: firstYear, month: 1, day: 1 };
  if (day.year > lastYear) return { year: lastYear, month: 12, day: 31 };
  return day;
}

/** "2024-04-08" */
export function dayText({ year, month, day }: Day): string {
  return `${String(year).padStart(4, "0")}-${String(month).padStart(2, "0")}-${String(day).padStart(2, "0")}`;
}

/** The day that such a text names; none where it is another text or there is no such day. */
export function dayOfText(text: string): Day | undefined {
  const parts = /^(\d{4})-(\d{2})-(\d{2})$/.exec(text);
  if (!parts) return undefined;
  const day = { year: Number(parts[1]), month: Number(parts[2]), day: Number(parts[3]) };
  return isDay(day) ? day : undefined;
}
