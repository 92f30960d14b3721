/**
 * @file
 * Outlines of steel profiles.
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

#include "trelvin/frame.h"

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
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2  outline frame:
 *             np = 2, nv = (12, 4): solid and cell
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
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2  outline frame:
 *             np = 2, nv = (12, 4): solid and cell
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
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2  outline frame:
 *             np = 2, nv = (4, 4): solid and cell
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
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2  outline frame:
 *             np = 2, nv = (6, 6): two solids
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
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2  outline frame:
 *             np = 2, nv = (12, 4): solid and cell
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
 * @param[out] np,nv,X,Y,code,sign,z1,z2,z3,z4,z5,q1,q2  outline frame:
 *             np = 3, nv = (12, 4, 4): solid, upper and lower cell
 */
TRELVIN_ROUTINE trvsec_h2b(TrvIn B, TrvIn W, TrvIn HI, TrvIn TW1, TrvIn TW2, TrvIn TM, TrvIn TF,
                           TrvIn q, TrvIntOut np, TrvIntArrayOut nv, TrvArrayOut X, TrvArrayOut Y,
                           TrvIntArrayOut code, TrvArrayOut sign, TrvArrayOut z1, TrvArrayOut z2,
                           TrvArrayOut z3, TrvArrayOut z4, TrvArrayOut z5, TrvArrayOut q1,
                           TrvArrayOut q2);

#endif
