#include "stills/scene/ScriptPrelude.h"

namespace orvane::stills {

// Lists are plain arrays with another prototype, which keeps elements fast. Text in numbers is that
// of 32 bits, from __floats; nodes made of text come from __create. What the engine offers beyond
// the language, and whatever could run text that has no ticks in it, is taken away; so are the
// engine's own loops over lists that are endless in effect.
const char* const kScriptPrelude = R"js(
(function (global) {
  'use strict';

  var floats = global.__floats;
  var create = global.__create;

  function hidden(object, members) {
    for (var name in members) {
      Object.defineProperty(object, name, { value: members[name], writable: true, configurable: true });
    }
  }

  function number(value) { return value === undefined ? 0 : +value; }

  function indexed(prototype, names) {
    names.forEach(function (name, i) {
      Object.defineProperty(prototype, i, {
        get: function () { return this[name]; },
        set: function (value) { this[name] = value; }
      });
    });
    hidden(prototype, {
      toString: function () {
        return floats(names.map(function (name) { return this[name]; }, this));
      }
    });
  }

  function SFVec3f(x, y, z) {
    this.x = number(x);
    this.y = number(y);
    this.z = number(z);
  }
  indexed(SFVec3f.prototype, ['x', 'y', 'z']);
  hidden(SFVec3f.prototype, {
    add: function (v) { return new SFVec3f(this.x + v.x, this.y + v.y, this.z + v.z); },
    subtract: function (v) { return new SFVec3f(this.x - v.x, this.y - v.y, this.z - v.z); },
    multiply: function (s) { return new SFVec3f(this.x * s, this.y * s, this.z * s); },
    divide: function (s) { return new SFVec3f(this.x / s, this.y / s, this.z / s); },
    negate: function () { return new SFVec3f(-this.x, -this.y, -this.z); },
    dot: function (v) { return this.x * v.x + this.y * v.y + this.z * v.z; },
    cross: function (v) {
      return new SFVec3f(this.y * v.z - this.z * v.y, this.z * v.x - this.x * v.z,
        this.x * v.y - this.y * v.x);
    },
    length: function () { return Math.sqrt(this.dot(this)); },
    normalize: function () { return this.length() > 0 ? this.divide(this.length()) : this; }
  });

  function SFVec2f(x, y) {
    this.x = number(x);
    this.y = number(y);
  }
  indexed(SFVec2f.prototype, ['x', 'y']);
  hidden(SFVec2f.prototype, {
    add: function (v) { return new SFVec2f(this.x + v.x, this.y + v.y); },
    subtract: function (v) { return new SFVec2f(this.x - v.x, this.y - v.y); },
    multiply: function (s) { return new SFVec2f(this.x * s, this.y * s); },
    divide: function (s) { return new SFVec2f(this.x / s, this.y / s); },
    dot: function (v) { return this.x * v.x + this.y * v.y; },
    length: function () { return Math.sqrt(this.dot(this)); },
    normalize: function () { return this.length() > 0 ? this.divide(this.length()) : this; }
  });

  function SFColor(r, g, b) {
    this.r = number(r);
    this.g = number(g);
    this.b = number(b);
  }
  indexed(SFColor.prototype, ['r', 'g', 'b']);
  hidden(SFColor.prototype, {
    setHSV: function (h, s, v) {
      function part(n) {
        var k = (n + h * 3 / Math.PI) % 6;
        return v - v * s * Math.max(0, Math.min(k, 4 - k, 1));
      }
      this.r = part(5);
      this.g = part(3);
      this.b = part(1);
    },
    getHSV: function () {
      var v = Math.max(this.r, this.g, this.b), c = v - Math.min(this.r, this.g, this.b), h = 0;
      if (c > 0 && v == this.r) h = ((this.g - this.b) / c + 6) % 6;
      else if (c > 0 && v == this.g) h = (this.b - this.r) / c + 2;
      else if (c > 0) h = (this.r - this.g) / c + 4;
      return [h * Math.PI / 3, v > 0 ? c / v : 0, v];
    }
  });

  function SFRotation(x, y, z, angle) {
    if (x instanceof SFVec3f && y instanceof SFVec3f) {
      var axis = x.cross(y);
      angle = Math.atan2(axis.length(), x.dot(y));
      axis = axis.normalize();
      x = axis.x;
      y = axis.y;
      z = axis.z;
    } else if (x instanceof SFVec3f) {
      angle = y;
      z = x.z;
      y = x.y;
      x = x.x;
    }
    this.x = number(x);
    this.y = number(y);
    this.z = arguments.length ? number(z) : 1;
    this.angle = number(angle);
  }
  indexed(SFRotation.prototype, ['x', 'y', 'z', 'angle']);
  hidden(SFRotation.prototype, {
    getAxis: function () { return new SFVec3f(this.x, this.y, this.z); },
    inverse: function () { return new SFRotation(this.x, this.y, this.z, -this.angle); },
    quaternion: function () {
      var axis = this.getAxis().normalize(), s = Math.sin(this.angle / 2);
      return [axis.x * s, axis.y * s, axis.z * s, Math.cos(this.angle / 2)];
    },
    multiply: function (other) {
      var a = this.quaternion(), b = other.quaternion();
      return fromQuaternion([
        b[3] * a[0] + b[0] * a[3] + b[1] * a[2] - b[2] * a[1],
        b[3] * a[1] - b[0] * a[2] + b[1] * a[3] + b[2] * a[0],
        b[3] * a[2] + b[0] * a[1] - b[1] * a[0] + b[2] * a[3],
        b[3] * a[3] - b[0] * a[0] - b[1] * a[1] - b[2] * a[2]]);
    },
    multVec: function (v) {
      var axis = this.getAxis().normalize(), c = Math.cos(this.angle), s = Math.sin(this.angle);
      return v.multiply(c).add(axis.cross(v).multiply(s))
        .add(axis.multiply(axis.dot(v) * (1 - c)));
    },
    setAxis: function (v) {
      this.x = v.x;
      this.y = v.y;
      this.z = v.z;
    },
    slerp: function (to, t) {
      var a = this.quaternion(), b = to.quaternion(), dot = 0, i;
      for (i = 0; i < 4; ++i) dot += a[i] * b[i];
      var turn = Math.acos(Math.min(1, Math.abs(dot))), sine = Math.sin(turn), sign = dot < 0 ? -1 : 1;
      var p = sine > 1e-6 ? Math.sin((1 - t) * turn) / sine : 1 - t;
      var q = sign * (sine > 1e-6 ? Math.sin(t * turn) / sine : t);
      return fromQuaternion(a.map(function (v, k) { return p * v + q * b[k]; }));
    }
  });

  function fromQuaternion(q) {
    var axis = new SFVec3f(q[0], q[1], q[2]);
    var angle = 2 * Math.atan2(axis.length(), q[3]);
    if (axis.length() == 0) return new SFRotation(0, 0, 1, 0);
    axis = axis.normalize();
    return new SFRotation(axis.x, axis.y, axis.z, angle);
  }

  function list(toString) {
    var prototype = Object.create(Array.prototype);
    function MF() {
      var made = [];
      for (var i = 0; i < arguments.length; ++i) made[i] = arguments[i];
      return Object.setPrototypeOf(made, prototype);
    }
    MF.prototype = prototype;
    hidden(prototype, { constructor: MF, toString: toString });
    return MF;
  }

  function listed() { return '[ ' + Array.prototype.join.call(this, ', ') + ' ]'; }
  function listedFloats() { return '[ ' + floats(this) + ' ]'; }
  function listedStrings() {
    return '[ ' + Array.prototype.map.call(this, function (text) {
      return '"' + String(text).replace(/["\\]/g, '\\$&') + '"';
    }).join(', ') + ' ]';
  }

  var types = {
    SFVec3f: SFVec3f, SFVec2f: SFVec2f, SFColor: SFColor, SFRotation: SFRotation,
    MFVec3f: list(listed), MFVec2f: list(listed), MFColor: list(listed), MFRotation: list(listed),
    MFFloat: list(listedFloats), MFInt32: list(listed), MFTime: list(listed), MFNode: list(listed),
    MFString: list(listedStrings),
    SFNode: function SFNode(text) { return create(text)[0]; }
  };
  hidden(global, types);

  hidden(global, {
    Browser: {
      getName: function () { return 'Orvane'; },
      getVersion: function () { return '1.0'; },
      getCurrentSpeed: function () { return 0; },
      getCurrentFrameRate: function () { return 0; },
      getWorldURL: function () { return ''; },
      setDescription: function () {},
      loadURL: function () {},
      replaceWorld: function () {},
      createVrmlFromString: create,
      createVrmlFromURL: function () { throw new Error('a script may not read files'); },
      addRoute: function () { throw new Error('addRoute is not there'); },
      deleteRoute: function () { throw new Error('deleteRoute is not there'); }
    },
    TRUE: true,
    FALSE: false,
    print: function () {},
    trace: function () {},
    /* One eventOut in a script's scope. */
    __eventOut: function (scope, name, initial, script, field, mark) {
      Object.defineProperty(scope, name, {
        get: function () { return initial; },
        set: function (value) {
          initial = value;
          mark(script, field);
        }
      });
    }
  });

  Object.getOwnPropertyNames(Array.prototype).forEach(function (name) {
    var native = Array.prototype[name];
    if (typeof native != 'function' || name == 'constructor' || name == 'push' || name == 'pop') return;
    Array.prototype[name] = function () {
      if (this.length > 2e7) throw new RangeError('a list of ' + this.length + ' elements is too long');
      return native.apply(this, arguments);
    };
    Object.defineProperty(Array.prototype, name, { enumerable: false });
  });

  function refuse() { throw new Error('a script may not make scripts'); }
  Object.defineProperty(Function.prototype, 'constructor', { value: refuse });
  ['eval', 'Function', 'Duktape', 'Proxy', 'Reflect', 'performance', '__floats', '__create'].forEach(
    function (name) { delete global[name]; });
})(this);
)js";

}  // namespace orvane::stills
