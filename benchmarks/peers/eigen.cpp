// Everything that can be computed once is: matrices and temporaries are made before the clock runs.
#include <Eigen/Dense>

#include "../peers.h"

namespace bench {
namespace {

using Array = Eigen::ArrayXf;
using Map = Eigen::Map<const Array>;

Array array_of(const Reals &values) {
  return Map(values.data(), static_cast<Eigen::Index>(values.size()));
}

void append(std::vector<double> &all, const Array &values) {
  all.insert(all.end(), values.begin(), values.end());
}

// Two arrays, as the library has them. A temporary is unavoidable; it becomes the new x.
struct RotateArrays : Job {
  RotateArrays(const Cloud &points, float angle)
      : x0(array_of(points.x)), y0(array_of(points.y)), turned(x0) {
    const Eigen::Matrix2f r = Eigen::Rotation2Df(angle).toRotationMatrix();
    c = r(0, 0);
    s = r(1, 0);
  }
  void prepare() {
    x = x0;
    y = y0;
  }
  void run() {
    turned = c * x - s * y;
    y = s * x + c * y;
    x.swap(turned);
  }
  [[nodiscard]] std::vector<double> answer() const {
    std::vector<double> all;
    append(all, x);
    append(all, y);
    return all;
  }
  Array x0, y0, x, y, turned;
  float c, s;
};

// With the sine and cosine of the angle in every run, as a routine that is given an angle has to.
struct RotateByAngle : RotateArrays {
  RotateByAngle(const Cloud &points, float by) : RotateArrays(points, by), angle(by) {}
  void run() {
    s = std::sin(angle);
    c = std::cos(angle);
    RotateArrays::run();
  }
  float angle;
};

// One matrix with a point a column.
struct RotateMatrix : Job {
  RotateMatrix(const Cloud &points, float angle)
      : m0(2, static_cast<Eigen::Index>(points.size())), r(Eigen::Rotation2Df(angle)) {
    m0.row(0) = array_of(points.x).matrix();
    m0.row(1) = array_of(points.y).matrix();
    turned = m0;
  }
  void prepare() { m = m0; }
  void run() {
    turned.noalias() = r * m;
    m.swap(turned);
  }
  [[nodiscard]] std::vector<double> answer() const {
    std::vector<double> all;
    append(all, m.row(0).array());
    append(all, m.row(1).array());
    return all;
  }
  Eigen::Matrix2Xf m0, m, turned;
  Eigen::Matrix2f r;
};

// Two columns turned in place by Eigen's own plane rotation, made for decompositions.
struct RotateColumns : Job {
  RotateColumns(const Cloud &points, float angle)
      : m0(static_cast<Eigen::Index>(points.size()), 2), r(std::cos(angle), std::sin(angle)) {
    m0.col(0) = array_of(points.x);
    m0.col(1) = array_of(points.y);
  }
  void prepare() { m = m0; }
  void run() { m.applyOnTheRight(0, 1, r); }
  [[nodiscard]] std::vector<double> answer() const {
    std::vector<double> all;
    append(all, m.col(0).array());
    append(all, m.col(1).array());
    return all;
  }
  Eigen::MatrixX2f m0, m;
  Eigen::JacobiRotation<float> r;
};

struct TransformArrays : Job {
  TransformArrays(const Cloud &points, const Affine &affine)
      : start{array_of(points.x), array_of(points.y), array_of(points.z)}, old(start) {
    for (int i = 0; i < 3; ++i) {
      for (int k = 0; k < 3; ++k) m[i][k] = static_cast<float>(affine.m[i][k]);
      t[i] = static_cast<float>(affine.t[i]);
    }
  }
  void prepare() { p = start; }
  void run() {
    p.swap(old);
    for (std::size_t i = 0; i < 3; ++i) {
      p[i] = m[i][0] * old[0] + m[i][1] * old[1] + m[i][2] * old[2] + t[i];
    }
  }
  [[nodiscard]] std::vector<double> answer() const {
    std::vector<double> all;
    for (const Array &coordinates : p) append(all, coordinates);
    return all;
  }
  std::vector<Array> start, old, p;
  float m[3][3], t[3];
};

struct TransformMatrix : Job {
  TransformMatrix(const Cloud &points, const Affine &affine)
      : m0(3, static_cast<Eigen::Index>(points.size())) {
    m0.row(0) = array_of(points.x).matrix();
    m0.row(1) = array_of(points.y).matrix();
    m0.row(2) = array_of(points.z).matrix();
    moved = m0;
    for (int i = 0; i < 3; ++i) {
      for (int k = 0; k < 3; ++k) r(i, k) = static_cast<float>(affine.m[i][k]);
      t(i) = static_cast<float>(affine.t[i]);
    }
  }
  void prepare() { m = m0; }
  void run() {
    moved = r.lazyProduct(m).colwise() + t;
    m.swap(moved);
  }
  [[nodiscard]] std::vector<double> answer() const {
    std::vector<double> all;
    for (int i = 0; i < 3; ++i) append(all, m.row(i).array());
    return all;
  }
  Eigen::Matrix3Xf m0, m, moved;
  Eigen::Matrix3f r;
  Eigen::Vector3f t;
};

struct Intersections : Job {
  using Line = Eigen::ParametrizedLine<float, 3>;
  using Plane = Eigen::Hyperplane<float, 3>;
  explicit Intersections(const LinesAndPlanes &data) : points(data.size()) {
    for (std::size_t i = 0; i < data.size(); ++i) {
      const float *v = data.at(i);
      lines.emplace_back(Eigen::Vector3f(v[0], v[1], v[2]), Eigen::Vector3f(v[3], v[4], v[5]));
      planes.emplace_back(Eigen::Vector3f(v[6], v[7], v[8]), v[9]);
    }
  }
  void run() {
    for (std::size_t i = 0; i < lines.size(); ++i)
      points[i] = lines[i].intersectionPoint(planes[i]);
  }
  [[nodiscard]] std::vector<double> answer() const {
    std::vector<double> all;
    for (const Eigen::Vector3f &p : points) append(all, p.array());
    return all;
  }
  std::vector<Line> lines;
  std::vector<Plane> planes;
  std::vector<Eigen::Vector3f> points;
};

// A contender of the list's kind from a job that takes the same arguments.
template <class Work>
auto maker(const char *name) {
  return [name](const auto &...arguments) { return contender(name, Work(arguments...)); };
}

}  // namespace

void add_eigen(Peers &peers) {
  peers.rotate.emplace_back(maker<RotateArrays>("Eigen arrays"));
  peers.rotate.emplace_back(maker<RotateMatrix>("Eigen matrix"));
  peers.rotate.emplace_back(maker<RotateColumns>("Eigen in place"));
  peers.rotate.emplace_back(maker<RotateByAngle>("sincos+Eigen"));
  peers.transform.emplace_back(maker<TransformArrays>("Eigen arrays"));
  peers.transform.emplace_back(maker<TransformMatrix>("Eigen matrix"));
  peers.intersect.emplace_back(maker<Intersections>("Eigen"));
}

}  // namespace bench
