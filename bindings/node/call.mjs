// How a routine is called: what is given is checked, room is made, and what is written returned.
//
// Inputs come in the order of the contract, numbers by value, arrays typed or plain. Numbers of
// elements that an array tells are left out, or given by name in an object behind the others:
// trvapl(x, y), trvapl(x, y, { n: 3 }). Arrays that a routine changes are copied, with the room
// that it needs behind their last element. What is written comes back in an object, by its names;
// what a routine leaves unwritten is NaN where it is a Real and 0 where it is an Integer; lists
// with a count are as long as it says.
import koffi from "koffi";

const forWindows = process.arch === "ia32" ? "Trelvin.dll" : "Trelvin64.dll";
const usual = process.platform === "win32" ? forWindows : "libtrelvin.so";
const library = koffi.load(process.env.TRELVIN_LIBRARY ?? usual);
const convention = "__stdcall"; // on 32-bit Windows; of no effect elsewhere
const positionFunction = koffi.proto(convention, "TrelvinFunction", "float", ["void *"]);

const arrayOf = {real: Float32Array, int: Int32Array};
const unwritten = {real: NaN, int: 0};

/** The function that calls a routine of the library, from the facts of its contract. */
export function routine(name, facts) {
  const parameters = facts.map(parameterOf);
  const inputs = parameters.filter(p => p.direction !== "out");
  const arrays = parameters.filter(p => p.sizes);
  const counting = new Set(arrays.flatMap(p => p.sizes.flatMap(size => size.counts)));
  for (const input of inputs) {
    if (counting.has(input.name)) input.least = Math.max(0, input.least ?? 0);
  }
  const types = parameters.map(p =>
    p.kind === "function" ? koffi.pointer(positionFunction) : "void *",
  );
  const native = library.func(convention, name, "void", types);
  const positional = inputs.filter(p => !p.lengthOf.length);
  const counts = inputs.filter(p => p.lengthOf.length);
  const declared = {name, parameters, inputs, arrays, positional, counts, native};
  return {[name]: (...given) => call(declared, given)}[name];
}

// `inout real V[n+m]`, `out int index[n, count used]`, `in real x[1, n+1, 2 by kind]`,
// `in int n >= 2 = X Y`: at least 2, and the length of X and of Y where it is left out.
const single = /^(?<direction>inout|in|out) (?<kind>real|int|function) (?<name>\w+)/;
const array = /(?:\[(?<sizes>[^\]]*?)(?:, (?<used>\w+) used| by (?<by>\w+))?\])?/;
const count = /(?: >= (?<least>-?\d+))?(?: = (?<lengthOf>[\w ]+))?$/;
const form = new RegExp(single.source + array.source + count.source);

function parameterOf(fact) {
  const {sizes, least, lengthOf, ...rest} = form.exec(fact).groups;
  return {
    ...rest,
    sizes: sizes?.split(", ").map(sizeOf),
    least: least && Number(least),
    lengthOf: lengthOf?.split(" ") ?? [],
  };
}

/** A size as a function of the counts that it names. */
function sizeOf(text) {
  const counts = (text.match(/[A-Za-z]\w*/g) ?? []).filter(word => word !== "max");
  const compute = new Function(...counts, `return ${text.replace("max(", "Math.max(")};`);
  return {text, counts, of: values => compute(...counts.map(name => values[name]))};
}

function call(routine, given) {
  const values = bound(routine, given);
  for (const input of routine.counts) values[input.name] ??= lengthFor(routine, input, values);
  for (const input of routine.inputs) {
    const value = values[input.name];
    if (value < input.least) {
      throw fault(RangeError, routine, input, `must be at least ${input.least}`, value);
    }
  }
  for (const array of routine.arrays) checkLength(routine, array, values);
  const raised = [];
  const cells = routine.parameters.map(parameter => cellOf(parameter, values, raised));
  routine.native(...cells);
  if (raised.length) throw raised[0];
  return written(routine, cells);
}

// --- what is given --------------------------------------------------------------------------

function fault(Kind, routine, parameter, needs, value) {
  return new Kind(`${routine.name}: ${parameter.name} ${needs}; ${value} given`);
}

/** The inputs by their names, as the library takes them. */
function bound(routine, given) {
  const {name, positional, counts} = routine;
  const further = given.length - positional.length;
  if (further !== 0 && !(further === 1 && counts.length)) {
    const names = positional.map(input => input.name).join(", ");
    throw new TypeError(`${name}: needs ${names}; ${given.length} arguments given`);
  }
  const values = {};
  for (const [i, input] of positional.entries())
    values[input.name] = taken(routine, input, given[i]);
  for (const [key, value] of Object.entries(further ? given.at(-1) : {})) {
    const input = counts.find(each => each.name === key);
    if (!input) throw new TypeError(`${name}: ${key} is no number of elements that an array tells`);
    values[key] = taken(routine, input, value);
  }
  return values;
}

function taken(routine, input, value) {
  if (input.kind === "function") {
    if (typeof value !== "function") throw fault(TypeError, routine, input, "is a function", value);
    return value;
  }
  const Numbers = arrayOf[input.kind];
  if (!input.sizes || value instanceof Numbers) {
    return input.sizes ? value : checked(routine, input, value);
  }
  if (typeof value !== "object" || !Number.isInteger(value?.length)) {
    throw fault(TypeError, routine, input, "is an array of numbers", value);
  }
  return Numbers.from(value, number => checked(routine, input, number));
}

function checked(routine, input, number) {
  const isInteger = input.kind === "int";
  if (typeof number !== "number" || (isInteger && !Number.isInteger(number))) {
    throw fault(TypeError, routine, input, `needs ${isInteger ? "Integers" : "Reals"}`, number);
  }
  const held = isInteger ? number | 0 : Math.fround(number);
  if (isInteger ? held !== number : Number.isFinite(number) && !Number.isFinite(held)) {
    throw fault(RangeError, routine, input, "needs numbers of 32 bits", number);
  }
  return number;
}

/** The sizes that apply: of those by kind one, or none where the kind is unknown. */
function sizesNow(array, values) {
  if (!array.by) return array.sizes;
  return array.sizes.slice(values[array.by] - 1).slice(0, values[array.by] > 0 ? 1 : 0);
}

function lengthFor(routine, input, values) {
  const uses = array => sizesNow(array, values).some(size => size.counts.includes(input.name));
  const told = routine.arrays.filter(array => input.lengthOf.includes(array.name) && uses(array));
  const lengths = told.map(array => values[array.name].length);
  if (new Set(lengths).size > 1) {
    const names = told.map(array => array.name).join(", ");
    throw fault(RangeError, routine, input, `is one length of ${names}`, lengths.join(", "));
  }
  return lengths[0] ?? 0;
}

function checkLength(routine, array, values) {
  if (array.direction === "out") return;
  for (const size of sizesNow(array, values)) {
    // Of n+m, an array that is copied brings the n that are its own.
    const own = routine.counts.find(
      ({name, lengthOf}) => lengthOf.includes(array.name) && size.text.startsWith(`${name}+`),
    );
    const needed = own && array.direction === "inout" ? values[own.name] : size.of(values);
    if (values[array.name].length < needed) {
      const needs = `needs ${size.text}: ${needed} elements`;
      throw fault(RangeError, routine, array, needs, values[array.name].length);
    }
  }
}

// --- what the library gets, and what it wrote -----------------------------------------------

function cellOf(parameter, values, raised) {
  const {name, kind, direction, sizes} = parameter;
  if (kind === "function") return guarded(values[name], raised);
  if (direction === "in") return sizes ? values[name] : arrayOf[kind].of(values[name]);
  const before = direction === "out" ? [] : sizes ? values[name] : [values[name]];
  const room = sizes ? sizesNow(parameter, values).map(size => size.of(values)) : [1];
  const cell = new arrayOf[kind](Math.max(before.length, ...room)).fill(unwritten[kind]);
  cell.set(before);
  return cell;
}

/** What the host's function throws goes on in the caller, not in the library. */
function guarded(host, raised) {
  return address => {
    if (raised.length) return NaN;
    try {
      return Number(host(koffi.decode(address, "int32_t")));
    } catch (problem) {
      raised.push(problem);
      return NaN;
    }
  };
}

function written(routine, cells) {
  const result = {};
  routine.parameters.forEach((parameter, i) => {
    if (parameter.direction === "in") return;
    result[parameter.name] = parameter.sizes ? cells[i] : cells[i][0];
  });
  for (const {name, used} of routine.arrays) {
    if (used && result[used] < result[name]?.length) {
      result[name] = result[name].slice(0, Math.max(0, result[used]));
    }
  }
  return result;
}
