// Makes icons/: a waxing Moon of the project's own pictures on the night of the page. node make-icons.mjs
import { mkdir, readFile, writeFile } from "node:fs/promises";
import { fileURLToPath } from "node:url";
import { launch } from "./test/browser.mjs";

const here = fileURLToPath(new URL(".", import.meta.url));
const picture = (await readFile(`${here}../velmora/resources/images/IMG_11.png`)).toString("base64");
const browser = await launch();
const page = await browser.newPage();
await mkdir(`${here}icons`, { recursive: true });

/** `share`: of the icon's width that the disc takes. */
async function icon(name, size, share, corner) {
  const address = await page.evaluate(async (picture, size, share, corner) => {
    const image = new Image();
    image.src = `data:image/png;base64,${picture}`;
    await image.decode();
    const canvas = document.createElement("canvas");
    canvas.width = canvas.height = size;
    const context = canvas.getContext("2d");
    context.imageSmoothingQuality = "high";
    context.beginPath();
    context.roundRect(0, 0, size, size, corner * size);
    context.clip();
    const night = context.createRadialGradient(size / 2, size / 2, 0, size / 2, size / 2, size * 0.75);
    night.addColorStop(0, "#2a2850");
    night.addColorStop(1, "#0e0c16");
    context.fillStyle = night;
    context.fillRect(0, 0, size, size);
    const width = size * share;
    context.translate(size / 2, size / 2);
    context.rotate(-0.35);
    context.drawImage(image, -width / 2, -width / 2, width, width);
    return canvas.toDataURL("image/png");
  }, picture, size, share, corner);
  await writeFile(`${here}icons/${name}.png`, Buffer.from(address.split(",")[1], "base64"));
}

await icon("icon-192", 192, 0.78, 0.22);
await icon("icon-512", 512, 0.78, 0.22);
await icon("maskable-512", 512, 0.62, 0);
await browser.close();
