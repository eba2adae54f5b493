/** What emscripten makes of web/host: `cmake --build --preset wasm --target velmora_web`. */
declare module "*/velmora.mjs" {
  export interface EmscriptenModule {
    readonly HEAPU8: Uint8Array;
    readonly HEAPF64: Float64Array;
    _malloc(size: number): number;
    _free(address: number): void;
    ccall(name: string, answer: string | null, kinds: readonly string[], values: readonly unknown[]): unknown;
  }

  const make: (parts: object) => Promise<EmscriptenModule>;
  export default make;
}
