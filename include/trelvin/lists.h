/**
 * @file
 * Ordering, searching, matching and joining of lists.
 *
 * Positions count from 1. A count below 1 means an empty list.
 *
 *     float A[3] = {0, 0, 0}, B[3] = {1, 1, 1}, C[3] = {-5, 2, -1};
 *     int32_t n = 3, IDX[3], status;
 *     trvpor(&n, A, B, C, IDX, &status); // the lines y = 5, y = -2 and y = 1
 *     if (status == TRV_STATUS_DONE) printf("%d %d %d\n", (int)IDX[0], (int)IDX[1], (int)IDX[2]);
 *     // prints 2 3 1
 */
#ifndef TRELVIN_LISTS_H
#define TRELVIN_LISTS_H

#include "trelvin/calling.h"

/* Ordering ----------------------------------------------------------------------------------- */

/**
 * Sorts Reals ascending, in place.
 *
 * The result is that of a selection sort that takes the last of equal smallest entries: a NaN stays
 * where it is, the others are sorted around it, and which of -0 and 0 comes first follows from the
 * swaps.
 *
 * Cost: time grows with n, with n*log(n) where zeros of both signs occur. More than 32 entries take
 * 8*n bytes of the heap for the call. Where memory is short the sort is in place and takes
 * n*log(n), with NaNs or zeros of both signs n*n.
 *
 * Retains: nothing.
 *
 * @param[inout] V  array of n: entries
 * @param[in]    n  number of entries; below 1 nothing happens
 */
TRELVIN_ROUTINE trvord(TrvArrayInOut V, TrvIntIn n);

/**
 * Sorts Integers ascending, in place.
 *
 * Cost: time grows with n. More than 32 entries take 8*n bytes of the heap for the call; where
 * memory is short the sort is in place and takes n*log(n).
 *
 * Retains: nothing.
 *
 * @param[inout] V  array of n: entries
 * @param[in]    n  number of entries; below 1 nothing happens
 */
TRELVIN_ROUTINE trvord1(TrvIntArrayInOut V, TrvIntIn n);

/**
 * Positions of the entries of a list in ascending order; the list itself stays.
 *
 * Equal entries, -0 and 0 among them, are listed from the highest position to the lowest. The k-th
 * round finds the smallest entry and puts the largest of the list plus 1 in its place, for the
 * later rounds. Where that sum rounds to the largest (16777216 and beyond, infinity), an entry as
 * large as the largest is never used up: IDX(k) is then the position of the last number of the
 * list. A round finds nothing where the list holds a NaN at k, by then: a NaN at the head of the
 * list makes the sum a NaN.
 *
 * Cost: time grows with n. More than 512 entries take 16*n bytes of the heap for the call. If
 * memory is short, the result is the same, but the list is read anew for each 512 entries: time
 * grows with n*n.
 *
 * Retains: nothing.
 *
 * @param[in]  V    array of n: entries
 * @param[in]  n    number of entries
 * @param[out] IDX  array of n: IDX(k) is the position of the k-th smallest element; unwritten on a
 *                  condition: IDX(k) if its round finds nothing
 */
TRELVIN_ROUTINE trvordi(TrvArrayIn V, TrvIntIn n, TrvIntArrayOut IDX);

/**
 * Order of parallel lines by where they cross an axis.
 *
 * That is the y axis, at -C/B, or the x axis, at -C/A, where the first line is parallel to the y
 * axis and apart from it. Parallel and distinct is what trvlni finds between the first line and
 * each other one; a single line is ordered.
 *
 * Cost: time and memory are those of trvordi.
 *
 * Retains: nothing.
 *
 * @param[in]  n       number of lines
 * @param[in]  A,B,C   arrays of n: lines A*x + B*y + C = 0
 * @param[out] IDX     array of n: positions by ascending crossing, equal ones from the highest
 *                     position down, infinite and NaN ones as trvordi orders them; 1 ... n if
 *                     status is -1; unwritten on a condition: IDX(k) as trvordi leaves it
 * @param[out] status  outcome (TrvStatus): 0 done: IDX holds the order; -1 refused: the lines are
 *                     not a family of parallel and distinct lines, or n < 1
 */
TRELVIN_ROUTINE trvpor(TrvIntIn n, TrvArrayIn A, TrvArrayIn B, TrvArrayIn C, TrvIntArrayOut IDX,
                       TrvIntOut status);

/**
 * Puts the corners of a quadrilateral of space in cyclic order, in place.
 *
 * An order stands when the two triangles on its diagonal from the first corner turn the same way,
 * or one of them is degenerate. Tried are (1, 2, 3, 4), then (1, 2, 4, 3); else it is (1, 4, 2, 3).
 *
 * Retains: nothing.
 *
 * @param[inout] X,Y,Z  arrays of 4: corners, rearranged
 * @param[out]   ORD    array of 4: the corners' old positions in their new order
 */
TRELVIN_ROUTINE trvorv(TrvArrayInOut X, TrvArrayInOut Y, TrvArrayInOut Z, TrvIntArrayOut ORD);

/* Searching, matching and joining ------------------------------------------------------------ */

/**
 * All positions at which a list holds a value.
 *
 * Retains: nothing.
 *
 * @param[in]  n      number of entries; below 1 the list is empty
 * @param[in]  V      array of n: entries
 * @param[in]  key    value
 * @param[out] count  how many entries equal it
 * @param[out] pos    array of n, count used: their positions, ascending
 */
TRELVIN_ROUTINE trvsel1(TrvIntIn n, TrvIntArrayIn V, TrvIntIn key, TrvIntOut count,
                        TrvIntArrayOut pos);

/**
 * All pairs of entries of two lists that differ by at most a tolerance.
 *
 * Equal infinities have no difference and make no pair, and neither does anything at a tolerance
 * that is negative or NaN; here the merging routines differ.
 *
 * Cost: time grows with na+nb and the number of pairs, unless entries crowd within a few
 * tolerances: a crowd's are all compared. Takes up to 32*(na+nb) bytes of the heap for the call;
 * where memory is short all entries are compared.
 *
 * Retains: nothing.
 *
 * @param[in]  na     number of entries of A; below 1 there are none
 * @param[in]  A      array of na: entries
 * @param[in]  nb     number of entries of B; below 1 there are none
 * @param[in]  B      array of nb: entries
 * @param[out] count  number of pairs
 * @param[out] IA,IB  arrays of max(na+nb,na*nb): positions in A and in B, by A, then by B; first
 *                    elements 1 to na+nb, the sum of the counts as they are, are set to 0, and
 *                    those that are no pair stay 0; unwritten on a condition: elements beyond both
 *                    na+nb and count
 * @param[in]  tol    largest difference, itself included
 */
TRELVIN_ROUTINE trvmer13(TrvIntIn na, TrvArrayIn A, TrvIntIn nb, TrvArrayIn B, TrvIntOut count,
                         TrvIntArrayOut IA, TrvIntArrayOut IB, TrvIn tol);

/**
 * Joins two lists end to end. Entries are copied bit for bit, so Reals pass as well as Integers.
 *
 * Retains: nothing.
 *
 * @param[in]  na    number of entries of A; below 1 there are none
 * @param[in]  A     array of na: entries
 * @param[in]  nb    number of entries of B; below 1 there are none
 * @param[in]  B     array of nb: entries
 * @param[out] nout  number of entries written
 * @param[out] OUT   array of na+nb, nout used: A, then B
 */
TRELVIN_ROUTINE trvmer1(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                        TrvIntArrayOut OUT);

/**
 * Joins two lists end to end: trvmer1 under another name.
 *
 * Retains: nothing.
 *
 * @param[in]  na    number of entries of A; below 1 there are none
 * @param[in]  A     array of na: entries
 * @param[in]  nb    number of entries of B; below 1 there are none
 * @param[in]  B     array of nb: entries
 * @param[out] nout  number of entries written
 * @param[out] OUT   array of na+nb, nout used: A, then B
 */
TRELVIN_ROUTINE trvmer11(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                         TrvIntArrayOut OUT);

/**
 * Sorts Integers ascending and drops repeats, in place.
 *
 * Cost: time and memory are those of trvord1.
 *
 * Retains: nothing.
 *
 * @param[inout] V  array of n, n used: entries; unspecified beyond the new n
 * @param[inout] n  number of entries; unchanged if n < 1
 */
TRELVIN_ROUTINE trvmer2(TrvIntArrayInOut V, TrvIntInOut n);

/**
 * Sorts Reals ascending and drops each entry that agrees with the last one left, in place.
 *
 * Entries agree that are equal or differ by at most 1e-5. So a NaN agrees with nothing, an infinity
 * with itself. -0 comes before 0, NaNs come last and all stay.
 *
 * Cost: time grows with n. More than 32 entries take 8*n bytes of the heap for the call; where
 * memory is short the sort takes n*log(n).
 *
 * Retains: nothing.
 *
 * @param[inout] V  array of n, n used: entries; unspecified beyond the new n
 * @param[inout] n  number of entries; unchanged if n < 1
 */
TRELVIN_ROUTINE trvmer3(TrvArrayInOut V, TrvIntInOut n);

/**
 * Sorts Reals ascending and drops each entry that agrees with the last one left, in place.
 *
 * Entries agree that are equal or differ by at most the tolerance. So a NaN agrees with nothing, an
 * infinity with itself, and at a tolerance that is negative or NaN equal entries alone agree. -0
 * comes before 0, NaNs come last and all stay.
 *
 * Cost: time grows with n. More than 32 entries take 8*n bytes of the heap for the call; where
 * memory is short the sort takes n*log(n).
 *
 * Retains: nothing.
 *
 * @param[inout] V    array of n, n used: entries; unspecified beyond the new n
 * @param[inout] n    number of entries; unchanged if n < 1
 * @param[in]    tol  largest difference of a repeat, itself included; may be an entry of V
 */
TRELVIN_ROUTINE trvmer12(TrvArrayInOut V, TrvIntInOut n, TrvIn tol);

/**
 * Joins to a list those entries of another that it does not hold yet.
 *
 * Entries agree that are equal or differ by at most the tolerance. So a NaN agrees with nothing, an
 * infinity with itself, and at a tolerance that is negative or NaN equal entries alone agree.
 *
 * Cost: time grows with na+nb, unless entries crowd within a few tolerances: a crowd's are compared
 * with each other. Takes up to 48*(na+nb) bytes of the heap for the call; where memory is short all
 * entries are compared.
 *
 * Retains: nothing.
 *
 * @param[in]  na    number of entries of A; below 1 there are none
 * @param[in]  A     array of na: entries
 * @param[in]  nb    number of entries of B; below 1 there are none
 * @param[in]  B     array of nb: entries
 * @param[in]  tol   largest difference of entries that agree, itself included
 * @param[out] nout  number of entries written
 * @param[out] OUT   array of na+nb, nout used: A as it is, then the entries of B that agree with
 *                   none before them in OUT
 * @param[out] IB    array of nb: for each entry of B the first position in OUT that agrees with it,
 *                   or its own, for a NaN
 */
TRELVIN_ROUTINE trvmer4(TrvIntIn na, TrvArrayIn A, TrvIntIn nb, TrvArrayIn B, TrvIn tol,
                        TrvIntOut nout, TrvArrayOut OUT, TrvIntArrayOut IB);

/**
 * Entries of a list that another holds too.
 *
 * Cost: time grows with na+nb. More than 512 entries take up to 17*na+8*nb bytes of the heap for
 * the call; where memory is short, blocks of 512 are compared instead, on less than 16 KB of the
 * stack.
 *
 * Retains: nothing.
 *
 * @param[in]  na    number of entries of A; below 1 there are none
 * @param[in]  A     array of na: entries
 * @param[in]  nb    number of entries of B; below 1 there are none
 * @param[in]  B     array of nb: entries
 * @param[out] nout  number of entries written
 * @param[out] OUT   array of na, nout used: the entries of A that B holds, repeats too, in A's
 *                   order
 */
TRELVIN_ROUTINE trvmer14(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                         TrvIntArrayOut OUT);

/**
 * Removes from a list the entries that another holds, in place.
 *
 * Cost: time grows with na+nb. More than 512 entries take up to 17*na+8*nb bytes of the heap for
 * the call; where memory is short, blocks of 512 are compared instead, on less than 16 KB of the
 * stack.
 *
 * Retains: nothing.
 *
 * @param[inout] na     number of entries of A; unchanged if na < 1
 * @param[inout] A      array of na, na used: those that stay, in their order; unspecified beyond
 *                      the new na
 * @param[in]    nb     number of entries of B; below 1 there are none
 * @param[in]    B      array of nb: entries
 * @param[out]   count  how many were removed
 */
TRELVIN_ROUTINE trvmer15(TrvIntInOut na, TrvIntArrayInOut A, TrvIntIn nb, TrvIntArrayIn B,
                         TrvIntOut count);

/**
 * Drops repeated vertices of a closed outline, in place.
 *
 * A vertex that agrees with the last one left is dropped, and at the end those that agree with the
 * first. Vertices agree whose x and y both are equal or differ by at most the tolerance. So a NaN
 * agrees with nothing, an infinity with itself, and at a tolerance that is negative or NaN equal
 * coordinates alone agree.
 *
 * Cost: time grows with n.
 *
 * Retains: nothing.
 *
 * @param[inout] X,Y  arrays of n, n used: vertices; unspecified beyond the new n
 * @param[inout] n    number of vertices; unchanged if n < 1
 * @param[in]    tol  largest difference of either coordinate, itself included
 */
TRELVIN_ROUTINE trvmer16(TrvArrayInOut X, TrvArrayInOut Y, TrvIntInOut n, TrvIn tol);

/* Points ------------------------------------------------------------------------------------- */

/**
 * All pairs of points of two lists that agree within a tolerance in each coordinate.
 *
 * Coordinates agree that are equal or differ by at most the tolerance. So a NaN agrees with
 * nothing, an infinity with itself, and at a tolerance that is negative or NaN equal coordinates
 * alone agree.
 *
 * Cost: time grows with na+nb and the number of pairs, unless points crowd within a few tolerances:
 * a crowd's are all compared. Takes up to 32*(na+nb) bytes of the heap for the call; where memory
 * is short all points are compared.
 *
 * Retains: nothing.
 *
 * @param[in]  na        number of points of A; below 1 there are none
 * @param[in]  XA,YA,ZA  arrays of na: points of A
 * @param[in]  nb        number of points of B; below 1 there are none
 * @param[in]  XB,YB,ZB  arrays of nb: points of B
 * @param[in]  tol       largest difference of a coordinate, itself included
 * @param[out] count     number of pairs
 * @param[out] IA,IB     arrays of na*nb, count used: positions in A and in B, by A, then by B
 * @param[out] status    which points of A have a partner in B: 0 no_pair: none has; 1 some_pairs:
 *                       some have; 2 all_paired: every one has
 */
TRELVIN_ROUTINE trvptp1(TrvIntIn na, TrvArrayIn XA, TrvArrayIn YA, TrvArrayIn ZA, TrvIntIn nb,
                        TrvArrayIn XB, TrvArrayIn YB, TrvArrayIn ZB, TrvIn tol, TrvIntOut count,
                        TrvIntArrayOut IA, TrvIntArrayOut IB, TrvIntOut status);

/**
 * Merges three lists of points into one list of places.
 *
 * A point is at the first place it agrees with, else it makes a new one. Points agree when each of
 * their coordinates is equal or differs by at most the tolerance. So a NaN agrees with nothing, an
 * infinity with itself, and at a tolerance that is negative or NaN equal coordinates alone agree.
 *
 * Cost: time grows with na+nb+nc and the number of pairs, unless points crowd within a few
 * tolerances: a crowd's are all compared. Takes up to 48*(na+nb+nc) bytes of the heap for the call;
 * where memory is short all points are compared.
 *
 * Retains: nothing.
 *
 * @param[in]  na        number of points of A; below 1 there are none
 * @param[in]  XA,YA,ZA  arrays of na: points of A
 * @param[in]  nb        number of points of B; below 1 there are none
 * @param[in]  XB,YB,ZB  arrays of nb: points of B
 * @param[in]  nc        number of points of C; below 1 there are none
 * @param[in]  XC,YC,ZC  arrays of nc: points of C
 * @param[in]  tol       largest difference of a coordinate, itself included
 * @param[out] nab       number of pairs of A and B
 * @param[out] IAB,JAB   arrays of na*nb, nab used: positions in A and in B, by A, then by B
 * @param[out] nbc       number of pairs of B and C
 * @param[out] IBC,JBC   arrays of nb*nc, nbc used: positions in B and in C, by B, then by C
 * @param[out] nca       number of pairs of C and A
 * @param[out] ICA,JCA   arrays of nc*na, nca used: positions in C and in A, by C, then by A
 * @param[out] nout      number of places
 * @param[out] XO,YO,ZO  arrays of na+nb+nc, nout used: places, in the order of A, B, C
 * @param[out] MA        array of na: the place of each point of A
 * @param[out] MB        array of nb: the place of each point of B
 * @param[out] MC        array of nc: the place of each point of C
 * @param[in]  k         a place
 * @param[out] nk        number of points at it; 0 where there is no such place
 * @param[out] PK        array of na+nb+nc, nk used: their positions, counted on through A, B and C
 * @param[out] nz        number of levels
 * @param[out] ZL        array of na+nb+nc, nz used: the distinct z of the places, ascending, as
 *                       trvmer12 leaves them; unspecified up to nout
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
 * and the first and second, third and fourth crossing and so on bound the inside. Formed in double
 * precision and rounded once.
 *
 * Cost: time grows with n. More than 32 crossings take up to 8*n bytes of the heap for the call;
 * where memory is short their sort takes n*log(n).
 *
 * Retains: nothing.
 *
 * @param[in]  X,Y    arrays of n: vertices
 * @param[in]  n      number of vertices; below 3 nothing is crossed
 * @param[in]  y0     height of the line
 * @param[out] count  number of crossings
 * @param[out] XC     array of n, count used: their x, ascending; -0 before 0, NaNs last, which
 *                    vertices that are not finite give
 */
TRELVIN_ROUTINE trvppp(TrvArrayIn X, TrvArrayIn Y, TrvIntIn n, TrvIn y0, TrvIntOut count,
                       TrvArrayOut XC);

/**
 * Where the segment from P1 to P2 crosses a closed outline.
 *
 * A crossing is where the outline passes from one side of the segment's line to the other, at a
 * vertex on the line too. An outline that touches the line, or runs along it, and goes back to its
 * side does not cross. One that runs along it and leaves to the other side crosses once, where the
 * segment, seen from P1, first meets the run, whichever way the outline goes round. A crossing
 * counts when P1 and P2 are not both on the same side of the edge crossed: ends on the outline
 * count. Sides are formed in double precision, and are exact where differences of coordinates take
 * no more than 26 bits, whole numbers up to 33554432 for example; points are formed in double
 * precision and rounded once.
 *
 * Cost: time grows with n, and with count*log(count); nothing is allocated.
 *
 * Retains: nothing.
 *
 * @param[in]  X,Y     arrays of n: vertices
 * @param[in]  n       number of vertices
 * @param[in]  x1,y1   P1
 * @param[in]  x2,y2   P2
 * @param[out] count   number of crossings; 0 when status is -1
 * @param[out] XI,YI   arrays of n, count used: points
 * @param[out] T       array of n, count used: their places on the segment, ascending from 0 at P1
 *                     to 1 at P2
 * @param[out] EDGE    array of n, count used: the edges crossed, ascending where places are equal;
 *                     edge i runs from vertex i to vertex i+1; at a vertex or a run the edge by
 *                     which the outline leaves the line
 * @param[out] status  where P1 is: 1 inside: P1 is inside the outline by the even-odd rule; 0
 *                     outside: P1 is outside the outline by the even-odd rule; -1 refused: n < 3,
 *                     or P1 and P2 coincide within the tolerance in both coordinates
 */
TRELVIN_ROUTINE trvpin(TrvArrayIn X, TrvArrayIn Y, TrvIntIn n, TrvIn x1, TrvIn y1, TrvIn x2,
                       TrvIn y2, TrvIntOut count, TrvArrayOut XI, TrvArrayOut YI, TrvArrayOut T,
                       TrvIntArrayOut EDGE, TrvIntOut status);

#endif
