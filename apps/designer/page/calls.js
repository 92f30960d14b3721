'use strict';
// A section as calls of the library, in the language of a host: a program that prints its area,
// centroid and second moments about it. Every part of the section has a call of `add`.

// A list of numbers, broken into lines with an indent.
function listed(numbers, indent, end = '') {
  const rows = [''];
  numbers.forEach((number, i) => {
    const text = number + (i + 1 < numbers.length ? ', ' : '');
    if (indent + rows.at(-1).length + text.length > 96) {
      rows.push(`${rows.pop().trimEnd()}${end}`, '');
    }
    rows.push(rows.pop() + text);
  });
  return rows.join(`\n${' '.repeat(indent)}`);
}

const withPoint = (number) => (number.includes('.') ? number : `${number}.0`);

// Each takes the section's title, and its parts with `kind`, `factor`, `x` and `y`.
const LANGUAGES = {
  C: (title, parts) => `/* ${title} */
#include <stdio.h>
#include <trelvin/trelvin.h>

static double A, Sx, Sy, Ix, Iy;

/* A polygon is of kind 2, the segment of a circle of kind 4. Element n + 1 is the library's. */
static void add(int32_t kind, float factor, int32_t n, float *x, float *y) {
  const float value = 0, angle = 0; /* of other kinds */
  float area, sx, sy, ix, iy, ixy;
  trvair(x, y, &n, &kind, &value, &factor, &area);
  trvstm(x, y, &n, &kind, &value, &factor, &sx, &sy);
  trvinm(x, y, &n, &kind, &value, &angle, &factor, &ix, &iy, &ixy);
  A += area;
  Sx += sx;
  Sy += sy;
  Ix += ix;
  Iy += iy;
}

int main(void) {
${parts.map((p) => `  add(${p.kind}, ${p.factor}, ${p.x.length}, (float[]){${listed([...p.x, '0'], 6)}},
      (float[]){${listed([...p.y, '0'], 6)}});
`).join('')}  printf("A  %.7g mm2\\n", A);
  printf("xs %.7g mm\\nys %.7g mm\\n", Sy / A, Sx / A);
  printf("Ix %.7g mm4\\nIy %.7g mm4\\n", Ix - Sx * Sx / A, Iy - Sy * Sy / A);
  return 0;
}
`,

  Fortran: (title, parts) => `! ${title}
program section
  use trelvin
  implicit none

  integer, parameter :: rk = c_float, dp = kind(1.0d0)
  real(dp) :: A = 0, Sx = 0, Sy = 0, Ix = 0, Iy = 0

${parts.map((p) => `  call add(${p.kind}, ${withPoint(p.factor)}, [real(rk) :: ${listed(p.x, 11, ' &')}], &
           [real(rk) :: ${listed(p.y, 11, ' &')}])
`).join('')}  print "(a, g0, a)", "A  ", A, " mm2", "xs ", Sy / A, " mm", "ys ", Sx / A, " mm"
  print "(a, g0, a)", "Ix ", Ix - Sx * Sx / A, " mm4", "Iy ", Iy - Sy * Sy / A, " mm4"

contains

  ! A polygon is of kind 2, the segment of a circle of kind 4.
  subroutine add(kind, factor, x, y)
    integer, intent(in) :: kind
    real(rk), intent(in) :: factor, x(:), y(:)
    real(rk) :: px(size(x) + 1), py(size(x) + 1)  ! the last element is the library's
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
`,

  Pascal: (title, parts) => `{ ${title} }
program section;

{$mode objfpc}

uses
  trelvin;

var
  A, Sx, Sy, Ix, Iy: Double;

{ A polygon is of kind 2, the segment of a circle of kind 4. }
procedure Add(kind: LongInt; factor: Single; const x, y: array of Single);
var
  px, py: array[0..20] of Single; { element n + 1 is the library's }
  area, mx, my, jx, jy, jxy: Single;
begin
  Move(x[0], px[0], SizeOf(x));
  Move(y[0], py[0], SizeOf(y));
  trvair(px[0], py[0], Length(x), kind, 0, factor, area);
  trvstm(px[0], py[0], Length(x), kind, 0, factor, mx, my);
  trvinm(px[0], py[0], Length(x), kind, 0, 0, factor, jx, jy, jxy);
  A := A + area;
  Sx := Sx + mx;
  Sy := Sy + my;
  Ix := Ix + jx;
  Iy := Iy + jy;
end;

begin
${parts.map((p) => `  Add(${p.kind}, ${p.factor}, [${listed(p.x, 4)}],
    [${listed(p.y, 4)}]);
`).join('')}  WriteLn('A  ', A, ' mm2');
  WriteLn('xs ', Sy / A, ' mm');
  WriteLn('ys ', Sx / A, ' mm');
  WriteLn('Ix ', Ix - Sx * Sx / A, ' mm4');
  WriteLn('Iy ', Iy - Sy * Sy / A, ' mm4');
end.
`,

  Basic: (title, parts) => `' ${title}
Option Explicit

Private A As Double, Sx As Double, Sy As Double, Ix As Double, Iy As Double

Public Sub PrintSection()
    A = 0: Sx = 0: Sy = 0: Ix = 0: Iy = 0
${parts.map((p) => `    AddPart ${p.kind}, ${p.factor}, Array(${listed(p.x, 8, ' _')}), _
        Array(${listed(p.y, 8, ' _')})
`).join('')}    Debug.Print "A  "; A; " mm2"
    Debug.Print "xs "; Sy / A; " mm"
    Debug.Print "ys "; Sx / A; " mm"
    Debug.Print "Ix "; Ix - Sx * Sx / A; " mm4"
    Debug.Print "Iy "; Iy - Sy * Sy / A; " mm4"
End Sub

' A polygon is of kind 2, the segment of a circle of kind 4.
Private Sub AddPart(kind As Long, factor As Single, x As Variant, y As Variant)
    Dim px(0 To 20) As Single, py(0 To 20) As Single   ' element n + 1 is the library's
    Dim n As Long, i As Long
    Dim area As Single, mx As Single, my As Single, jx As Single, jy As Single, jxy As Single
    n = UBound(x) + 1
    For i = 0 To n - 1
        px(i) = x(i)
        py(i) = y(i)
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
`,

  'C#': (title, parts) => `// ${title}
using System;
using Trelvin;

static class Section
{
    static double A, Sx, Sy, Ix, Iy;

    // A polygon is of kind 2, the segment of a circle of kind 4. Element n + 1 is the library's.
    static void Add(int kind, float factor, int n, float[] x, float[] y)
    {
        float area = 0, mx = 0, my = 0, jx = 0, jy = 0, jxy = 0;
        Native.trvair(x, y, n, kind, 0, factor, ref area);
        Native.trvstm(x, y, n, kind, 0, factor, ref mx, ref my);
        Native.trvinm(x, y, n, kind, 0, 0, factor, ref jx, ref jy, ref jxy);
        A += area;
        Sx += mx;
        Sy += my;
        Ix += jx;
        Iy += jy;
    }

    static void Main()
    {
${parts.map((p) => `        Add(${p.kind}, ${p.factor}, ${p.x.length},
            new float[] {${listed([...p.x, '0'].map((x) => `${x}f`), 12)}},
            new float[] {${listed([...p.y, '0'].map((y) => `${y}f`), 12)}});
`).join('')}        Console.WriteLine(FormattableString.Invariant($"A  {A:G7} mm2"));
        Console.WriteLine(FormattableString.Invariant($"xs {Sy / A:G7} mm"));
        Console.WriteLine(FormattableString.Invariant($"ys {Sx / A:G7} mm"));
        Console.WriteLine(FormattableString.Invariant($"Ix {Ix - Sx * Sx / A:G7} mm4"));
        Console.WriteLine(FormattableString.Invariant($"Iy {Iy - Sy * Sy / A:G7} mm4"));
    }
}
`,

  Python: (title, parts) => `# ${title}
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


${parts.map((p) => `add(${p.kind}, ${p.factor}, [${listed(p.x, 4)}],
    [${listed(p.y, 4)}])
`).join('')}print(f"A  {A:.7g} mm2")
print(f"xs {Sy / A:.7g} mm")
print(f"ys {Sx / A:.7g} mm")
print(f"Ix {Ix - Sx * Sx / A:.7g} mm4")
print(f"Iy {Iy - Sy * Sy / A:.7g} mm4")
`,
};
