// Reads the words, numbers and strings of a VRML97 text (ISO/IEC 14772-1, 5.12 and annex A).

const SPACE = 1, FIRST = 2, REST = 4;

// What a character below 128 may be; those above are letters of names.
const KIND = new Uint8Array(128);
for (let code = 33; code < 127; ++code) KIND[code] = FIRST | REST;
for (const sign of '"#\',.[\\]{}') KIND[sign.charCodeAt(0)] = 0;
for (const sign of '+-0123456789') KIND[sign.charCodeAt(0)] = REST;
for (const sign of ' \t\r\n,') KIND[sign.charCodeAt(0)] = SPACE;

const POWERS = Array.from({ length: 23 }, (_, power) => Number(`1e${power}`));
const NUMBER = /[+-]?(?:0[xX][0-9a-fA-F]+|(?:\d+\.?\d*|\.\d+)(?:[eE][+-]?\d+)?)/y;

/** A fault in a world's text. line and column count from 1. */
export class WorldError extends Error {
  constructor(message, line, column) {
    super(`Line ${line}, column ${column}: ${message}`);
    this.name = 'WorldError';
    this.line = line;
    this.column = column;
  }
}

export class Lexer {
  constructor(text) {
    this.text = text;
    this.at = 0;
    this.numbers = new Float64Array(256);
  }

  /** The line and column of an offset, or of where the lexer is. */
  place(offset = this.at) {
    let line = 1, start = 0;
    for (let end = this.text.indexOf('\n'); end >= 0 && end < offset; end = this.text.indexOf('\n', start)) {
      ++line;
      start = end + 1;
    }
    return { line, column: offset - start + 1 };
  }

  fail(message, offset = this.at) {
    const { line, column } = this.place(offset);
    throw new WorldError(message, line, column);
  }

  /** Goes past spaces, commas and comments; returns the code of the character there, -1 at the end. */
  skip() {
    const { text } = this;
    for (;;) {
      const code = this.at < text.length ? text.charCodeAt(this.at) : -1;
      if (code === 35) { // #
        const end = text.indexOf('\n', this.at);
        this.at = end < 0 ? text.length : end + 1;
      } else if (code === 0xFEFF || (code >= 0 && code < 128 && KIND[code] === SPACE)) {
        ++this.at;
      } else {
        return code;
      }
    }
  }

  /** Whether a sign such as '{' is next; if so, goes past it. */
  take(sign) {
    if (this.skip() !== sign.charCodeAt(0)) return false;
    ++this.at;
    return true;
  }

  expect(sign, what) {
    if (!this.take(sign)) this.fail(`"${sign}" is expected ${what}, not ${this.next()}`);
  }

  /** What comes next, for messages. */
  next() {
    if (this.skip() < 0) return 'the end of the text';
    const [word] = /^(?:"[^"\n]{0,20}"?|[^\s,{}[\]"#]{1,40}|.)/u.exec(this.text.slice(this.at, this.at + 60));
    return word.startsWith('"') ? `the text ${word}` : `"${word}"`;
  }

  /** The name that is next, or '' if there is none. */
  word() {
    const code = this.skip();
    if (code < 0 || (code < 128 && !(KIND[code] & FIRST))) return '';
    const { text } = this;
    const start = this.at;
    let end = start + 1;
    for (; end < text.length; ++end) {
      const next = text.charCodeAt(end);
      if (next < 128 && !(KIND[next] & REST)) break;
    }
    this.at = end;
    return text.slice(start, end);
  }

  name(what) {
    const word = this.word();
    if (word === '') this.fail(`${what} is expected, not ${this.next()}`);
    return word;
  }

  /** Digits, at most one point and a few digits after it are read here; the rest goes the longer way. */
  number() {
    const first = this.skip();
    const { text } = this;
    const start = this.at;
    let at = start, mantissa = 0, digits = 0, decimals = 0;
    if (first === 45 || first === 43) ++at;
    let code = text.charCodeAt(at);
    for (; code >= 48 && code <= 57; code = text.charCodeAt(++at)) {
      mantissa = 10 * mantissa + code - 48;
      ++digits;
    }
    if (code === 46) {
      for (code = text.charCodeAt(++at); code >= 48 && code <= 57; code = text.charCodeAt(++at)) {
        mantissa = 10 * mantissa + code - 48;
        ++decimals;
      }
      digits += decimals;
    }
    const isPlain = !(code >= 128 || (KIND[code] & REST));
    if (digits === 0 || digits > 15 || !isPlain) return this.anyNumber(start);
    this.at = at;
    const size = decimals > 0 ? mantissa / POWERS[decimals] : mantissa;
    return first === 45 ? -size : size;
  }

  anyNumber(start) {
    NUMBER.lastIndex = start;
    const found = NUMBER.exec(this.text);
    const end = NUMBER.lastIndex, after = found === null ? 0 : this.text.charCodeAt(end);
    if (found === null || after >= 128 || KIND[after] & REST) this.fail(`A number is expected, not ${this.next()}`);
    this.at = end;
    const [word] = found;
    return word.startsWith('-') ? -Number(word.slice(1)) : Number(word.replace('+', ''));
  }

  integer() {
    const start = this.at, value = this.number();
    if (Number.isInteger(value) && value >= -0x80000000 && value <= 0xFFFFFFFF) return value | 0;
    this.at = start;
    this.skip();
    return this.fail(`A whole number of 32 bits is expected, not ${this.next()}`);
  }

  string() {
    if (this.skip() !== 34) this.fail(`A text in quotes is expected, not ${this.next()}`);
    const { text } = this;
    const start = this.at + 1;
    let end = text.indexOf('"', start), isEscaped = false;
    while (end > 0 && text.charCodeAt(end - 1) === 92) {
      let first = end - 1;
      while (text.charCodeAt(first - 1) === 92) --first;
      if ((end - first) % 2 === 0) break;
      isEscaped = true;
      end = text.indexOf('"', end + 1);
    }
    if (end < 0) this.fail('This text has no closing quote');
    this.at = end + 1;
    const content = text.slice(start, end);
    return isEscaped || content.includes('\\') ? content.replace(/\\([\\"])/g, '$1') : content;
  }

  /** The numbers up to "]", as many to an element as stated, in a fresh array of the type given. */
  list(Type, size, isInteger) {
    const start = this.at;
    let { numbers } = this, count = 0;
    while (!this.take(']')) {
      if (this.at >= this.text.length) this.fail('"]" is missing at the end of this list', start);
      if (count === numbers.length) {
        numbers = new Float64Array(2 * count);
        numbers.set(this.numbers);
        this.numbers = numbers;
      }
      numbers[count++] = isInteger ? this.integer() : this.number();
    }
    if (count % size !== 0) this.fail(`This list needs ${size} numbers an entry, and has ${count}`, start);
    return new Type(numbers.subarray(0, count));
  }

  /** Goes past a node's "{ ... }" and tells of each name after a DEF in it. */
  skipBraces(tellName) {
    const start = this.at;
    this.expect('{', 'after the type of a node');
    for (let depth = 1; depth > 0;) {
      const code = this.skip();
      if (code < 0) this.fail('"}" is missing at the end of this node', start);
      if (code === 34) {
        this.string();
      } else {
        const word = this.word();
        if (word === 'DEF') tellName(this.name('A name'));
        else if (word === '') ++this.at;
        if (code === 123) ++depth;
        if (code === 125) --depth;
      }
    }
  }
}
