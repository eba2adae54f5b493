import type { CivilDate, End, Frame, HostedView, Size, ViewElement, ViewKind, ViewOptions } from "../velmora";
import { isSame, type Module } from "./module";
import { replay } from "./replay";
import { svgOf } from "./svg";
import { useTextStyle } from "./texts";

/** How wide and high a square of a drawing is, in pixels. */
const square = 64;

/** The pixels that hold all squares in which the drawings differ; none where they do not. */
function differing(one: Float64Array, other: Float64Array, width: number): Frame | undefined {
  const across = Math.max(Math.ceil(width / square), 1);
  let left = Infinity, top = Infinity, right = -1, bottom = -1;
  one.forEach((number, index) => {
    if (number === other[index]) return;
    const x = index % across, y = Math.floor(index / across);
    [left, top] = [Math.min(left, x), Math.min(top, y)];
    [right, bottom] = [Math.max(right, x), Math.max(bottom, y)];
  });
  if (right < 0) return undefined;
  return { x: left * square, y: top * square, width: (right + 1 - left) * square, height: (bottom + 1 - top) * square };
}

/** Draws on a canvas of that many pixels a point, the background below or none; within the frame alone, if any. */
function paint({ texts, pictures }: Module, canvas: HTMLCanvasElement, operations: Float64Array, scale: number,
               { background, within }: { background?: string; within?: Frame } = {}): void {
  const context = canvas.getContext("2d");
  if (!context) return;
  useTextStyle(context);  // to stay
  context.save();
  context.setTransform(1, 0, 0, 1, 0, 0);
  if (within) {
    context.beginPath();
    context.rect(within.x, within.y, within.width, within.height);
    context.clip();
  }
  context.clearRect(0, 0, context.canvas.width, context.canvas.height);
  context.setTransform(scale, 0, 0, scale, 0, 0);
  replay(context, operations, texts, pictures);
  context.restore();
  if (background === undefined) return;
  context.setTransform(1, 0, 0, 1, 0, 0);
  context.globalCompositeOperation = "destination-over";
  context.fillStyle = background;
  context.fillRect(0, 0, context.canvas.width, context.canvas.height);
  context.globalCompositeOperation = "source-over";
}

function fit(canvas: HTMLCanvasElement, size: Size, scale: number): void {
  const width = Math.round(size.width * scale), height = Math.round(size.height * scale);
  if (canvas.width !== width) canvas.width = width;
  if (canvas.height !== height) canvas.height = height;
  canvas.style.width = `${size.width}px`;
  canvas.style.height = `${size.height}px`;
}

/** Shows on a canvas what is drawn on another. Browsers without a graphics processor hand every canvas that is drawn
 *  on to the screen anew with each frame, as large as it is, but not one that shows a bitmap. */
function show(drawing: HTMLCanvasElement, canvas: HTMLCanvasElement): void {
  const bitmap = new OffscreenCanvas(drawing.width, drawing.height);
  bitmap.getContext("2d")!.drawImage(drawing, 0, 0);
  canvas.getContext("bitmaprenderer")!.transferFromImageBitmap(bitmap.transferToImageBitmap());
}

/** A view of the module on a canvas of the page, or with a canvas for each of its parts. */
export class CanvasView implements HostedView {
  readonly #module: Module;
  readonly #number: number;
  readonly #listeners = new Set<() => void>();
  #scale = 1;
  #isStale = true;
  #isTold = false;
  #isClosed = false;
  readonly #parts: HTMLCanvasElement[] = [];
  /** On which a part is drawn. */
  readonly #sheet = document.createElement("canvas");
  /** Of the last drawing on the canvas. */
  #squares: Float64Array | undefined;
  /** As last answered; those of which nothing has changed are answered again. */
  #elements: readonly ViewElement[] = [];
  #edition = 0;

  constructor(module: Module, readonly kind: ViewKind, readonly canvas: HTMLElement, options: ViewOptions) {
    this.#module = module;
    this.#number = module.native.number("velmora_web_open_view", kind);
    if (this.#number === 0) throw new RangeError(`there is no view "${String(kind)}"`);
    this.setOptions(options);
  }

  resize(width: number, height: number, scale: number): void {
    if (!(width > 0 && height > 0 && scale > 0)) throw new RangeError("a view is larger than nothing");
    this.#scale = scale;
    this.#module.native.run("velmora_web_resize_view", this.#number, width, height, scale);
    this.stale();
  }

  get size(): Size {
    return {
      width: this.#module.native.number("velmora_web_view_width", this.#number),
      height: this.#module.native.number("velmora_web_view_height", this.#number),
    };
  }

  setOptions({ phase = "full", at = NaN, heading = 0, isTilted = false, hidesEclipses = false }: ViewOptions): void {
    this.#module.native.run("velmora_web_set_options", this.#number, phase === "new" ? 1 : 0, at, heading,
                            isTilted ? 1 : 0, hidesEclipses ? 1 : 0);
    this.tell();
  }

  get needsDisplay(): boolean {
    return !this.#isClosed &&
      (this.#isStale || this.#module.native.number("velmora_web_needs_display", this.#number) !== 0);
  }

  draw(): void {
    if (!this.needsDisplay) return;
    const isStale = this.#isStale;
    this.#isStale = this.#isTold = false;
    if (isStale) this.#squares = undefined;
    if (this.canvas instanceof HTMLCanvasElement) this.#paintChanges(this.canvas);
    else this.#paintParts(this.canvas, isStale);
    void this.#fetchPictures();
  }

  drawDay(day: CivilDate, canvas: HTMLCanvasElement): void {
    this.#module.visiting(day, () => this.#paintOn(canvas));
  }

  onNeedsDisplay(listener: () => void): End {
    this.#listeners.add(listener);
    return () => this.#listeners.delete(listener);
  }

  async ready(): Promise<void> {
    await this.#fetchPictures();
    if (this.#isClosed) return;
    this.#drawnElsewhere(this.#scale);  // which hands the pictures to the browser
    await this.#module.pictures.settled();
  }

  touchBegan(x: number, y: number): void {
    this.#touch("velmora_web_touch_began", x, y);
  }
  touchMoved(x: number, y: number): void {
    this.#touch("velmora_web_touch_moved", x, y);
  }
  touchEnded(x: number, y: number): void {
    this.#touch("velmora_web_touch_ended", x, y);
  }
  touchCancelled(): void {
    this.#touch("velmora_web_touch_cancelled");
  }

  get scrollOffset(): number {
    return this.#module.native.number("velmora_web_scroll_offset", this.#number);
  }

  elements(): readonly ViewElement[] {
    const { native, day } = this.#module;
    const edition = native.number("velmora_web_edition_of_elements", this.#number);
    if (edition !== this.#edition) {
      this.#edition = edition;
      this.#elements = native.answer<ViewElement[]>("velmora_web_elements", this.#number)!;
    }
    this.#elements = this.#elements.map((element) => {
      const isSelected = element.day !== undefined && isSame(element.day, day);
      return element.isSelected === isSelected ? element : { ...element, isSelected };
    });
    return this.#elements;
  }

  perform(element: number, action: number): void {
    this.#touch("velmora_web_perform", element, action);
  }

  svg(): string {
    const operations = this.#drawnElsewhere(1).slice();
    return svgOf(operations, this.size, this.#background, this.#module.texts, this.#module.pictures);
  }

  async png(scale: number): Promise<Blob> {
    await this.ready();
    const canvas = document.createElement("canvas");
    fit(canvas, this.size, scale);
    paint(this.#module, canvas, this.#drawnElsewhere(scale), scale,
          { background: this.#background });
    return new Promise((done, fail) =>
      canvas.toBlob((blob) => blob ? done(blob) : fail(new Error("the picture is too large for this browser"))));
  }

  close(): void {
    this.#isClosed = true;
    this.#listeners.clear();
    this.#module.forget(this);
    this.#module.native.run("velmora_web_close_view", this.#number);
  }

  /** Has it drawn again, whatever the library's view says. */
  stale(): void {
    this.#isStale = true;
    this.tell();
  }

  /** Says once that it needs a drawing. */
  tell(): void {
    if (this.#isTold || !this.needsDisplay) return;
    this.#isTold = true;
    for (const listener of [...this.#listeners]) listener();
  }

  /** Its operations; for the library it is drawn then, but what the page shows stays as outdated as it was. */
  #drawnElsewhere(scale: number): Float64Array {
    this.#isStale ||= this.needsDisplay;
    return this.#module.native.operations(this.#number, scale);
  }

  get #background(): string {
    return this.#module.native.text("velmora_web_view_background", this.#number);
  }

  #paintOn(canvas: HTMLCanvasElement): void {
    fit(canvas, this.size, this.#scale);
    paint(this.#module, canvas, this.#module.native.operations(this.#number, this.#scale), this.#scale);
  }

  /** Where it shows something else than before; everywhere after more than the library's view may have changed. */
  #paintChanges(canvas: HTMLCanvasElement): void {
    const { native } = this.#module;
    fit(canvas, this.size, this.#scale);
    const operations = native.operations(this.#number, this.#scale);
    const before = this.#squares;
    // Before the next call: the module's memory may be another one after it.
    if (!before) paint(this.#module, canvas, operations, this.#scale);
    this.#squares = native.squares().slice();
    const within = before && differing(this.#squares, before, canvas.width);
    if (within) paint(this.#module, canvas, this.#operationsWithin(within), this.#scale, { within });
  }

  /** A pixel more on each side than the frame, which is in pixels: on its edge nothing is half drawn. */
  #operationsWithin({ x, y, width, height }: Frame): Float64Array {
    const scale = this.#scale;
    return this.#module.native.operationsWithin(this.#number, scale,
      { x: (x - 1) / scale, y: (y - 1) / scale, width: (width + 2) / scale, height: (height + 2) / scale });
  }

  /** Those that need it; all where more than the library's view may have changed. */
  #paintParts(holder: HTMLElement, all: boolean): void {
    const { native } = this.#module;
    const count = native.number("velmora_web_part_count", this.#number);
    while (this.#parts.length > count) this.#parts.pop()!.remove();
    while (this.#parts.length < count) holder.append(this.#parts[this.#parts.length] = document.createElement("canvas"));
    const { width, height } = this.size;
    const size = { width, height: height / count };
    this.#parts.forEach((canvas, index) => {
      if (!all && native.number("velmora_web_part_needs_display", this.#number, index) === 0) return;
      fit(canvas, size, this.#scale);
      fit(this.#sheet, size, this.#scale);
      paint(this.#module, this.#sheet, native.operations(this.#number, this.#scale, index), this.#scale);
      show(this.#sheet, canvas);
    });
  }

  #touch(name: string, ...values: number[]): void {
    if (this.#isClosed) return;
    this.#module.native.run(name, this.#number, ...values);
    this.#module.changed();
  }

  /** Fetches the pictures that it shows now, each once; one that could not be fetched is tried again. */
  async #fetchPictures(): Promise<void> {
    if (this.#isClosed) return;
    const files = this.#module.native.answer<string[]>("velmora_web_pictures", this.#number) ?? [];
    const arrived = await Promise.all(files.map((file) => this.#module.handOver(file)));
    if (arrived.includes("new")) this.stale();
  }
}
