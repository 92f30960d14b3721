// A welded box girder in sagging bending, S355: which part of its plates counts once they buckle,
// and the properties of what is left. Then an arc cut by a chord. Lengths in mm.
//
// The top plate is compressed evenly, the webs bend. The neutral axis lies where the reduced top
// plate puts it; the webs are reduced once for that axis.
import * as trelvin from "trelvin";

const b = 1200;
const h = 1600; // between the centre lines of the plates
const tTop = 12;
const tBottom = 20;
const tWeb = 8;
const [r1, r2] = [Math.sqrt(355), Math.sqrt(235)]; // strength and reference
const stress = 355; // at the top edge, compression positive
const [left, right] = [-b / 2, b / 2];

/** Of plates [x1, y1, x2, y2, t], in bending; figures of torsion are NaN for a closed section. */
function figuresOf(...plates) {
  const column = i => plates.map(plate => plate[i]);
  const figures = trelvin.trvmxt(...[0, 1, 2, 3, 4].map(column));
  if (figures.status === trelvin.trvStatusRefused) {
    throw new RangeError("a plate without length or thickness");
  }
  return figures;
}

// The top plate in pure compression.
const top = trelvin.trvef2(b, b, tTop, r1, r2, stress, stress);

const flanges = [
  [left, 0, right, 0, tBottom],
  [left, h, left + top.be1, h, tTop],
  [right, h, right - top.be2, h, tTop],
];
const grossWebs = [left, right].map(x => [x, 0, x, h, tWeb]);
const first = figuresOf(...flanges, ...grossWebs);

// The webs in bending about that axis.
const compressed = h - first.ys;
const tension = (-stress * first.ys) / compressed;
const web = trelvin.trvef2(h, compressed, tWeb, r1, r2, stress, tension);

const lowerWebs = [left, right].map(x => [x, 0, x, first.ys + web.be2, tWeb]);
const upperWebs = [left, right].map(x => [x, h, x, h - web.be1, tWeb]);
const last = figuresOf(...flanges, ...lowerWebs, ...upperWebs);

// An arc about (250, -400) from A to B, and the point of it above a station of its chord.
const [centre, from, to] = [
  [250, -400],
  [850, 400],
  [-550, 200],
];
const point = trelvin.trvcer8(...centre, ...from, ...to, -1, 500);
const arcs = trelvin.trvarc1(...centre, ...from, ...to);

function row(name, unit, digits, ...numbers) {
  const columns = numbers.map(x => x.toFixed(digits).padStart(9));
  console.log(`${name.padEnd(14)} ${columns.join(" ")} ${unit}`);
}
row("top plate", "mm", 2, top.be1, top.be2);
row("web", "mm", 2, web.be1, web.be2);
row("neutral axis", "mm", 2, first.ys, last.ys);
row("area", "cm2", 2, first.A / 100, last.A / 100);
row("I1, I2", "1000 cm4", 1, last.I1 / 1e7, last.I2 / 1e7);
row("alpha", "rad", 5, last.alpha);
row("Wx top, bottom", "cm3", 1, last.Wx1 / 1000, last.Wx2 / 1000);
row("arc above 500", "mm", 2, point.x, point.y);
row("arc lengths", "mm", 2, arcs.s1, arcs.s2);
