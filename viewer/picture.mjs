// Takes pictures of a VRML world, and fails on anything that the browser complains of:
//
//   node viewer/picture.mjs WORLD.wrl OUT.png [--viewpoint NAME] [--all] [--size 1024x768]
//
// With --all one picture for each viewpoint is written, OUT-<viewpoint>.png.

import { readFile } from 'node:fs/promises';
import { dirname, relative, resolve, sep } from 'node:path';
import { parseArgs } from 'node:util';
import { launch, openPage } from './browser.mjs';
import { startViewer } from './server.mjs';

// Leaves nothing of the page but the world.
const PICTURE_ONLY = `
  main { container-type: normal !important; }
  x3d-canvas {
    position: fixed !important;
    inset: 0;
    width: 100vw !important;
    height: 100vh !important;
  }
`;

// The folder to serve: the world's own, or as far above it as its links climb ("../../x.wrl").
async function rootOf(world) {
  const text = await readFile(world, 'utf8');
  const climbs = [...text.matchAll(/"((?:\.\.\/)+)/g)].map(([, dots]) => dots.length / 3);
  return resolve(dirname(world), '../'.repeat(Math.max(0, ...climbs)));
}

function fileFor(out, viewpoint) {
  return out.replace(/(\.png)?$/, `-${viewpoint.replace(/[^\p{L}\p{N}.-]+/gu, '_')}.png`);
}

async function takePictures(view, out, { viewpoint, all }) {
  const files = [];
  if (all) {
    for (const name of await view.viewpoints()) {
      await view.viewpoint(name);
      files.push(fileFor(out, name));
      await view.screenshot(files.at(-1));
    }
    if (!files.length) throw new Error('the world has no viewpoint with a description');
    return files;
  }
  if (viewpoint) {
    const names = await view.viewpoints();
    if (!names.includes(viewpoint)) {
      throw new Error(`no viewpoint "${viewpoint}"; the world has: ${names.join(', ') || 'none'}`);
    }
    await view.viewpoint(viewpoint);
  }
  await view.screenshot(out);
  return [out];
}

function commandLine() {
  const { values, positionals } = parseArgs({
    allowPositionals: true,
    options: {
      viewpoint: { type: 'string' },
      all: { type: 'boolean' },
      size: { type: 'string', default: '1024x768' },
    },
  });
  const size = values.size.match(/^(\d+)x(\d+)$/);
  if (positionals.length !== 2 || !size) {
    throw new Error('usage: node viewer/picture.mjs WORLD.wrl OUT.png'
      + ' [--viewpoint NAME] [--all] [--size 1024x768]');
  }
  const [world, out] = positionals;
  return { ...values, world, out, size: { width: Number(size[1]), height: Number(size[2]) } };
}

async function main() {
  const { world, out, size, ...what } = commandLine();
  const root = await rootOf(world);
  const server = await startViewer(root);
  const browser = await launch();
  try {
    const path = relative(root, resolve(world)).split(sep).map(encodeURIComponent).join('/');
    const view = await openPage(browser, server.url, path, size);
    await view.page.addStyleTag({ content: PICTURE_ONLY });
    await view.ready();
    const trouble = await view.trouble();
    const files = trouble ? [] : await takePictures(view, out, what);
    for (const file of files) console.log(file);
    const complaints = [...(trouble ? [trouble] : []), ...view.complaints];
    for (const complaint of complaints) console.error(complaint);
    if (complaints.length) process.exitCode = 1;
  } finally {
    await browser.close();
    await server.close();
  }
}

try {
  await main();
} catch (error) {
  console.error(error.message);
  process.exitCode = 1;
}
