/** Has the browser keep the page; `isReady` hears of a new version, and how to take it. */
export async function keepOffline(isReady: (takeOver: () => void) => void): Promise<void> {
  if (!("serviceWorker" in navigator) || location.protocol === "file:") return;
  const hadWorker = navigator.serviceWorker.controller !== null;
  const registration = await navigator.serviceWorker.register("service-worker.js");
  const offer = (worker: ServiceWorker): void => isReady(() => worker.postMessage("take over"));
  if (registration.waiting && hadWorker) offer(registration.waiting);
  registration.addEventListener("updatefound", () => {
    const worker = registration.installing;
    worker?.addEventListener("statechange", () => {
      if (worker.state === "installed" && hadWorker) offer(worker);
    });
  });
  navigator.serviceWorker.addEventListener("controllerchange", () => {
    if (hadWorker) location.reload();
  });
  const { active } = await navigator.serviceWorker.ready;
  active?.postMessage("keep the rest");
}
