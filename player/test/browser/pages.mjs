// A world in the player's page and in X_ITE's, in windows of one size, for tests that compare the two. The
// environment variable ORVANE names the program that makes charts, PLAYER the folder with the built player.

import { execFileSync } from 'node:child_process';
import { mkdtempSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { tmpdir } from 'node:os';
import { join, resolve } from 'node:path';
import { fileURLToPath } from 'node:url';
import { launch, openPage } from '../../../viewer/browser.mjs';
import { start } from '../../../viewer/server.mjs';

const ROOT = fileURLToPath(new URL('../../../', import.meta.url));
const ORVANE = resolve(process.env.ORVANE ?? `${ROOT}build/orvane`);
const PLAYER = resolve(process.env.PLAYER ?? `${ROOT}player/dist`);
const SIZE = { width: 800, height: 600 };
const PATIENCE = 120000;

// No 'unsafe-eval', as in any page that is careful; time stands still unless a test moves it.
const PAGE = `<!DOCTYPE html>
<meta charset="utf-8">
<meta http-equiv="Content-Security-Policy" content="default-src 'self'; img-src data:; style-src 'unsafe-inline'; script-src 'self'">
<link rel="icon" href="data:,">
<style>
@font-face { font-family: Ubuntu; src: url(x_ite/assets/fonts/Ubuntu/Ubuntu-R.woff2) }
@font-face { font-family: Ubuntu; font-weight: bold; src: url(x_ite/assets/fonts/Ubuntu/Ubuntu-B.woff2) }
@font-face { font-family: "Droid Serif"; src: url(x_ite/assets/fonts/Droid/DroidSerif-Regular.woff2) }
body { margin: 0 }
#place { position: fixed; inset: 0 }
</style>
<div id="place"></div>
<script type="module" src="play.mjs"></script>
`;
const SCRIPT = `
import { Player } from './player/orvane-player.mjs';
await Promise.all(['16px Ubuntu', 'bold 16px Ubuntu', '16px "Droid Serif"'].map((font) => document.fonts.load(font)));
window.player = new Player(document.getElementById('place'), { clock: () => 1 });
const world = new URLSearchParams(location.search).get('world');
player.listen('warning', (message) => console.warn(message));
await player.load(await (await fetch(world)).text(), { url: new URL(world, location.href).href });
await player.idle();
document.body.dataset.ready = '';
`;

// What leaves nothing of the viewer's page but the world.
const WORLD_ONLY = `
main { container-type: normal !important }
x3d-canvas { position: fixed !important; inset: 0; width: 100vw !important; height: 100vh !important }
`;

/** The worlds of the demo in a folder of their own, served with both pages; by name the arguments that make
 *  each. */
export async function serveDemo() {
  const folder = mkdtempSync(join(tmpdir(), 'player-'));
  const demo = readFileSync(`${ROOT}scripts/demo`, 'utf8').replaceAll('\\\n', ' ').split('\n');
  const worlds = demo.filter((line) => /^(chart|add) [a-z-]+ /.test(line));
  // The demo's own commands, with what they call made to write here.
  execFileSync('bash', ['-euc', `
    add() { "$ORVANE" "\${@:2}" -o "$OUT/$1.wrl"; }
    chart() { add "$1" chart "$2" "examples/data/$3.csv" --title "$4" "\${@:5}"; }
    ${worlds.join('\n')}`], {
    cwd: ROOT, env: { ...process.env, ORVANE, OUT: folder, XDG_CONFIG_HOME: folder }, stdio: ['ignore', 'ignore', 'pipe'],
  });
  writeFileSync(join(folder, 'play.html'), PAGE);
  writeFileSync(join(folder, 'play.mjs'), SCRIPT);
  const viewer = (file) => `${ROOT}viewer/${file}`;
  const server = await start({
    root: folder,
    mounts: {
      ...Object.fromEntries(['index.html', 'viewer.css', 'viewer.js'].map((file) => [`/${file}`, viewer(file)])),
      '/x_ite/': viewer('node_modules/x_ite/dist'),
      '/player/': PLAYER,
    },
  });
  const browser = await launch();
  return {
    worlds: worlds.map((line) => line.split(' ')[1]),
    open: (world) => Pair.open(browser, server.url, world),
    async close() {
      await browser.close();
      await server.close();
      rmSync(folder, { recursive: true });
    },
  };
}

class Pair {
  static async open(browser, url, world) {
    const pair = new Pair();
    pair.complaints = [];
    pair.view = await openPage(browser, url, `${world}.wrl`, SIZE);
    await pair.view.page.addStyleTag({ content: WORLD_ONLY });
    await pair.view.ready();
    pair.page = await browser.newPage({ viewport: SIZE });
    pair.page.setDefaultTimeout(PATIENCE);
    pair.page.on('pageerror', (error) => pair.complaints.push(error.stack));
    pair.page.on('console', (message) => {
      if (!['warning', 'error'].includes(message.type()) || /GL Driver Message/.test(message.text())) return;
      pair.complaints.push(message.text());
    });
    const failed = new Promise((_, reject) => { pair.page.once('pageerror', reject); });
    failed.catch(() => {}); // a later one is a complaint
    await pair.page.goto(new URL(`play.html?world=${world}.wrl`, url).href);
    await Promise.race([pair.page.locator('body[data-ready]').waitFor({ state: 'attached' }), failed]);
    return pair;
  }

  /** Does the same in both: `act` gets the page. */
  async both(act) {
    await act(this.view.page);
    await this.view.still();
    await act(this.page);
    await this.page.evaluate('player.idle()');
  }

  async viewpoint(name) {
    await this.view.viewpoint(name);
    await this.page.evaluate((wanted) => {
      player.viewpoint = player.viewpoints.findIndex(({ description }) => description === wanted);
      return player.idle();
    }, name);
  }

  /** Sends both a field of a named node an event. */
  async send(name, field, value) {
    await this.view.send(name, field, value);
    await this.page.evaluate(([...args]) => {
      player.set(...args);
      return player.idle();
    }, [name, field, value]);
  }

  /** The value of a field in both, numbers in plain arrays. */
  async values(name, field) {
    const plain = await this.page.evaluate(([...args]) => {
      const value = player.get(...args);
      return typeof value === 'object' ? Object.values(value) : value;
    }, [name, field]);
    return { ours: plain, theirs: await this.view.read(name, field) };
  }

  /** How far the two pictures differ: mean of all pixels' channels, and the largest mean of a 16th of the
   *  width by a 16th of the height, parts of the range. */
  async difference() {
    const pictures = [await this.page.screenshot(), await this.view.screenshot()];
    return this.page.evaluate(differenceOf, pictures.map((png) => png.toString('base64')));
  }

  async close() {
    await this.page.close();
    await this.view.close();
  }
}

// Runs in the page.
async function differenceOf(pictures) {
  const [ours, theirs] = await Promise.all(pictures.map(async (png) => {
    const bytes = Uint8Array.from(atob(png), (char) => char.charCodeAt(0));
    const bitmap = await createImageBitmap(new Blob([bytes]));
    const context = new OffscreenCanvas(bitmap.width, bitmap.height).getContext('2d');
    context.drawImage(bitmap, 0, 0);
    return context.getImageData(0, 0, bitmap.width, bitmap.height);
  }));
  const tiles = new Float64Array(256), { width, height } = ours;
  for (let at = 0; at < ours.data.length; at += 4) {
    const pixel = at / 4, x = pixel % width, y = Math.floor(pixel / width);
    const tile = Math.floor(16 * y / height) * 16 + Math.floor(16 * x / width);
    for (let k = 0; k < 3; ++k) tiles[tile] += Math.abs(ours.data[at + k] - theirs.data[at + k]);
  }
  const area = 3 * 255 * width * height;
  return { mean: tiles.reduce((sum, tile) => sum + tile) / area, worst: Math.max(...tiles) * 256 / area };
}
