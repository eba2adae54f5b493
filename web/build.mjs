// Makes the page of its sources and the module: node build.mjs MODULE OUTPUT
// MODULE is a folder with load.js, velmora.wasm and the files that they read.
import { build } from "esbuild";
import { createHash } from "node:crypto";
import { cp, mkdir, readdir, readFile, rm, writeFile } from "node:fs/promises";
import { join, relative } from "node:path";
import { fileURLToPath } from "node:url";

const here = fileURLToPath(new URL(".", import.meta.url));
const resources = join(here, "../velmora/resources");

const common = {
  absWorkingDir: here, bundle: true, minify: true, format: "esm", target: ["es2022"], legalComments: "none",
  logLevel: "warning",
};

/** The texts of a property list of strings. */
async function texts(file) {
  const names = { lt: "<", gt: ">", amp: "&", quot: '"', apos: "'" };
  const plain = (text) => text.replace(/&(lt|gt|amp|quot|apos);/g, (_, name) => names[name]);
  const list = await readFile(file, "utf8");
  return Object.fromEntries([...list.matchAll(/<key>([^<]*)<\/key>\s*<string>([^<]*)<\/string>/g)]
    .map(([, key, text]) => [plain(key), plain(text)]));
}

/** What the page says in a language: the library's words and its own. */
async function words(language) {
  const library = join(resources, `${language}.lproj`);
  return {
    ...await texts(join(library, "Localizable.strings")),
    ...await texts(join(library, "Almanac.strings")),
    ...JSON.parse(await readFile(join(here, "words", `${language}.json`), "utf8")),
  };
}

async function writeWords(output) {
  await mkdir(join(output, "words"), { recursive: true });
  for (const file of await readdir(join(here, "words"))) {
    if (file === "en.json") continue;
    await writeFile(join(output, "words", file), JSON.stringify(await words(file.replace(".json", ""))));
  }
}

export async function filesOf(folder, below = folder) {
  const found = [];
  for (const entry of await readdir(below, { withFileTypes: true })) {
    const path = join(below, entry.name);
    if (entry.isDirectory()) found.push(...await filesOf(folder, path));
    else found.push(relative(folder, path));
  }
  return found.sort();
}

/** Pictures are many and large: they are kept as they are seen. */
const isPicture = (file) => file.startsWith("velmora/images/");
const isLater = (file) => file.startsWith("words/") || file === "velmora/cities.table" || file.startsWith("icons/");

async function writeServiceWorker(output) {
  const files = await filesOf(output);
  const version = createHash("sha256");
  for (const file of files) version.update(file).update("\0").update(await readFile(join(output, file)));
  await build({
    ...common, entryPoints: ["src/service-worker.ts"], outdir: output,
    define: {
      buildVersion: JSON.stringify(version.digest("hex").slice(0, 16)),
      firstFiles: JSON.stringify(files.filter((file) => !isPicture(file) && !isLater(file))),
      laterFiles: JSON.stringify(files.filter(isLater)),
    },
  });
}

/** The page as a folder that any static host takes. */
export async function buildFolder(module, output) {
  await rm(output, { recursive: true, force: true });
  await mkdir(output, { recursive: true });
  await build({ ...common, entryPoints: { page: "src/main.ts" }, outdir: output });
  await build({ ...common, entryPoints: { page: "src/style/page.css" }, outdir: output });
  await writeWords(output);
  await cp(join(here, "index.html"), join(output, "index.html"));
  await cp(join(here, "manifest.webmanifest"), join(output, "manifest.webmanifest"));
  await cp(join(here, "icons"), join(output, "icons"), { recursive: true });
  await cp(module, join(output, "velmora"), { recursive: true });
  await writeServiceWorker(output);
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const [module, output] = process.argv.slice(2);
  if (!output) throw new Error("usage: node build.mjs MODULE OUTPUT");
  await buildFolder(module, output);
}
