// Bundles what every page is made of, into OUT: page.js, the script with the player in it, deflated and in
// base64, and the hashes of scripts and style for the page's content security policy.
//
// usage: node build.mjs PLAYER OUT   PLAYER has orvane-player.mjs and, beside its sources, the packages

import { createHash } from 'node:crypto';
import { mkdirSync, readFileSync, writeFileSync } from 'node:fs';
import { createRequire } from 'node:module';
import { fileURLToPath } from 'node:url';
import { deflateRawSync } from 'node:zlib';

const [player, out] = process.argv.slice(2);
const here = fileURLToPath(new URL('.', import.meta.url));
const { build } = createRequire(fileURLToPath(new URL('../player/package.json', import.meta.url)))('esbuild');

const hash = (text) => `'sha256-${createHash('sha256').update(text).digest('base64')}'`;
const minified = async (options) => {
  const { outputFiles: [file] } = await build({
    bundle: true, minify: true, write: false, target: 'es2022', charset: 'utf8', legalComments: 'none', ...options,
  });
  return file.text.trim();
};

const font = readFileSync(`${here}fonts/Ubuntu-R.woff2`).toString('base64');
const face = `@font-face{font-family:"Orvane Sans";src:url(data:font/woff2;base64,${font})}`;
const start = await minified({ entryPoints: [`${here}page/start.js`], format: 'iife' });
const style = `${face}${await minified({ entryPoints: [`${here}page/page.css`] })}`;
const script = `/* Orvane, MIT license; with three.js, copyright three.js authors, MIT license */${await minified({
  entryPoints: [`${here}page/page.js`], format: 'iife', alias: { player: `${player}/orvane-player.mjs` },
})}`.replaceAll('</script', '<\\/script');

mkdirSync(out, { recursive: true });
const parts = {
  'start.txt': start,
  'style.txt': style,
  'script.txt': deflateRawSync(script, { level: 9 }).toString('base64'),
  'policy.txt': `default-src 'none'; script-src ${hash(start)} ${hash(script)}; style-src ${hash(style)}; `
    + "font-src data:; img-src data: blob:; base-uri 'none'; form-action 'none'",
};
for (const [name, text] of Object.entries(parts)) writeFileSync(`${out}/${name}`, text);
console.log(`page: ${(Object.values(parts).join('').length / 1000).toFixed(0)} KB without a chart`);
