// The Scripts of the PROTO files: ECMAScript of the 1997 kind (ISO/IEC 14772-1, annex C) that parses.

import assert from 'node:assert/strict';
import { spawnSync } from 'node:child_process';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';

const FOLDER = new URL('../../protos/', import.meta.url);
const FILES = ['VR_GRAPH.wrl', 'VR_NAV.wrl', 'VR_UI.wrl'];

// Words and signs that came after the third edition of the standard.
const NEWER = /\b(let|const|class|yield|async|await|of|import|export)\b|=>|`|\.\.\.|\?\?|\?\.|\*\*/;

function scriptsOf(file) {
  const text = readFileSync(new URL(file, FOLDER), 'utf8');
  return [...text.matchAll(/"javascript:((?:[^"\\]|\\.)*)"/g)].map((match) => ({
    code: match[1].replace(/\\(.)/g, '$1'),
    line: text.slice(0, match.index).split('\n').length,
  }));
}

// What a script says beside its comments and strings.
function bare(code) {
  return code.replace(/\/\/.*|\/\*[^]*?\*\//g, '').replace(/'(\\.|[^'\\])*'/g, "''");
}

for (const file of FILES) {
  test(`scripts of ${file} parse and use no later syntax`, () => {
    const scripts = scriptsOf(file);
    assert.ok(scripts.length > 0);
    for (const { code, line } of scripts) {
      const check = spawnSync(process.execPath, ['--check', '-'], { input: code, encoding: 'utf8' });
      assert.equal(check.status, 0, `${file}:${line}: ${check.stderr}`);
      const newer = bare(code).match(NEWER);
      assert.equal(newer, null, `${file}:${line}: "${newer?.[0]}"`);
    }
  });
}
