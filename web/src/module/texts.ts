/** A stretch of a line in one face and colour. */
export interface Run {
  readonly text: string;
  /** As the canvas takes it. */
  readonly font: string;
  readonly family: string;
  readonly size: number;
  readonly weight: number;
  /** "#RRGGBBAA". */
  readonly color: string;
  /** Where it begins on the line. */
  left: number;
}

export interface Glyph {
  readonly left: number;
  readonly advance: number;
}

/** A line of text as it is measured and drawn. */
export interface Line {
  readonly runs: Run[];
  width: number;
  ascent: number;
  descent: number;
  isRightToLeft: boolean;
  glyphs?: Glyph[];
}

/** The families that the views ask for and that the page's own stands in for. */
const systemFamilies = ["System", "AvenirNext", "Helvetica"];
const usualFamily = 'Inter, system-ui, -apple-system, "Segoe UI", Roboto, sans-serif';
/** For scripts that those do not have; Han characters look different in each language. */
const scriptFamilies = '"Noto Sans", "Noto Sans Hebrew", "Noto Sans Arabic", "Noto Sans Devanagari"';

const rightToLeftLetter = /[\u0590-\u08ff\ufb1d-\ufdff\ufe70-\ufefc]/u;

function hanFamily(locale: Intl.Locale): string {
  if (locale.language === "ja") return '"Noto Sans CJK JP"';
  if (locale.language === "ko") return '"Noto Sans CJK KR"';
  return locale.maximize().script === "Hant" ? '"Noto Sans CJK TC"' : '"Noto Sans CJK SC"';
}

/** The context as texts are drawn on it; to set that is slow. */
export function useTextStyle(context: CanvasRenderingContext2D | OffscreenCanvasRenderingContext2D): void {
  if (context.textRendering === "geometricPrecision") return;
  context.textBaseline = "alphabetic";
  context.textAlign = "left";
  context.fontKerning = "normal";
  context.textRendering = "geometricPrecision";
}

/** Measures lines of text with the browser's own faces and keeps them by their number. */
export class Texts {
  readonly #context: OffscreenCanvasRenderingContext2D;
  readonly #family: string;
  readonly #lines = new Map<number, Line>();
  readonly #extents = new Map<string, { ascent: number; descent: number }>();
  readonly #segments = new Intl.Segmenter();
  #families: string;
  #isRightToLeft = false;

  constructor(family = usualFamily) {
    const context = new OffscreenCanvas(1, 1).getContext("2d");
    if (context === null) throw new Error("this browser has no canvas to measure texts on");
    this.#context = context;
    this.#family = this.#families = family;
    useTextStyle(context);
  }

  /** Forgets all lines and takes the faces of another language. */
  forget(language: string): void {
    const locale = new Intl.Locale(language);
    this.#lines.clear();
    this.#extents.clear();
    this.#families = `${this.#family}, ${scriptFamilies}, ${hanFamily(locale)}`;
    this.#isRightToLeft = rightToLeftLetter.test(new Intl.DisplayNames(language, { type: "language" }).of(language) ?? "");
  }

  line(number: number): Line {
    return this.#lines.get(number)!;
  }

  beginLine(number: number): void {
    this.#lines.set(number, { runs: [], width: 0, ascent: 0, descent: 0, isRightToLeft: this.#isRightToLeft });
  }

  addRun(number: number, text: string, family: string, size: number, weight: number, color: string): void {
    const families = systemFamilies.includes(family) ? this.#families : `"${family}", ${this.#families}`;
    const font = `${weight} ${size}px ${families}`;
    this.line(number).runs.push({ text, font, family: families, size, weight, color, left: 0 });
  }

  measure(number: number): Line {
    const line = this.line(number);
    const letter = /\p{L}/u.exec(line.runs.map((run) => run.text).join(""));
    if (letter) line.isRightToLeft = rightToLeftLetter.test(letter[0]);
    this.#context.direction = line.isRightToLeft ? "rtl" : "ltr";
    for (const run of line.isRightToLeft ? [...line.runs].reverse() : line.runs) {
      const { ascent, descent } = this.#extent(run);
      run.left = line.width;
      line.width += this.#width(run, run.text);
      line.ascent = Math.max(line.ascent, ascent);
      line.descent = Math.max(line.descent, descent);
    }
    return line;
  }

  /** The box of each character in reading order. */
  glyphs(number: number): Glyph[] {
    const line = this.line(number);
    line.glyphs ??= line.runs.flatMap((run) => this.#glyphsOf(run, line.isRightToLeft));
    return line.glyphs;
  }

  #glyphsOf(run: Run, isRightToLeft: boolean): Glyph[] {
    const whole = this.#width(run, run.text);
    let before = 0;
    return [...this.#segments.segment(run.text)].map(({ index, segment }) => {
      const start = before;
      before = this.#width(run, run.text.slice(0, index + segment.length));
      const advance = before - start;
      return { left: run.left + (isRightToLeft ? whole - before : start), advance };
    });
  }

  #width(run: Run, text: string): number {
    this.#context.font = run.font;
    return this.#context.measureText(text).width;
  }

  /** Of the face, measured in a size that leaves no room for rounding to pixels. */
  #extent(run: Run): { ascent: number; descent: number } {
    const sample = 1000;
    const face = `${run.weight} ${sample}px ${run.family}`;
    let extent = this.#extents.get(face);
    if (!extent) {
      this.#context.font = face;
      const measured = this.#context.measureText("x");
      extent = { ascent: measured.fontBoundingBoxAscent / sample, descent: measured.fontBoundingBoxDescent / sample };
      this.#extents.set(face, extent);
    }
    return { ascent: extent.ascent * run.size, descent: extent.descent * run.size };
  }
}
