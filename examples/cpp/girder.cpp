// A welded box girder in sagging bending, S355: which part of its plates counts once they buckle,
// and the properties of what is left. Then an arc cut by a chord. Lengths in mm.
//
// The top plate is compressed evenly, the webs bend. The neutral axis lies where the reduced top
// plate puts it; the webs are reduced once for that axis.
#include <trelvin/trelvin.h>
#include <cmath>
#include <cstdio>
#include <vector>

namespace {

class Plates {
 public:
  struct Figures {
    float A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, Wy1, Wy2, Wpx, Wpy, xp, yp;
  };

  void add(float x1, float y1, float x2, float y2, float t) {
    x1_.push_back(x1);
    y1_.push_back(y1);
    x2_.push_back(x2);
    y2_.push_back(y2);
    t_.push_back(t);
  }

  // Bending figures; those of torsion are not written for a closed section.
  [[nodiscard]] Figures figures() const {
    Figures f{};
    float It, Wt, xm, ym, Iw, r0;
    std::vector<float> w1(t_.size());
    std::vector<float> w2(t_.size());
    int32_t status;
    trvmxt(static_cast<int32_t>(t_.size()), x1_.data(), y1_.data(), x2_.data(), y2_.data(),
           t_.data(), f.A, f.xs, f.ys, f.Ix, f.Iy, f.Ixy, f.I1, f.I2, f.alpha, f.rx, f.ry, f.Wx1,
           f.Wx2, f.Wy1, f.Wy2, f.Wpx, f.Wpy, f.xp, f.yp, It, Wt, xm, ym, Iw, r0, w1.data(),
           w2.data(), status);
    return f;
  }

 private:
  std::vector<float> x1_, y1_, x2_, y2_, t_;
};

}  // namespace

int main() {
  constexpr float b = 1200, h = 1600;  // between the centre lines of the plates
  constexpr float t_top = 12, t_bottom = 20, t_web = 8;
  const float r1 = std::sqrt(355.0F), r2 = std::sqrt(235.0F);  // strength and reference, roots
  constexpr float stress = 355;                                // at the top edge, in compression
  constexpr float left = -b / 2, right = b / 2;

  // The top plate in pure compression.
  float top1, top2;
  trvef2(b, b, t_top, r1, r2, stress, stress, top1, top2);

  Plates gross_webs;
  gross_webs.add(left, 0, right, 0, t_bottom);
  gross_webs.add(left, 0, left, h, t_web);
  gross_webs.add(right, 0, right, h, t_web);
  gross_webs.add(left, h, left + top1, h, t_top);
  gross_webs.add(right, h, right - top2, h, t_top);
  const Plates::Figures first = gross_webs.figures();

  // The webs in bending about that axis.
  const float compressed = h - first.ys;
  float web1, web2;
  trvef2(h, compressed, t_web, r1, r2, stress, -stress * first.ys / compressed, web1, web2);

  Plates reduced;
  reduced.add(left, 0, right, 0, t_bottom);
  reduced.add(left, 0, left, first.ys + web2, t_web);
  reduced.add(right, 0, right, first.ys + web2, t_web);
  reduced.add(left, h, left + top1, h, t_top);
  reduced.add(right, h, right - top2, h, t_top);
  reduced.add(left, h, left, h - web1, t_web);
  reduced.add(right, h, right, h - web1, t_web);
  const Plates::Figures last = reduced.figures();

  // An arc about (250, -400) from A to B, and the point of it above a station of its chord.
  constexpr float xc = 250, yc = -400, xa = 850, ya = 400, xb = -550, yb = 200;
  float x, y, shorter, longer;
  int32_t status;
  trvcer8(xc, yc, xa, ya, xb, yb, -1, 500, x, y, status);
  trvarc1(xc, yc, xa, ya, xb, yb, shorter, longer, status);

  std::printf("top plate      %9.2f %9.2f mm\n", top1, top2);
  std::printf("web            %9.2f %9.2f mm\n", web1, web2);
  std::printf("neutral axis   %9.2f %9.2f mm\n", first.ys, last.ys);
  std::printf("area           %9.2f %9.2f cm2\n", first.A / 100, last.A / 100);
  std::printf("I1, I2         %9.1f %9.1f 1000 cm4\n", last.I1 / 1e7, last.I2 / 1e7);
  std::printf("alpha          %9.5f rad\n", last.alpha);
  std::printf("Wx top, bottom %9.1f %9.1f cm3\n", last.Wx1 / 1000, last.Wx2 / 1000);
  std::printf("arc above 500  %9.2f %9.2f mm\n", x, y);
  std::printf("arc lengths    %9.2f %9.2f mm\n", shorter, longer);
}
