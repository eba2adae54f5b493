import type { LoadVelmora } from "./velmora";

/** The module lies beside the page and is read when it starts. */
export const loadVelmora: LoadVelmora = async (options) => {
  const address = new URL(`${options.base}load.js`, document.baseURI).href;
  const module = (await import(address)) as { loadVelmora: LoadVelmora };
  return module.loadVelmora(options);
};
