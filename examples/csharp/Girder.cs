// A welded box girder in sagging bending, S355: which part of its plates counts once they buckle,
// and the properties of what is left. Then an arc cut by a chord. Lengths in mm.
//
// The top plate is compressed evenly, the webs bend. The neutral axis lies where the reduced top
// plate puts it; the webs are reduced once for that axis.
using System;
using System.Globalization;
using System.Threading;
using Trelvin;

static class Girder
{
    const int MostPlates = 12;

    sealed class Plates
    {
        public int n;
        public readonly float[] x1 = new float[MostPlates], y1 = new float[MostPlates];
        public readonly float[] x2 = new float[MostPlates], y2 = new float[MostPlates];
        public readonly float[] t = new float[MostPlates];

        public void Add(float fromX, float fromY, float toX, float toY, float thickness)
        {
            x1[n] = fromX;
            y1[n] = fromY;
            x2[n] = toX;
            y2[n] = toY;
            t[n++] = thickness;
        }
    }

    struct Figures
    {
        public float A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry;
        public float Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp;
    }

    // Bending figures; those of torsion are not written for a closed section.
    static Figures FiguresOf(Plates p)
    {
        Figures f;
        float It, Wt, xm, ym, Iw, r0;
        float[] w1 = new float[MostPlates], w2 = new float[MostPlates];
        int status;
        Native.trvmxt(p.n, p.x1, p.y1, p.x2, p.y2, p.t, out f.A, out f.xs, out f.ys, out f.Ix,
            out f.Iy, out f.Ixy, out f.I1, out f.I2, out f.alpha, out f.rx, out f.ry, out f.Wx1,
            out f.Wx2, out f.Wy1, out f.Wy2, out f.Wpx, out f.Wpy, out f.xp, out f.yp, out It,
            out Wt, out xm, out ym, out Iw, out r0, w1, w2, out status);
        if (status == Native.trvStatusRefused)
            throw new ArgumentException("a plate without length or thickness");
        return f;
    }

    static void Main()
    {
        Thread.CurrentThread.CurrentCulture = CultureInfo.InvariantCulture;
        const float b = 1200, h = 1600; // between the centre lines of the plates
        const float tTop = 12, tBottom = 20, tWeb = 8;
        const float left = -b / 2, right = b / 2;
        const float stress = 355; // at the top edge, compression positive
        float r1 = (float)Math.Sqrt(355), r2 = (float)Math.Sqrt(235); // strength, reference

        // The top plate in pure compression.
        float top1, top2;
        Native.trvef2(b, b, tTop, r1, r2, stress, stress, out top1, out top2);

        var grossWebs = new Plates();
        grossWebs.Add(left, 0, right, 0, tBottom);
        grossWebs.Add(left, 0, left, h, tWeb);
        grossWebs.Add(right, 0, right, h, tWeb);
        grossWebs.Add(left, h, left + top1, h, tTop);
        grossWebs.Add(right, h, right - top2, h, tTop);
        Figures first = FiguresOf(grossWebs);

        // The webs in bending about that axis.
        float compressed = h - first.ys;
        float tension = -stress * first.ys / compressed;
        float web1, web2;
        Native.trvef2(h, compressed, tWeb, r1, r2, stress, tension, out web1, out web2);

        var reduced = new Plates();
        reduced.Add(left, 0, right, 0, tBottom);
        reduced.Add(left, 0, left, first.ys + web2, tWeb);
        reduced.Add(right, 0, right, first.ys + web2, tWeb);
        reduced.Add(left, h, left + top1, h, tTop);
        reduced.Add(right, h, right - top2, h, tTop);
        reduced.Add(left, h, left, h - web1, tWeb);
        reduced.Add(right, h, right, h - web1, tWeb);
        Figures last = FiguresOf(reduced);

        // An arc about (250, -400) from A to B, and the point of it above a station of its chord.
        const float xc = 250, yc = -400, xa = 850, ya = 400, xb = -550, yb = 200, station = 500;
        float x, y, shorter, longer;
        int status;
        Native.trvcer8(xc, yc, xa, ya, xb, yb, -1, station, out x, out y, out status);
        Native.trvarc1(xc, yc, xa, ya, xb, yb, out shorter, out longer, out status);

        Console.WriteLine("top plate      {0,9:F2} {1,9:F2} mm", top1, top2);
        Console.WriteLine("web            {0,9:F2} {1,9:F2} mm", web1, web2);
        Console.WriteLine("neutral axis   {0,9:F2} {1,9:F2} mm", first.ys, last.ys);
        Console.WriteLine("area           {0,9:F2} {1,9:F2} cm2", first.A / 100, last.A / 100);
        Console.WriteLine("I1, I2         {0,9:F1} {1,9:F1} 1000 cm4", last.I1 / 1e7,
            last.I2 / 1e7);
        Console.WriteLine("alpha          {0,9:F5} rad", last.alpha);
        Console.WriteLine("Wx top, bottom {0,9:F1} {1,9:F1} cm3", last.Wx1 / 1000, last.Wx2 / 1000);
        Console.WriteLine("arc above 500  {0,9:F2} {1,9:F2} mm", x, y);
        Console.WriteLine("arc lengths    {0,9:F2} {1,9:F2} mm", shorter, longer);
    }
}
