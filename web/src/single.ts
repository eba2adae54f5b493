import { loadVelmora } from "velmora-module";
import { sayFailure, startPage } from "./page";

/** A file that lies within the page: gzipped, as text of base 64. */
async function embedded(name: string): Promise<ArrayBuffer> {
  const text = document.getElementById(`file:${name}`)?.textContent;
  if (!text) throw new Error(`The page lacks its part ${name}.`);
  const bytes = Uint8Array.from(atob(text), (character) => character.charCodeAt(0));
  const plain = new Blob([bytes]).stream().pipeThrough(new DecompressionStream("gzip"));
  return new Response(plain).arrayBuffer();
}

async function json(file: string): Promise<unknown> {
  return JSON.parse(new TextDecoder().decode(await embedded(file)));
}

const file = (name: string): Promise<ArrayBuffer> => embedded(`velmora/${name}`);
startPage({ load: loadVelmora, json, file, base: "" }).catch(sayFailure);
