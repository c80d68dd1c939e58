// Measures how many frames a second 5,000 moving spheres are drawn at 800x600, in one run: as a
// qm4_SphereCollection, as a Transform, Shape and Sphere each, and as the pixels of a PointSet.
// Beside them, an empty scene shows what the browser itself takes.
//
//   npm ci --prefix viewer/bench && node viewer/bench/spheres.mjs
//
// Every sphere goes its own way under a CoordinateInterpolator. Each row is the best of three
// rounds of five seconds, and shows the processor time a frame of all of the browser's processes
// beside it, which other work on the machine changes less. Fails when the collection is drawn less
// than 30 times a second.

import { execFileSync } from 'node:child_process';
import { mkdtemp, rm, writeFile } from 'node:fs/promises';
import { tmpdir } from 'node:os';
import { join } from 'node:path';
import { fileURLToPath } from 'node:url';
import { launch } from '../browser.mjs';
import { start } from '../server.mjs';

const COUNT = 5000;
const SIZE = { width: 800, height: 600 };
const RADII = [0.06, 0.08, 0.12]; // in a box of 12 by 8 by 10
const COLORS = ['0.9 0.2 0.2', '0.2 0.6 0.9', '0.3 0.8 0.3', '0.95 0.7 0.1', '0.6 0.3 0.8'];
// The program that writes the PROTO files, as scripts/build makes it, or another one.
const ORVANE = process.env.ORVANE ?? fileURLToPath(new URL('../../build/orvane', import.meta.url));

const ROUNDS = 3;
const SECONDS = 5;
const LIMIT = 30; // frames a second
const TITLE = 32; // characters of a line of the report
const PATIENCE = 5 * 60 * 1000; // for a page to load, in ms

const EACH = Array.from({ length: COUNT }, (_, i) => i);
const radius = (i) => RADII[i % RADII.length];
const color = (i) => COLORS[i % COLORS.length];

// Where the spheres are at one end of their way (0) and at the other (1): evenly spread.
function places(end) {
  const part = (i, step) => (i * step + end / 3) % 1;
  return EACH.map((i) => [12 * part(i, 0.6180), 8 * part(i, 0.4142), 10 * part(i, 0.7321)]
    .map((value) => value.toFixed(3)).join(' '));
}

const FROM = places(0);
const TO = places(1);

const SCENE = `#VRML V2.0 utf8
Background { skyColor 0.95 0.97 1 }
Viewpoint { position 6 6 24 orientation 1 0 0 -0.08 }
DEF Clock TimeSensor { loop TRUE cycleInterval 4 }
DEF Ways CoordinateInterpolator {
  key [ 0, 0.5, 1 ]
  keyValue [ ${[FROM, TO, FROM].map((list) => list.join(', ')).join(', ')} ]
}
ROUTE Clock.fraction_changed TO Ways.set_fraction
`;

function collectionWorld() {
  return `${SCENE}
EXTERNPROTO qm4_SphereCollection [
  exposedField MFVec3f locations
  exposedField MFColor colors
  exposedField MFFloat radii
] "VR_GRAPH.wrl#qm4_SphereCollection"
DEF Spheres qm4_SphereCollection {
  locations [ ${FROM.join(', ')} ]
  colors [ ${EACH.map(color).join(', ')} ]
  radii [ ${EACH.map(radius).join(', ')} ]
}
ROUTE Ways.value_changed TO Spheres.set_locations
`;
}

// Spheres of one colour share their Appearance, those of one radius their Sphere.
function sphereWorld() {
  const named = (list, i, kind, node) => (
    i < list.length ? `DEF ${kind}${i} ${node}` : `USE ${kind}${i % list.length}`);
  const spheres = EACH.map((i) => `Transform {
  translation ${FROM[i]}
  children Shape {
    appearance ${named(COLORS, i, 'Look', `Appearance { material Material { diffuseColor ${color(i)} } }`)}
    geometry ${named(RADII, i, 'Ball', `Sphere { radius ${radius(i)} }`)}
  }
}`);
  return `${SCENE}
DEF Spheres Group { children [
${spheres.join('\n')}
] }
DEF Mover Script {
  directOutput TRUE
  field SFNode group USE Spheres
  eventIn MFVec3f set_locations
  url "javascript:
    function set_locations(value, time) {
      var children = group.children;
      for (var i = 0; i < children.length; ++i) children[i].translation = value[i];
    }"
}
ROUTE Ways.value_changed TO Mover.set_locations
`;
}

function pointWorld() {
  return `${SCENE}
Shape {
  geometry PointSet {
    coord DEF Points Coordinate { point [ ${FROM.join(', ')} ] }
    color Color { color [ ${EACH.map(color).join(', ')} ] }
  }
}
ROUTE Ways.value_changed TO Points.set_point
`;
}

const PAGE = `<!DOCTYPE html>
<meta charset="utf-8">
<link rel="icon" href="data:,">
<body style="margin: 0">
<x3d-canvas style="display: block; width: ${SIZE.width}px; height: ${SIZE.height}px"></x3d-canvas>
<script src="x_ite/x_ite.min.js"></script>
<script>
const { browser } = document.querySelector('x3d-canvas');
browser.loadURL(new X3D.MFString(location.search.slice(1))).then(() => { window.loaded = true; });
</script>
`;

// Runs in the page: frames until the time is over.
async function countFrames(seconds) {
  const nextFrame = () => new Promise(requestAnimationFrame);
  const begin = await nextFrame();
  for (let frames = 1; ; ++frames) {
    const time = (await nextFrame() - begin) / 1000;
    if (time >= seconds) return { frames, rate: frames / time };
  }
}

// { rate, work }: frames a second, and milliseconds of processor time a frame.
async function measure(url) {
  const browser = await launch();
  try {
    const page = await browser.newPage({ viewport: SIZE });
    const errors = [];
    page.on('pageerror', (error) => errors.push(String(error)));
    await page.goto(url);
    await page.waitForFunction('window.loaded', null, { timeout: PATIENCE });
    await page.evaluate(countFrames, 2);

    const session = await browser.newBrowserCDPSession();
    const workDone = async () => {
      const { processInfo } = await session.send('SystemInfo.getProcessInfo');
      return processInfo.reduce((sum, { cpuTime }) => sum + 1000 * cpuTime, 0);
    };
    const before = await workDone();
    const { frames, rate } = await page.evaluate(countFrames, SECONDS);
    const work = (await workDone() - before) / frames;
    if (errors.length) throw new Error(`${url}: ${errors.join('\n')}`);
    return { rate, work };
  } finally {
    await browser.close();
  }
}

async function main() {
  const folder = await mkdtemp(join(tmpdir(), 'orvane-bench-'));
  execFileSync(ORVANE, ['protos', folder]);
  const server = await start({
    root: folder,
    mounts: {
      '/x_ite/': fileURLToPath(new URL('node_modules/x_ite/dist', import.meta.url)),
    },
  });
  try {
    const worlds = {
      qm4_SphereCollection: collectionWorld(),
      'Transform, Shape and Sphere each': sphereWorld(),
      'pixels of a PointSet': pointWorld(),
      'empty scene': SCENE,
    };
    await writeFile(join(folder, 'page.html'), PAGE);
    const titles = Object.keys(worlds);
    for (const [i, title] of titles.entries()) {
      await writeFile(join(folder, `${i}.wrl`), worlds[title]);
    }

    const results = titles.map(() => []);
    for (let round = 0; round < ROUNDS; ++round) {
      for (const [i, list] of results.entries()) {
        list.push(await measure(new URL(`page.html?${i}.wrl`, server.url).href));
      }
    }
    console.log(`${COUNT} moving spheres`.padEnd(TITLE) + '   frames/s   ms of processor a frame');
    const rates = results.map((list) => Math.max(...list.map(({ rate }) => rate)));
    for (const [i, list] of results.entries()) {
      const work = Math.min(...list.map((result) => result.work));
      const columns = [rates[i].toFixed(1).padStart(11), work.toFixed(1).padStart(26)];
      console.log(titles[i].padEnd(TITLE) + columns.join(''));
    }
    console.log(`qm4_SphereCollection: ${rates[0].toFixed(1)} frames/s (at least ${LIMIT})`);
    if (rates[0] < LIMIT) process.exitCode = 1;
  } finally {
    await server.close();
    await rm(folder, { recursive: true });
  }
}

await main();
