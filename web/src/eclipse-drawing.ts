import { s } from "./dom";
import type { SeenEclipse } from "./velmora";

let drawings = 0;

/** The eclipsed disc when most of it is seen, the zenith up. */
export function eclipseDrawing({ body, discs }: SeenEclipse, label: string): SVGSVGElement {
  const clip = `eclipsed-${++drawings}`;
  const circle = (name: string, radius: number): SVGCircleElement =>
    s("circle", { class: name, cx: discs.x, cy: discs.y, r: radius, "clip-path": `url(#${clip})` });
  return s("svg", { class: `eclipse eclipse-${body}`, viewBox: "-1.25 -1.25 2.5 2.5", role: "img", "aria-label": label },
    s("clipPath", { id: clip }, s("circle", { cx: 0, cy: 0, r: 1 })),
    s("circle", { class: "disc", cx: 0, cy: 0, r: 1 }),
    discs.penumbra ? circle("penumbra", discs.penumbra) : undefined,
    circle(body === "sun" ? "moon" : "umbra", discs.radius),
    s("circle", { class: "rim", cx: 0, cy: 0, r: 1 }));
}
