import type { Size } from "../velmora";
import { Operation, OperationReader, OutlineStep } from "./operations";
import type { Pictures } from "./pictures";
import type { Texts } from "./texts";

type Matrix = readonly [number, number, number, number, number, number];

interface State {
  readonly matrix: Matrix;
  readonly fill: string;
  readonly stroke: string;
  readonly lineWidth: number;
  readonly dash: readonly number[];
  readonly dashOffset: number;
  readonly alpha: number;
  readonly isOverlay: boolean;
  /** Elements opened since the state was kept. */
  readonly open: number;
}

function product(step: readonly number[], [a, b, c, d, e, f]: Matrix): Matrix {
  const [p, q, r, s, t, u] = step as unknown as Matrix;
  return [p * a + q * c, p * b + q * d, r * a + s * c, r * b + s * d, t * a + u * c + e, t * b + u * d + f];
}

const short = (number: number): string => String(Math.round(number * 1000) / 1000);

function escaped(text: string): string {
  return text.replace(/[&<>"]/g, (character) => `&#${character.codePointAt(0)};`);
}

function outlineOf(operations: OperationReader): string {
  let outline = "";
  for (let count = operations.next(); count > 0; --count) {
    const step = operations.next() as OutlineStep;
    const letter = ["M", "L", "C", "Z"][step]!;
    outline += letter + [...operations.take([2, 2, 6, 0][step]!)].map(short).join(" ");
  }
  return outline;
}

/** Writes a recorded list as SVG. What is cleared shows the background. */
class Writer {
  readonly #parts: string[] = [];
  readonly #states: State[] = [];
  readonly #pictures = new Set<string>();
  #clips = 0;
  #state: State = {
    matrix: [1, 0, 0, 1, 0, 0], fill: "#000", stroke: "#000", lineWidth: 1, dash: [], dashOffset: 0, alpha: 1,
    isOverlay: false, open: 0,
  };

  constructor(readonly operations: OperationReader, readonly background: string, readonly texts: Texts,
              readonly pictures: Pictures) {}

  text(): string {
    while (!this.operations.isAtEnd) this.#step();
    return this.#parts.join("\n");
  }

  #step(): void {
    const { operations } = this;
    switch (operations.next() as Operation) {
      case Operation.save:
        return this.#save();
      case Operation.restore:
      case Operation.endGroup:
        return this.#restore();
      case Operation.transform:
        return this.#set({ matrix: product([...operations.take(6)], this.#state.matrix) });
      case Operation.fillColor:
        return this.#set({ fill: operations.color() });
      case Operation.strokeColor:
        return this.#set({ stroke: operations.color() });
      case Operation.lineWidth:
        return this.#set({ lineWidth: operations.next() });
      case Operation.lineDash: {
        const dashOffset = operations.next();
        return this.#set({ dashOffset, dash: [...operations.take(operations.next())] });
      }
      case Operation.alpha:
        return this.#set({ alpha: operations.next() });
      case Operation.blendMode:
        return this.#set({ isOverlay: operations.next() === 1 });
      case Operation.fill:
        return this.#add("path", { d: outlineOf(operations), fill: this.#state.fill });
      case Operation.clear:
        return this.#add("path", { d: outlineOf(operations), fill: this.background }, true);
      case Operation.stroke:
        return this.#stroke(outlineOf(operations));
      case Operation.clip:
        return this.#clip(outlineOf(operations));
      case Operation.fillRect:
        return this.#rectangle(this.#state.fill, false);
      case Operation.clearRect:
        return this.#rectangle(this.background, true);
      case Operation.image:
        return this.#image();
      case Operation.text:
        return this.#line(operations.next(), operations.next(), operations.next());
      case Operation.glyph:
        return this.#glyph();
      case Operation.beginGroup: {
        const [, alpha] = operations.take(6);
        this.#save();
        return this.#open(`<g${alpha! < 1 ? ` opacity="${short(alpha!)}"` : ""}>`);
      }
    }
  }

  #set(change: Partial<State>): void {
    this.#state = { ...this.#state, ...change };
  }

  #save(): void {
    this.#states.push(this.#state);
    this.#set({ open: 0 });
  }

  #restore(): void {
    for (let count = this.#state.open; count > 0; --count) this.#parts.push("</g>");
    this.#state = this.#states.pop()!;
  }

  #open(element: string): void {
    this.#parts.push(element);
    this.#set({ open: this.#state.open + 1 });
  }

  #add(name: string, attributes: Readonly<Record<string, string | number>>, isPlain = false, content = ""): void {
    const { matrix, alpha, isOverlay } = this.#state;
    const all: Record<string, string | number> = { ...attributes };
    if (matrix.join() !== "1,0,0,1,0,0") all["transform"] = `matrix(${matrix.map(short).join(" ")})`;
    if (alpha < 1 && !isPlain) all["opacity"] = short(alpha);
    if (isOverlay && !isPlain) all["style"] = "mix-blend-mode:overlay";
    const text = Object.entries(all)
      .map(([key, value]) => ` ${key}="${typeof value === "number" ? short(value) : escaped(value)}"`).join("");
    this.#parts.push(`<${name}${text}>${content}</${name}>`);
  }

  #stroke(d: string): void {
    const { stroke, lineWidth, dash, dashOffset } = this.#state;
    this.#add("path", {
      d, fill: "none", stroke, "stroke-width": lineWidth, "stroke-miterlimit": 10,
      ...(dash.length > 0 ? { "stroke-dasharray": dash.map(short).join(" "), "stroke-dashoffset": dashOffset } : {}),
    });
  }

  #rectangle(fill: string, isPlain: boolean): void {
    const [x, y, width, height] = this.operations.take(4);
    this.#add("rect", { x: x!, y: y!, width: width!, height: height!, fill }, isPlain);
  }

  #clip(outline: string): void {
    const id = `clip${++this.#clips}`;
    const matrix = this.#state.matrix.map(short).join(" ");
    this.#parts.push(`<clipPath id="${id}"><path d="${outline}" transform="matrix(${matrix})"/></clipPath>`);
    this.#open(`<g clip-path="url(#${id})">`);
  }

  /** Each picture stands in the file once. */
  #image(): void {
    const [number, isMirrored, x, y, width, height] = this.operations.take(6);
    const id = `picture${number!}`;
    if (!this.#pictures.has(id)) {
      this.#pictures.add(id);
      const href = this.pictures.dataUrl(number!);
      this.#parts.push(`<defs><image id="${id}" href="${href}" width="1" height="1" preserveAspectRatio="none"/></defs>`);
    }
    const place = isMirrored ? [-width!, 0, 0, height!, x! + width!, y!] : [width!, 0, 0, height!, x!, y!];
    this.#save();
    this.#set({ matrix: product(place, this.#state.matrix) });
    this.#add("use", { href: `#${id}` });
    this.#restore();
  }

  #line(number: number, x: number, y: number): void {
    const line = this.texts.line(number);
    for (const run of line.runs) {
      this.#add("text", {
        x: x + run.left, y: y + line.ascent, fill: run.color, "font-family": run.family, "font-size": run.size,
        "font-weight": run.weight, "xml:space": "preserve",
        ...(line.isRightToLeft ? { direction: "rtl", "text-anchor": "end" } : {}),
      }, false, escaped(run.text));
    }
  }

  #glyph(): void {
    const [number, x, y, index] = this.operations.take(4);
    const line = this.texts.line(number!), glyph = this.texts.glyphs(number!)[index!];
    if (!glyph) return;
    const left = x! + glyph.left, top = y! - line.ascent, height = 3 * line.ascent;
    this.#save();
    this.#clip(`M${left} ${top}h${glyph.advance}v${height}h${-glyph.advance}Z`);
    this.#line(number!, x!, y!);
    this.#restore();
  }
}

/** What the views have recorded, as a file. */
export function svgOf(operations: Float64Array, { width, height }: Size, background: string, texts: Texts,
                      pictures: Pictures): string {
  const content = new Writer(new OperationReader(operations), background, texts, pictures).text();
  return `<svg xmlns="http://www.w3.org/2000/svg" width="${width}" height="${height}" viewBox="0 0 ${width} ${height}">
<rect width="${width}" height="${height}" fill="${background}"/>
${content}
</svg>
`;
}
