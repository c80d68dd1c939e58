// The picture program: the files it writes and the faults it reports.

import assert from 'node:assert/strict';
import { execFile } from 'node:child_process';
import { mkdtemp, readFile, readdir, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { after, before, test } from 'node:test';
import { fileURLToPath } from 'node:url';

const PROGRAM = fileURLToPath(new URL('../picture.mjs', import.meta.url));
const world = (name) => fileURLToPath(new URL(`worlds/${name}`, import.meta.url));

let folder;

before(async () => {
  folder = await mkdtemp(join(tmpdir(), 'viewer-'));
});
after(() => rm(folder, { recursive: true }));

function picture(...args) {
  return new Promise((done) => {
    execFile(process.execPath, [PROGRAM, ...args], (error, stdout, stderr) => {
      done({ code: error?.code ?? 0, stdout, stderr });
    });
  });
}

// Width and height stand at bytes 16 and 20 of a PNG file.
async function sizeOf(file) {
  const png = await readFile(file);
  return [png.readUInt32BE(16), png.readUInt32BE(20)];
}

test('writes a picture of the size asked for', async () => {
  const out = join(folder, 'one.png');
  const { code, stdout, stderr } = await picture(world('two-views.wrl'), out, '--size', '320x200');
  assert.deepEqual([code, stdout, stderr], [0, `${out}\n`, '']);
  assert.deepEqual(await sizeOf(out), [320, 200]);
});

test('writes a picture for each viewpoint', async () => {
  const { code, stderr } = await picture(world('two-views.wrl'), join(folder, 'all.png'), '--all');
  assert.deepEqual([code, stderr], [0, '']);
  const files = (await readdir(folder)).filter((name) => name.startsWith('all')).sort();
  assert.deepEqual(files, ['all-From_the_left.png', 'all-Front.png']);
  const [left, front] = await Promise.all(files.map((name) => readFile(join(folder, name))));
  assert.ok(!left.equals(front));
});

const faults = [
  ['a missing world', ['nowhere.wrl'], /nowhere\.wrl/],
  ['a broken world', ['broken.wrl'], /Line 3/],
  ['a script that fails', ['script-error.wrl'], /nothing is not defined/],
  ['missing PROTO files', ['missing-protos.wrl'], /LEFT\.wrl/],
  ['an unknown viewpoint', ['two-views.wrl', '--viewpoint', 'Top'], /"Top".*Front, From the left/],
  ['a world without viewpoints', ['no-viewpoint.wrl', '--all'], /no viewpoint/],
  ['a malformed size', ['two-views.wrl', '--size', 'large'], /usage/],
];

for (const [name, [file, ...options], words] of faults) {
  test(`fails on ${name}`, async () => {
    const { code, stderr } = await picture(world(file), join(folder, 'fault.png'), ...options);
    assert.equal(code, 1);
    assert.match(stderr, words);
  });
}
