// What the tests use of node.

declare module 'node:test' {
  export default function test(name: string, body: () => void | Promise<void>): void;
}

declare module 'node:assert/strict' {
  interface Assert {
    (value: unknown, message?: string): asserts value;
    equal(actual: unknown, expected: unknown, message?: string): void;
    deepEqual(actual: unknown, expected: unknown, message?: string): void;
    throws(body: () => unknown, expected: {name: string; message: string}): void;
    rejects(promise: Promise<unknown>, expected: {message: RegExp}): Promise<void>;
  }
  const assert: Assert;
  export default assert;
}

declare module 'node:fs' {
  export function readFileSync(file: string | URL): Uint8Array;
  export function readFileSync(file: string | URL, encoding: 'utf8'): string;
}

declare module 'node:module' {
  export function createRequire(file: string | URL): {(name: string): any; resolve(name: string): string};
}

declare module 'node:worker_threads' {
  export class Worker {
    constructor(source: string, options: {eval: true; workerData?: unknown});
    once(event: 'message' | 'error', listener: (value: any) => void): void;
  }
}

declare module 'node:process' {
  export const argv: string[];
  export const env: {[name: string]: string | undefined};
}
