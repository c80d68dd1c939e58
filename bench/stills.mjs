// Pictures without a browser beside those of headless Chromium, for charts small and large:
//
//   node bench/stills.mjs [BUILD_FOLDER]      left out, build/release
//
// Prints evaluation and drawing in ms of processor time, and the seconds that each way takes from world to
// file. Fails when the browser is not at least 5 times slower, or four times the data takes over 6 times.

import { execFileSync } from 'node:child_process';
import { mkdirSync, writeFileSync } from 'node:fs';
import { resolve } from 'node:path';

const root = resolve(import.meta.dirname ?? new URL('.', import.meta.url).pathname, '..');
const build = resolve(root, process.argv[2] ?? 'build/release');
const out = resolve(build, 'stills-bench');
const run = (...words) => execFileSync(words[0], words.slice(1), { cwd: out, encoding: 'utf8' });

function seconds(...words) {
  const start = performance.now();
  run(...words);
  return (performance.now() - start) / 1000;
}

const wave = (i, k) => (5 + 3 * Math.sin(i / 9) * Math.cos(k / 7)).toFixed(3);
const numbers = (count) => Array.from({ length: count }, (_, i) => i);
const lattice = (rows, columns) => [['x', ...numbers(columns)],
  ...numbers(rows).map((i) => [i, ...numbers(columns).map((k) => wave(i, k))])];
const points = (count) => [['name', 'x', 'y', 'z'],
  ...numbers(count).map((i) => [`p${i}`, wave(i, 1), wave(i * 3, 2), wave(i * 7, 3)])];

const charts = [
  ['small chart', 'column', lattice(12, 4), true],
  ['2,500 columns', 'column', lattice(50, 50), false],
  ['10,000 columns', 'column', lattice(100, 100), true],
  ['150 x 150 surface', 'surface', lattice(150, 150), false],
  ['300 x 300 surface', 'surface', lattice(300, 300), true],
  ['1,250 points', 'scatter', points(1250), false],
  ['5,000 points', 'scatter', points(5000), true],
];

mkdirSync(out, { recursive: true });
console.log('chart               evaluate   draw   whole  Chromium  times faster');
let isMissed = false;
let quarter = 0;
for (const [name, kind, rows, inBrowser] of charts) {
  writeFileSync(resolve(out, 'table.csv'), rows.map((row) => row.join(',')).join('\n') + '\n');
  run(`${build}/bin/orvane`, 'chart', kind, 'table.csv', '-o', 'world.wrl', '--no-popups');
  const [evaluate, draw] = run(`${build}/bin/bench_stills`, 'world.wrl').trim().split(' ').map(Number);
  let line = `${name.padEnd(19)} ${String(evaluate).padStart(8)} ${String(draw).padStart(6)}`;
  if (inBrowser) {
    const own = seconds(`${build}/bin/orvane`, 'convert', 'world.wrl', '-o', 'own.png');
    const chromium = seconds('node', `${root}/viewer/picture.mjs`, 'world.wrl', 'browser.png', '--size', '1280x800');
    line += ` ${own.toFixed(2).padStart(7)} ${chromium.toFixed(2).padStart(9)} ${(chromium / own).toFixed(1).padStart(13)}`;
    if (chromium < 5 * own) isMissed = true;
    if (quarter && evaluate > 6 * quarter) isMissed = true;
  }
  quarter = inBrowser ? 0 : evaluate;
  console.log(line);
}
console.log(isMissed ? 'missed' : 'met');
process.exitCode = isMissed ? 1 : 0;
