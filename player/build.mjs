// Builds the player: dist/orvane-player.mjs, a module, and dist/orvane-player.js, a script that defines the
// global OrvanePlayer, each in one file, and says how large they are.
//
// usage: node build.mjs [FOLDER [OUT]]   FOLDER has the PROTO files, see compile.mjs; OUT is dist by default

import { mkdirSync, readFileSync } from 'node:fs';
import { fileURLToPath } from 'node:url';
import { gzipSync } from 'node:zlib';
import { build } from 'esbuild';
import { compile } from './compile.mjs';

const LIMIT = 220; // KB after gzip

const here = fileURLToPath(new URL('.', import.meta.url));
const [folder, out = `${here}dist`] = process.argv.slice(2);

compile(folder);
mkdirSync(out, { recursive: true });

const FORMS = { 'orvane-player.mjs': 'esm', 'orvane-player.js': 'iife' };
for (const [file, format] of Object.entries(FORMS)) {
  await build({
    entryPoints: [`${here}src/index.js`],
    outfile: `${out}/${file}`,
    bundle: true,
    minify: true,
    format,
    globalName: format === 'iife' ? 'OrvanePlayer' : undefined,
    target: 'es2022',
    charset: 'utf8',
    legalComments: 'none',
    banner: { js: '/* Orvane player, MIT license; with three.js, copyright three.js authors, MIT license */' },
  });
  const size = gzipSync(readFileSync(`${out}/${file}`), { level: 9 }).length / 1024;
  console.log(`${file}: ${size.toFixed(0)} KB after gzip (limit ${LIMIT})`);
  if (size > LIMIT) process.exitCode = 1;
}
