#include "space/planes.h"

#include "vectors/angles.h"

namespace trelvin {

PlaneRelation relation_of_planes(const Plane &p, const Plane &q) {
  const DirectionRelation normals = relation_of_directions(p.normal(), q.normal());
  if (normals == DirectionRelation::oblique) return PlaneRelation::crossing;
  if (normals == DirectionRelation::perpendicular) return PlaneRelation::perpendicular;
  if (normals == DirectionRelation::null) return PlaneRelation::null;
  // One component at least is significant, or the normals would not be parallel but null.
  Real k = 0;
  if (significant(q.a)) k = p.a / q.a;
  if (significant(q.b)) k = p.b / q.b;
  if (significant(q.c)) k = p.c / q.c;
  const Real kd = significant(q.d) ? p.d / q.d : 0;
  const bool distinct = significant(k - kd) && (significant(p.d) || significant(q.d));
  if (normals == DirectionRelation::same) {
    return distinct ? PlaneRelation::parallel : PlaneRelation::coincident;
  }
  return distinct ? PlaneRelation::parallel_opposite : PlaneRelation::coincident_opposite;
}

}  // namespace trelvin
