/** Pictures that the views draw, decoded by the browser, by their number. */
export class Pictures {
  readonly #bitmaps = new Map<number, ImageBitmap>();
  readonly #encoded = new Map<number, Uint8Array<ArrayBuffer>>();
  readonly #decoding = new Set<Promise<void>>();
  readonly #whenReady: () => void;

  /** `whenReady` is called after each picture that can be drawn from now on. */
  constructor(whenReady: () => void) {
    this.#whenReady = whenReady;
  }

  has(number: number): boolean {
    return this.#encoded.has(number);
  }

  add(number: number, encoded: Uint8Array<ArrayBuffer>): void {
    this.#encoded.set(number, encoded);
    const decoding = this.#decode(number, encoded).finally(() => this.#decoding.delete(decoding));
    this.#decoding.add(decoding);
  }

  /** None while it is being decoded, and for a damaged one. */
  bitmap(number: number): ImageBitmap | undefined {
    return this.#bitmaps.get(number);
  }

  /** As a URL that holds it. */
  dataUrl(number: number): string {
    let binary = "";
    for (const byte of this.#encoded.get(number) ?? []) binary += String.fromCharCode(byte);
    return `data:image/png;base64,${btoa(binary)}`;
  }

  /** Resolves when all pictures are decoded. */
  async settled(): Promise<void> {
    await Promise.all(this.#decoding);
  }

  async #decode(number: number, encoded: Uint8Array<ArrayBuffer>): Promise<void> {
    const bitmap = await createImageBitmap(new Blob([encoded], { type: "image/png" })).catch(() => undefined);
    if (!bitmap) return;
    this.#bitmaps.set(number, bitmap);
    this.#whenReady();
  }
}
