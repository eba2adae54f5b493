import type { App } from "./app";
import { h } from "./dom";
import type { HostedView } from "./velmora";

/** On paper views stand as drawings, in the colours of the light: canvases print coarsely, if at all. */
export function printViews(app: App, shown: () => readonly HostedView[]): void {
  let printed: HTMLElement[] = [];
  addEventListener("beforeprint", () => {
    const views = shown();
    if (views.length === 0) return;
    const { settings } = app.moon;
    app.moon.configure({ ...settings, theme: "light" });
    printed = views.map((view) => {
      const drawing = new DOMParser().parseFromString(view.svg(), "image/svg+xml");
      const holder = h("div", { class: "printed", "aria-hidden": "true" }, document.importNode(drawing.documentElement, true));
      view.canvas.after(holder);
      return holder;
    });
    app.moon.configure(settings);
  });
  addEventListener("afterprint", () => printed.forEach((drawing) => drawing.remove()));
}
