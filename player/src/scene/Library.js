// The PROTOs that are compiled into the player: their structure as text, read when a PROTO is first used, and
// the functions of their scripts, which name themselves in the url of their Script nodes.

import { Parser } from '../vrml/Parser.js';
import { nodeTypes } from './nodeTypes.js';

export class Library {
  /** @param {Object<string, string>} texts  what follows the name in a PROTO statement, by name
   *  @param {Object<string, function>} scripts  see Script.js */
  constructor(texts, scripts) {
    this.texts = texts;
    this.scripts = scripts;
    this.read = new Map();
  }

  has(name) { return Object.hasOwn(this.texts, name); }

  get(name) {
    if (!this.read.has(name) && this.has(name)) {
      const parser = new Parser(this.texts[name], nodeTypes, this, (message) => { throw new Error(message); });
      this.read.set(name, parser.definition(name));
    }
    return this.read.get(name);
  }
}
