import { startPage } from "./page";
import { loadVelmora } from "./load";

async function texts(language: string): Promise<Record<string, string>> {
  const answer = await fetch(`words/${language}.json`);
  if (!answer.ok) throw new Error(`words/${language}.json: ${answer.status}`);
  return (await answer.json()) as Record<string, string>;
}

function sayFailure(error: unknown): void {
  const main = document.querySelector("main") ?? document.body;
  const text = document.createElement("p");
  text.setAttribute("role", "alert");
  text.className = "failure";
  text.textContent = `Velmora could not start: ${error instanceof Error ? error.message : String(error)}`;
  main.append(text);
}

startPage({ load: loadVelmora, texts, base: "velmora/" }).catch(sayFailure);
