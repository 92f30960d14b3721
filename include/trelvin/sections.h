/**
 * @file
 * Steel sections: buckling of plates, outlines of profiles, channels.
 *
 * An outline is a list of closed polygons, centred on the middle of the profile's bounding box (not
 * on its centroid), x to the right and y upwards, lengths in the host's unit. Every outline routine
 * hands it back in the same frame of outputs, all of them always written:
 *
 *   np        number of polygons
 *   nv        array of np: number of vertices of each polygon
 *   X, Y      vertices, polygon after polygon, counter-clockwise for solids and holes alike; the
 *             first vertex of a polygon is not repeated
 *   code      array of np: 2 for each, the part kind "polygon" of trvair, trvstm and trvinm
 *   sign      array of np: 1 for a solid, -1 for a hole, the factor of those routines
 *   z1 ... z5 arrays of np: 0
 *   q1, q2    arrays of np: q for a solid, q with its sign flipped for a hole
 *
 * Dimensions are not checked: a wall thicker than half the width gives an inverted hole.
 *
 * A polygon that trvair, trvstm and trvinm take needs a spare element behind its last vertex. Copy
 * one out of a list of several before it is passed on, or the next polygon loses its first vertex.
 */
#ifndef TRELVIN_SECTIONS_H
#define TRELVIN_SECTIONS_H

#include "trelvin/calling.h"

/* Plate buckling ----------------------------------------------------------------------------- */

/**
 * Reduction factor of an internal compression element, EN 1993-1-5, 4.4(2).
 *
 * Slenderness b / ((((r2/r1) * 28.4) * sqrt(ks)) * t); no reduction up to 0.5 + sqrt(0.085 -
 * 0.055*psi), else (1 - 0.055*(3 + psi)/slenderness) / slenderness, at most 1. There is no lower
 * bound.
 *
 * @param[in]  b      width
 * @param[in]  t      thickness, in the unit of b
 * @param[in]  r1,r2  material: epsilon = r2/r1, that is sqrt(235/fy) with fy in N/mm2
 * @param[in]  psi    stress ratio
 * @param[in]  ks     buckling factor k_sigma
 * @param[out] rho    reduction factor
 */
TRELVIN_ROUTINE trvro2(TrvIn b, TrvIn t, TrvIn r1, TrvIn r2, TrvIn psi, TrvIn ks, TrvOut rho);

/**
 * Effective width of an edge fold on a plate it stiffens, EN 1993-1-3, 5.5.3.2.
 *
 * The buckling factor is 0.5 up to c/bp = 0.35 and 0.5 + (c/bp - 0.35)^2/3 up to 0.6. Beyond, the
 * factor of the previous call stands; it is retained, zero after loading, which gives ceff = 0.
 *
 * @param[in]  c      width of the fold
 * @param[in]  bp     width of the plate
 * @param[in]  t      thickness
 * @param[in]  r1,r2  material, as trvro2
 * @param[out] ceff   effective width
 */
TRELVIN_ROUTINE trvefr(TrvIn c, TrvIn bp, TrvIn t, TrvIn r1, TrvIn r2, TrvOut ceff);

/**
 * Effective widths at the edges of an internal element, EN 1993-1-5, table 4.1.
 *
 * Compression is positive. Where the cases of the table meet, the later one stands: a stress s2
 * just below zero gives shares of 0.4 and 0.6. Nothing is computed at s2 = -3*s1 exactly.
 *
 * @param[in]  bl     width for the slenderness
 * @param[in]  w      width to reduce: the compressed part where s2 is tension
 * @param[in]  t      thickness
 * @param[in]  r1,r2  material, as trvro2
 * @param[in]  s1     stress at the more compressed edge
 * @param[in]  s2     stress at the other edge
 * @param[out] be1    effective width at the edge of s1
 * @param[out] be2    effective width at the other edge; both unwritten when both stresses are
 *                    within the tolerance, s1 is not positive, s2 is above s1 by more than the
 *                    tolerance, or s2 = -3*s1
 */
TRELVIN_ROUTINE trvef2(TrvIn bl, TrvIn w, TrvIn t, TrvIn r1, TrvIn r2, TrvIn s1, TrvIn s2,
                       TrvOut be1, TrvOut be2);

/* Outlines ----------------------------------------------------------------------------------- */

/**
 * I section with unequal flanges.
 *
 * @param[in]  H      height
 * @param[in]  B1,T1  width and thickness of flange 1, at the bottom
 * @param[in]  B2,T2  width and thickness of flange 2, at the top
 * @param[in]  TW     web thickness
 * @param[in]  q      value handed on with each polygon
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2  outline frame: np = 1, nv = (12)
 */
TRELVIN_ROUTINE trvsec_ia(TrvIn H, TrvIn B1, TrvIn B2, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn q,
                          TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                          TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                          TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                          TrvArrayOut q2);

/**
 * I section lying on its side.
 *
 * @param[in]  H      depth, along x
 * @param[in]  B1,T1  width and thickness of flange 1, on the left
 * @param[in]  B2,T2  width and thickness of flange 2, on the right
 * @param[in]  TW     web thickness
 * @param[in]  q      value handed on with each polygon
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2  outline frame: np = 1, nv = (12)
 */
TRELVIN_ROUTINE trvsec_h(TrvIn H, TrvIn B1, TrvIn B2, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn q,
                         TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                         TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                         TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                         TrvArrayOut q2);

/**
 * T section, flange at the top.
 *
 * @param[in]  B,TF  width and thickness of the flange
 * @param[in]  H     height
 * @param[in]  TW    stem thickness
 * @param[in]  q     value handed on with each polygon
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2  outline frame: np = 1, nv = (8)
 */
TRELVIN_ROUTINE trvsec_t(TrvIn B, TrvIn H, TrvIn TF, TrvIn TW, TrvIn q, TrvIntOut np,
                         TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code,
                         TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3,
                         TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2);

/**
 * Flat bar.
 *
 * nv is 12 although X and Y receive 4 vertices: provide arrays of 12 and read 4.
 *
 * @param[in]  B  width, an Integer
 * @param[in]  H  height
 * @param[in]  q  value handed on with each polygon
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2  outline frame: np = 1, nv = (12)
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
 * @param[in]  W,TP   width and thickness of the cover plate
 * @param[in]  D      depth of the I section, along x
 * @param[in]  P      height of its flanges
 * @param[in]  T1,T2  thicknesses of the left and the right flange
 * @param[in]  TW     web thickness
 * @param[in]  q      value handed on with each polygon
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2
 *             outline frame: np = 2, nv = (12, 4): solid and cell
 */
TRELVIN_ROUTINE trvsec_h1b(TrvIn W, TrvIn D, TrvIn P, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn TP,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2);

/**
 * Box girder with overhanging flanges.
 *
 * @param[in]  BT,TT  width and thickness of the top flange
 * @param[in]  BB,TB  width and thickness of the bottom flange
 * @param[in]  H      overall height
 * @param[in]  TW     thickness of each web
 * @param[in]  G      clear distance of the webs
 * @param[in]  q      value handed on with each polygon
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2
 *             outline frame: np = 2, nv = (12, 4): solid and cell
 */
TRELVIN_ROUTINE trvsec_box(TrvIn BT, TrvIn BB, TrvIn TT, TrvIn TB, TrvIn H, TrvIn TW, TrvIn G,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2);

/**
 * Rectangular hollow section with sharp corners.
 *
 * @param[in]  B,H  width and height
 * @param[in]  T    wall thickness
 * @param[in]  q    value handed on with each polygon
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2
 *             outline frame: np = 2, nv = (4, 4): solid and cell
 */
TRELVIN_ROUTINE trvsec_rhs(TrvIn B, TrvIn H, TrvIn T, TrvIn q, TrvIntOut np, TrvIntArrayOut nv,
                           TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code, TrvArrayOut sign,
                           TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3, TrvArrayOut z4,
                           TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2);

/**
 * Two equal angles back to back, horizontal legs at the top.
 *
 * @param[in]  B,T   length and thickness of a horizontal leg
 * @param[in]  H,TV  height and thickness of a vertical leg
 * @param[in]  G     gap between the vertical legs
 * @param[in]  q     value handed on with each polygon
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2
 *             outline frame: np = 2, nv = (6, 6): two solids
 */
TRELVIN_ROUTINE trvsec_l2(TrvIn B, TrvIn H, TrvIn G, TrvIn T, TrvIn TV, TrvIn q, TrvIntOut np,
                          TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y, TrvIntArrayOut code,
                          TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2, TrvArrayOut z3,
                          TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1, TrvArrayOut q2);

/**
 * Top plate on a closed cell of two webs and a bottom plate between them.
 *
 * @param[in]  B,T  width and thickness of the top plate
 * @param[in]  H    height of the webs below the plate
 * @param[in]  BW   distance of the webs' outer faces
 * @param[in]  E    height of the bottom plate's underside above the webs' lower ends
 * @param[in]  TW   thickness of each web
 * @param[in]  TB   thickness of the bottom plate
 * @param[in]  q    value handed on with each polygon
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2
 *             outline frame: np = 2, nv = (12, 4): solid and cell
 */
TRELVIN_ROUTINE trvsec_tab(TrvIn B, TrvIn H, TrvIn BW, TrvIn E, TrvIn T, TrvIn TW, TrvIn TB,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2);

/**
 * Two flanges joined by two webs and a middle plate, closing two cells.
 *
 * @param[in]  B,TF     width and thickness of each flange
 * @param[in]  W        distance of the webs' outer faces
 * @param[in]  HI       clear distance of the flanges
 * @param[in]  TW1,TW2  thicknesses of the left and the right web
 * @param[in]  TM       thickness of the middle plate, at mid-height
 * @param[in]  q        value handed on with each polygon
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2
 *             outline frame: np = 3, nv = (12, 4, 4): solid, upper and lower cell
 */
TRELVIN_ROUTINE trvsec_h2b(TrvIn B, TrvIn W, TrvIn HI, TrvIn TW1, TrvIn TW2, TrvIn TM, TrvIn TF,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2);

/**
 * I section with unequal flanges, an eccentric web and 45-degree fillets.
 *
 * @param[in]  H      height
 * @param[in]  B1,T1  width and thickness of flange 1, at the bottom
 * @param[in]  B2,T2  width and thickness of flange 2, at the top
 * @param[in]  TW     web thickness
 * @param[in]  S1,S2  legs of the fillets between the web and flange 1, flange 2; 0 for none
 * @param[in]  E      distance of the web from the middle, to the right
 * @param[in]  q      value handed on with each polygon
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2  outline frame: np = 1, nv = (16)
 */
TRELVIN_ROUTINE trvsec_i(TrvIn H, TrvIn B1, TrvIn B2, TrvIn T1, TrvIn T2, TrvIn TW, TrvIn S1,
                         TrvIn S2, TrvIn E, TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X,
                         TrvArrayOut Y, TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1,
                         TrvArrayOut z2, TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5,
                         TrvArrayOut q1, TrvArrayOut q2);

/**
 * Channel open to the right, with lips turned inwards and folds turned back towards the web.
 *
 * Lengths are outer ones. A lip no longer than its flange is thick is none, and without a lip there
 * is no fold; a fold no longer than its lip is thick is none.
 *
 * @param[in]  H        depth
 * @param[in]  B1,B2    widths of flange 1, at the bottom, and flange 2, at the top
 * @param[in]  C1,C2    lengths of their lips
 * @param[in]  D1,D2    lengths of the folds at the lips' ends
 * @param[in]  TW       web thickness
 * @param[in]  T1,T2    thicknesses of the flanges
 * @param[in]  TC1,TC2  thicknesses of the lips
 * @param[in]  TD1,TD2  thicknesses of the folds
 * @param[in]  q        value handed on with each polygon
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2  outline frame: np = 1, nv = (16)
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
 * Thin-walled theory on the centre lines b = B - t, h = H - t, c = C - t/2. The channel is lipped
 * when C is above the tolerance.
 *
 * @param[in]  B   outer width of the flanges
 * @param[in]  H   outer depth
 * @param[in]  C   outer length of the lips, turned inwards; 0 for a plain channel
 * @param[in]  t   wall thickness
 * @param[out] e0  distance along the flanges; centroid and shear centre are on either side of the
 *                 web
 */
TRELVIN_ROUTINE trvshc_c(TrvIn B, TrvIn H, TrvIn C, TrvIn t, TrvOut e0);

/**
 * Warping constant of a channel; otherwise as trvshc_c.
 *
 * @param[in]  B   outer width of the flanges
 * @param[in]  H   outer depth
 * @param[in]  C   outer length of the lips, turned inwards; 0 for a plain channel
 * @param[in]  t   wall thickness
 * @param[out] Iw  warping constant, in the sixth power of the length unit
 */
TRELVIN_ROUTINE trvwar_c(TrvIn B, TrvIn H, TrvIn C, TrvIn t, TrvOut Iw);

/* Sections of thin plates -------------------------------------------------------------------- */

/**
 * Properties of an open section of thin plates.
 *
 * Each plate is given by its centre line and its thickness. The first starts anywhere, each further
 * one at an end of an earlier one, within the tolerance in each coordinate. Area, moments and
 * moduli are those of the plates as rectangles about their centre lines, overlaps at the joints
 * counted twice; shear centre, warping constant and sectorial coordinates are those of the centre
 * lines (V. Z. Vlasov, Thin-walled elastic beams). Formed in double precision and rounded once.
 *
 * @param[in]  n               number of plates
 * @param[in]  X1,Y1           arrays of n: starts of the centre lines
 * @param[in]  X2,Y2           arrays of n: ends of the centre lines
 * @param[in]  T               array of n: thicknesses
 * @param[out] A               area
 * @param[out] xs,ys           centroid
 * @param[out] Ix,Iy,Ixy       second moments about the centroid
 * @param[out] I1,I2,alpha     principal moments and direction, as trvinp gives them
 * @param[out] rx,ry           radii of gyration
 * @param[out] Wx1,Wx2         elastic moduli of the top and the bottom fibre
 * @param[out] Wy1,Wy2         elastic moduli of the right and the left fibre
 * @param[out] Wpx,Wpy         plastic moduli about the equal-area axes
 * @param[out] xp,yp           equal-area axes: the vertical one at xp, the horizontal one at yp
 * @param[out] It              torsion constant: sum of l*t^3/3
 * @param[out] Wt              torsion modulus: It over the greatest thickness
 * @param[out] xm,ym           shear centre; the centroid where all plates are on one line
 * @param[out] Iw              warping constant
 * @param[out] r0              polar radius of gyration about the shear centre
 * @param[out] W1,W2           arrays of n: normalised sectorial coordinate at the plates' starts
 *                             and ends, counter-clockwise positive
 * @param[out] status          0 done; -1 refused, nothing else is written: n < 1, or a length or a
 *                             thickness not above the tolerance; k > 0 plate k starts at no earlier
 *                             end or closes a cell: what is listed up to yp is written, the rest is
 *                             not
 */
TRELVIN_ROUTINE trvmxt(TrvIntIn n, TrvArrayIn X1, TrvArrayIn Y1, TrvArrayIn X2, TrvArrayIn Y2,
                       TrvArrayIn T, TrvOut A, TrvOut xs, TrvOut ys, TrvOut Ix, TrvOut Iy,
                       TrvOut Ixy, TrvOut I1, TrvOut I2, TrvOut alpha, TrvOut rx, TrvOut ry,
                       TrvOut Wx1, TrvOut Wx2, TrvOut Wy1, TrvOut Wy2, TrvOut Wpx, TrvOut Wpy,
                       TrvOut xp, TrvOut yp, TrvOut It, TrvOut Wt, TrvOut xm, TrvOut ym, TrvOut Iw,
                       TrvOut r0, TrvArrayOut W1, TrvArrayOut W2, TrvIntOut status);

/**
 * Properties of a flat bar, centred on the origin; otherwise as trvmxt.
 *
 * Torsion by Saint-Venant's series for the rectangle (S. Timoshenko, J. N. Goodier, Theory of
 * elasticity, article 109), to single precision; Iw = (B*H)^3/144, that of the warping across the
 * thickness.
 *
 * @param[in]  B            width, along x
 * @param[in]  H            height, along y
 * @param[out] A            area
 * @param[out] xs,ys        centroid: 0
 * @param[out] Ix,Iy,Ixy    second moments about the centroid
 * @param[out] I1,I2,alpha  principal moments and direction, as trvinp gives them
 * @param[out] rx,ry        radii of gyration
 * @param[out] Wx1,Wx2      elastic moduli of the top and the bottom fibre
 * @param[out] Wy1,Wy2      elastic moduli of the right and the left fibre
 * @param[out] Wpx,Wpy      plastic moduli
 * @param[out] xp,yp        equal-area axes: 0
 * @param[out] It           torsion constant
 * @param[out] Wt           torsion modulus: torque over the greatest shear stress
 * @param[out] xm,ym        shear centre: 0
 * @param[out] Iw           warping constant
 * @param[out] r0           polar radius of gyration
 * @param[out] W1,W2        arrays of 1: sectorial coordinate at the centre line's ends: 0
 * @param[out] status       0 done; -1 refused, nothing else is written: a side not above the
 *                          tolerance
 */
TRELVIN_ROUTINE trvmxt_fb(TrvIn B, TrvIn H, TrvOut A, TrvOut xs, TrvOut ys, TrvOut Ix, TrvOut Iy,
                          TrvOut Ixy, TrvOut I1, TrvOut I2, TrvOut alpha, TrvOut rx, TrvOut ry,
                          TrvOut Wx1, TrvOut Wx2, TrvOut Wy1, TrvOut Wy2, TrvOut Wpx, TrvOut Wpy,
                          TrvOut xp, TrvOut yp, TrvOut It, TrvOut Wt, TrvOut xm, TrvOut ym,
                          TrvOut Iw, TrvOut r0, TrvArrayOut W1, TrvArrayOut W2, TrvIntOut status);

#endif
