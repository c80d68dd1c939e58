// Measures what `orvane chart` writes, in X_ITE and in the player, beside the same data in ECharts-GL and
// Plotly, in one run, and prints one table:
//
//   scripts/build && npm ci --prefix viewer/bench
//   node viewer/bench/worlds.mjs [--rounds N] [--only TEXT] [--kinds x_ite,player,echarts,plotly] [--protos DIR]
//
// The player is the one in player/dist (npm run build), or in the folder that PLAYER names. Ratios are those of
// the first of the kinds.
//
// Each measurement is a browser of its own, with a picture of 1280 x 800; each number is the median of the
// rounds. "first" is the first frame that shows anything, "final" the first one that shows the picture
// that stays (of what moves: the first one of as many vertices as later ones), both in seconds from
// navigation. "page" and "GPU" are seconds of processor time of the two processes until then. "turning" is
// milliseconds a frame while the pointer drags the scene. "heap" is megabytes of JavaScript after a
// collection, "vertices" are those of a frame, and "size" the kilobytes of data that a page fetches.
// --protos takes the PROTO files from another folder than the program brings.

import { execFileSync } from 'node:child_process';
import { copyFileSync, statSync, writeFileSync } from 'node:fs';
import { mkdtemp, rm } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { parseArgs } from 'node:util';
import { launch } from '../browser.mjs';
import { start } from '../server.mjs';
import { CASES } from './cases.mjs';
import { watch } from './watch.mjs';

const ORVANE = process.env.ORVANE ?? fileURLToPath(new URL('../../build/orvane', import.meta.url));
const PLAYER = process.env.PLAYER ?? fileURLToPath(new URL('../../player/dist', import.meta.url));
const SIZE = { width: 1280, height: 800 };
const PATIENCE = 10 * 60 * 1000; // for one page, in ms
const QUIET = 30; // tenths of a second without another picture, after which it stays
const TURNING = { least: 4, frames: 3, most: 30 }; // seconds, frames, seconds

const { values: options } = parseArgs({
  options: {
    rounds: { type: 'string', default: '3' },
    only: { type: 'string', default: '' },
    kinds: { type: 'string', default: 'x_ite,player,echarts,plotly' },
    protos: { type: 'string' },
  },
});

const package_ = (path) => fileURLToPath(new URL(`node_modules/${path}`, import.meta.url));

const page = (body) => `<!DOCTYPE html>
<meta charset="utf-8">
<link rel="icon" href="data:,">
<style>html, body, #picture { margin: 0; width: 100%; height: 100%; overflow: hidden; display: block }</style>
${body}
`;

function writeWorld(folder, name, { table, words }) {
  writeFileSync(join(folder, `${name}.csv`), table);
  execFileSync(ORVANE, ['chart', ...words, `${name}.csv`, '-o', `${name}.wrl`], { cwd: folder });
  for (const file of ['VR_GRAPH.wrl', 'VR_NAV.wrl', 'VR_UI.wrl']) {
    if (options.protos) copyFileSync(join(options.protos, file), join(folder, file));
  }
}

// Writes a case's page and data into a folder: { page, data }, the names of the files.
const KINDS = {
  x_ite(folder, name, chart) {
    writeWorld(folder, name, chart);
    writeFileSync(join(folder, `${name}.html`), page(`
<script type="module" src="x_ite/x_ite.min.mjs"></script>
<x3d-canvas id="picture" src="${name}.wrl"></x3d-canvas>`));
    return { page: `${name}.html`, data: [`${name}.wrl`] };
  },

  player(folder, name, chart) {
    writeWorld(folder, name, chart);
    writeFileSync(join(folder, `${name}.html`), page(`
<script type="module" src="player/orvane-player.mjs"></script>
<orvane-chart id="picture" src="${name}.wrl"></orvane-chart>`));
    return { page: `${name}.html`, data: [`${name}.wrl`] };
  },

  echarts(folder, name, { echarts, echartsFrames }) {
    const frames = echartsFrames?.() ?? [];
    writeFileSync(join(folder, `${name}.js`), `const option = ${JSON.stringify(echarts())};
const frames = ${JSON.stringify(frames)};`);
    writeFileSync(join(folder, `${name}.html`), page(`
<div id="picture"></div>
<script src="echarts/echarts.min.js"></script>
<script src="echarts-gl/echarts-gl.min.js"></script>
<script src="${name}.js"></script>
<script>
const chart = echarts.init(document.getElementById('picture'));
chart.setOption(option);
let turn = 0;
function step() {
  chart.setOption({ series: [{ data: frames[turn++ % frames.length] }] });
  requestAnimationFrame(step);
}
if (frames.length) requestAnimationFrame(step);
</script>`));
    return { page: `${name}.html`, data: [`${name}.js`] };
  },

  plotly(folder, name, { plotly }) {
    writeFileSync(join(folder, `${name}.js`), `const figure = ${JSON.stringify(plotly())};`);
    writeFileSync(join(folder, `${name}.html`), page(`
<div id="picture"></div>
<script src="plotly/plotly-gl3d.min.js"></script>
<script src="${name}.js"></script>
<script>
let turn = 0;
async function step() {
  await Plotly.react('picture', figure.frames[turn++ % figure.frames.length], figure.layout);
  requestAnimationFrame(step);
}
Plotly.newPlot('picture', figure.data, figure.layout).then(() => { if (figure.frames) step(); });
</script>`));
    return { page: `${name}.html`, data: [`${name}.js`] };
  },
};

// Seconds of processor time that the browser's processes of a type have taken.
async function seconds(session, type) {
  const { processInfo } = await session.send('SystemInfo.getProcessInfo');
  return processInfo.filter((process) => process.type === type)
    .reduce((sum, { cpuTime }) => sum + cpuTime, 0);
}

// Drags the pointer to and fro on the background, and gives milliseconds a frame and vertices of one.
async function turn(tab) {
  const begin = await tab.evaluate(() => { window.frames_.length = 0; return performance.now(); });
  await tab.mouse.move(40, 700);
  await tab.mouse.down();
  let frames = [];
  for (let x = 40, step = 12, passed = 0; ; x += step) {
    if (x > 400 || x < 40) step = -step;
    await tab.mouse.move(x, 700 - x / 8);
    await tab.waitForTimeout(25);
    ({ frames, passed } = await tab.evaluate(() => (
      { frames: window.frames_, passed: performance.now() })));
    passed = (passed - begin) / 1000;
    if (passed > TURNING.most || (passed > TURNING.least && frames.length >= TURNING.frames)) break;
  }
  await tab.mouse.up();
  const span = frames.length ? frames.at(-1).time - begin : 1000 * TURNING.most;
  return { turning: span / Math.max(frames.length, 1), vertices: frames.at(-1)?.vertices ?? NaN };
}

async function measure(url, isMoving) {
  const browser = await launch();
  try {
    const tab = await browser.newPage({ viewport: SIZE });
    const complaints = [];
    tab.on('pageerror', (error) => complaints.push(String(error)));
    await tab.addInitScript(watch);
    await tab.goto(url, { timeout: PATIENCE });
    await tab.waitForFunction(isMoving
      ? (quiet) => window.isShown() && window.frames_.length > quiet
      : (quiet) => window.isShown() && window.quiet >= quiet, QUIET, { polling: 200, timeout: PATIENCE });
    const session = await browser.newBrowserCDPSession();
    const times = await tab.evaluate((moving) => window.times(moving), isMoving);
    const [paint, gpu] = [await seconds(session, 'renderer'), await seconds(session, 'GPU')];
    const turned = await turn(tab);
    const own = await tab.context().newCDPSession(tab);
    await own.send('HeapProfiler.collectGarbage');
    const { usedSize, backingStorageSize = 0 } = await own.send('Runtime.getHeapUsage');
    if (complaints.length) throw new Error(`${url}: ${complaints.join('\n')}`);
    return {
      first: times.first / 1000, final: times.final / 1000, page: paint, GPU: gpu,
      turning: turned.turning, heap: (usedSize + backingStorageSize) / 1e6, vertices: turned.vertices,
    };
  } finally {
    await browser.close();
  }
}

function median(list) {
  const sorted = [...list].sort((a, b) => a - b);
  return sorted[Math.floor(sorted.length / 2)];
}

const COLUMNS = {
  first: 2, final: 2, page: 1, GPU: 1, turning: 0, heap: 0, vertices: 0, size: 0,
};

function line(title, numbers, digits = COLUMNS) {
  const cells = Object.keys(COLUMNS).map((name) => (
    Number.isFinite(numbers[name]) ? numbers[name].toFixed(digits[name] ?? 2) : '-').padStart(10));
  console.log(title.padEnd(36) + cells.join(''));
}

async function main() {
  const folder = await mkdtemp(join(tmpdir(), 'orvane-bench-'));
  const server = await start({
    root: folder,
    mounts: {
      '/x_ite/': package_('x_ite/dist'),
      '/player/': PLAYER,
      '/echarts/': package_('echarts/dist'),
      '/echarts-gl/': package_('echarts-gl/dist'),
      '/plotly/': package_('plotly.js-gl3d-dist-min'),
    },
  });
  try {
    console.log(' '.repeat(36) + Object.keys(COLUMNS).map((name) => name.padStart(10)).join(''));
    for (const [title, chart] of Object.entries(CASES)) {
      if (!title.includes(options.only)) continue;
      const rows = {};
      for (const kind of options.kinds.split(',')) {
        const files = KINDS[kind](folder, `${kind}-${title.replace(/\W+/g, '-')}`, chart);
        const size = files.data.reduce((sum, file) => sum + statSync(join(folder, file)).size, 0) / 1e3;
        const rounds = [];
        for (let round = 0; round < Number(options.rounds); ++round) {
          rounds.push(await measure(new URL(files.page, server.url).href, chart.isMoving));
        }
        rows[kind] = { ...Object.fromEntries(Object.keys(rounds[0]).map((name) => (
          [name, median(rounds.map((numbers) => numbers[name]))]))), size };
        line(`${title}, ${kind}`, rows[kind]);
      }
      for (const other of Object.keys(rows).slice(1)) {
        const ours = Object.values(rows)[0];
        line(`  ratio to ${other}`, Object.fromEntries(
          Object.keys(COLUMNS).map((name) => [name, ours[name] / rows[other][name]])), {});
      }
    }
  } finally {
    await server.close();
    await rm(folder, { recursive: true });
  }
}

await main();
