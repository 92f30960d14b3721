/**
 * @file
 * Rotations about the origin and the axes.
 *
 *     float x = 1, y = 0, angle = 1.5707963f; // a right angle
 *     int32_t n = 1, mode = 1;
 *     trvrot(&mode, &x, &y, &n, &angle);
 *     if (y < -0.9999f) printf("clockwise\n");
 *     // prints clockwise
 */
#ifndef TRELVIN_ROTATIONS_H
#define TRELVIN_ROTATIONS_H

#include "trelvin/calling.h"

/**
 * Rotates plane points about the origin, in place.
 *
 * Cost: time grows with n; nothing is allocated.
 *
 * Retains: nothing.
 *
 * @param[in]    mode   1 rotates clockwise; any other value counter-clockwise
 * @param[inout] x,y    arrays of n: coordinates
 * @param[in]    n      number of points; below 1 nothing happens
 * @param[in]    angle  angle in radians; may be an element of the arrays
 */
TRELVIN_ROUTINE trvrot(TrvIntIn mode, TrvArrayInOut x, TrvArrayInOut y, TrvIntIn n, TrvIn angle);

/**
 * Rotates points about the x axis, in place.
 *
 * Cost: time grows with n; nothing is allocated.
 *
 * Retains: nothing.
 *
 * @param[in]    mode   1 rotates z towards y; any other value y towards z, right-handed about +x
 * @param[in]    x      array of 0: not read
 * @param[inout] y,z    arrays of n: coordinates
 * @param[in]    n      number of points; below 1 nothing happens
 * @param[in]    angle  angle in radians; may be an element of the arrays
 */
TRELVIN_ROUTINE trvrotx(TrvIntIn mode, TrvArrayIn x, TrvArrayInOut y, TrvArrayInOut z, TrvIntIn n,
                        TrvIn angle);

/**
 * Rotates points about the y axis, in place.
 *
 * Caution: unless mode is 1, this rotation is left-handed about its axis, while those of trvrotx
 * and trvrotz are right-handed.
 *
 * Cost: time grows with n; nothing is allocated.
 *
 * Retains: nothing.
 *
 * @param[in]    mode   1 rotates z towards x; any other value x towards z, left-handed about +y
 * @param[inout] x      array of n: coordinates
 * @param[in]    y      array of 0: not read
 * @param[inout] z      array of n: coordinates
 * @param[in]    n      number of points; below 1 nothing happens
 * @param[in]    angle  angle in radians; may be an element of the arrays
 */
TRELVIN_ROUTINE trvroty(TrvIntIn mode, TrvArrayInOut x, TrvArrayIn y, TrvArrayInOut z, TrvIntIn n,
                        TrvIn angle);

/**
 * Rotates points about the z axis, in place.
 *
 * Cost: time grows with n; nothing is allocated.
 *
 * Retains: nothing.
 *
 * @param[in]    mode   1 rotates y towards x; any other value x towards y, right-handed about +z
 * @param[inout] x,y    arrays of n: coordinates
 * @param[in]    z      array of 0: not read
 * @param[in]    n      number of points; below 1 nothing happens
 * @param[in]    angle  angle in radians; may be an element of the arrays
 */
TRELVIN_ROUTINE trvrotz(TrvIntIn mode, TrvArrayInOut x, TrvArrayInOut y, TrvArrayIn z, TrvIntIn n,
                        TrvIn angle);

#endif
