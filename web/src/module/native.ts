import makeModule, { type EmscriptenModule } from "../../../build/wasm/web/velmora.mjs";

import type { Frame } from "../velmora";
import type { Pictures } from "./pictures";
import type { Texts } from "./texts";

/** What the module takes from the page. */
export interface ModuleParts {
  readonly wasmBinary: ArrayBuffer;
  readonly texts: Texts;
  readonly pictures: Pictures;
}

type Value = number | string;

/** The functions of web/host/Exports.cpp. */
export class Native {
  readonly #module: EmscriptenModule;

  private constructor(module: EmscriptenModule) {
    this.#module = module;
  }

  static async open(parts: ModuleParts): Promise<Native> {
    return new Native(await makeModule(parts));
  }

  run(name: string, ...values: Value[]): void {
    this.#call(name, null, values);
  }

  number(name: string, ...values: Value[]): number {
    return this.#call(name, "number", values) as number;
  }

  text(name: string, ...values: Value[]): string {
    return this.#call(name, "string", values) as string;
  }

  /** The answer in JSON; undefined where there is none. */
  answer<Answer>(name: string, ...values: Value[]): Answer | undefined {
    const address = this.number(name, ...values);
    return address === 0 ? undefined : JSON.parse(this.#textAt(address)) as Answer;
  }

  /** Calls with the address and the size of the bytes behind the other values. */
  withBytes<Answer>(bytes: Uint8Array, call: (address: number, size: number) => Answer): Answer {
    const address = this.#module._malloc(Math.max(bytes.length, 1));
    try {
      this.#module.HEAPU8.set(bytes, address);
      return call(address, bytes.length);
    } finally {
      this.#module._free(address);
    }
  }

  /** The operations of a view's drawing, or of a part of it, until the next call. */
  operations(view: number, scale: number, part?: number): Float64Array {
    return part === undefined ? this.#numbers("velmora_web_draw", view, scale)
      : this.#numbers("velmora_web_draw_part", view, part, scale);
  }

  /** Of the same drawing those that show within the frame, in points. */
  operationsWithin(view: number, scale: number, { x, y, width, height }: Frame): Float64Array {
    return this.#numbers("velmora_web_draw_within", view, scale, x, y, width, height);
  }

  /** A number for each square of that drawing; where two drawings have the same, they show the same. */
  squares(): Float64Array {
    return this.#numbers("velmora_web_squares");
  }

  #numbers(name: string, ...values: Value[]): Float64Array {
    return this.withBytes(new Uint8Array(8), (count) => {
      const begin = this.number(name, ...values, count) / 8;
      const size = new Uint32Array(this.#module.HEAPU8.buffer, count, 1)[0]!;
      return this.#module.HEAPF64.subarray(begin, begin + size);
    });
  }

  #call(name: string, answer: "number" | "string" | null, values: Value[]): unknown {
    return this.#module.ccall(name, answer, values.map((value) => typeof value), values);
  }

  #textAt(address: number): string {
    const bytes = this.#module.HEAPU8;
    return new TextDecoder().decode(bytes.subarray(address, bytes.indexOf(0, address)));
  }
}
