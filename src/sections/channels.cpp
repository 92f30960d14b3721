#include "sections/channels.h"

namespace trelvin {
namespace {

struct CentreLines {
  Real b, h, c, t;
  bool lipped;
};

CentreLines centre_lines(const ChannelDimensions &d) {
  return {d.width - d.thickness, d.height - d.thickness, d.lip - 0.5F * d.thickness, d.thickness,
          d.lip > tolerance};
}

}  // namespace

Real shear_centre_distance(const ChannelDimensions &channel) {
  const auto [b, h, c, t, lipped] = centre_lines(channel);
  if (!lipped) return b * b / (b + h + b) + 3 * (b * b) / (h + 6 * b);
  const Real w = c * (c * c) * 8;
  const Real xg = (c + (b + c)) * (b * t) / ((b + h + b + c + c) * t);
  const Real I = t * ((((b + c) * 6 + h) * h - 12 * (c * c)) * h + w) / 12;
  const Real xs = b * t * ((3 * b + 6 * c) * (h * h) - w) / I / 12;
  return xg + xs;
}

Real warping_constant(const ChannelDimensions &channel) {
  const auto [b, h, c, t, lipped] = centre_lines(channel);
  const Real b2 = b * b;
  const Real c2 = c * c;
  const Real h2 = h * h;
  if (!lipped) return t * h2 * (b2 * b) * (2 * h + 3 * b) / (h + 6 * b) / 12;
  const Real A = (h + 2 * b + 2 * c) * t;
  const Real w = 8 * (c2 * c);
  const Real I = (((6 * (b + c) + h) * h - 12 * c2) * h + w) * t / 12;
  const Real e = ((3 * b + 6 * c) * h2 - w) * (b * t) / I / 12;
  const Real e2 = e * e;
  const Real s1 = h2 * b2 * ((3 * c + b) * (h + 4 * c) - 6 * c2) / 6 - h2 * h2 * e2 * 0.25F +
                  (h * h2 * e2 + b2 * c2 * (c + 3 * h + c)) * A / t / 3;
  const Real s2 = s1 - I * e2 * (4 * c + 2 * h) / t;
  const Real s3 = s2 + c2 * e * (8 * b2 * c + 2 * e * (2 * c * (c - h) + (c - 3 * h + c) * b)) / 3;
  const Real xg = b * t * (c + (b + c)) / A;
  return t * t * (s3 + xg * A * h2 * ((e - b) * e + b2 / 3) / t) / A;
}

}  // namespace trelvin
