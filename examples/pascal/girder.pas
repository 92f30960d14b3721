{ A welded box girder in sagging bending, S355: which part of its plates counts once they buckle,
  and the properties of what is left. Then an arc cut by a chord. Lengths in mm.

  The top plate is compressed evenly, the webs bend. The neutral axis lies where the reduced top
  plate puts it; the webs are reduced once for that axis. }
program girder;

{$IFDEF FPC}{$MODE OBJFPC}{$ENDIF}

uses
  trelvin;

const
  MostPlates = 12;

type
  TCoordinates = array[0..MostPlates - 1] of Single;

  TPlates = record
    n: LongInt;
    x1, y1, x2, y2, t: TCoordinates;
  end;

  TFigures = record
    A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry: Single;
    Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp: Single;
  end;

procedure Add(var p: TPlates; x1, y1, x2, y2, t: Single);
begin
  p.x1[p.n] := x1;
  p.y1[p.n] := y1;
  p.x2[p.n] := x2;
  p.y2[p.n] := y2;
  p.t[p.n] := t;
  Inc(p.n);
end;

{ Bending figures; those of torsion are not written for a closed section. }
function FiguresOf(const p: TPlates): TFigures;
var
  f: TFigures;
  It, Wt, xm, ym, Iw, r0: Single;
  w1, w2: TCoordinates;
  status: LongInt;
begin
  FillChar(f, SizeOf(f), 0);
  trvmxt(p.n, p.x1[0], p.y1[0], p.x2[0], p.y2[0], p.t[0], f.A, f.xs, f.ys, f.Ix, f.Iy, f.Ixy, f.I1,
    f.I2, f.alpha, f.rx, f.ry, f.Wx1, f.Wx2, f.Wy1, f.Wy2, f.Wpx, f.Wpy, f.xp, f.yp, It, Wt, xm, ym,
    Iw, r0, w1[0], w2[0], status);
  if status = trv_status_refused then
  begin
    WriteLn(ErrOutput, 'a plate without length or thickness');
    Halt(1);
  end;
  FiguresOf := f;
end;

const
  b = 1200; { between the centre lines of the plates }
  h = 1600;
  tTop = 12;
  tBottom = 20;
  tWeb = 8;
  stress = 355; { at the top edge, compression positive }
  left = -b / 2;
  right = b / 2;
  { an arc about C from A to B, and the station of its chord above which a point is wanted }
  xc = 250;
  yc = -400;
  xa = 850;
  ya = 400;
  xb = -550;
  yb = 200;
  station = 500;

var
  grossWebs, reduced: TPlates;
  first, last: TFigures;
  r1, r2, top1, top2, web1, web2, compressed, x, y, shorter, longer: Single;
  status: LongInt;

begin
  r1 := Sqrt(355); { strength and reference, square roots }
  r2 := Sqrt(235);

  { The top plate in pure compression. }
  trvef2(b, b, tTop, r1, r2, stress, stress, top1, top2);

  grossWebs.n := 0;
  Add(grossWebs, left, 0, right, 0, tBottom);
  Add(grossWebs, left, 0, left, h, tWeb);
  Add(grossWebs, right, 0, right, h, tWeb);
  Add(grossWebs, left, h, left + top1, h, tTop);
  Add(grossWebs, right, h, right - top2, h, tTop);
  first := FiguresOf(grossWebs);

  { The webs in bending about that axis. }
  compressed := h - first.ys;
  trvef2(h, compressed, tWeb, r1, r2, stress, -stress * first.ys / compressed, web1, web2);

  reduced.n := 0;
  Add(reduced, left, 0, right, 0, tBottom);
  Add(reduced, left, 0, left, first.ys + web2, tWeb);
  Add(reduced, right, 0, right, first.ys + web2, tWeb);
  Add(reduced, left, h, left + top1, h, tTop);
  Add(reduced, right, h, right - top2, h, tTop);
  Add(reduced, left, h, left, h - web1, tWeb);
  Add(reduced, right, h, right, h - web1, tWeb);
  last := FiguresOf(reduced);

  trvcer8(xc, yc, xa, ya, xb, yb, -1, station, x, y, status);
  trvarc1(xc, yc, xa, ya, xb, yb, shorter, longer, status);

  WriteLn('top plate      ', top1:9:2, ' ', top2:9:2, ' mm');
  WriteLn('web            ', web1:9:2, ' ', web2:9:2, ' mm');
  WriteLn('neutral axis   ', first.ys:9:2, ' ', last.ys:9:2, ' mm');
  WriteLn('area           ', first.A / 100:9:2, ' ', last.A / 100:9:2, ' cm2');
  WriteLn('I1, I2         ', last.I1 / 1e7:9:1, ' ', last.I2 / 1e7:9:1, ' 1000 cm4');
  WriteLn('alpha          ', last.alpha:9:5, ' rad');
  WriteLn('Wx top, bottom ', last.Wx1 / 1000:9:1, ' ', last.Wx2 / 1000:9:1, ' cm3');
  WriteLn('arc above 500  ', x:9:2, ' ', y:9:2, ' mm');
  WriteLn('arc lengths    ', shorter:9:2, ' ', longer:9:2, ' mm');
end.
