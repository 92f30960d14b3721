/**
 * @file
 * How every routine of Trelvin is declared and called.
 *
 * A routine takes the address of each argument and returns nothing. Reals are 32-bit IEEE numbers,
 * Integers 32-bit signed ones. In C++ a single argument is a reference, in C a pointer: the machine
 * sees the same address. Arrays are pointers to their first element in both; positions that a
 * routine takes or returns count from 1.
 *
 * The type of an argument tells its kind and direction:
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
 *   arrays may not overlap, nor may two outputs.
 * - Nothing is guarded beyond the tests a contract names: a division by zero gives the infinity or
 *   NaN that IEEE arithmetic gives.
 * - No state of the processor is required: rounding, subnormals, exception masks and, on 32-bit
 *   Windows, the x87 unit's control word are as the library needs them during a call, and
 *   afterwards as the host had them. While a function of the host's runs, the host's own state is
 *   in force.
 * - One state the host must clear itself, in the 32-bit library for Windows: code that uses MMX
 *   instructions must execute `emms` before it calls a routine. Otherwise the register stack of the
 *   x87 unit is full, and Reals and statuses come out wrong, many as NaN.
 * - The processor's exception flags tell nothing after a call. A routine may raise any of them with
 *   finite results, and a call in a state that the library had to change gives them back as they
 *   were. To learn whether a result is usable, test the result.
 * - "Retains" names what a call leaves for later calls. Those that retain nothing may run on any
 *   threads at once; those that share what they retain serve one thread at a time.
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
