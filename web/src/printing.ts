import type { App } from "./app";
import { h } from "./dom";
import type { HostedView } from "./velmora";

let drawings = 0;

/** The view's drawing as a part of the page. Its policy lets no element bring a style along, so scripts set it; what the
 *  drawing names is its own, since the page may show another one. */
function drawingOf(view: HostedView): Element {
  const own = `$1drawing-${++drawings}-`;
  const text = view.svg().replaceAll(' style="', ' data-style="').replaceAll(/(id="|url\(#|href="#)/g, own);
  const parsed = new DOMParser().parseFromString(text, "image/svg+xml");
  const drawing = document.importNode(parsed.documentElement, true);
  for (const one of drawing.querySelectorAll<SVGElement>("[data-style]")) one.style.cssText = one.dataset["style"]!;
  return drawing;
}

/** The month's rows in two columns, which a sheet of paper has room for. */
function columnsOf(list: HostedView): Element[] {
  const rows = list.elements().length;
  const { width, height } = list.size;
  const half = (Math.ceil(rows / 2) * height) / rows;
  return [0, half].map((top) => {
    const column = drawingOf(list);
    column.setAttribute("viewBox", `0 ${top} ${width} ${half}`);
    column.setAttribute("height", String(half));
    return column;
  });
}

/** On paper views stand as drawings, in the colours of the light: canvases print coarsely, if at all. */
export function printViews(app: App, shown: () => readonly HostedView[]): void {
  let printed: HTMLElement[] = [];
  const remove = (): void => printed.forEach((drawing) => drawing.remove());
  addEventListener("beforeprint", () => {
    remove();
    const views = shown();
    if (views.length === 0) return;
    const { settings } = app.moon;
    app.moon.configure({ ...settings, theme: "light" });
    printed = views.map((view) => {
      const sheet = view.kind === "riseset" ? columnsOf(view) : [drawingOf(view)];
      const holder = h("div", { class: "printed", "aria-hidden": "true" }, ...sheet);
      view.canvas.after(holder);
      return holder;
    });
    app.moon.configure(settings);
  });
  addEventListener("afterprint", remove);
}
