// What the JavaScript module takes and refuses; silent when all is right.
import assert from "node:assert";
import * as trelvin from "trelvin";

const refused = (Kind, message, call) => assert.throws(call, {name: Kind.name, message});

// A polygon needs its vertices only, and those given stay as they are.
const x = Float32Array.of(2, 3, 3, 2);
const square = trelvin.trvspl(x, [4, 4, 5, 5]);
assert.deepEqual([square.sx, square.sy, [...square.x]], [4.5, 2.5, [2, 3, 3, 2, 2]]);
assert.deepEqual([...x], [2, 3, 3, 2]);
assert.equal(trelvin.trvapl([0, 1, 1, 0], [0, 0, 1, 1], {n: 3}).area, 0.5);

// What stays unwritten, a list as long as its count, room for what is inserted, a kind's size.
const parallel = trelvin.trvlni(1, 0, 0, 1, 0, -5);
assert.deepEqual(parallel, {status: trelvin.trvlniParallel, x: NaN, y: NaN});
assert.deepEqual([...trelvin.trvpnp([0, 0, 0], [0, 1, 0], [0, 0, 0], 0, 1, 0, 0).index], [1]);
assert.deepEqual([...trelvin.trvadr([1, 2, 3], 1, [8, 9]).V], [1, 8, 9, 2, 3]);
assert.equal(trelvin.trvair([0, 2], [0, 0], 3, 0, 1, 0).area, Math.fround(4 * Math.PI));

// What does not fit never reaches the library.
refused(RangeError, /^trvpos: A needs n: 5 elements; 1 /, () => trelvin.trvpos([1], 1, {n: 5}));
refused(RangeError, /n is one length of x, y; 3, 2 given/, () => trelvin.trvspl([0, 1, 1], [0, 0]));
refused(RangeError, /n must be at least 0; -1/, () => trelvin.trvpos([1, 2], 1, {n: -1}));
refused(RangeError, /n must be at least 2; 1/, () => trelvin.trvinr([1], 0, 1));
refused(RangeError, /x needs 2: 2 elements/, () => trelvin.trvair([0], [0, 1], 3, 0, 1, 0));
refused(RangeError, /dx needs numbers of 32 bits/, () => trelvin.trvaxph(1e39, 0));
refused(TypeError, /dx needs Reals; undefined/, () => trelvin.trvaxph(undefined, 0));
refused(TypeError, /A needs Reals; 2 given/, () => trelvin.trvpos([1, "2"], 1));
refused(TypeError, /side needs Integers; 0.5/, () => trelvin.trvcer2(0, 0, 1, 0, 0.5, 1));
refused(TypeError, /trvaxph: needs dx, dy; 1 /, () => trelvin.trvaxph(1));
refused(TypeError, /m is no number of elements/, () => trelvin.trvpos([1], 1, {m: 1}));

// A host's function may fail.
const line = [0, 0, 0, 1, 0, 0];
const fails = () => {
  throw new Error("no height");
};
refused(Error, /no height/, () => trelvin.trvpnl(...line, [5], [0], fails, 1));
