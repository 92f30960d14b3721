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
 * The result is that of a selection sort that takes the last of equal smallest elements. A NaN
 * stays where it is, and the other elements are sorted around it. The order of -0 and 0 depends on
 * the swaps.
 *
 * Cost: time grows with n, with n*log(n) if there are zeros of both signs. More than 32 elements
 * take 8*n bytes of the heap for the call. If these cannot be allocated, the sort is in place and
 * takes n*log(n), with NaNs or zeros of both signs n*n.
 *
 * Retains: nothing.
 *
 * @param[inout] V  array of n: elements
 * @param[in]    n  number of elements; below 1 nothing happens
 */
TRELVIN_ROUTINE trvord(TrvArrayInOut V, TrvIntIn n);

/**
 * Sorts Integers ascending, in place.
 *
 * Cost: time grows with n. More than 32 elements take 8*n bytes of the heap for the call. If these
 * cannot be allocated, the sort is in place and takes n*log(n).
 *
 * Retains: nothing.
 *
 * @param[inout] V  array of n: elements
 * @param[in]    n  number of elements; below 1 nothing happens
 */
TRELVIN_ROUTINE trvord1(TrvIntArrayInOut V, TrvIntIn n);

/**
 * Positions of the elements of a list in ascending order; the list itself is not changed.
 *
 * Equal elements, also -0 and 0, are listed from the highest position to the lowest. Round k finds
 * the smallest element and replaces it in a copy of the list by the largest plus 1, for the later
 * rounds.
 *
 * Caution: if largest plus 1 rounds to the largest (16777216 and beyond, infinity), the largest
 * elements are found again in later rounds: IDX(k) is then the position of the last number of the
 * list. Round k finds nothing if element k of the copy is NaN. That is so for a NaN of the list. If
 * the first element is NaN, largest plus 1 is NaN too, and so is every element that an earlier
 * round has found.
 *
 * Cost: time grows with n. More than 512 elements take 16*n bytes of the heap for the call. If
 * these cannot be allocated, the result is the same, but the list is read again for each 512
 * elements, and time grows with n*n.
 *
 * Retains: nothing.
 *
 * @param[in]  V    array of n: elements
 * @param[in]  n    number of elements
 * @param[out] IDX  array of n: IDX(k) is the position of the k-th smallest element; unwritten on a
 *                  condition: IDX(k) if its round finds nothing
 */
TRELVIN_ROUTINE trvordi(TrvArrayIn V, TrvIntIn n, TrvIntArrayOut IDX);

/**
 * Order of parallel lines by their intersections with an axis.
 *
 * The lines intersect the y axis at -C/B. If the first line is parallel to the y axis and distinct
 * from it, the intersections with the x axis, at -C/A, are used instead. Each other line must be
 * parallel to the first line and distinct from it (trvlni). A single line is always in order.
 *
 * Cost: time and memory are those of trvordi.
 *
 * Retains: nothing.
 *
 * @param[in]  n       number of lines
 * @param[in]  A,B,C   arrays of n: lines A*x + B*y + C = 0
 * @param[out] IDX     array of n: positions of the lines by ascending intersection, equal
 *                     intersections from the highest position down, infinite and NaN intersections
 *                     as trvordi orders them; 1 ... n if status is -1; unwritten on a condition:
 *                     IDX(k) as trvordi leaves it
 * @param[out] status  outcome (TrvStatus): 0 done: IDX holds the order; -1 refused: the lines are
 *                     not a family of parallel and distinct lines, or n < 1
 */
TRELVIN_ROUTINE trvpor(TrvIntIn n, TrvArrayIn A, TrvArrayIn B, TrvArrayIn C, TrvIntArrayOut IDX,
                       TrvIntOut status);

/**
 * Puts the corners of a quadrilateral of space in cyclic order, in place.
 *
 * An order is accepted if the two triangles on the diagonal from its first corner have the same
 * orientation, or one of them is degenerate. The orders (1, 2, 3, 4) and (1, 2, 4, 3) are tried. If
 * neither is accepted, the result is (1, 4, 2, 3).
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
 * @param[in]  n      number of elements; below 1 the list is empty
 * @param[in]  V      array of n: elements
 * @param[in]  key    value
 * @param[out] count  number of elements equal to key
 * @param[out] pos    array of n, count used: positions of these elements, ascending
 */
TRELVIN_ROUTINE trvsel1(TrvIntIn n, TrvIntArrayIn V, TrvIntIn key, TrvIntOut count,
                        TrvIntArrayOut pos);

/**
 * All pairs of elements of two lists that differ by at most a tolerance.
 *
 * Caution: equal infinities are no pair here, since their difference is NaN. If the tolerance is
 * negative or NaN, there are no pairs, even of equal elements. The merging routines (trvmer4,
 * trvmer12) accept equal elements in these cases.
 *
 * Cost: time grows with na+nb and the number of pairs, except for clusters of elements within a few
 * tolerances: all elements of a cluster are compared. Takes up to 32*(na+nb) bytes of the heap for
 * the call. If these cannot be allocated, all elements are compared.
 *
 * Retains: nothing.
 *
 * @param[in]  na     number of elements of A; below 1 there are none
 * @param[in]  A      array of na: elements
 * @param[in]  nb     number of elements of B; below 1 there are none
 * @param[in]  B      array of nb: elements
 * @param[out] count  number of pairs
 * @param[out] IA,IB  arrays of max(na+nb,na*nb): positions in A and in B, sorted by A, then by B;
 *                    elements 1 to na+nb are first set to 0 (with the counts as given, even if one
 *                    is negative), then the pairs are written over them; unwritten on a condition:
 *                    elements beyond both na+nb and count
 * @param[in]  tol    largest difference (inclusive)
 */
TRELVIN_ROUTINE trvmer13(TrvIntIn na, TrvArrayIn A, TrvIntIn nb, TrvArrayIn B, TrvIntOut count,
                         TrvIntArrayOut IA, TrvIntArrayOut IB, TrvIn tol);

/**
 * Joins two lists end to end. Elements are copied bit for bit, so the lists may also hold Reals.
 *
 * Retains: nothing.
 *
 * @param[in]  na    number of elements of A; below 1 there are none
 * @param[in]  A     array of na: elements
 * @param[in]  nb    number of elements of B; below 1 there are none
 * @param[in]  B     array of nb: elements
 * @param[out] nout  number of elements written
 * @param[out] OUT   array of na+nb, nout used: A, then B
 */
TRELVIN_ROUTINE trvmer1(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                        TrvIntArrayOut OUT);

/**
 * Joins two lists end to end: trvmer1 under another name.
 *
 * Retains: nothing.
 *
 * @param[in]  na    number of elements of A; below 1 there are none
 * @param[in]  A     array of na: elements
 * @param[in]  nb    number of elements of B; below 1 there are none
 * @param[in]  B     array of nb: elements
 * @param[out] nout  number of elements written
 * @param[out] OUT   array of na+nb, nout used: A, then B
 */
TRELVIN_ROUTINE trvmer11(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                         TrvIntArrayOut OUT);

/**
 * Sorts Integers ascending and removes duplicates, in place.
 *
 * Cost: time and memory are those of trvord1.
 *
 * Retains: nothing.
 *
 * @param[inout] V  array of n, n used: elements; unspecified beyond the new n
 * @param[inout] n  number of elements; unchanged if n < 1
 */
TRELVIN_ROUTINE trvmer2(TrvIntArrayInOut V, TrvIntInOut n);

/**
 * Sorts Reals ascending and removes duplicates within a tolerance, in place.
 *
 * Each element that matches the last one kept is removed. Two elements match if they are equal or
 * differ by at most 1e-5. A NaN matches nothing, an infinity matches itself. -0 comes before 0.
 * NaNs come last, and all are kept.
 *
 * Cost: time grows with n. More than 32 elements take 8*n bytes of the heap for the call. If these
 * cannot be allocated, the sort takes n*log(n).
 *
 * Retains: nothing.
 *
 * @param[inout] V  array of n, n used: elements; unspecified beyond the new n
 * @param[inout] n  number of elements; unchanged if n < 1
 */
TRELVIN_ROUTINE trvmer3(TrvArrayInOut V, TrvIntInOut n);

/**
 * Sorts Reals ascending and removes duplicates within a tolerance, in place.
 *
 * Each element that matches the last one kept is removed. Two elements match if they are equal or
 * differ by at most tol. A NaN matches nothing, an infinity matches itself. If tol is negative or
 * NaN, only equal elements match. -0 comes before 0. NaNs come last, and all are kept.
 *
 * Cost: time grows with n. More than 32 elements take 8*n bytes of the heap for the call. If these
 * cannot be allocated, the sort takes n*log(n).
 *
 * Retains: nothing.
 *
 * @param[inout] V    array of n, n used: elements; unspecified beyond the new n
 * @param[inout] n    number of elements; unchanged if n < 1
 * @param[in]    tol  largest difference of elements that match (inclusive); may be an element of V
 */
TRELVIN_ROUTINE trvmer12(TrvArrayInOut V, TrvIntInOut n, TrvIn tol);

/**
 * Appends to a list those elements of another that it does not hold yet.
 *
 * Two elements match if they are equal or differ by at most tol. A NaN matches nothing, an infinity
 * matches itself. If tol is negative or NaN, only equal elements match.
 *
 * Cost: time grows with na+nb, except for clusters of elements within a few tolerances: all
 * elements of a cluster are compared. Takes up to 48*(na+nb) bytes of the heap for the call. If
 * these cannot be allocated, all elements are compared.
 *
 * Retains: nothing.
 *
 * @param[in]  na    number of elements of A; below 1 there are none
 * @param[in]  A     array of na: elements
 * @param[in]  nb    number of elements of B; below 1 there are none
 * @param[in]  B     array of nb: elements
 * @param[in]  tol   largest difference of elements that match (inclusive)
 * @param[out] nout  number of elements written
 * @param[out] OUT   array of na+nb, nout used: A as it is, then the elements of B that match no
 *                   element before them in OUT
 * @param[out] IB    array of nb: for each element of B, the position in OUT of the first element
 *                   that matches it; for a NaN, its own position in OUT
 */
TRELVIN_ROUTINE trvmer4(TrvIntIn na, TrvArrayIn A, TrvIntIn nb, TrvArrayIn B, TrvIn tol,
                        TrvIntOut nout, TrvArrayOut OUT, TrvIntArrayOut IB);

/**
 * Elements of a list that another holds too.
 *
 * Cost: time grows with na+nb. More than 512 elements take up to 17*na+8*nb bytes of the heap for
 * the call. If these cannot be allocated, blocks of 512 are compared instead, on less than 16 KB of
 * the stack.
 *
 * Retains: nothing.
 *
 * @param[in]  na    number of elements of A; below 1 there are none
 * @param[in]  A     array of na: elements
 * @param[in]  nb    number of elements of B; below 1 there are none
 * @param[in]  B     array of nb: elements
 * @param[out] nout  number of elements written
 * @param[out] OUT   array of na, nout used: the elements of A that B holds, with duplicates, in A's
 *                   order
 */
TRELVIN_ROUTINE trvmer14(TrvIntIn na, TrvIntArrayIn A, TrvIntIn nb, TrvIntArrayIn B, TrvIntOut nout,
                         TrvIntArrayOut OUT);

/**
 * Removes from a list the elements that another holds, in place.
 *
 * Cost: time grows with na+nb. More than 512 elements take up to 17*na+8*nb bytes of the heap for
 * the call. If these cannot be allocated, blocks of 512 are compared instead, on less than 16 KB of
 * the stack.
 *
 * Retains: nothing.
 *
 * @param[inout] na     number of elements of A; unchanged if na < 1
 * @param[inout] A      array of na, na used: elements; those kept stay in their order; unspecified
 *                      beyond the new na
 * @param[in]    nb     number of elements of B; below 1 there are none
 * @param[in]    B      array of nb: elements
 * @param[out]   count  number of elements removed
 */
TRELVIN_ROUTINE trvmer15(TrvIntInOut na, TrvIntArrayInOut A, TrvIntIn nb, TrvIntArrayIn B,
                         TrvIntOut count);

/**
 * Removes repeated vertices of a closed outline, in place.
 *
 * Each vertex that matches the last one kept is removed; so are vertices at the end that match the
 * first. Two vertices match if both x and both y are equal or differ by at most tol. A NaN matches
 * nothing, an infinity matches itself. If tol is negative or NaN, only equal coordinates match.
 *
 * Cost: time grows with n.
 *
 * Retains: nothing.
 *
 * @param[inout] X,Y  arrays of n, n used: vertices; unspecified beyond the new n
 * @param[inout] n    number of vertices; unchanged if n < 1
 * @param[in]    tol  largest difference of either coordinate (inclusive)
 */
TRELVIN_ROUTINE trvmer16(TrvArrayInOut X, TrvArrayInOut Y, TrvIntInOut n, TrvIn tol);

/* Points ------------------------------------------------------------------------------------- */

/**
 * All pairs of points of two lists that match within a tolerance in each coordinate.
 *
 * Two coordinates match if they are equal or differ by at most tol. A NaN matches nothing, an
 * infinity matches itself. If tol is negative or NaN, only equal coordinates match.
 *
 * Cost: time grows with na+nb and the number of pairs, except for clusters of points within a few
 * tolerances: all points of a cluster are compared. Takes up to 32*(na+nb) bytes of the heap for
 * the call. If these cannot be allocated, all points are compared.
 *
 * Retains: nothing.
 *
 * @param[in]  na        number of points of A; below 1 there are none
 * @param[in]  XA,YA,ZA  arrays of na: points of A
 * @param[in]  nb        number of points of B; below 1 there are none
 * @param[in]  XB,YB,ZB  arrays of nb: points of B
 * @param[in]  tol       largest difference of a coordinate (inclusive)
 * @param[out] count     number of pairs
 * @param[out] IA,IB     arrays of na*nb, count used: positions in A and in B, sorted by A, then by
 *                       B
 * @param[out] status    which points of A match a point of B: 0 no_pair: no point of A matches a
 *                       point of B; 1 some_pairs: some points of A match points of B, others do
 *                       not; 2 all_paired: every point of A matches a point of B
 */
TRELVIN_ROUTINE trvptp1(TrvIntIn na, TrvArrayIn XA, TrvArrayIn YA, TrvArrayIn ZA, TrvIntIn nb,
                        TrvArrayIn XB, TrvArrayIn YB, TrvArrayIn ZB, TrvIn tol, TrvIntOut count,
                        TrvIntArrayOut IA, TrvIntArrayOut IB, TrvIntOut status);

/**
 * Merges three lists of points into one list.
 *
 * Each point is assigned to the first merged point that matches it. If none matches, the point
 * becomes a new merged point. Two points match if each of their coordinates is equal or differs by
 * at most tol. A NaN matches nothing, an infinity matches itself. If tol is negative or NaN, only
 * equal coordinates match.
 *
 * Cost: time grows with na+nb+nc and the number of pairs, except for clusters of points within a
 * few tolerances: all points of a cluster are compared. Takes up to 48*(na+nb+nc) bytes of the heap
 * for the call. If these cannot be allocated, all points are compared.
 *
 * Retains: nothing.
 *
 * @param[in]  na        number of points of A; below 1 there are none
 * @param[in]  XA,YA,ZA  arrays of na: points of A
 * @param[in]  nb        number of points of B; below 1 there are none
 * @param[in]  XB,YB,ZB  arrays of nb: points of B
 * @param[in]  nc        number of points of C; below 1 there are none
 * @param[in]  XC,YC,ZC  arrays of nc: points of C
 * @param[in]  tol       largest difference of a coordinate (inclusive)
 * @param[out] nab       number of pairs of A and B
 * @param[out] IAB,JAB   arrays of na*nb, nab used: positions in A and in B, sorted by A, then by B
 * @param[out] nbc       number of pairs of B and C
 * @param[out] IBC,JBC   arrays of nb*nc, nbc used: positions in B and in C, sorted by B, then by C
 * @param[out] nca       number of pairs of C and A
 * @param[out] ICA,JCA   arrays of nc*na, nca used: positions in C and in A, sorted by C, then by A
 * @param[out] nout      number of merged points
 * @param[out] XO,YO,ZO  arrays of na+nb+nc, nout used: merged points, in the order of A, B, C
 * @param[out] MA        array of na: position of the merged point of each point of A
 * @param[out] MB        array of nb: position of the merged point of each point of B
 * @param[out] MC        array of nc: position of the merged point of each point of C
 * @param[in]  k         position of a merged point
 * @param[out] nk        number of points assigned to merged point k; 0 if there is no such point
 * @param[out] PK        array of na+nb+nc, nk used: positions of these points, counted through A,
 *                       then B, then C
 * @param[out] nz        number of levels
 * @param[out] ZL        array of na+nb+nc, nz used: the distinct z of the merged points, ascending,
 *                       as trvmer12 leaves them; unspecified up to nout
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
 * Crossings of the horizontal line y = y0 with a closed outline.
 *
 * An edge includes its lower end and excludes its upper end. So the count is even, and the inside
 * lies between the first and second crossing, between the third and fourth, and so on. Formed in
 * double precision and rounded once.
 *
 * Cost: time grows with n. More than 32 crossings take up to 8*n bytes of the heap for the call. If
 * these cannot be allocated, sorting the crossings takes n*log(n).
 *
 * Retains: nothing.
 *
 * @param[in]  X,Y    arrays of n: vertices
 * @param[in]  n      number of vertices; below 3 there are no crossings
 * @param[in]  y0     height of the line
 * @param[out] count  number of crossings
 * @param[out] XC     array of n, count used: x of the crossings, ascending; -0 before 0; NaNs, from
 *                    infinite or NaN vertices, last
 */
TRELVIN_ROUTINE trvppp(TrvArrayIn X, TrvArrayIn Y, TrvIntIn n, TrvIn y0, TrvIntOut count,
                       TrvArrayOut XC);

/**
 * Crossings of the segment from P1 to P2 with a closed outline.
 *
 * A crossing is a point where the outline passes from one side of the segment's line to the other;
 * this may be a vertex on the line. If the outline touches the line, or runs along it, and returns
 * to the same side, it does not cross. If it runs along the line and leaves to the other side, it
 * crosses once: where the segment, from P1, first meets the run, whichever orientation the outline
 * has. A crossing counts unless P1 and P2 are both on the same side of the edge crossed, so it also
 * counts if P1 or P2 is on the outline.
 *
 * Sides are formed in double precision. They are exact if differences of coordinates take no more
 * than 26 bits, for example for whole numbers up to 33554432. Points are formed in double precision
 * and rounded once.
 *
 * Cost: time grows with n, and with count*log(count); nothing is allocated.
 *
 * Retains: nothing.
 *
 * @param[in]  X,Y     arrays of n: vertices
 * @param[in]  n       number of vertices
 * @param[in]  x1,y1   P1
 * @param[in]  x2,y2   P2
 * @param[out] count   number of crossings; 0 if status is -1
 * @param[out] XI,YI   arrays of n, count used: points
 * @param[out] T       array of n, count used: parameters of the points on the segment, ascending
 *                     from 0 at P1 to 1 at P2
 * @param[out] EDGE    array of n, count used: positions of the edges crossed, ascending if
 *                     parameters are equal; edge i runs from vertex i to vertex i+1; at a vertex or
 *                     a run, the edge by which the outline leaves the line
 * @param[out] status  where P1 is: 1 inside: P1 is inside the outline by the even-odd rule; 0
 *                     outside: P1 is outside the outline by the even-odd rule; -1 refused: n < 3,
 *                     or P1 and P2 coincide within the tolerance in both coordinates
 */
TRELVIN_ROUTINE trvpin(TrvArrayIn X, TrvArrayIn Y, TrvIntIn n, TrvIn x1, TrvIn y1, TrvIn x2,
                       TrvIn y2, TrvIntOut count, TrvArrayOut XI, TrvArrayOut YI, TrvArrayOut T,
                       TrvIntArrayOut EDGE, TrvIntOut status);

#endif
