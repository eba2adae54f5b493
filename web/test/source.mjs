// The page's sources, one by one, for node.
import { build } from "esbuild";
import { mkdtemp } from "node:fs/promises";
import { tmpdir } from "node:os";
import { join } from "node:path";
import { fileURLToPath, pathToFileURL } from "node:url";

const web = fileURLToPath(new URL("..", import.meta.url));

export async function source(name) {
  const outfile = join(await mkdtemp(join(tmpdir(), "velmora-source-")), "source.mjs");
  await build({ absWorkingDir: web, entryPoints: [`src/${name}.ts`], bundle: true, format: "esm", outfile, logLevel: "error" });
  return import(pathToFileURL(outfile).href);
}
