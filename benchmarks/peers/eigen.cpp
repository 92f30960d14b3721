// Everything that can be computed once is: matrices and temporaries are made before the clock runs.
#include <Eigen/Dense>

#include <array>

#include "../peers.h"

namespace bench {
namespace {

using Array = Eigen::ArrayXf;
using Map = Eigen::Map<const Array>;

Array array_of(const Reals &values) {
  return Map(values.data(), static_cast<Eigen::Index>(values.size()));
}

template <class Values>
void append(std::vector<double> &all, const Values &values) {
  all.insert(all.end(), values.begin(), values.end());
}

template <class Lists>
std::vector<double> joined(const Lists &lists) {
  std::vector<double> all;
  for (const auto &list : lists) append(all, list);
  return all;
}

// Arrays, as the library has them. A temporary is unavoidable; it becomes the new x.
struct RotateArrays {
  RotateArrays(const Cloud &points, float angle)
      : x(array_of(points.x)),
        y(array_of(points.y)),
        turned(x),
        c(std::cos(angle)),
        s(std::sin(angle)) {}
  void run() {
    turned = c * x - s * y;
    y = s * x + c * y;
    x.swap(turned);
  }
  [[nodiscard]] std::vector<double> answer() const { return joined(std::array{x, y}); }
  Array x, y, turned;
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
template <int dimensions>
struct Columns {
  using Matrix = Eigen::Matrix<float, dimensions, Eigen::Dynamic>;
  explicit Columns(const Cloud &points) : m(dimensions, static_cast<Eigen::Index>(points.size())) {
    const Reals *const coordinates[] = {&points.x, &points.y, &points.z};
    for (int i = 0; i < dimensions; ++i) m.row(i) = array_of(*coordinates[i]).matrix();
    moved = m;
  }
  [[nodiscard]] std::vector<double> answer() const {
    std::vector<double> all;
    for (int i = 0; i < dimensions; ++i) append(all, m.row(i).array());
    return all;
  }
  Matrix m, moved;
};

struct RotateMatrix : Columns<2> {
  RotateMatrix(const Cloud &points, float angle) : Columns(points), r(Eigen::Rotation2Df(angle)) {}
  void run() {
    moved.noalias() = r * m;
    m.swap(moved);
  }
  Eigen::Matrix2f r;
};

// Two columns turned in place by Eigen's own plane rotation, made for decompositions.
struct RotateColumns {
  RotateColumns(const Cloud &points, float angle)
      : m(static_cast<Eigen::Index>(points.size()), 2), r(std::cos(angle), std::sin(angle)) {
    m.col(0) = array_of(points.x);
    m.col(1) = array_of(points.y);
  }
  void run() { m.applyOnTheRight(0, 1, r); }
  [[nodiscard]] std::vector<double> answer() const { return {m.data(), m.data() + m.size()}; }
  Eigen::MatrixX2f m;
  Eigen::JacobiRotation<float> r;
};

struct Matrices {
  explicit Matrices(const Affine &affine)
      : r(Eigen::Map<const Eigen::Matrix<double, 3, 3, Eigen::RowMajor>>(*affine.m).cast<float>()),
        t(Eigen::Map<const Eigen::Vector3d>(affine.t).cast<float>()) {}
  Eigen::Matrix3f r;
  Eigen::Vector3f t;
};

struct TransformArrays : Matrices {
  TransformArrays(const Cloud &points, const Affine &affine)
      : Matrices(affine), p{array_of(points.x), array_of(points.y), array_of(points.z)}, old(p) {}
  void run() {
    p.swap(old);
    for (Eigen::Index i = 0; i < 3; ++i) {
      p[static_cast<std::size_t>(i)] =
          r(i, 0) * old[0] + r(i, 1) * old[1] + r(i, 2) * old[2] + t(i);
    }
  }
  [[nodiscard]] std::vector<double> answer() const { return joined(p); }
  std::array<Array, 3> p, old;
};

struct TransformMatrix : Columns<3>, Matrices {
  TransformMatrix(const Cloud &points, const Affine &affine) : Columns(points), Matrices(affine) {}
  void run() {
    moved = r.lazyProduct(m).colwise() + t;
    m.swap(moved);
  }
};

struct Intersections {
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
  [[nodiscard]] std::vector<double> answer() const { return joined(points); }
  std::vector<Line> lines;
  std::vector<Plane> planes;
  std::vector<Eigen::Vector3f> points;
};

// A contender of the list's kind from a job that takes the same arguments.
template <class Work>
auto maker(const char *name) {
  return [name](const auto &...arguments) {
    return contender<Input::restored>(name, Work(arguments...));
  };
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
