"""A welded box girder in sagging bending, S355: which part of its plates counts once they buckle,
and the properties of what is left. Then an arc cut by a chord. Lengths in mm.

The top plate is compressed evenly, the webs bend. The neutral axis lies where the reduced top
plate puts it; the webs are reduced once for that axis.
"""

from math import sqrt

import numpy as np
import trelvin

b, h = 1200, 1600  # between the centre lines of the plates
t_top, t_bottom, t_web = 12, 20, 8
r1, r2 = sqrt(355), sqrt(235)  # strength and reference, square roots
stress = 355  # at the top edge, compression positive
left, right = -b / 2, b / 2


def figures_of(*plates):
    """Of plates (x1, y1, x2, y2, t), in bending; figures of torsion are NaN for a closed section."""
    return trelvin.trvmxt(*np.transpose(plates))


# The top plate in pure compression.
top1, top2 = trelvin.trvef2(b, b, t_top, r1, r2, stress, stress)

bottom = (left, 0, right, 0, t_bottom)
top = [(left, h, left + top1, h, t_top), (right, h, right - top2, h, t_top)]
gross_webs = [(left, 0, left, h, t_web), (right, 0, right, h, t_web)]
first = figures_of(bottom, *gross_webs, *top)

# The webs in bending about that axis.
compressed = h - first.ys
tension = -stress * first.ys / compressed
web1, web2 = trelvin.trvef2(h, compressed, t_web, r1, r2, stress, tension)

reduced_webs = [
    (left, 0, left, first.ys + web2, t_web),
    (right, 0, right, first.ys + web2, t_web),
]
web_tops = [(left, h, left, h - web1, t_web), (right, h, right, h - web1, t_web)]
last = figures_of(bottom, *reduced_webs, *top, *web_tops)

# An arc about (250, -400) from A to B, and the point of it above a station of its chord.
centre, a, b = (250, -400), (850, 400), (-550, 200)
point = trelvin.trvcer8(*centre, *a, *b, side=-1, d=500)
arcs = trelvin.trvarc1(*centre, *a, *b)

print(f"top plate      {top1:9.2f} {top2:9.2f} mm")
print(f"web            {web1:9.2f} {web2:9.2f} mm")
print(f"neutral axis   {first.ys:9.2f} {last.ys:9.2f} mm")
print(f"area           {first.A / 100:9.2f} {last.A / 100:9.2f} cm2")
print(f"I1, I2         {last.I1 / 1e7:9.1f} {last.I2 / 1e7:9.1f} 1000 cm4")
print(f"alpha          {last.alpha:9.5f} rad")
print(f"Wx top, bottom {last.Wx1 / 1000:9.1f} {last.Wx2 / 1000:9.1f} cm3")
print(f"arc above 500  {point.x:9.2f} {point.y:9.2f} mm")
print(f"arc lengths    {arcs.s1:9.2f} {arcs.s2:9.2f} mm")
