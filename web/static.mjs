// Serves a folder on this machine only: node static.mjs FOLDER [PORT]
import { createReadStream } from "node:fs";
import { stat } from "node:fs/promises";
import { createServer } from "node:http";
import { extname, join, normalize, resolve } from "node:path";
import { pathToFileURL } from "node:url";
import { createGzip } from "node:zlib";

const types = {
  ".html": "text/html; charset=utf-8", ".js": "text/javascript; charset=utf-8", ".css": "text/css; charset=utf-8",
  ".json": "application/json", ".webmanifest": "application/manifest+json", ".wasm": "application/wasm",
  ".png": "image/png", ".svg": "image/svg+xml", ".txt": "text/plain; charset=utf-8",
};

/** A server of the folder's files; resolves once it listens. Port 0 takes a free one. */
export async function serve(folder, port = 0) {
  const root = resolve(folder);
  const server = createServer(async (request, response) => {
    let path = normalize(decodeURIComponent(new URL(request.url, "http://localhost").pathname));
    if (path.endsWith("/")) path += "index.html";
    const file = join(root, path);
    const found = file.startsWith(root) && await stat(file).then((one) => one.isFile(), () => false);
    if (!found) {
      response.writeHead(404, { "content-type": "text/plain" }).end("There is no such file.\n");
      return;
    }
    const type = types[extname(file)] ?? "application/octet-stream";
    const zips = extname(file) !== ".png" && /\bgzip\b/.test(request.headers["accept-encoding"] ?? "");
    response.writeHead(200, {
      "content-type": type, "cache-control": "no-cache", "x-content-type-options": "nosniff",
      ...(zips && { "content-encoding": "gzip" }),
    });
    const bytes = createReadStream(file);
    (zips ? bytes.pipe(createGzip()) : bytes).pipe(response);
  });
  await new Promise((done) => server.listen(port, "127.0.0.1", done));
  return {
    address: `http://127.0.0.1:${server.address().port}/`,
    close: () => server.close(),
    closeAll: () => server.closeAllConnections(),
  };
}

if (import.meta.url === pathToFileURL(process.argv[1]).href) {
  const { address } = await serve(process.argv[2], Number(process.argv[3] ?? 8080));
  console.log(`Velmora: ${address}`);
}
