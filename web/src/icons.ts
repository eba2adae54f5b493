import { s } from "./dom";

/** Line drawings on a grid of 24 points. */
const lines = {
  today: "M12 2v3M12 19v3M2 12h3M19 12h3M4.9 4.9 7 7M17 17l2.1 2.1M19.1 4.9 17 7M7 17l-2.1 2.1M12 8a4 4 0 1 0 0 8 4 4 0 0 0 0-8z",
  month: "M5 5h14a2 2 0 0 1 2 2v12a2 2 0 0 1-2 2H5a2 2 0 0 1-2-2V7a2 2 0 0 1 2-2zM3 10h18M8 2.5V7M16 2.5V7M8 14h.01M12 14h.01M16 14h.01M8 17.5h.01M12 17.5h.01",
  year: "M4 4h6v6H4zM14 4h6v6h-6zM4 14h6v6H4zM14 14h6v6h-6z",
  riseset: "M3 18h18M6.5 18a5.5 5.5 0 0 1 11 0M12 9V3M9.5 5.5 12 3l2.5 2.5M4.2 11.2l1.5 1.2M19.8 11.2l-1.5 1.2",
  sky: "M12 3a9 9 0 1 0 0 18 9 9 0 0 0 0-18zM15.5 8.5l-2 5-5 2 2-5z",
  eclipses: "M9.5 5a7 7 0 1 0 0 14 7 7 0 0 0 0-14zM13 6a7 7 0 1 1 0 12",
  pictures: "M20 14.5A8.5 8.5 0 1 1 9.5 4a6.8 6.8 0 0 0 10.5 10.5z",
  posters: "M5 3h14v18H5zM12 7a4 4 0 1 0 0 8 4 4 0 0 0 0-8zM8.5 18h7",
  place: "M12 21.5s7-6.2 7-11.7A7 7 0 0 0 5 9.8c0 5.5 7 11.7 7 11.7zM12 7.3a2.6 2.6 0 1 0 0 5.2 2.6 2.6 0 0 0 0-5.2z",
  settings: "M4 7h9M19 7h1M4 17h1M11 17h9M16 4.5a2.5 2.5 0 1 0 0 5 2.5 2.5 0 0 0 0-5zM8 14.5a2.5 2.5 0 1 0 0 5 2.5 2.5 0 0 0 0-5z",
  more: "M5 12h.01M12 12h.01M19 12h.01",
  share: "M12 15V3.5M8 7l4-3.8L16 7M6 11.5H5a1 1 0 0 0-1 1V20a1 1 0 0 0 1 1h14a1 1 0 0 0 1-1v-7.5a1 1 0 0 0-1-1h-1",
  back: "M15 5l-7 7 7 7",
  forward: "M9 5l7 7-7 7",
  close: "M6 6l12 12M18 6 6 18",
  search: "M10.5 4a6.5 6.5 0 1 0 0 13 6.5 6.5 0 0 0 0-13zM15.5 15.5 21 21",
  locate: "M21 3 3 10.5l7.5 3L13.5 21z",
} as const;
export type IconName = keyof typeof lines;

export function icon(name: IconName): SVGSVGElement {
  return s("svg", { class: `icon icon-${name}`, viewBox: "0 0 24 24", "aria-hidden": "true" }, s("path", { d: lines[name] }));
}
