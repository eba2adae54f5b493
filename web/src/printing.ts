import type { App } from "./app";
import { h } from "./dom";
import type { HostedView } from "./velmora";

/** On paper a view stands as a drawing, in the colours of the light: canvases print coarsely, if at all. */
export function printViews(app: App, shown: () => HostedView | undefined): void {
  let printed: HTMLElement | undefined;
  addEventListener("beforeprint", () => {
    const view = shown();
    if (!view) return;
    const { settings } = app.moon;
    app.moon.configure({ ...settings, theme: "light" });
    const drawing = new DOMParser().parseFromString(view.svg(), "image/svg+xml");
    app.moon.configure(settings);
    printed = h("div", { class: "printed", "aria-hidden": "true" }, document.importNode(drawing.documentElement, true));
    view.canvas.after(printed);
  });
  addEventListener("afterprint", () => printed?.remove());
}
