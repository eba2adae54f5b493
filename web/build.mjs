// Makes the page of its sources and the module: node build.mjs MODULE FOLDER [FILE]
// MODULE holds load.js, velmora.wasm and the files that they read. FOLDER becomes what any static host takes,
// FILE the same page in one file, which opens from a disk.
import { build } from "esbuild";
import { createHash } from "node:crypto";
import { cp, mkdir, readdir, readFile, rm, writeFile } from "node:fs/promises";
import { join, relative, resolve } from "node:path";
import { fileURLToPath } from "node:url";
import { gzipSync } from "node:zlib";

const here = fileURLToPath(new URL(".", import.meta.url));
const resources = join(here, "../velmora/resources");
const zoneinfo = "/usr/share/zoneinfo";

function bundled(module, options) {
  return build({
    absWorkingDir: here, bundle: true, minify: true, format: "esm", target: ["es2022"], legalComments: "none",
    logLevel: "warning", alias: { "velmora-module": join(resolve(module), "load.js") }, ...options,
  });
}

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

/** "+601000+0245800" in degrees. */
function degreesOf(text) {
  const parts = /^([+-])(\d{2,3})(\d{2})(\d{2})?$/.exec(text);
  const value = Number(parts[2]) + Number(parts[3]) / 60 + Number(parts[4] ?? 0) / 3600;
  return Number((parts[1] === "-" ? -value : value).toFixed(3));
}

/** Where the city of each zone lies, by all the zone's names: the place of a first visit. */
async function zonePlaces() {
  const places = {};
  for (const line of (await readFile(join(zoneinfo, "zone.tab"), "utf8")).split("\n")) {
    const [, where, zone] = line.split("\t");
    if (line.startsWith("#") || !zone) continue;
    const [, latitude, longitude] = /^([+-]\d+)([+-]\d+)$/.exec(where);
    places[zone] = [degreesOf(latitude), degreesOf(longitude), zone.split("/").at(-1).replaceAll("_", " ")];
  }
  for (const line of (await readFile(join(zoneinfo, "tzdata.zi"), "utf8")).split("\n")) {
    const [kind, target, alias] = line.split(" ");
    if (kind === "L" && places[target] && !places[alias]) places[alias] = places[target];
  }
  return places;
}

async function filesOf(folder, below = folder) {
  const found = [];
  for (const entry of await readdir(below, { withFileTypes: true })) {
    const path = join(below, entry.name);
    if (entry.isDirectory()) found.push(...await filesOf(folder, path));
    else found.push(relative(folder, path));
  }
  return found.sort();
}

/** What the first view needs; the rest is kept once the page stands, and the other pictures as they are seen. */
const isFirst = (file) => !/^(words|icons|velmora\/images)\/|^velmora\/cities/.test(file) || /\/IMG_(0|27)\.png$/.test(file);
const isLater = (file) => /^(words|icons)\/|^velmora\/cities/.test(file);

async function writeServiceWorker(module, output) {
  const files = await filesOf(output);
  const version = createHash("sha256");
  for (const file of files) version.update(file).update("\0").update(await readFile(join(output, file)));
  await bundled(module, {
    entryPoints: ["src/service-worker.ts"], outdir: output,
    define: {
      buildVersion: JSON.stringify(version.digest("hex").slice(0, 16)),
      firstFiles: JSON.stringify(files.filter(isFirst)),
      laterFiles: JSON.stringify(files.filter(isLater)),
    },
  });
}

export async function buildFolder(module, output) {
  await rm(output, { recursive: true, force: true });
  await mkdir(output, { recursive: true });
  await cp(module, join(output, "velmora"), { recursive: true, filter: (file) => !file.endsWith("load.js") });
  await bundled(module, { entryPoints: { page: "src/main.ts" }, outdir: output });
  await bundled(module, { entryPoints: { page: "src/style/page.css" }, outdir: output });
  await writeWords(output);
  await writeFile(join(output, "zones.json"), JSON.stringify(await zonePlaces()));
  await cp(join(here, "index.html"), join(output, "index.html"));
  await cp(join(here, "manifest.webmanifest"), join(output, "manifest.webmanifest"));
  await cp(join(here, "icons"), join(output, "icons"), { recursive: true });
  await writeServiceWorker(module, output);
}

const hashOf = (text) => `'sha256-${createHash("sha256").update(text).digest("base64")}'`;

/** The page of the folder in one file. */
export async function buildFile(module, folder, file) {
  const { outputFiles: [script] } = await bundled(module, { entryPoints: ["src/single.ts"], write: false });
  const style = await readFile(join(folder, "page.css"), "utf8");
  const icon = (await readFile(join(folder, "icons/icon-192.png"))).toString("base64");
  const policy = `default-src 'none'; script-src ${hashOf(script.text)} 'wasm-unsafe-eval'; style-src ${hashOf(style)}; `
    + "img-src blob: data:; base-uri 'none'; form-action 'none'";
  const parts = [];
  for (const name of (await filesOf(folder)).filter((one) => /^(words|velmora)\/|^zones/.test(one))) {
    const bytes = gzipSync(await readFile(join(folder, name)), { level: 9 }).toString("base64");
    parts.push(`<script type="text/plain" id="file:${name}">${bytes}</script>\n`);
  }
  const page = (await readFile(join(here, "index.html"), "utf8"))
    .replace(/(Content-Security-Policy" content=")[^"]*/, (_, begin) => begin + policy)
    .replace(/<link rel="(manifest|apple-touch-icon|preload)"[^>]*>\n/g, "")
    .replace(/href="icons\/icon-192\.png"/, `href="data:image/png;base64,${icon}"`)
    .replace(/<link rel="stylesheet"[^>]*>/, () => `<style>${style}</style>`)
    .replace(/<script type="module"[^>]*><\/script>\n/, "")
    .replace("</head>", () => `${parts.join("")}<script type="module">${script.text}</script>\n</head>`);
  await writeFile(file, page);
}

if (process.argv[1] === fileURLToPath(import.meta.url)) {
  const [module, folder, file] = process.argv.slice(2);
  if (!folder) throw new Error("usage: node build.mjs MODULE FOLDER [FILE]");
  await buildFolder(module, resolve(folder));
  if (file) await buildFile(module, resolve(folder), file);
}
