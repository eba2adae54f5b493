import { Operation, OperationReader, OutlineStep } from "./operations";
import type { Pictures } from "./pictures";
import { useTextStyle, type Line, type Texts } from "./texts";

/** Where drawing goes: the canvas, or a layer above it that begins at those pixels. */
interface Target {
  readonly context: CanvasRenderingContext2D;
  readonly x: number;
  readonly y: number;
  readonly alpha: number;
}

const spareLayers: HTMLCanvasElement[] = [];

/** An element, since browsers smooth the edges of clips on these alone. */
function layerOf(width: number, height: number): HTMLCanvasElement {
  const layer = spareLayers.pop() ?? document.createElement("canvas");
  layer.width = Math.max(width, 1);  // which clears it
  layer.height = Math.max(height, 1);
  return layer;
}

function trace(context: CanvasRenderingContext2D, operations: OperationReader): void {
  context.beginPath();
  for (let count = operations.next(); count > 0; --count) {
    switch (operations.next() as OutlineStep) {
      case OutlineStep.move:
        context.moveTo(operations.next(), operations.next());
        break;
      case OutlineStep.line:
        context.lineTo(operations.next(), operations.next());
        break;
      case OutlineStep.curve:
        context.bezierCurveTo(operations.next(), operations.next(), operations.next(), operations.next(),
                              operations.next(), operations.next());
        break;
      case OutlineStep.close:
        context.closePath();
        break;
    }
  }
}

/** Draws a recorded list on a context, whose transform takes points to pixels. */
class Replay {
  #target: Target;
  readonly #targetsBelow: (Target | undefined)[] = [];  // by open group; undefined for one without a layer

  constructor(context: CanvasRenderingContext2D, readonly operations: OperationReader, readonly texts: Texts, readonly pictures: Pictures) {
    this.#target = { context, x: 0, y: 0, alpha: 1 };
    useTextStyle(context);
  }

  run(): void {
    while (!this.operations.isAtEnd) this.#step();
  }

  #step(): void {
    const { operations } = this, { context } = this.#target;
    switch (operations.next() as Operation) {
      case Operation.save:
        return context.save();
      case Operation.restore:
        return context.restore();
      case Operation.transform: {
        const [a, b, c, d, tx, ty] = operations.take(6);
        return context.transform(a!, b!, c!, d!, tx!, ty!);
      }
      case Operation.fillColor:
        context.fillStyle = operations.color();
        return;
      case Operation.strokeColor:
        context.strokeStyle = operations.color();
        return;
      case Operation.lineWidth:
        context.lineWidth = operations.next();
        return;
      case Operation.lineDash:
        context.lineDashOffset = operations.next();
        return context.setLineDash([...operations.take(operations.next())]);
      case Operation.alpha:
        context.globalAlpha = operations.next();
        return;
      case Operation.blendMode:
        context.globalCompositeOperation = operations.next() === 1 ? "overlay" : "source-over";
        return;
      case Operation.fill:
        trace(context, operations);
        return context.fill();
      case Operation.stroke:
        trace(context, operations);
        return context.stroke();
      case Operation.clip:
        trace(context, operations);
        return context.clip();
      case Operation.clear:
        return this.#clear();
      case Operation.fillRect: {
        const [x, y, width, height] = operations.take(4);
        return context.fillRect(x!, y!, width!, height!);
      }
      case Operation.clearRect: {
        const [x, y, width, height] = operations.take(4);
        return context.clearRect(x!, y!, width!, height!);
      }
      case Operation.image:
        return this.#drawImage();
      case Operation.text: {
        const line = this.texts.line(operations.next());
        return this.#drawLine(line, operations.next(), operations.next());
      }
      case Operation.glyph:
        return this.#drawGlyph();
      case Operation.beginGroup:
        return this.#beginGroup();
      case Operation.endGroup:
        return this.#endGroup();
    }
  }

  #clear(): void {
    const { context } = this.#target;
    trace(context, this.operations);
    context.save();
    context.globalAlpha = 1;
    context.globalCompositeOperation = "destination-out";
    context.fillStyle = "#000";
    context.fill();
    context.restore();
  }

  #drawImage(): void {
    const { context } = this.#target;
    const [number, isMirrored, x, y, width, height] = this.operations.take(6);
    const bitmap = this.pictures.bitmap(number!);
    if (!bitmap) return;
    context.imageSmoothingQuality = "high";
    if (!isMirrored) return context.drawImage(bitmap, x!, y!, width!, height!);
    context.save();
    context.transform(-1, 0, 0, 1, 2 * x! + width!, 0);
    context.drawImage(bitmap, x!, y!, width!, height!);
    context.restore();
  }

  #drawLine(line: Line, x: number, y: number): void {
    const { context } = this.#target;
    const fill = context.fillStyle;
    context.direction = line.isRightToLeft ? "rtl" : "ltr";
    for (const run of line.runs) {
      if (context.font !== run.font) context.font = run.font;
      context.fillStyle = run.color;
      context.fillText(run.text, x + run.left, y + line.ascent);
    }
    context.fillStyle = fill;
  }

  /** The line, seen through the glyph's own box. */
  #drawGlyph(): void {
    const { context } = this.#target;
    const [number, x, y, index] = this.operations.take(4);
    const line = this.texts.line(number!), glyph = this.texts.glyphs(number!)[index!];
    if (!glyph) return;
    context.save();
    context.beginPath();
    context.rect(x! + glyph.left, y! - line.ascent, glyph.advance, 3 * line.ascent);
    context.clip();
    this.#drawLine(line, x!, y!);
    context.restore();
  }

  #beginGroup(): void {
    const [isLayer, alpha, x, y, width, height] = this.operations.take(6);
    const below = this.#target;
    if (!isLayer) {
      below.context.save();
      this.#targetsBelow.push(undefined);
      return;
    }
    const context = layerOf(width!, height!).getContext("2d")!;
    const { a, b, c, d, e, f } = below.context.getTransform();
    context.setTransform(a, b, c, d, e + below.x - x!, f + below.y - y!);
    context.fillStyle = below.context.fillStyle;
    context.strokeStyle = below.context.strokeStyle;
    context.lineWidth = below.context.lineWidth;
    context.setLineDash(below.context.getLineDash());
    context.lineDashOffset = below.context.lineDashOffset;
    context.globalAlpha = below.context.globalAlpha;
    context.globalCompositeOperation = below.context.globalCompositeOperation;
    useTextStyle(context);
    this.#targetsBelow.push(below);
    this.#target = { context, x: x!, y: y!, alpha: alpha! };
  }

  #endGroup(): void {
    const below = this.#targetsBelow.pop();
    if (!below) return this.#target.context.restore();
    const { context, x, y, alpha } = this.#target;
    this.#target = below;
    below.context.save();
    below.context.setTransform(1, 0, 0, 1, 0, 0);
    below.context.globalAlpha = alpha;
    below.context.globalCompositeOperation = "source-over";
    below.context.drawImage(context.canvas, x - below.x, y - below.y);
    below.context.restore();
    spareLayers.push(context.canvas);
  }
}

/** Draws what the views have recorded; the context is left as it was. */
export function replay(context: CanvasRenderingContext2D, operations: Float64Array, texts: Texts, pictures: Pictures): void {
  context.save();
  new Replay(context, new OperationReader(operations), texts, pictures).run();
  context.restore();
}
