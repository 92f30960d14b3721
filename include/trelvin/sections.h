/**
 * @file
 * Steel sections: buckling of plates, outlines of profiles, channels, thin plates.
 *
 * An outline is a list of closed polygons, centred on the middle of the profile's bounding box (not
 * on its centroid), x to the right and y upwards, lengths in the host's unit. The polygons are
 * stored one after the other in X and Y, solids and holes both counter-clockwise; the first vertex
 * of a polygon is not repeated. Caution: dimensions are not checked; if a wall is thicker than half
 * the width, the hole is inverted.
 *
 * Caution: trvair, trvstm and trvinm overwrite the element after the last vertex of a polygon. If
 * an outline has several polygons, copy each one into arrays of its own before you pass it to them.
 * Otherwise the next polygon loses its first vertex.
 *
 *     float B = 200, H = 15, A, xs, ys, Ix, Iy, Ixy, I1, I2, alpha, rx, ry, Wx1, Wx2, Wy1, Wy2;
 *     float Wpx, Wpy, xp, yp, It, Wt, xm, ym, Iw, r0, W1[1], W2[1];
 *     int32_t status;
 *     trvmxt_fb(&B, &H, &A, &xs, &ys, &Ix, &Iy, &Ixy, &I1, &I2, &alpha, &rx, &ry, &Wx1, &Wx2, &Wy1,
 *               &Wy2, &Wpx, &Wpy, &xp, &yp, &It, &Wt, &xm, &ym, &Iw, &r0, W1, W2, &status);
 *     if (status == TRV_STATUS_DONE) printf("A %g, Ix %g\n", A, Ix);
 *     // prints A 3000, Ix 56250
 */
#ifndef TRELVIN_SECTIONS_H
#define TRELVIN_SECTIONS_H

#include "trelvin/calling.h"

/* Plate buckling ----------------------------------------------------------------------------- */

/**
 * Reduction factor of an internal compression element, EN 1993-1-5, 4.4(2).
 *
 * The slenderness is b / ((((r2/r1) * 28.4) * sqrt(ks)) * t). If it is at most 0.5 + sqrt(0.085 -
 * 0.055*psi), rho = 1. Otherwise rho = (1 - 0.055*(3 + psi)/slenderness) / slenderness, at most 1,
 * without a lower bound. ks = 0 gives 0. If psi is above 0.085/0.055, the second formula is used.
 *
 * Retains: nothing.
 *
 * @param[in]  b    width
 * @param[in]  t    thickness, in the unit of b
 * @param[in]  r1   square root of the yield strength: sqrt(fy)
 * @param[in]  r2   square root of the reference strength: sqrt(235) for N/mm2, so that
 *                  epsilon = r2/r1 = sqrt(235/fy)
 * @param[in]  psi  stress ratio, of the stress at the other edge to the greater compression
 * @param[in]  ks   buckling factor k_sigma
 * @param[out] rho  reduction factor
 */
TRELVIN_ROUTINE trvro2(TrvIn b, TrvIn t, TrvIn r1, TrvIn r2, TrvIn psi, TrvIn ks, TrvOut rho);

/**
 * Effective width of an edge fold on a plate it stiffens, after EN 1993-1-3, 5.5.3.2.
 *
 * The buckling factor is 0.5 up to c/bp = 0.35, and 0.5 + (c/bp - 0.35)^2/3 up to 0.6. The
 * reduction is that of trvro2 for psi = 1.
 *
 * Caution: between 0.35 and 0.6 the factor differs from the clause, which has 0.5 + 0.83*(c/bp -
 * 0.35)^(2/3). Beyond 0.6, or if c/bp is NaN, the factor of the previous call is used again. It is
 * zero after loading, which gives ceff = 0.
 *
 * Retains: the buckling factor (trvefr).
 *
 * @param[in]  c     width of the fold
 * @param[in]  bp    width of the plate
 * @param[in]  t     thickness
 * @param[in]  r1    square root of the yield strength: sqrt(fy)
 * @param[in]  r2    square root of the reference strength: sqrt(235) for N/mm2
 * @param[out] ceff  effective width
 */
TRELVIN_ROUTINE trvefr(TrvIn c, TrvIn bp, TrvIn t, TrvIn r1, TrvIn r2, TrvOut ceff);

/**
 * Effective widths at the edges of an internal element, EN 1993-1-5, table 4.1.
 *
 * Compression is positive. With psi = s2/s1 and the reduction of trvro2 the widths are
 *
 *   psi           ks                            be1                 be2
 *   1             4                             rho*w/2             rho*w/2
 *   1 to 0        8.2/(1.05 + psi)              2*rho*w/(5 - psi)   rho*w - be1
 *   0             7.81                          2*rho*w/5           rho*w - be1
 *   0 to -1       7.81 - 6.29*psi + 9.78*psi^2  0.4*rho*w           0.6*rho*w
 *   -1            23.9                          0.4*rho*w           0.6*rho*w
 *   -1 to -3      5.98*(1 - psi)^2              0.4*rho*w           0.6*rho*w
 *   below -3      none                          w/2                 w/2
 *
 * psi counts as 1 if s1 - s2 is within the tolerance, as 0 if s2 is, and as -1 if |s1 + s2| is
 * below the tolerance. Caution: the rows 1 and 0 overlap with others. If 0 < s2 < s1, however small
 * the difference, the row "1 to 0" applies; if s2 < 0, one of the rows for negative psi does.
 *
 * Retains: nothing.
 *
 * @param[in]  bl   width for the slenderness
 * @param[in]  w    width to reduce; in bending, if s2 is tension, the width of the compressed part
 * @param[in]  t    thickness
 * @param[in]  r1   square root of the yield strength: sqrt(fy)
 * @param[in]  r2   square root of the reference strength: sqrt(235) for N/mm2
 * @param[in]  s1   stress at the more compressed edge
 * @param[in]  s2   stress at the other edge
 * @param[out] be1  effective width at the edge of s1; unwritten on a condition: be2 is unwritten
 * @param[out] be2  effective width at the other edge; unwritten on a condition: both stresses are
 *                  within the tolerance, s1 is zero or negative, s1 = -s2/3, or s2 is not within
 *                  the tolerance and s2 - s1 is above the tolerance or NaN
 */
TRELVIN_ROUTINE trvef2(TrvIn bl, TrvIn w, TrvIn t, TrvIn r1, TrvIn r2, TrvIn s1, TrvIn s2,
                       TrvOut be1, TrvOut be2);

/* Outlines ----------------------------------------------------------------------------------- */

/**
 * I section with unequal flanges.
 *
 * Retains: nothing.
 *
 * @param[in]  H               height
 * @param[in]  B1,T1           width and thickness of flange 1, at the bottom
 * @param[in]  B2,T2           width and thickness of flange 2, at the top
 * @param[in]  TW              web thickness
 * @param[in]  q               user value, copied to q1 and q2 of each polygon
 * @param[out] np              number of polygons, always 1
 * @param[out] nv              array of 1: numbers of vertices: 12
 * @param[out] X,Y             arrays of 12: vertices about the middle of the bounding box
 * @param[out] code            array of 1: 2, the part kind "polygon" of trvair
 * @param[out] sign            array of 1: 1, of a solid, the factor of trvair
 * @param[out] z1,z2,z3,z4,z5  arrays of 1: 0
 * @param[out] q1,q2           arrays of 1: q
 */
TRELVIN_ROUTINE trvsec_ia(TrvIn H, TrvIn B1, TrvIn B2, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn q,
                          TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                          TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                          TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                          TrvArrayOut q2);

/**
 * I section lying on its side.
 *
 * Retains: nothing.
 *
 * @param[in]  H               depth, along x
 * @param[in]  B1,T1           width and thickness of flange 1, on the left
 * @param[in]  B2,T2           width and thickness of flange 2, on the right
 * @param[in]  TW              web thickness
 * @param[in]  q               user value, copied to q1 and q2 of each polygon
 * @param[out] np              number of polygons, always 1
 * @param[out] nv              array of 1: numbers of vertices: 12
 * @param[out] X,Y             arrays of 12: vertices about the middle of the bounding box
 * @param[out] code            array of 1: 2, the part kind "polygon" of trvair
 * @param[out] sign            array of 1: 1, of a solid, the factor of trvair
 * @param[out] z1,z2,z3,z4,z5  arrays of 1: 0
 * @param[out] q1,q2           arrays of 1: q
 */
TRELVIN_ROUTINE trvsec_h(TrvIn H, TrvIn B1, TrvIn B2, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn q,
                         TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                         TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                         TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                         TrvArrayOut q2);

/**
 * T section, flange at the top.
 *
 * Retains: nothing.
 *
 * @param[in]  B,TF            width and thickness of the flange
 * @param[in]  H               height
 * @param[in]  TW              stem thickness
 * @param[in]  q               user value, copied to q1 and q2 of each polygon
 * @param[out] np              number of polygons, always 1
 * @param[out] nv              array of 1: numbers of vertices: 8
 * @param[out] X,Y             arrays of 8: vertices about the middle of the bounding box
 * @param[out] code            array of 1: 2, the part kind "polygon" of trvair
 * @param[out] sign            array of 1: 1, of a solid, the factor of trvair
 * @param[out] z1,z2,z3,z4,z5  arrays of 1: 0
 * @param[out] q1,q2           arrays of 1: q
 */
TRELVIN_ROUTINE trvsec_t(TrvIn B, TrvIn H, TrvIn TF, TrvIn TW, TrvIn q, TrvIntOut np,
                         TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code,
                         TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3,
                         TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2);

/**
 * Flat bar.
 *
 * Retains: nothing.
 *
 * @param[in]  B               width, an Integer
 * @param[in]  H               height
 * @param[in]  q               user value, copied to q1 and q2 of each polygon
 * @param[out] np              number of polygons, always 1
 * @param[out] nv              array of 1: numbers of vertices: 12, although X and Y receive 4
 * @param[out] X,Y             arrays of 12, 4 used: the 4 vertices; provide for 12 and read 4
 * @param[out] code            array of 1: 2, the part kind "polygon" of trvair
 * @param[out] sign            array of 1: 1, of a solid, the factor of trvair
 * @param[out] z1,z2,z3,z4,z5  arrays of 1: 0
 * @param[out] q1,q2           arrays of 1: q
 */
TRELVIN_ROUTINE trvsec_b(TrvIntIn B, TrvIn H, TrvIn q, TrvIntOut np, TrvIntArrayOut nv,
                         TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code, TrvArrayOut sign,
                         TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3, TrvArrayOut z4,
                         TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2);

/**
 * I section lying on its side with a cover plate on its flanges' top edges, closing one cell.
 *
 * The web lies at the flanges' mid-height.
 *
 * Retains: nothing.
 *
 * @param[in]  W,TP            width and thickness of the cover plate
 * @param[in]  D               depth of the I section, along x
 * @param[in]  P               height of its flanges
 * @param[in]  T1,T2           thicknesses of the left and the right flange
 * @param[in]  TW              web thickness
 * @param[in]  q               user value, copied to q1 and q2 of each polygon
 * @param[out] np              number of polygons, always 2
 * @param[out] nv              array of 2: numbers of vertices: 12, 4
 * @param[out] X,Y             arrays of 16: vertices, of the solid and of its cell
 * @param[out] code            array of 2: 2, 2, the part kind "polygon" of trvair
 * @param[out] sign            array of 2: 1, -1, the factor of trvair
 * @param[out] z1,z2,z3,z4,z5  arrays of 2: 0
 * @param[out] q1,q2           arrays of 2: q, -q
 */
TRELVIN_ROUTINE trvsec_h1b(TrvIn W, TrvIn D, TrvIn P, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn TP,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2);

/**
 * Box girder with overhanging flanges.
 *
 * Retains: nothing.
 *
 * @param[in]  BT,TT           width and thickness of the top flange
 * @param[in]  BB,TB           width and thickness of the bottom flange
 * @param[in]  H               overall height
 * @param[in]  TW              thickness of each web
 * @param[in]  G               clear distance of the webs
 * @param[in]  q               user value, copied to q1 and q2 of each polygon
 * @param[out] np              number of polygons, always 2
 * @param[out] nv              array of 2: numbers of vertices: 12, 4
 * @param[out] X,Y             arrays of 16: vertices, of the solid and of its cell
 * @param[out] code            array of 2: 2, 2, the part kind "polygon" of trvair
 * @param[out] sign            array of 2: 1, -1, the factor of trvair
 * @param[out] z1,z2,z3,z4,z5  arrays of 2: 0
 * @param[out] q1,q2           arrays of 2: q, -q
 */
TRELVIN_ROUTINE trvsec_box(TrvIn BT, TrvIn BB, TrvIn TT, TrvIn TB, TrvIn H, TrvIn TW, TrvIn G,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2);

/**
 * Rectangular hollow section with sharp corners.
 *
 * Retains: nothing.
 *
 * @param[in]  B,H             width and height
 * @param[in]  T               wall thickness
 * @param[in]  q               user value, copied to q1 and q2 of each polygon
 * @param[out] np              number of polygons, always 2
 * @param[out] nv              array of 2: numbers of vertices: 4, 4
 * @param[out] X,Y             arrays of 8: vertices, of the solid and of its cell
 * @param[out] code            array of 2: 2, 2, the part kind "polygon" of trvair
 * @param[out] sign            array of 2: 1, -1, the factor of trvair
 * @param[out] z1,z2,z3,z4,z5  arrays of 2: 0
 * @param[out] q1,q2           arrays of 2: q, -q
 */
TRELVIN_ROUTINE trvsec_rhs(TrvIn B, TrvIn H, TrvIn T, TrvIn q, TrvIntOut np, TrvIntArrayOut nv,
                           TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code, TrvArrayOut sign,
                           TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3, TrvArrayOut z4,
                           TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2);

/**
 * Two equal angles back to back, horizontal legs at the top.
 *
 * Retains: nothing.
 *
 * @param[in]  B,T             length and thickness of a horizontal leg
 * @param[in]  H,TV            height and thickness of a vertical leg
 * @param[in]  G               gap between the vertical legs
 * @param[in]  q               user value, copied to q1 and q2 of each polygon
 * @param[out] np              number of polygons, always 2
 * @param[out] nv              array of 2: numbers of vertices: 6, 6
 * @param[out] X,Y             arrays of 12: vertices, of the left angle and of the right one
 * @param[out] code            array of 2: 2, 2, the part kind "polygon" of trvair
 * @param[out] sign            array of 2: 1, 1, the factor of trvair
 * @param[out] z1,z2,z3,z4,z5  arrays of 2: 0
 * @param[out] q1,q2           arrays of 2: q, q
 */
TRELVIN_ROUTINE trvsec_l2(TrvIn B, TrvIn H, TrvIn G, TrvIn T, TrvIn TV, TrvIn q, TrvIntOut np,
                          TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code,
                          TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3,
                          TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2);

/**
 * Top plate on a closed cell of two webs and a bottom plate between them.
 *
 * Retains: nothing.
 *
 * @param[in]  B,T             width and thickness of the top plate
 * @param[in]  H               height of the webs below the plate
 * @param[in]  BW              distance of the webs' outer faces
 * @param[in]  E               height of the bottom plate's underside above the webs' lower ends
 * @param[in]  TW              thickness of each web
 * @param[in]  TB              thickness of the bottom plate
 * @param[in]  q               user value, copied to q1 and q2 of each polygon
 * @param[out] np              number of polygons, always 2
 * @param[out] nv              array of 2: numbers of vertices: 12, 4
 * @param[out] X,Y             arrays of 16: vertices, of the solid and of its cell
 * @param[out] code            array of 2: 2, 2, the part kind "polygon" of trvair
 * @param[out] sign            array of 2: 1, -1, the factor of trvair
 * @param[out] z1,z2,z3,z4,z5  arrays of 2: 0
 * @param[out] q1,q2           arrays of 2: q, -q
 */
TRELVIN_ROUTINE trvsec_tab(TrvIn B, TrvIn H, TrvIn BW, TrvIn E, TrvIn T, TrvIn TW, TrvIn TB,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2);

/**
 * Two flanges joined by two webs and a middle plate, closing two cells.
 *
 * Retains: nothing.
 *
 * @param[in]  B,TF            width and thickness of each flange
 * @param[in]  W               distance of the webs' outer faces
 * @param[in]  HI              clear distance of the flanges
 * @param[in]  TW1,TW2         thicknesses of the left and the right web
 * @param[in]  TM              thickness of the middle plate, at mid-height
 * @param[in]  q               user value, copied to q1 and q2 of each polygon
 * @param[out] np              number of polygons, always 3
 * @param[out] nv              array of 3: numbers of vertices: 12, 4, 4
 * @param[out] X,Y             arrays of 20: vertices, of the solid, the upper and the lower cell
 * @param[out] code            array of 3: 2, 2, 2, the part kind "polygon" of trvair
 * @param[out] sign            array of 3: 1, -1, -1, the factor of trvair
 * @param[out] z1,z2,z3,z4,z5  arrays of 3: 0
 * @param[out] q1,q2           arrays of 3: q, -q, -q
 */
TRELVIN_ROUTINE trvsec_h2b(TrvIn B, TrvIn W, TrvIn HI, TrvIn TW1, TrvIn TW2, TrvIn TM, TrvIn TF,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2);

/**
 * I section with unequal flanges, an eccentric web and 45-degree fillets.
 *
 * Retains: nothing.
 *
 * @param[in]  H               height
 * @param[in]  B1,T1           width and thickness of flange 1, at the bottom
 * @param[in]  B2,T2           width and thickness of flange 2, at the top
 * @param[in]  TW              web thickness
 * @param[in]  S1,S2           legs of the fillets between the web and flanges 1, 2; 0 for none
 * @param[in]  E               distance of the web from the middle, to the right
 * @param[in]  q               user value, copied to q1 and q2 of each polygon
 * @param[out] np              number of polygons, always 1
 * @param[out] nv              array of 1: numbers of vertices: 16
 * @param[out] X,Y             arrays of 16: vertices about the middle of the bounding box
 * @param[out] code            array of 1: 2, the part kind "polygon" of trvair
 * @param[out] sign            array of 1: 1, of a solid, the factor of trvair
 * @param[out] z1,z2,z3,z4,z5  arrays of 1: 0
 * @param[out] q1,q2           arrays of 1: q
 */
TRELVIN_ROUTINE trvsec_i(TrvIn H, TrvIn B1, TrvIn B2, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn S1,
                         TrvIn S2, TrvIn E, TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X,
                         TrvArrayOut Y, TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1,
                         TrvArrayOut z2, TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5,
                         TrvArrayOut q1, TrvArrayOut q2);

/**
 * Channel open to the right, with lips turned inwards and folds turned back towards the web.
 *
 * Lengths are outer ones. A lip whose length does not exceed the thickness of its flange is
 * ignored, and so is the fold of this lip. A fold whose length does not exceed the thickness of its
 * lip is ignored.
 *
 * Retains: nothing.
 *
 * @param[in]  H               depth
 * @param[in]  B1,B2           widths of flange 1, at the bottom, and flange 2, at the top
 * @param[in]  C1,C2           lengths of their lips
 * @param[in]  D1,D2           lengths of the folds at the lips' ends
 * @param[in]  TW              web thickness
 * @param[in]  T1,T2           thicknesses of the flanges
 * @param[in]  TC1,TC2         thicknesses of the lips
 * @param[in]  TD1,TD2         thicknesses of the folds
 * @param[in]  q               user value, copied to q1 and q2 of each polygon
 * @param[out] np              number of polygons, always 1
 * @param[out] nv              array of 1: numbers of vertices: 16
 * @param[out] X,Y             arrays of 16: vertices about the middle of the bounding box
 * @param[out] code            array of 1: 2, the part kind "polygon" of trvair
 * @param[out] sign            array of 1: 1, of a solid, the factor of trvair
 * @param[out] z1,z2,z3,z4,z5  arrays of 1: 0
 * @param[out] q1,q2           arrays of 1: q
 */
TRELVIN_ROUTINE trvsec_c(TrvIn H, TrvIn B1, TrvIn B2, TrvIn C1, TrvIn C2, TrvIn D1, TrvIn D2,
                         TrvIn TW, TrvIn T1, TrvIn T2, TrvIn TC1, TrvIn TC2, TrvIn TD1, TrvIn TD2,
                         TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                         TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                         TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                         TrvArrayOut q2);

/* Channels ----------------------------------------------------------------------------------- */

/**
 * Distance of a channel's shear centre from its centroid.
 *
 * Thin-walled theory on the centre lines b = B - t, h = H - t, c = C - t/2. The channel has lips if
 * C is above the tolerance.
 *
 *   plain   e0 = b^2/(2*b + h) + 3*b^2/(h + 6*b)
 *   lipped  e0 = b*(b + 2*c)/(h + 2*b + 2*c) + b*t*(3*b*h^2 + 6*c*h^2 - 8*c^3)/(12*I)
 *           I  = t*(h^3 + 6*(b + c)*h^2 - 12*c^2*h + 8*c^3)/12
 *
 * The first term is the distance of the centroid from the web, the second that of the shear centre
 * on the other side of the web (plain: S. P. Timoshenko, J. M. Gere, Theory of elastic stability,
 * appendix, table A-3; lipped: W.-W. Yu, Cold-formed steel design, appendix B, sharp corners).
 *
 * Retains: nothing.
 *
 * @param[in]  B   outer width of the flanges
 * @param[in]  H   outer depth
 * @param[in]  C   outer length of the lips, turned inwards; 0 for a plain channel
 * @param[in]  t   wall thickness
 * @param[out] e0  distance along the flanges; infinite or NaN if the section has no size
 */
TRELVIN_ROUTINE trvshc_c(TrvIn B, TrvIn H, TrvIn C, TrvIn t, TrvOut e0);

/**
 * Warping constant of a channel.
 *
 * Thin-walled theory on the centre lines b = B - t, h = H - t, c = C - t/2. The channel has lips if
 * C is above the tolerance. With A the area, xg and e the distances of centroid and shear centre
 * from the web, and I the second moment about the axis of symmetry, all as trvshc_c:
 *
 *   plain   Iw = t*b^3*h^2*(3*b + 2*h)/(12*(h + 6*b))
 *   lipped  Iw = t^2/A * (xg*A*h^2*(b^2/3 + e^2 - e*b)/t
 *                         + A*(e^2*h^3 + b^2*c^2*(2*c + 3*h))/(3*t)
 *                         - I*e^2*(2*h + 4*c)/t
 *                         + e*c^2*(8*b^2*c + 2*e*(2*c*(c - h) + b*(2*c - 3*h)))/3
 *                         + b^2*h^2*((3*c + b)*(4*c + h) - 6*c^2)/6 - e^2*h^4/4)
 *
 * (plain: S. P. Timoshenko, J. M. Gere, Theory of elastic stability, appendix, table A-3; lipped:
 * W.-W. Yu, Cold-formed steel design, appendix B, sharp corners.)
 *
 * Retains: nothing.
 *
 * @param[in]  B   outer width of the flanges
 * @param[in]  H   outer depth
 * @param[in]  C   outer length of the lips, turned inwards; 0 for a plain channel
 * @param[in]  t   wall thickness
 * @param[out] Iw  warping constant, in the sixth power of the length unit; infinite or NaN if the
 *                 section has no size
 */
TRELVIN_ROUTINE trvwar_c(TrvIn B, TrvIn H, TrvIn C, TrvIn t, TrvOut Iw);

/* Sections of thin plates -------------------------------------------------------------------- */

/**
 * Properties of an open section of thin plates.
 *
 * Each plate is given by its centre line and its thickness. The first plate may start anywhere.
 * Each further plate must start at an end of an earlier one, within the tolerance in each
 * coordinate. A plate that others join between its ends must be given as two plates. Plates must
 * meet at their ends only: apart from the joints, the distance between two plates must be more than
 * 1e-5 and more than 2^-22 times the largest coordinate.
 *
 * Area, moments and moduli are those of the plates as rectangles about their centre lines; overlaps
 * at the joints are counted twice. Shear centre, warping constant and sectorial coordinates are
 * those of the centre lines (V. Z. Vlasov, Thin-walled elastic beams). Formed in double precision
 * and rounded once.
 *
 * Cost: time grows with n^2; nothing is allocated.
 *
 * Retains: nothing.
 *
 * @param[in]  n        number of plates
 * @param[in]  X1,Y1    arrays of n: starts of the centre lines
 * @param[in]  X2,Y2    arrays of n: ends of the centre lines
 * @param[in]  T        array of n: thicknesses
 * @param[out] A        area; unwritten if status is -1
 * @param[out] xs,ys    centroid; unwritten if status is -1
 * @param[out] Ix,Iy    second moments about the centroid, of y^2 and of x^2; unwritten if status is
 *                      -1
 * @param[out] Ixy      product of inertia about the centroid; unwritten if status is -1
 * @param[out] I1       moment about the axis turned by alpha from the x axis; unwritten if status
 *                      is -1
 * @param[out] I2       moment about the axis perpendicular to that of I1; either may be the larger;
 *                      unwritten if status is -1
 * @param[out] alpha    angle from the x axis in radians, counter-clockwise, within +-pi/4: 0 if
 *                      |Ixy| is at most 1e-8*(Ix + Iy), otherwise pi/4 if |Iy - Ix| is; unwritten
 *                      if status is -1
 * @param[out] rx,ry    radii of gyration: sqrt(Ix/A), sqrt(Iy/A); unwritten if status is -1
 * @param[out] Wx1,Wx2  elastic section moduli of the top and the bottom extreme fibre; unwritten if
 *                      status is -1
 * @param[out] Wy1,Wy2  elastic section moduli of the right and the left extreme fibre; unwritten if
 *                      status is -1
 * @param[out] Wpx,Wpy  plastic section moduli about the plastic neutral axes; unwritten if status
 *                      is -1
 * @param[out] xp,yp    plastic neutral axes (equal-area axes): the vertical one at xp, the
 *                      horizontal one at yp; in the middle of a gap if there is one between the
 *                      halves; unwritten if status is -1
 * @param[out] It       torsion constant: sum of l*t^3/3; unwritten unless status is 0
 * @param[out] Wt       torsion modulus: It over the greatest thickness; unwritten unless status is
 *                      0
 * @param[out] xm,ym    shear centre; the centroid if all plates are on one line; unwritten unless
 *                      status is 0
 * @param[out] Iw       warping constant; unwritten unless status is 0
 * @param[out] r0       polar radius of gyration about the shear centre; unwritten unless status is
 *                      0
 * @param[out] W1,W2    arrays of n: normalised sectorial coordinate at the plates' starts and ends,
 *                      positive counter-clockwise; unwritten unless status is 0
 * @param[out] status   outcome (TrvStatus): 0 done; -1 refused: n < 1, a coordinate or a thickness
 *                      is infinite or NaN, or a length or a thickness is not above the tolerance; 2
 *                      to n: number of the first faulty plate, which does not start at an end of an
 *                      earlier plate, or closes a cell by ending at one; n+2 to 2*n: n plus the
 *                      number of the first faulty plate, which crosses, touches or overlaps an
 *                      earlier plate elsewhere than at its start, and may close a cell
 */
TRELVIN_ROUTINE trvmxt(TrvIntIn n, TrvArrayIn X1, TrvArrayIn Y1, TrvArrayIn X2, TrvArrayIn Y2,
                       TrvArrayIn T, TrvOut A, TrvOut xs, TrvOut ys, TrvOut Ix, TrvOut Iy,
                       TrvOut Ixy, TrvOut I1, TrvOut I2, TrvOut alpha, TrvOut rx, TrvOut ry,
                       TrvOut Wx1, TrvOut Wx2, TrvOut Wy1, TrvOut Wy2, TrvOut Wpx, TrvOut Wpy,
                       TrvOut xp, TrvOut yp, TrvOut It, TrvOut Wt, TrvOut xm, TrvOut ym, TrvOut Iw,
                       TrvOut r0, TrvArrayOut W1, TrvArrayOut W2, TrvIntOut status);

/**
 * Properties of a flat bar, centred on the origin.
 *
 * Torsion by Saint-Venant's series for the rectangle (S. Timoshenko, J. N. Goodier, Theory of
 * elasticity, article 109). Formed in double precision and rounded once.
 *
 * Retains: nothing.
 *
 * @param[in]  B        width, along x
 * @param[in]  H        height, along y
 * @param[out] A        area; unwritten if status is -1
 * @param[out] xs,ys    centroid: 0; unwritten if status is -1
 * @param[out] Ix,Iy    second moments about the centroid, of y^2 and of x^2; unwritten if status is
 *                      -1
 * @param[out] Ixy      product of inertia: 0; unwritten if status is -1
 * @param[out] I1,I2    principal moments: Ix, Iy; unwritten if status is -1
 * @param[out] alpha    angle of the axis of I1 from the x axis: 0; unwritten if status is -1
 * @param[out] rx,ry    radii of gyration: sqrt(Ix/A), sqrt(Iy/A); unwritten if status is -1
 * @param[out] Wx1,Wx2  elastic section moduli of the top and the bottom extreme fibre; unwritten if
 *                      status is -1
 * @param[out] Wy1,Wy2  elastic section moduli of the right and the left extreme fibre; unwritten if
 *                      status is -1
 * @param[out] Wpx,Wpy  plastic section moduli about the x and the y axis; unwritten if status is -1
 * @param[out] xp,yp    plastic neutral axes: 0; unwritten if status is -1
 * @param[out] It       torsion constant; unwritten if status is -1
 * @param[out] Wt       torsion modulus: torque over the greatest shear stress; unwritten if status
 *                      is -1
 * @param[out] xm,ym    shear centre: 0; unwritten if status is -1
 * @param[out] Iw       warping constant of the warping across the thickness: (B*H)^3/144; unwritten
 *                      if status is -1
 * @param[out] r0       polar radius of gyration; unwritten if status is -1
 * @param[out] W1,W2    arrays of 1: sectorial coordinate at the centre line's ends: 0; unwritten if
 *                      status is -1
 * @param[out] status   outcome (TrvStatus): 0 done; -1 refused: a side is infinite, NaN or not
 *                      above the tolerance
 */
TRELVIN_ROUTINE trvmxt_fb(TrvIn B, TrvIn H, TrvOut A, TrvOut xs, TrvOut ys, TrvOut Ix, TrvOut Iy,
                          TrvOut Ixy, TrvOut I1, TrvOut I2, TrvOut alpha, TrvOut rx, TrvOut ry,
                          TrvOut Wx1, TrvOut Wx2, TrvOut Wy1, TrvOut Wy2, TrvOut Wpx, TrvOut Wpy,
                          TrvOut xp, TrvOut yp, TrvOut It, TrvOut Wt, TrvOut xm, TrvOut ym,
                          TrvOut Iw, TrvOut r0, TrvArrayOut W1, TrvArrayOut W2, TrvIntOut status);

#endif
