// Writes, as a module of JavaScript, what a module of WebAssembly imports of emscripten's libraries:
//   node npm/core/imports.mjs MODULE.wasm LIBRARY.js...
// Its default export makes the functions, given those of emscripten's that they call.
import {readFileSync} from 'node:fs';
import {runInNewContext} from 'node:vm';

const [module, ...files] = process.argv.slice(2);
const library = {};
const merged = {LibraryManager: {library}, mergeInto: Object.assign};
for (const file of files) runInNewContext(readFileSync(file, 'utf8'), merged);

const imported = WebAssembly.Module.imports(new WebAssembly.Module(readFileSync(module)))
  .filter(({name}) => name in library)
  .map(({name}) => name);

const needed = new Set();
function need(name) {
  for (const other of library[`${name}__deps`] ?? []) need(other);
  needed.add(name);
}
imported.forEach(need);

const definition = name => {
  const value = library[name];
  return `const ${name.replace('$', '')} = ${typeof value === 'string' ? value.slice(1) : value};`;
};
console.log(`export default ({UTF8ToString, allocateUTF8}) => {
${[...needed].map(definition).join('\n')}
return {${imported.join(', ')}};
};`);
