import { loadVelmora } from "velmora-module";
import { keepOffline } from "./offline";
import { sayFailure, startPage } from "./page";

async function json(file: string): Promise<unknown> {
  const answer = await fetch(file);
  if (!answer.ok) throw new Error(`${file}: ${answer.status}`);
  return answer.json();
}

startPage({ load: loadVelmora, json, base: "velmora/" }).then(keepOffline).catch(sayFailure);
