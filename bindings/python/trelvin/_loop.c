/*
 * Calls a routine once a row. Every argument is an address: of a cell or an array of this row, which
 * lie a stride apart, or of what all rows share, with the stride 0.
 */
#include <stdint.h>

enum { most_arguments = 34 };

typedef uintptr_t Address;

#define REPEAT_1(x) x(0)
#define REPEAT_2(x) REPEAT_1(x), x(1)
#define REPEAT_3(x) REPEAT_2(x), x(2)
#define REPEAT_4(x) REPEAT_3(x), x(3)
#define REPEAT_5(x) REPEAT_4(x), x(4)
#define REPEAT_6(x) REPEAT_5(x), x(5)
#define REPEAT_7(x) REPEAT_6(x), x(6)
#define REPEAT_8(x) REPEAT_7(x), x(7)
#define REPEAT_9(x) REPEAT_8(x), x(8)
#define REPEAT_10(x) REPEAT_9(x), x(9)
#define REPEAT_11(x) REPEAT_10(x), x(10)
#define REPEAT_12(x) REPEAT_11(x), x(11)
#define REPEAT_13(x) REPEAT_12(x), x(12)
#define REPEAT_14(x) REPEAT_13(x), x(13)
#define REPEAT_15(x) REPEAT_14(x), x(14)
#define REPEAT_16(x) REPEAT_15(x), x(15)
#define REPEAT_17(x) REPEAT_16(x), x(16)
#define REPEAT_18(x) REPEAT_17(x), x(17)
#define REPEAT_19(x) REPEAT_18(x), x(18)
#define REPEAT_20(x) REPEAT_19(x), x(19)
#define REPEAT_21(x) REPEAT_20(x), x(20)
#define REPEAT_22(x) REPEAT_21(x), x(21)
#define REPEAT_23(x) REPEAT_22(x), x(22)
#define REPEAT_24(x) REPEAT_23(x), x(23)
#define REPEAT_25(x) REPEAT_24(x), x(24)
#define REPEAT_26(x) REPEAT_25(x), x(25)
#define REPEAT_27(x) REPEAT_26(x), x(26)
#define REPEAT_28(x) REPEAT_27(x), x(27)
#define REPEAT_29(x) REPEAT_28(x), x(28)
#define REPEAT_30(x) REPEAT_29(x), x(29)
#define REPEAT_31(x) REPEAT_30(x), x(30)
#define REPEAT_32(x) REPEAT_31(x), x(31)
#define REPEAT_33(x) REPEAT_32(x), x(32)
#define REPEAT_34(x) REPEAT_33(x), x(33)

#define EACH_COUNT(x)                                                                           \
  x(1) x(2) x(3) x(4) x(5) x(6) x(7) x(8) x(9) x(10) x(11) x(12) x(13) x(14) x(15) x(16) x(17)  \
      x(18) x(19) x(20) x(21) x(22) x(23) x(24) x(25) x(26) x(27) x(28) x(29) x(30) x(31) x(32) \
          x(33) x(34)

#define POINTER(i) void *
#define PLACE(i) (void *)at[i]
#define CALL(count)                                                      \
  case count:                                                            \
    ((void (*)(REPEAT_##count(POINTER)))routine)(REPEAT_##count(PLACE)); \
    break;

static void call(void (*routine)(void), int32_t arguments, const Address *at) {
  switch (arguments) {
    EACH_COUNT(CALL)
    default:
      break;
  }
}

/* Argument i of row k is at base + offsets[i] + k*strides[i]. */
__attribute__((visibility("default"))) void trelvin_loop(void (*routine)(void), int32_t arguments,
                                                         char *base, const intptr_t *offsets,
                                                         const intptr_t *strides, int64_t rows) {
  Address at[most_arguments];
  if (arguments > most_arguments) return;
  for (int32_t i = 0; i < arguments; ++i) at[i] = (Address)base + (Address)offsets[i];
  for (int64_t row = 0; row < rows; ++row) {
    call(routine, arguments, at);
    for (int32_t i = 0; i < arguments; ++i) at[i] += (Address)strides[i];
  }
}
