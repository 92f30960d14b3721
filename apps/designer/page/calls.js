"use strict";
// A section as calls of the library, in the language of a host: a program that prints its area,
// centroid and second moments about it. Where a routine gives the profile's outline, the program
// calls that one with the dimensions, else it has the parts written out.

const BEHIND = ["z1", "z2", "z3", "z4", "z5", "q1", "q2"]; // what else comes with each polygon

const same = name => name;

// A list of items in a form, broken into lines with an indent.
function listed(items, indent, end = "", form = same) {
  const rows = [""];
  items.forEach((item, i) => {
    const text = form(item) + (i + 1 < items.length ? ", " : "");
    if (indent + rows.at(-1).length + text.length > 96) {
      rows.push(`${rows.pop().trimEnd()}${end}`, "");
    }
    rows.push(rows.pop() + text);
  });
  return rows.join(`\n${" ".repeat(indent)}`);
}

// The call's arguments: dimensions, q, and the outputs, as the language writes each kind.
const argumentsOf = (s, {input = same, output = same, array = same} = {}) => [
  ...s.names.map(input),
  input("q"),
  output("np"),
  ...["nv", "x", "y", "code", "sign", ...BEHIND].map(array),
];
const valuesOf = (s, value = same) => [
  ...s.names.map((name, i) => `${name} = ${value(s.dimensions[i])}`),
  `q = ${value("0")}`,
];
const body = (s, part, call) => (s.routine === "" ? s.parts.map(part).join("") : call());
const single = number => `${number}f`;
const pointer = name => `&${name}`;
const withPoint = number => (number.includes(".") ? number : `${number}.0`);

// Each takes a section: its title, profile, names and dimensions, and its parts with kind, factor,
// x and y.
const LANGUAGES = {
  C: s => {
    const call = () => `  const float ${listed(valuesOf(s), 14)};
  int32_t np, nv[3], code[3];
  float x[20], y[20], sign[3], ${BEHIND.map(name => `${name}[3]`).join(", ")};
  ${s.routine}(${listed(argumentsOf(s, {input: pointer, output: pointer}), 6)});
  for (int32_t i = 0, from = 0; i < np; from += nv[i++]) {
    add(code[i], sign[i], nv[i], x + from, y + from);
  }
`;
    const part = p => `  add(${p.kind}, ${p.factor}, ${p.x.length}, (float[]){${listed(p.x, 6)}},
      (float[]){${listed(p.y, 6)}});
`;
    return `/* ${s.title} */
#include <stdio.h>
#include <trelvin/trelvin.h>

static double A, Sx, Sy, Ix, Iy;

/* A polygon is of kind 2, the segment of a circle of kind 4. */
static void add(int32_t kind, float factor, int32_t n, const float *x, const float *y) {
  const float value = 0, angle = 0; /* of other kinds */
  float px[21], py[21];             /* the library writes behind the last vertex */
  float area, sx, sy, ix, iy, ixy;
  for (int32_t i = 0; i < n; ++i) {
    px[i] = x[i];
    py[i] = y[i];
  }
  trvair(px, py, &n, &kind, &value, &factor, &area);
  trvstm(px, py, &n, &kind, &value, &factor, &sx, &sy);
  trvinm(px, py, &n, &kind, &value, &angle, &factor, &ix, &iy, &ixy);
  A += area;
  Sx += sx;
  Sy += sy;
  Ix += ix;
  Iy += iy;
}

int main(void) {
${body(s, part, call)}
  printf("A  %.7g mm2\\n", A);
  printf("xs %.7g mm\\nys %.7g mm\\n", Sy / A, Sx / A);
  printf("Ix %.7g mm4\\nIy %.7g mm4\\n", Ix - Sx * Sx / A, Iy - Sy * Sy / A);
  return 0;
}
`;
  },

  Fortran: s => {
    const declared = () => `  real(rk), parameter :: ${listed(valuesOf(s), 25, " &")}
  integer(c_int32_t) :: np, nv(3), code(3), i, first = 1
  real(rk) :: x(20), y(20), sign(3), ${BEHIND.map(name => `${name}(3)`).join(", ")}
`;
    const call = () => `  call ${s.routine}(${listed(argumentsOf(s), 6, " &")})
  do i = 1, np
    call add(code(i), sign(i), x(first:first + nv(i) - 1), y(first:first + nv(i) - 1))
    first = first + nv(i)
  end do
`;
    const part =
      p => `  call add(${p.kind}, ${withPoint(p.factor)}, [real(rk) :: ${listed(p.x, 11, " &")}], &
           [real(rk) :: ${listed(p.y, 11, " &")}])
`;
    return `! ${s.title}
program section
  use trelvin
  implicit none

  integer, parameter :: rk = c_float, dp = kind(1.0d0)
  real(dp) :: A = 0, Sx = 0, Sy = 0, Ix = 0, Iy = 0
${s.routine && declared()}
${body(s, part, call)}
  print "(a, g0, a)", "A  ", A, " mm2", "xs ", Sy / A, " mm", "ys ", Sx / A, " mm"
  print "(a, g0, a)", "Ix ", Ix - Sx * Sx / A, " mm4", "Iy ", Iy - Sy * Sy / A, " mm4"

contains

  ! A polygon is of kind 2, the segment of a circle of kind 4.
  subroutine add(kind, factor, x, y)
    integer, intent(in) :: kind
    real(rk), intent(in) :: factor, x(:), y(:)
    real(rk) :: px(size(x) + 1), py(size(x) + 1)  ! the library writes behind the last vertex
    real(rk) :: area, mx, my, jx, jy, jxy

    px(:size(x)) = x
    py(:size(x)) = y
    call trvair(px, py, size(x), kind, 0.0_rk, factor, area)
    call trvstm(px, py, size(x), kind, 0.0_rk, factor, mx, my)
    call trvinm(px, py, size(x), kind, 0.0_rk, 0.0_rk, factor, jx, jy, jxy)
    A = A + area
    Sx = Sx + mx
    Sy = Sy + my
    Ix = Ix + jx
    Iy = Iy + jy
  end subroutine
end program
`;
  },

  Pascal: s => {
    const declared = () => `
const
${valuesOf(s)
  .map(value => `  ${value};\n`)
  .join("")}
var
  np, i, first: LongInt;
  nv, code: array[0..2] of LongInt;
  x, y: array[0..19] of Single;
  ${["sign", ...BEHIND].join(", ")}: array[0..2] of Single;
`;
    const call = () => `  ${s.routine}(${listed(argumentsOf(s, {array: name => `${name}[0]`}), 4)});
  first := 0;
  for i := 0 to np - 1 do
  begin
    Add(code[i], sign[i], nv[i], first, x, y);
    first := first + nv[i];
  end;
`;
    const part = p => `  Add(${p.kind}, ${p.factor}, ${p.x.length}, 0, [${listed(p.x, 4)}],
    [${listed(p.y, 4)}]);
`;
    return `{ ${s.title} }
program section;

uses
  trelvin;

var
  A, Sx, Sy, Ix, Iy: Double;

{ A polygon is of kind 2, the segment of a circle of kind 4. }
procedure Add(kind: LongInt; factor: Single; n, first: LongInt; const x, y: array of Single);
var
  px, py: array[0..20] of Single; { the library writes behind the last vertex }
  area, mx, my, jx, jy, jxy: Single;
begin
  Move(x[first], px[0], n * SizeOf(Single));
  Move(y[first], py[0], n * SizeOf(Single));
  trvair(px[0], py[0], n, kind, 0, factor, area);
  trvstm(px[0], py[0], n, kind, 0, factor, mx, my);
  trvinm(px[0], py[0], n, kind, 0, 0, factor, jx, jy, jxy);
  A := A + area;
  Sx := Sx + mx;
  Sy := Sy + my;
  Ix := Ix + jx;
  Iy := Iy + jy;
end;
${s.routine && declared()}
begin
${body(s, part, call)}
  WriteLn('A  ', A, ' mm2');
  WriteLn('xs ', Sy / A, ' mm');
  WriteLn('ys ', Sx / A, ' mm');
  WriteLn('Ix ', Ix - Sx * Sx / A, ' mm4');
  WriteLn('Iy ', Iy - Sy * Sy / A, ' mm4');
end.
`;
  },

  Basic: s => {
    const call = () => `${valuesOf(s)
      .map(value => `    Const ${value.replace(" =", " As Single =")}\n`)
      .join(
        "",
      )}    Dim np As Long, nv(0 To 2) As Long, code(0 To 2) As Long, i As Long, first As Long
    Dim x(0 To 19) As Single, y(0 To 19) As Single, sign(0 To 2) As Single
    Dim ${listed(BEHIND, 8, " _", name => `${name}(0 To 2) As Single`)}
    ${s.routine} ${listed(argumentsOf(s, {array: name => `${name}(0)`}), 8, " _")}
    For i = 0 To np - 1
        AddPart code(i), sign(i), nv(i), first, x, y
        first = first + nv(i)
    Next i
`;
    const part =
      p => `    AddPart ${p.kind}, ${p.factor}, ${p.x.length}, 0, Array(${listed(p.x, 8, " _")}), _
        Array(${listed(p.y, 8, " _")})
`;
    return `' ${s.title}
Option Explicit

Private A As Double, Sx As Double, Sy As Double, Ix As Double, Iy As Double

Public Sub PrintSection()
    A = 0: Sx = 0: Sy = 0: Ix = 0: Iy = 0
${body(s, part, call)}    Debug.Print "A  "; A; " mm2"
    Debug.Print "xs "; Sy / A; " mm"
    Debug.Print "ys "; Sx / A; " mm"
    Debug.Print "Ix "; Ix - Sx * Sx / A; " mm4"
    Debug.Print "Iy "; Iy - Sy * Sy / A; " mm4"
End Sub

' A polygon is of kind 2, the segment of a circle of kind 4.
Private Sub AddPart(kind As Long, factor As Single, n As Long, first As Long, x As Variant, y As Variant)
    Dim px(0 To 20) As Single, py(0 To 20) As Single   ' the library writes behind the last vertex
    Dim area As Single, mx As Single, my As Single, jx As Single, jy As Single, jxy As Single
    Dim i As Long
    For i = 0 To n - 1
        px(i) = x(first + i)
        py(i) = y(first + i)
    Next i
    trvair px(0), py(0), n, kind, 0, factor, area
    trvstm px(0), py(0), n, kind, 0, factor, mx, my
    trvinm px(0), py(0), n, kind, 0, 0, factor, jx, jy, jxy
    A = A + area
    Sx = Sx + mx
    Sy = Sy + my
    Ix = Ix + jx
    Iy = Iy + jy
End Sub
`;
  },

  "C#": s => {
    const call = () => `        const float ${listed(valuesOf(s, single), 12)};
        int np;
        int[] nv = new int[3], code = new int[3];
        float[] x = new float[20], y = new float[20], sign = new float[3];
        float[] ${listed(BEHIND, 12, "", name => `${name} = new float[3]`)};
        Native.${s.routine}(${listed(argumentsOf(s, {output: name => `out ${name}`}), 12)});
        for (int i = 0, first = 0; i < np; first += nv[i++])
            Add(code[i], sign[i], nv[i], first, x, y);
`;
    const part = p => `        Add(${p.kind}, ${p.factor}, ${p.x.length}, 0,
            new float[] {${listed(p.x, 16, "", single)}},
            new float[] {${listed(p.y, 16, "", single)}});
`;
    return `// ${s.title}
using System;
using Trelvin;

static class Section
{
    static double A, Sx, Sy, Ix, Iy;

    // A polygon is of kind 2, the segment of a circle of kind 4.
    static void Add(int kind, float factor, int n, int first, float[] x, float[] y)
    {
        float[] px = new float[n + 1], py = new float[n + 1]; // with the library's element
        float area = 0, mx = 0, my = 0, jx = 0, jy = 0, jxy = 0;
        Array.Copy(x, first, px, 0, n);
        Array.Copy(y, first, py, 0, n);
        Native.trvair(px, py, n, kind, 0, factor, ref area);
        Native.trvstm(px, py, n, kind, 0, factor, ref mx, ref my);
        Native.trvinm(px, py, n, kind, 0, 0, factor, ref jx, ref jy, ref jxy);
        A += area;
        Sx += mx;
        Sy += my;
        Ix += jx;
        Iy += jy;
    }

    static void Main()
    {
${body(s, part, call)}
        Console.WriteLine(FormattableString.Invariant($"A  {A:G7} mm2"));
        Console.WriteLine(FormattableString.Invariant($"xs {Sy / A:G7} mm"));
        Console.WriteLine(FormattableString.Invariant($"ys {Sx / A:G7} mm"));
        Console.WriteLine(FormattableString.Invariant($"Ix {Ix - Sx * Sx / A:G7} mm4"));
        Console.WriteLine(FormattableString.Invariant($"Iy {Iy - Sy * Sy / A:G7} mm4"));
    }
}
`;
  },

  Python: s => {
    const call =
      () => `outline = trelvin.${s.routine}(${listed(valuesOf(s), 4, "", value => value.replace(" = ", "="))})
first = 0
for kind, factor, n in zip(outline.code, outline.sign, outline.nv):
    add(kind, factor, outline.X[first : first + n], outline.Y[first : first + n])
    first += n
`;
    const part = p => `add(${p.kind}, ${p.factor}, [${listed(p.x, 4)}],
    [${listed(p.y, 4)}])
`;
    return `# ${s.title}
import trelvin

A = Sx = Sy = Ix = Iy = 0


def add(kind, factor, x, y):
    """A polygon is of kind 2, the segment of a circle of kind 4."""
    global A, Sx, Sy, Ix, Iy
    first = trelvin.trvstm(x, y, kind, 0, factor, 0, 0)
    second = trelvin.trvinm(x, y, kind, 0, 0, factor, 0, 0, 0)
    A += trelvin.trvair(x, y, kind, 0, factor, 0).area
    Sx += first.sx
    Sy += first.sy
    Ix += second.ix
    Iy += second.iy


${body(s, part, call)}
print(f"A  {A:.7g} mm2")
print(f"xs {Sy / A:.7g} mm")
print(f"ys {Sx / A:.7g} mm")
print(f"Ix {Ix - Sx * Sx / A:.7g} mm4")
print(f"Iy {Iy - Sy * Sy / A:.7g} mm4")
`;
  },

  JavaScript: s => {
    const call = () => `const ${listed(valuesOf(s), 2)};
const outline = trelvin.${s.routine}(${listed([...s.names, "q"], 2)});
for (let i = 0, from = 0; i < outline.np; from += outline.nv[i++]) {
  const to = from + outline.nv[i];
  add(outline.code[i], outline.sign[i], outline.X.slice(from, to), outline.Y.slice(from, to));
}
`;
    const part = p => `add(${p.kind}, ${p.factor}, [${listed(p.x, 2)}],
  [${listed(p.y, 2)}]);
`;
    return `// ${s.title}
import * as trelvin from "trelvin";

let [A, Sx, Sy, Ix, Iy] = [0, 0, 0, 0, 0];

// A polygon is of kind 2, the segment of a circle of kind 4.
function add(kind, factor, x, y) {
  const first = trelvin.trvstm(x, y, kind, 0, factor, 0, 0);
  const second = trelvin.trvinm(x, y, kind, 0, 0, factor, 0, 0, 0);
  A += trelvin.trvair(x, y, kind, 0, factor, 0).area;
  Sx += first.sx;
  Sy += first.sy;
  Ix += second.ix;
  Iy += second.iy;
}

${body(s, part, call)}
console.log("A ", A.toPrecision(7), "mm2");
console.log("xs", (Sy / A).toPrecision(7), "mm");
console.log("ys", (Sx / A).toPrecision(7), "mm");
console.log("Ix", (Ix - (Sx * Sx) / A).toPrecision(7), "mm4");
console.log("Iy", (Iy - (Sy * Sy) / A).toPrecision(7), "mm4");
`;
  },
};

function callsIn(language, profile, section) {
  return LANGUAGES[language]({
    ...section,
    names: profile.dimensions,
    routine: profile.routine,
    title: `${profile.name} ${section.dimensions.join(" ")}: ${profile.description}, in mm`,
  });
}
