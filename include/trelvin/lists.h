/**
 * @file
 * Ordering, searching, matching and joining of lists.
 *
 * Positions count from 1. A count below 1 means an empty list.
 */
#ifndef TRELVIN_LISTS_H
#define TRELVIN_LISTS_H

#include "trelvin/frame.h"

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
 * @param[out] IDX  array of n: IDX(k) is the position of the k-th smallest entry; unwritten when
 *                  n < 1 or memory is short; IDX(k) alone is unwritten when no entry compares (NaN)
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
 * A then B; entries up to na+nb that are no pair are zero
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

#endif
