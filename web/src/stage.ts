import { type App } from "./app";
import { h, oncePerFrame } from "./dom";
import { ElementLayer } from "./elements";
import type { HostedView, ViewKind, ViewOptions } from "./velmora";

/** How much finer than three pixels a point nobody sees; canvases grow with the square of it. */
const finest = 3;

/** One view on its canvas, redrawn by animation frame, with its elements for screen readers over it. */
export class Stage {
  readonly canvas: HTMLElement;
  readonly root: HTMLDivElement;
  readonly view: HostedView;
  private readonly elements: ElementLayer;
  private readonly frame = oncePerFrame(() => this.drawNow());
  private readonly resizing: ResizeObserver;
  private readonly endListening: () => void;
  private isCovered = false;
  private isClosed = false;

  /** `heightOf` tells the height in points for a width. */
  constructor(
    app: App, kind: ViewKind, label: string, private readonly heightOf: (width: number) => number,
    options: ViewOptions = {},
  ) {
    this.root = h("div", { class: `stage stage-${kind}` });
    this.canvas = h(kind === "riseset" ? "div" : "canvas", { class: "drawn", "aria-hidden": "true" });
    this.view = app.moon.createView(kind, this.canvas, options);
    this.elements = new ElementLayer(app, this.view, label);
    this.root.append(this.canvas, this.elements.root);
    this.endListening = this.view.onNeedsDisplay(() => this.frame.ask());
    this.resizing = new ResizeObserver(() => this.fit());
    this.resizing.observe(this.root);
  }

  /** Takes the width that the page gives it. */
  fit(): void {
    const width = Math.floor(this.root.clientWidth);
    if (width <= 0) return;
    const height = Math.round(this.heightOf(width));
    const scale = Math.min(devicePixelRatio || 1, finest);
    this.view.resize(width, height, scale);
    this.canvas.style.width = `${width}px`;
    this.canvas.style.height = `${this.view.size.height}px`;
    this.root.style.height = `${this.view.size.height}px`;
    this.drawNow();
  }

  /** Another drawing lies over the canvas: what is below it is drawn no more. */
  cover(): void {
    this.isCovered = this.canvas.hidden = true;
  }

  drawNow(): void {
    if (this.isClosed) return;
    if (!this.isCovered) this.view.draw();
    this.elements.refresh();
  }

  focusSelected(): void {
    this.elements.focusSelected();
  }

  close(): void {
    this.isClosed = true;
    this.frame.cancel();
    this.resizing.disconnect();
    this.endListening();
    this.view.close();
  }
}
