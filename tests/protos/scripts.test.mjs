// Every Script is ECMAScript of the 1997 kind (ISO/IEC 14772-1, annex C), names nothing that its Script
// node does not declare, and has no function that nobody calls.

import assert from 'node:assert/strict';
import { test } from 'node:test';
import { Linter } from 'eslint';
import { GLOBALS, readScripts } from './scripts.mjs';

for (const { proto, name, declared, code } of readScripts()) {
  test(`the script ${name ?? ''} of qm4_${proto}`, () => {
    const fields = [...declared.matchAll(/^ *(?:field|eventOut) \w+ (\w+)/gm)].map(([, field]) => field);
    const events = [...declared.matchAll(/^ *eventIn \w+ (\w+)/gm)].map(([, event]) => event);
    const called = ['initialize', 'eventsProcessed', ...events].join('|');
    const complaints = new Linter().verify(code, {
      languageOptions: {
        ecmaVersion: 3,
        sourceType: 'script',
        globals: Object.fromEntries([...GLOBALS, ...fields].map((word) => [word, 'writable'])),
      },
      rules: {
        'no-undef': 'error',
        'no-redeclare': ['error', { builtinGlobals: false }],
        'no-unused-vars': ['error', { args: 'none', varsIgnorePattern: `^(${called})$` }],
      },
    });
    assert.deepEqual(complaints.map(({ line, message }) => `${line}: ${message}`), []);
    for (const event of events) assert.match(code, new RegExp(`^ *function ${event}\\(`, 'm'));
  });
}
