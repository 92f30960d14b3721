/*
 * A welded box girder in sagging bending, S355: which part of its plates counts once they buckle,
 * and the properties of what is left. Then an arc cut by a chord. Lengths in mm.
 *
 * The top plate is compressed evenly, the webs bend. The neutral axis lies where the reduced top
 * plate puts it; the webs are reduced once for that axis.
 */
#include <math.h>
#include <stdio.h>
#include <trelvin/trelvin.h>

enum { most_plates = 12 };

typedef struct {
  int32_t n;
  float x1[most_plates], y1[most_plates], x2[most_plates], y2[most_plates], t[most_plates];
} Plates;

typedef struct {
  float A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp;
} Figures;

static void add(Plates *plates, float x1, float y1, float x2, float y2, float t) {
  const int32_t i = plates->n++;
  plates->x1[i] = x1;
  plates->y1[i] = y1;
  plates->x2[i] = x2;
  plates->y2[i] = y2;
  plates->t[i] = t;
}

/* Bending figures; those of torsion are not written for a closed section. */
static Figures figures_of(const Plates *p) {
  Figures f;
  float It, Wt, xm, ym, Iw, r0, w1[most_plates], w2[most_plates];
  int32_t status;
  trvmxt(&p->n, p->x1, p->y1, p->x2, p->y2, p->t, &f.A, &f.xs, &f.ys, &f.Ix, &f.Iy, &f.Ixy, &f.I1,
         &f.I2, &f.alpha, &f.rx, &f.ry, &f.Wx1, &f.Wx2, &f.Wy1, &f.Wy2, &f.Wpx, &f.Wpy, &f.xp,
         &f.yp, &It, &Wt, &xm, &ym, &Iw, &r0, w1, w2, &status);
  return f;
}

int main(void) {
  const float b = 1200, h = 1600; /* between the centre lines of the plates */
  const float t_top = 12, t_bottom = 20, t_web = 8;
  const float r1 = sqrtf(355), r2 = sqrtf(235); /* strength and reference, square roots */
  const float stress = 355;                     /* at the top edge, compression positive */
  const float left = -b / 2, right = b / 2;

  /* The top plate in pure compression. */
  float top1, top2;
  trvef2(&b, &b, &t_top, &r1, &r2, &stress, &stress, &top1, &top2);

  Plates gross_webs = {0};
  add(&gross_webs, left, 0, right, 0, t_bottom);
  add(&gross_webs, left, 0, left, h, t_web);
  add(&gross_webs, right, 0, right, h, t_web);
  add(&gross_webs, left, h, left + top1, h, t_top);
  add(&gross_webs, right, h, right - top2, h, t_top);
  const Figures first = figures_of(&gross_webs);

  /* The webs in bending about that axis. */
  const float compressed = h - first.ys;
  const float tension = -stress * first.ys / compressed;
  float web1, web2;
  trvef2(&h, &compressed, &t_web, &r1, &r2, &stress, &tension, &web1, &web2);

  Plates reduced = {0};
  add(&reduced, left, 0, right, 0, t_bottom);
  add(&reduced, left, 0, left, first.ys + web2, t_web);
  add(&reduced, right, 0, right, first.ys + web2, t_web);
  add(&reduced, left, h, left + top1, h, t_top);
  add(&reduced, right, h, right - top2, h, t_top);
  add(&reduced, left, h, left, h - web1, t_web);
  add(&reduced, right, h, right, h - web1, t_web);
  const Figures last = figures_of(&reduced);

  /* An arc about (250, -400) from A to B, and the point of it above a station of its chord. */
  const float xc = 250, yc = -400, xa = 850, ya = 400, xb = -550, yb = 200, station = 500;
  const int32_t side = -1;
  float x, y, shorter, longer;
  int32_t status;
  trvcer8(&xc, &yc, &xa, &ya, &xb, &yb, &side, &station, &x, &y, &status);
  trvarc1(&xc, &yc, &xa, &ya, &xb, &yb, &shorter, &longer, &status);

  printf("top plate      %9.2f %9.2f mm\n", top1, top2);
  printf("web            %9.2f %9.2f mm\n", web1, web2);
  printf("neutral axis   %9.2f %9.2f mm\n", first.ys, last.ys);
  printf("area           %9.2f %9.2f cm2\n", first.A / 100, last.A / 100);
  printf("I1, I2         %9.1f %9.1f 1000 cm4\n", last.I1 / 1e7, last.I2 / 1e7);
  printf("alpha          %9.5f rad\n", last.alpha);
  printf("Wx top, bottom %9.1f %9.1f cm3\n", last.Wx1 / 1000, last.Wx2 / 1000);
  printf("arc above 500  %9.2f %9.2f mm\n", x, y);
  printf("arc lengths    %9.2f %9.2f mm\n", shorter, longer);
  return 0;
}
