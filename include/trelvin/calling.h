/**
 * @file
 * How every routine of Trelvin is declared and called.
 *
 * A routine takes the address of each argument and returns nothing. Reals are 32-bit IEEE numbers,
 * Integers 32-bit signed ones. A single argument is a reference in C++ and a pointer in C; both are
 * the same address. Arrays are pointers to their first element in both. Positions that a routine
 * takes or returns count from 1.
 *
 * The type of an argument shows what it holds and whether the routine reads or writes it:
 *
 *                   read             written           read and written
 *   Real            TrvIn            TrvOut            TrvInOut
 *   Integer         TrvIntIn         TrvIntOut         TrvIntInOut
 *   Real array      TrvArrayIn       TrvArrayOut       TrvArrayInOut
 *   Integer array   TrvIntArrayIn    TrvIntArrayOut    TrvIntArrayInOut
 *   function        TrvFunctionIn
 *
 * Unless a contract says otherwise:
 * - Lengths are in whatever unit the host uses throughout, angles in radians.
 * - "Within the tolerance" means an absolute value of at most 1e-5, in the unit of the quantity.
 * - An output that a contract calls unwritten keeps what the caller had stored there.
 * - A single output may share its address with a single input: inputs are read before outputs are
 *   written. A single input may be an element of an array that the routine changes. Different
 *   arrays must not overlap, nor must two outputs.
 * - Arguments are not checked, except where a contract says so: a division by zero gives the
 *   infinity or NaN of IEEE arithmetic.
 * - The host need not set up the floating-point environment. Each call sets rounding, subnormals,
 *   exception masks and, on 32-bit Windows, the control word of the x87 unit as the library needs
 *   them, and restores them at its end. While a function of the host's runs, the host's own
 *   environment is in force.
 * - Caution, in the 32-bit library for Windows: code that uses MMX instructions must execute `emms`
 *   before it calls a routine. Otherwise the register stack of the x87 unit is full, and Reals and
 *   statuses are wrong, many of them NaN.
 * - The processor's exception flags have no meaning after a call. A routine may raise any of them
 *   although its results are finite. If the library had to change the environment, it restores the
 *   flags of before the call. To learn whether a result is usable, test the result.
 * - "Retains" names the state that a call keeps for later calls. Routines that retain nothing may
 *   run in any number of threads at once. Routines that share a state must not run in two threads
 *   at once.
 */
#ifndef TRELVIN_CALLING_H
#define TRELVIN_CALLING_H

#include <stdint.h>

#include "trelvin/names.h"
#include "trelvin/values.h"

/* The version of the interface, for a program to read while it is compiled. */
#define TRELVIN_VERSION_MAJOR 1
#define TRELVIN_VERSION_MINOR 1
#define TRELVIN_VERSION_PATCH 1
#define TRELVIN_VERSION "1.1.1"

#if defined(_WIN32) && (defined(__i386__) || defined(_M_IX86))
#define TRELVIN_CALL __stdcall
#else
#define TRELVIN_CALL
#endif

#if defined(__GNUC__) && !defined(_WIN32)
#define TRELVIN_VISIBLE __attribute__((visibility("default")))
#else
#define TRELVIN_VISIBLE
#endif

/* Starts the declaration and the definition of every routine. */
#ifdef __cplusplus
#define TRELVIN_ROUTINE extern "C" TRELVIN_VISIBLE void TRELVIN_CALL
#else
#define TRELVIN_ROUTINE extern TRELVIN_VISIBLE void TRELVIN_CALL
#endif

#ifdef __cplusplus
typedef const float &TrvIn;
typedef float &TrvOut;
typedef float &TrvInOut;
typedef const int32_t &TrvIntIn;
typedef int32_t &TrvIntOut;
typedef int32_t &TrvIntInOut;
#else
typedef const float *TrvIn;
typedef float *TrvOut;
typedef float *TrvInOut;
typedef const int32_t *TrvIntIn;
typedef int32_t *TrvIntOut;
typedef int32_t *TrvIntInOut;
#endif

/*
 * A function of the host's: it returns a Real for a position. Its calling convention is that of the
 * routines, on 32-bit Windows __stdcall: it removes its argument, and returns the Real on the x87
 * stack. It is called on the host's thread, and only during the routine's call. The position is the
 * library's: the function may read it, but must neither write it nor keep its address. What else it
 * may do is in the contract of the routine that takes it.
 */
typedef float(TRELVIN_CALL *TrvFunctionIn)(TrvIntIn position);

typedef const float *TrvArrayIn;
typedef float *TrvArrayOut;
typedef float *TrvArrayInOut;
typedef const int32_t *TrvIntArrayIn;
typedef int32_t *TrvIntArrayOut;
typedef int32_t *TrvIntArrayInOut;

#endif
