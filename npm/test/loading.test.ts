import assert from 'node:assert/strict';
import {readFileSync} from 'node:fs';
import {createRequire} from 'node:module';
import test from 'node:test';
import {Worker} from 'node:worker_threads';
import {load} from 'velmora';

const require = createRequire(import.meta.url);
const at = new Date('2024-06-21T12:00Z');
const helsinki = {latitude: 60.17, longitude: 24.94};
const expected = (await load()).position(helsinki, 'sun', at);

test('CommonJS has the same almanac', async () => {
  const almanac = await require('velmora').load();
  assert.deepEqual(almanac.position(helsinki, 'sun', at), expected);
  const calendar = await require('velmora/calendar').load();
  assert.equal(calendar.month('UTC', 2024, 2).length, 29);
});

test('the module may be handed over, as bytes or compiled', async () => {
  const wasm = readFileSync(require.resolve('velmora/almanac.wasm'));
  assert.deepEqual((await load({wasm})).position(helsinki, 'sun', at), expected);
  const compiled = await WebAssembly.compile(wasm);
  assert.deepEqual((await load({wasm: compiled})).position(helsinki, 'sun', at), expected);
});

test('bytes that are no module are refused', async () => {
  await assert.rejects(load({wasm: new Uint8Array([1, 2, 3])}), {message: /WebAssembly/});
});

test('a worker has the same almanac', async () => {
  const source = `
    const {parentPort, workerData} = require('node:worker_threads');
    require(workerData.velmora).load().then(almanac =>
      parentPort.postMessage(almanac.position({latitude: 60.17, longitude: 24.94}, 'sun', workerData.at)));`;
  const worker = new Worker(source, {eval: true, workerData: {velmora: require.resolve('velmora'), at}});
  const answer = await new Promise((resolve, reject) => {
    worker.once('message', resolve);
    worker.once('error', reject);
  });
  assert.deepEqual(answer, expected);
});

test('the version is the package\'s', async () => {
  const {version} = JSON.parse(readFileSync(new URL('../velmora/package.json', import.meta.url), 'utf8'));
  assert.equal((await load()).version, version);
});
