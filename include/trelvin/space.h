/**
 * @file
 * The four families of space.
 */
#ifndef TRELVIN_SPACE_H
#define TRELVIN_SPACE_H

/* Rotating points about the origin and the axes. */
#include "trelvin/rotations.h"
/* The three-point test; frames, and moving points by them. */
#include "trelvin/frames.h"
/* Planes by their coefficients. */
#include "trelvin/space_planes.h"
/* Relations, distances and intersections of lines. */
#include "trelvin/space_lines.h"

#endif
