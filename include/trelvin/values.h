/**
 * @file
 * Values that several routines share: statuses, relations, counts and kinds by name.
 *
 * The arguments are Integers; these enumerators are their values. A contract names the enumeration
 * and says which of its values occur. Values that belong to one routine are in names.h.
 */
#ifndef TRELVIN_VALUES_H
#define TRELVIN_VALUES_H

/** Whether a computation was done. */
enum TrvStatus {
  TRV_STATUS_DONE = 0,     /**< the outputs are computed */
  TRV_STATUS_REFUSED = -1, /**< the input is rejected */
};

/** Whether a point of an arc was found. Caution: here 1 means done. */
enum TrvArc {
  TRV_ARC_DONE = 1,    /**< the outputs are computed */
  TRV_ARC_REFUSED = 0, /**< the input is rejected */
};

/** Whether a frame was found. */
enum TrvFrame {
  TRV_FRAME_DONE = 0,      /**< the outputs are computed */
  TRV_FRAME_NO_FRAME = -2, /**< the points give no frame */
};

/** Whether two points coincide: each difference of their coordinates is within the tolerance. */
enum TrvCoincidence {
  TRV_COINCIDENCE_DISTINCT = 0,   /**< the points are distinct */
  TRV_COINCIDENCE_COINCIDENT = 1, /**< the points coincide */
};

/** How many points were found. */
enum TrvPoints {
  TRV_POINTS_NONE = 0, /**< there is no such point */
  TRV_POINTS_ONE = 1,  /**< there is one point */
  TRV_POINTS_TWO = 2,  /**< there are two points */
};

/** Which of three components are above the tolerance. */
enum TrvComponents {
  TRV_COMPONENTS_NONE = 0,         /**< no component is above the tolerance */
  TRV_COMPONENTS_ALL = 1,          /**< all three components are above the tolerance */
  TRV_COMPONENTS_FIRST = 2,        /**< only the first component is above the tolerance */
  TRV_COMPONENTS_SECOND = 3,       /**< only the second component is above the tolerance */
  TRV_COMPONENTS_THIRD = 4,        /**< only the third component is above the tolerance */
  TRV_COMPONENTS_FIRST_SECOND = 5, /**< only the first and the second are above the tolerance */
  TRV_COMPONENTS_SECOND_THIRD = 6, /**< only the second and the third are above the tolerance */
  TRV_COMPONENTS_FIRST_THIRD = 7,  /**< only the first and the third are above the tolerance */
};

/** Whether a point lies on a line of space. */
enum TrvOnLine {
  TRV_ON_LINE_NO = 0,  /**< the point does not lie on the line */
  TRV_ON_LINE_YES = 1, /**< the point lies on the line */
};

/** Whether a point lies on a plane. Caution: 0 means yes. */
enum TrvOnPlane {
  TRV_ON_PLANE_YES = 0,         /**< the point lies on the plane */
  TRV_ON_PLANE_NO = -1,         /**< the point does not lie on the plane */
  TRV_ON_PLANE_ZERO_NORMAL = 1, /**< the normal of the plane is exactly zero */
};

/** How two lines of the plane lie to each other. */
enum TrvPlaneLines {
  TRV_PLANE_LINES_ONE_POINT = 0, /**< the lines have one point in common */
  TRV_PLANE_LINES_SAME_LINE = 1, /**< the lines are the same */
  TRV_PLANE_LINES_PARALLEL = 2,  /**< the lines are parallel and distinct */
};

/** Three-point test (trvpsl): where P2 is, seen from P0 and P1. */
enum TrvThreePoints {
  TRV_THREE_POINTS_SPANS_PLANE = 0, /**< P0, P1 and P2 span a plane */
  TRV_THREE_POINTS_AT_P0 = 1,       /**< P2 is at P0 */
  TRV_THREE_POINTS_AT_P1 = 2,       /**< P2 is at P1 */
  TRV_THREE_POINTS_BETWEEN = 3,     /**< P2 is between P0 and P1 */
  TRV_THREE_POINTS_BEYOND_P0 = 4,   /**< P2 is beyond P0 on the line of P0 and P1 */
  TRV_THREE_POINTS_BEYOND_P1 = 5,   /**< P2 is beyond P1 on the line of P0 and P1 */
};

/** How two lines of space lie to each other (trvdirl). */
enum TrvLines {
  TRV_LINES_CROSSING = 0,          /**< the lines cross, not at a right angle */
  TRV_LINES_PARALLEL_SAME = 1,     /**< parallel and distinct lines of the same direction */
  TRV_LINES_PARALLEL_OPPOSITE = 2, /**< parallel and distinct lines of opposite direction */
  TRV_LINES_SAME_LINE = 3,         /**< the same line, of the same direction */
  TRV_LINES_OPPOSITE_LINE = 4,     /**< the same line, of opposite direction */
  TRV_LINES_PERPENDICULAR = 5,     /**< the lines cross at a right angle */
  TRV_LINES_SKEW = 6,              /**< the lines are skew */
  TRV_LINES_COINCIDENT = 7,        /**< the two points of a line coincide */
};

/** Outcome for two lines of space: a result, or the relation that allows no result. */
enum TrvTwoLines {
  TRV_TWO_LINES_DONE = 0,          /**< the outputs are computed */
  TRV_TWO_LINES_SAME_LINE = 3,     /**< the lines are the same, of the same direction */
  TRV_TWO_LINES_OPPOSITE_LINE = 4, /**< the lines are the same, of opposite direction */
  TRV_TWO_LINES_SKEW = 6,          /**< the lines are skew */
  TRV_TWO_LINES_NO_LENGTH = 7,     /**< a line has no direction */
};

/** Kind of a part of a section. */
enum TrvPart {
  TRV_PART_CONCENTRATED = 1,    /**< an area concentrated at a point */
  TRV_PART_POLYGON = 2,         /**< a polygon */
  TRV_PART_CIRCLE = 3,          /**< a full circle */
  TRV_PART_SMALLER_SEGMENT = 4, /**< the smaller circular segment at a chord */
  TRV_PART_LARGER_SEGMENT = 5,  /**< the larger circular segment at a chord */
};

#endif
