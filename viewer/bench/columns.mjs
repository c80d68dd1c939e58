// Measures how soon 10,000 columns are on the screen, in one run: as a hundred series of
// qm4_OutlinedColumnSeries, as a Transform, Shape and Box each, and as a bar3D chart of echarts-gl.
//
//   npm ci --prefix viewer/bench && node viewer/bench/columns.mjs
//
// The clock starts with the page's own script, when its library is loaded. "second frame" is the
// start of the first animation frame after one that drew every column; "pixels" is when that
// picture is finished, too. Both are the best of three rounds. Fails when the series take more than
// a tenth of the time to the second frame that boxes take, each with an Appearance of its own.
// Boxes that share one Appearance a row, as the series do, are quicker, and are shown for
// comparison only.

import { execFileSync } from 'node:child_process';
import { mkdtemp, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { chromium } from 'playwright-core';
import { start } from '../server.mjs';

const SIDE = 100; // columns along x and along z
const WIDTH = 0.6; // of a column that stands in a cell of 1 by 1
// The program that writes the PROTO files, as scripts/build makes it, or another one.
const ORVANE = process.env.ORVANE ?? fileURLToPath(new URL('../../build/orvane', import.meta.url));

const ROUNDS = 3;
const LIMIT = 0.1;
const TITLE = 32; // characters of a line of the report
const PATIENCE = 10 * 60 * 1000; // for one page, in ms

// Five sides of two triangles each are the least that draws a column.
const VERTICES = SIDE * SIDE * 5 * 2 * 3;

const FLAGS = [
  '--no-sandbox', '--disable-gpu', '--use-gl=angle', '--use-angle=swiftshader',
  '--enable-unsafe-swiftshader', '--disable-quic', '--no-first-run',
  '--disable-background-networking', '--disable-component-update', '--disable-sync',
];

// A remark of the graphics driver on its own speed, which reading a pixel provokes.
const DRIVER_REMARK = /GL Driver Message \(OpenGL, Performance/;

const CELLS = Array.from({ length: SIDE }, (_, i) => i);

function height(x, z) {
  const wave = 1.5 * Math.sin(x / 7) * Math.cos(z / 9);
  return Number((2 + wave + ((7 * x + 13 * z) % 10) / 20).toFixed(3));
}

const VIEW = `#VRML V2.0 utf8
Viewpoint { position 50 90 160 orientation 1 0 0 -0.6 }
`;

const APPEARANCE = 'Appearance { material Material { diffuseColor 0.2 0.5 0.8 } }';

function seriesWorld() {
  const series = CELLS.map((z) => `qm4_OutlinedColumnSeries {
  translation 0 0 ${z}
  appearance ${APPEARANCE}
  count ${SIDE}
  spacing 1
  width ${WIDTH}
  depth ${WIDTH}
  heights [ ${CELLS.map((x) => height(x, z)).join(', ')} ]
}
`);
  return `${VIEW}
EXTERNPROTO qm4_OutlinedColumnSeries [
  exposedField SFVec3f translation
  exposedField SFRotation rotation
  exposedField SFVec3f scale
  exposedField MFNode appearance
  exposedField SFColor edgeColor
  exposedField SFInt32 count
  exposedField SFFloat spacing
  exposedField SFFloat width
  exposedField SFFloat depth
  exposedField MFFloat heights
] "VR_GRAPH.wrl#qm4_OutlinedColumnSeries"
${series.join('')}`;
}

// `appearance` gives the text of the appearance field at a place in a row.
function boxWorld(appearance) {
  const boxes = CELLS.flatMap((z) => CELLS.map((x) => `Transform {
  translation ${x} ${height(x, z) / 2} ${z + WIDTH / 2}
  children Shape {
    appearance ${appearance(x, z)}
    geometry Box { size ${WIDTH} ${height(x, z)} ${WIDTH} }
  }
}
`));
  return VIEW + boxes.join('');
}

function chartOption() {
  return JSON.stringify({
    animation: false,
    xAxis3D: { type: 'value' },
    yAxis3D: { type: 'value' },
    zAxis3D: { type: 'value' },
    grid3D: {},
    series: [{
      type: 'bar3D',
      shading: 'lambert',
      data: CELLS.flatMap((z) => CELLS.map((x) => [x, z, height(x, z)])),
    }],
  });
}

// Runs in the page, ahead of its library: counts the vertices that go into each animation frame.
function watch(vertices) {
  let drawn = 0;
  let context;
  for (const { prototype } of [WebGLRenderingContext, WebGL2RenderingContext]) {
    for (const [name, count] of [['drawArrays', 2], ['drawElements', 1]]) {
      const draw = prototype[name];
      prototype[name] = function (...args) {
        drawn += args[count];
        context = this;
        return draw.apply(this, args);
      };
    }
  }

  // Reading a pixel waits for all that was drawn.
  function finish() {
    const bound = context.getParameter(context.FRAMEBUFFER_BINDING);
    context.bindFramebuffer(context.FRAMEBUFFER, null);
    context.readPixels(0, 0, 1, 1, context.RGBA, context.UNSIGNED_BYTE, new Uint8Array(4));
    context.bindFramebuffer(context.FRAMEBUFFER, bound);
  }

  function frame() {
    const now = performance.now();
    if (drawn < vertices) {
      drawn = 0;
      requestAnimationFrame(frame);
      return;
    }
    finish();
    window.result = { frame: now - window.begin, pixels: performance.now() - window.begin };
  }
  requestAnimationFrame(frame);
}

function page(element, scripts, task) {
  return `<!DOCTYPE html>
<meta charset="utf-8">
<link rel="icon" href="data:,">
<script>(${watch})(${VERTICES});</script>
${element}
${scripts.map((src) => `<script src="${src}"></script>`).join('\n')}
<script>
window.begin = performance.now();
${task}
</script>
`;
}

function worldPage(world) {
  return page(
    '<x3d-canvas id="picture" style="display: block; width: 900px; height: 600px"></x3d-canvas>',
    ['x_ite/x_ite.min.js'],
    `document.getElementById('picture').browser.loadURL(new X3D.MFString('${world}'));`,
  );
}

function chartPage() {
  return page(
    '<div id="picture" style="width: 900px; height: 600px"></div>',
    ['echarts/echarts.min.js', 'echarts-gl/echarts-gl.min.js'],
    `echarts.init(document.getElementById('picture')).setOption(${chartOption()});`,
  );
}

// Milliseconds to the second frame and to its pixels, { frame, pixels }.
async function measure(url) {
  const browser = await chromium.launch({ executablePath: '/usr/bin/chromium', args: FLAGS });
  try {
    const tab = await browser.newPage({ viewport: { width: 900, height: 600 } });
    const complaints = [];
    tab.on('pageerror', (error) => complaints.push(String(error)));
    tab.on('console', (message) => {
      if (!['warning', 'error'].includes(message.type())) return;
      if (DRIVER_REMARK.test(message.text())) return;
      complaints.push(`${message.text()} (${message.location().url})`);
    });
    await tab.goto(url);
    const wait = { polling: 250, timeout: PATIENCE };
    const result = await tab.waitForFunction('window.result', null, wait);
    if (complaints.length) throw new Error(`${url}: ${complaints.join('\n')}`);
    return await result.jsonValue();
  } finally {
    await browser.close();
  }
}

function best(times) {
  return {
    frame: Math.min(...times.map(({ frame }) => frame)),
    pixels: Math.min(...times.map(({ pixels }) => pixels)),
  };
}

async function measureAll(url, pages) {
  const times = pages.map(() => []);
  for (let round = 0; round < ROUNDS; ++round) {
    for (const [i, name] of pages.entries()) times[i].push(await measure(new URL(name, url).href));
  }
  return times.map(best);
}

function report(title, { frame, pixels }) {
  const seconds = (time) => (time / 1000).toFixed(2).padStart(12);
  console.log(`${title.padEnd(TITLE)}${seconds(frame)} s${seconds(pixels)} s`);
}

function packages(path) {
  return fileURLToPath(new URL(`node_modules/${path}/dist`, import.meta.url));
}

async function main() {
  const folder = await mkdtemp(join(tmpdir(), 'orvane-bench-'));
  execFileSync(ORVANE, ['protos', folder]);
  const server = await start({
    root: folder,
    mounts: {
      '/x_ite/': packages('x_ite'),
      '/echarts/': packages('echarts'),
      '/echarts-gl/': packages('echarts-gl'),
    },
  });
  try {
    const files = {
      'series.wrl': seriesWorld(),
      'boxes.wrl': boxWorld(() => APPEARANCE),
      'rows.wrl': boxWorld((x, z) => (x ? `USE Row${z}` : `DEF Row${z} ${APPEARANCE}`)),
      'series.html': worldPage('series.wrl'),
      'boxes.html': worldPage('boxes.wrl'),
      'rows.html': worldPage('rows.wrl'),
      'chart.html': chartPage(),
    };
    for (const [name, text] of Object.entries(files)) await writeFile(join(folder, name), text);

    const pages = ['series.html', 'boxes.html', 'rows.html', 'chart.html'];
    const [series, boxes, rows, chart] = await measureAll(server.url, pages);
    console.log(`${SIDE * SIDE} columns`.padEnd(TITLE) + '  second frame        pixels');
    report('qm4_OutlinedColumnSeries', series);
    report('Transform, Shape and Box each', boxes);
    report('the same, one Appearance a row', rows);
    report('echarts-gl bar3D', chart);

    const share = series.frame / boxes.frame;
    console.log(`series / boxes                    ${share.toFixed(3)} (at most ${LIMIT})`);
    console.log(`series / boxes that share         ${(series.frame / rows.frame).toFixed(3)}`);
    console.log(`series / echarts, second frame    ${(series.frame / chart.frame).toFixed(1)}`);
    console.log(`series / echarts, pixels          ${(series.pixels / chart.pixels).toFixed(1)}`);
    if (share > LIMIT) process.exitCode = 1;
  } finally {
    await server.close();
    await rm(folder, { recursive: true });
  }
}

await main();
