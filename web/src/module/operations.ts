/** The numbers of velmora/platform/graphics/canvas2d/Operations.h, in the same order. */
export const enum Operation {
  save, restore, transform, fillColor, strokeColor, lineWidth, lineDash, alpha, blendMode, fill, stroke, clip, clear,
  fillRect, clearRect, image, text, glyph, beginGroup, endGroup,
}

export const enum OutlineStep { move, line, curve, close }

/** Reads operations one number after the other. */
export class OperationReader {
  #at = 0;

  constructor(readonly numbers: Float64Array) {}

  get isAtEnd(): boolean {
    return this.#at >= this.numbers.length;
  }

  next(): number {
    return this.numbers[this.#at++]!;
  }

  take(count: number): Float64Array {
    return this.numbers.subarray(this.#at, (this.#at += count));
  }

  /** A colour of two numbers, as CSS writes it. */
  color(): string {
    const levels = this.next();
    return `rgba(${levels >> 16}, ${(levels >> 8) & 255}, ${levels & 255}, ${this.next()})`;
  }
}
