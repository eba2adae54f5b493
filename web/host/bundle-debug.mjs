// Puts the module of the page into a folder: node bundle.mjs BUILD OUTPUT
// BUILD is the folder in which cmake has made velmora.mjs and velmora.wasm.
import { build } from "esbuild";
import { cp, mkdir, readdir, rm } from "node:fs/promises";
import { join, resolve } from "node:path";
import { fileURLToPath } from "node:url";

const project = fileURLToPath(new URL("/work/wt/page/", import.meta.url));

export async function bundleModule(built, folder) {
  const output = resolve(folder);
  await rm(output, { recursive: true, force: true });
  await mkdir(join(output, "images"), { recursive: true });
  await mkdir(join(output, "icons"));
  await build({
    absWorkingDir: project, entryPoints: { load: "web/src/module/module.ts" }, outdir: output, bundle: true,
    minify: false, format: "esm", target: ["es2022"], legalComments: "none", logLevel: "warning",
    plugins: [{
      name: "module",
      setup: ({ onResolve }) => onResolve({ filter: /\/velmora\.mjs$/ }, () => ({ path: resolve(built, "velmora.mjs") })),
    }],
  });
  await cp(join(built, "velmora.wasm"), join(output, "velmora.wasm"));
  const resources = join(project, "velmora/resources");
  await cp(join(resources, "cities.table"), join(output, "cities.table"));
  for (const picture of await readdir(join(resources, "images"))) {
    if (/^IMG_\d+\.png$/.test(picture)) await cp(join(resources, "images", picture), join(output, "images", picture));
  }
  for (const icon of ["moonrise", "moonset", "sunrise", "sunset"]) {
    await cp(join(project, "app/resources", `${icon}.png`), join(output, "icons", `${icon}.png`));
  }
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const [built, output] = process.argv.slice(2);
  if (!output) throw new Error("usage: node bundle.mjs BUILD OUTPUT");
  await bundleModule(built, output);
}
