/**
 * @file
 * Ordering, searching, matching and joining of lists.
 *
 * Positions count from 1. A count below 1 means an empty list.
 */
#ifndef TRELVIN_LISTS_H
#define TRELVIN_LISTS_H

#include "trelvin/calling.h"

/* Ordering ----------------------------------------------------------------------------------- */

/**
 * Sorts Reals ascending, in place.
 *
 * A selection sort whose last smallest entry wins: only the signs of equal zeros and the places of
 * NaNs tell. A NaN is never smaller and stays where it is when its turn comes. Quadratic in n.
 *
 * @param[inout] V  array of n
 * @param[in]    n  number of entries; below 1 nothing happens
 */
TRELVIN_ROUTINE trvord(TrvArrayInOut V, TrvIntIn n);

/**
 * Sorts Integers ascending, in place. Quadratic in n.
 *
 * @param[inout] V  array of n
 * @param[in]    n  number of entries; below 1 nothing happens
 */
TRELVIN_ROUTINE trvord1(TrvIntArrayInOut V, TrvIntIn n);

/**
 * Positions of the entries of a list in ascending order; the list itself stays.
 *
 * Equal entries are listed from the highest position to the lowest. An entry that is found is
 * marked by the largest value plus 1: where that sum rounds to the largest value (16777216 and
 * beyond), a position may be repeated. Quadratic in n; allocates n Reals for the call.
 *
 * @param[in]  V    array of n
 * @param[in]  n    number of entries
 * @param[out] IDX  array of n: IDX(k) is the position of the k-th smallest entry; unwritten when n
 *                  < 1 or memory is short; IDX(k) alone is unwritten when no entry compares (NaN)
 */
TRELVIN_ROUTINE trvordi(TrvArrayIn V, TrvIntIn n, TrvIntArrayOut IDX);

/**
 * Order of parallel lines by where they cross an axis.
 *
 * That is the y axis, at -C/B, or the x axis, at -C/A, where the first line is parallel to the y
 * axis and apart from it. Parallel and distinct is what trvlni finds between the first line and
 * each other one.
 *
 * @param[in]  n       number of lines
 * @param[in]  A,B,C   arrays of n: lines A*x + B*y + C = 0
 * @param[out] IDX     array of n: positions by ascending crossing, equal ones from the highest
 *                     position down (trvordi); 1 ... n when status is -1; unwritten when n < 1, or
 *                     when memory is short for an order
 * @param[out] status  0 ordered; -1 not a family of parallel and distinct lines, or n < 1
 */
TRELVIN_ROUTINE trvpor(TrvIntIn n, TrvArrayIn A, TrvArrayIn B, TrvArrayIn C, TrvIntArrayOut IDX,
                       TrvIntOut status);

/**
 * Puts the corners of a quadrilateral of space in cyclic order, in place.
 *
 * An order stands when the two triangles on its diagonal from the first corner turn the same way,
 * or one of them is degenerate. Tried are (1, 2, 3, 4), then (1, 2, 4, 3); else it is (1, 4, 2, 3).
 *
 * @param[inout] X,Y,Z  arrays of 4: corners, rearranged
 * @param[out]   ORD    array of 4: the corners' old positions in their new order
 */
TRELVIN_ROUTINE trvorv(TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z, TrvIntArrayOut ORD);

/* Searching, matching and joining ------------------------------------------------------------ */

/**
 * All positions at which a list holds a value.
 *
 * @param[in]  n      number of entries
 * @param[in]  V      array of n
 * @param[in]  key    value
 * @param[out] count  how many entries equal it
 * @param[out] pos    array of up to n: their positions, ascending; unwritten beyond count
 */
TRELVIN_ROUTINE trvsel1(TrvIntIn n, TrvIntArrayIn V, TrvIntIn key, TrvIntOut count,
                        TrvIntArrayOut pos);

/**
 * All pairs of entries of two lists that agree within a tolerance.
 *
 * @param[in]  na     number of entries of A
 * @param[in]  A      array of na
 * @param[in]  nb     number of entries of B
 * @param[in]  B      array of nb
 * @param[out] count  number of pairs
 * @param[out] IA,IB  arrays of na+nb, and of count where that is more: positions in A and in B, by
 *                    A then B; entries up to na+nb that are no pair are zero
 * @param[in]  tol    largest difference, itself included
 */
TRELVIN_ROUTINE trvmer13(TrvIntIn na, TrvArrayIn A, TrvIntIn nb, TrvArrayIn B, TrvIntOut count,
                         TrvIntArrayOut IA, TrvIntArrayOut IB, TrvIn tol);

/**
 * Joins two lists end to end. Entries are copied bit for bit, so Reals pass as well as Integers.
 *
 * @param[in]  na    number of entries of A
 * @param[in]  A     array of na
 * @param[in]  nb    number of entries of B
 * @param[in]  B     array of nb
 * @param[out] nout  number of entries written
 * @param[out] OUT   array of na+nb: A, then B
 */
TRELVIN_ROUTINE trvmer1(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                        TrvIntArrayOut OUT);

/**
 * Joins two lists end to end: trvmer1 under another name.
 *
 * @param[in]  na    number of entries of A
 * @param[in]  A     array of na
 * @param[in]  nb    number of entries of B
 * @param[in]  B     array of nb
 * @param[out] nout  number of entries written
 * @param[out] OUT   array of na+nb: A, then B
 */
TRELVIN_ROUTINE trvmer11(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                         TrvIntArrayOut OUT);

/**
 * Sorts Integers ascending and drops repeats, in place.
 *
 * @param[inout] V  array of n; unspecified beyond the new n
 * @param[inout] n  number of entries; below 1 nothing happens
 */
TRELVIN_ROUTINE trvmer2(TrvIntArrayInOut V, TrvIntInOut n);

/**
 * Sorts Reals ascending and drops repeats, in place: trvmer12 with the tolerance of the library.
 *
 * @param[inout] V  array of n; unspecified beyond the new n
 * @param[inout] n  number of entries; below 1 nothing happens
 */
TRELVIN_ROUTINE trvmer3(TrvArrayInOut V, TrvIntInOut n);

/**
 * Sorts Reals ascending and drops each entry within a tolerance of the last one kept, in place.
 *
 * -0 comes before 0, NaNs come last and are all kept.
 *
 * @param[inout] V    array of n; unspecified beyond the new n
 * @param[inout] n    number of entries; below 1 nothing happens
 * @param[in]    tol  largest difference of a repeat, itself included
 */
TRELVIN_ROUTINE trvmer12(TrvArrayInOut V, TrvIntInOut n, TrvIn tol);

/**
 * Joins to a list those entries of another that it does not hold yet.
 *
 * @param[in]  na    number of entries of A
 * @param[in]  A     array of na
 * @param[in]  nb    number of entries of B
 * @param[in]  B     array of nb
 * @param[in]  tol   largest difference of equal entries, itself included
 * @param[out] nout  number of entries written
 * @param[out] OUT   array of na+nb: A, then the entries of B that agree with none before them
 * @param[out] IB    array of nb: for each entry of B the first position in OUT that agrees with it
 */
TRELVIN_ROUTINE trvmer4(TrvIntIn na, TrvArrayIn A, TrvIntIn nb, TrvArrayIn B, TrvIn tol,
                        TrvIntOut nout, TrvArrayOut OUT, TrvIntArrayOut IB);

/**
 * Entries of a list that another holds too.
 *
 * @param[in]  na    number of entries of A
 * @param[in]  A     array of na
 * @param[in]  nb    number of entries of B
 * @param[in]  B     array of nb
 * @param[out] nout  number of entries written
 * @param[out] OUT   array of up to na: the entries of A that B holds, in A's order
 */
TRELVIN_ROUTINE trvmer14(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                         TrvIntArrayOut OUT);

/**
 * Removes from a list the entries that another holds, in place.
 *
 * @param[inout] na     number of entries of A
 * @param[inout] A      array of na: those that stay, in their order; unspecified beyond the new na
 * @param[in]    nb     number of entries of B
 * @param[in]    B      array of nb
 * @param[out]   count  how many were removed
 */
TRELVIN_ROUTINE trvmer15(TrvIntInOut na, TrvIntArrayInOut A, TrvIntIn nb, TrvIntArrayIn B,
                         TrvIntOut count);

/**
 * Drops repeated vertices of a closed outline, in place.
 *
 * A point that agrees with the last one kept is dropped, and at the end those that agree with the
 * first.
 *
 * @param[inout] X,Y  arrays of n: vertices; unspecified beyond the new n
 * @param[inout] n    number of vertices; below 1 nothing happens
 * @param[in]    tol  largest difference of either coordinate of a repeat, itself included
 */
TRELVIN_ROUTINE trvmer16(TrvArrayInOut X, TrvArrayInOut Y, TrvIntInOut n, TrvIn tol);

/* Points ------------------------------------------------------------------------------------- */

/**
 * All pairs of points of two lists that agree within a tolerance in each coordinate.
 *
 * @param[in]  na        number of points of A
 * @param[in]  XA,YA,ZA  arrays of na: points of A
 * @param[in]  nb        number of points of B
 * @param[in]  XB,YB,ZB  arrays of nb: points of B
 * @param[in]  tol       largest difference of a coordinate, itself included
 * @param[out] count     number of pairs
 * @param[out] IA,IB     arrays of up to na*nb: positions in A and in B, by A, then by B; unwritten
 *                       beyond count
 * @param[out] status    0 no pair; 1 some; 2 every point of A has a partner
 */
TRELVIN_ROUTINE trvptp1(TrvIntIn na, TrvArrayIn XA, TrvArrayIn YA, TrvArrayIn ZA, TrvIntIn nb,
                        TrvArrayIn XB, TrvArrayIn YB, TrvArrayIn ZB, TrvIn tol, TrvIntOut count,
                        TrvIntArrayOut IA, TrvIntArrayOut IB, TrvIntOut status);

/**
 * Merges three lists of points into one list of places.
 *
 * A point is at the first place it agrees with within the tolerance in each coordinate, else it
 * makes a new one. N stands for na+nb+nc.
 *
 * @param[in]  na              number of points of A
 * @param[in]  XA,YA,ZA        arrays of na: points of A
 * @param[in]  nb              number of points of B
 * @param[in]  XB,YB,ZB        arrays of nb: points of B
 * @param[in]  nc              number of points of C
 * @param[in]  XC,YC,ZC        arrays of nc: points of C
 * @param[in]  tol             largest difference of a coordinate, itself included
 * @param[out] nab,IAB,JAB     pairs of A and B, as trvptp1 gives them
 * @param[out] nbc,IBC,JBC     pairs of B and C
 * @param[out] nca,ICA,JCA     pairs of C and A
 * @param[out] nout            number of places
 * @param[out] XO,YO,ZO        arrays of N: places, in the order of A, B, C; unwritten beyond nout
 * @param[out] MA,MB,MC        arrays of na, nb and nc: the place of each point
 * @param[in]  k               a place
 * @param[out] nk              number of points at it; 0 where there is no such place
 * @param[out] PK              array of up to N: their positions, counted on through A, B and C
 * @param[out] nz              number of levels
 * @param[out] ZL              array of N: the distinct z of the places, ascending (trvmer12);
 *                             unspecified beyond nz
 */
TRELVIN_ROUTINE trvptp2(TrvIntIn na, TrvArrayIn XA, TrvArrayIn YA, TrvArrayIn ZA, TrvIntIn nb,
                        TrvArrayIn XB, TrvArrayIn YB, TrvArrayIn ZB, TrvIntIn nc, TrvArrayIn XC,
                        TrvArrayIn YC, TrvArrayIn ZC, TrvIn tol, TrvIntOut nab, TrvIntArrayOut IAB,
                        TrvIntArrayOut JAB, TrvIntOut nbc, TrvIntArrayOut IBC, TrvIntArrayOut JBC,
                        TrvIntOut nca, TrvIntArrayOut ICA, TrvIntArrayOut JCA, TrvIntOut nout,
                        TrvArrayOut XO, TrvArrayOut YO, TrvArrayOut ZO, TrvIntArrayOut MA,
                        TrvIntArrayOut MB, TrvIntArrayOut MC, TrvIntIn k, TrvIntOut nk,
                        TrvIntArrayOut PK, TrvIntOut nz, TrvArrayOut ZL);

/* Crossings of an outline -------------------------------------------------------------------- */

/**
 * Where the horizontal line y = y0 crosses a closed outline.
 *
 * An edge counts from its lower end, included, to its upper end, excluded. So the count is even,
 * and the first and second, third and fourth crossing and so on bound the inside.
 *
 * @param[in]  X,Y    arrays of n: vertices
 * @param[in]  n      number of vertices; below 3 nothing is crossed
 * @param[in]  y0     height of the line
 * @param[out] count  number of crossings
 * @param[out] XC     array of up to n: their x, ascending; unwritten beyond count
 */
TRELVIN_ROUTINE trvppp(TrvArrayIn X, TrvArrayIn Y, TrvIntIn n, TrvIn y0, TrvIntOut count,
                       TrvArrayOut XC);

/**
 * Where the segment from P1 to P2 crosses a closed outline.
 *
 * A crossing is where the outline passes from one side of the segment's line to the other, at a
 * vertex on the line too; an outline that touches the line and stays on its side does not cross.
 * Formed in double precision and rounded once.
 *
 * @param[in]  X,Y     arrays of n: vertices
 * @param[in]  n       number of vertices
 * @param[in]  x1,y1   P1
 * @param[in]  x2,y2   P2
 * @param[out] count   number of crossings; 0 when status is -1
 * @param[out] XI,YI   arrays of up to n: points
 * @param[out] T       array of up to n: their places on the segment, ascending from 0 at P1 to 1 at
 *                     P2
 * @param[out] EDGE    array of up to n: the edges crossed; edge i runs from vertex i to vertex i+1
 * @param[out] status  1 P1 is inside, by the even-odd rule of trvppp; 0 it is not; -1 refused: n <
 *                     3, or P1 and P2 coincide within the tolerance in both coordinates
 */
TRELVIN_ROUTINE trvpin(TrvArrayIn X, TrvArrayIn Y, TrvIntIn n, TrvIn x1, TrvIn y1, TrvIn x2,
                       TrvIn y2, TrvIntOut count, TrvArrayOut XI, TrvArrayOut YI, TrvArrayOut T,
                       TrvIntArrayOut EDGE, TrvIntOut status);

#endif
