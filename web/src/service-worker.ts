/// <reference lib="webworker" />
// Keeps the page's files, so that it opens without a network. Written anew by each build: its version and its
// lists come from there.
export {};
declare const self: ServiceWorkerGlobalScope;
declare const buildVersion: string;
/** What the page needs to open, and what it may need later, but for the Moon's pictures: those are kept as they are seen. */
declare const firstFiles: readonly string[];
declare const laterFiles: readonly string[];

const cacheName = `velmora-${buildVersion}`;

async function keep(files: readonly string[]): Promise<void> {
  const cache = await caches.open(cacheName);
  await cache.addAll(files.map((file) => new Request(file, { cache: "no-cache" })));
}

async function keepMissing(files: readonly string[]): Promise<void> {
  const cache = await caches.open(cacheName);
  for (const file of files) {
    if (!(await cache.match(file))) await cache.add(file);
  }
}

async function forgetOthers(): Promise<void> {
  const names = await caches.keys();
  await Promise.all(names.filter((name) => name.startsWith("velmora-") && name !== cacheName).map((name) => caches.delete(name)));
}

async function answer(request: Request): Promise<Response> {
  const cache = await caches.open(cacheName);
  const kept = await cache.match(request.mode === "navigate" ? "index.html" : request, { ignoreSearch: true });
  if (kept) return kept;
  const response = await fetch(request);
  if (response.ok) await cache.put(request, response.clone()).catch(() => undefined);
  return response;
}

self.addEventListener("install", (event) => event.waitUntil(keep(firstFiles)));
self.addEventListener("activate", (event) => event.waitUntil(forgetOthers().then(() => self.clients.claim())));
self.addEventListener("message", (event) => {
  if (event.data === "take over") event.waitUntil(self.skipWaiting());
  if (event.data === "keep the rest") event.waitUntil(keepMissing(laterFiles).catch(() => undefined));
});
self.addEventListener("fetch", (event) => {
  const { request } = event;
  if (request.method === "GET" && request.url.startsWith(self.registration.scope)) event.respondWith(answer(request));
});
