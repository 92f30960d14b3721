#include "hosts/foreign_call.h"

#if defined(__x86_64__) && defined(_WIN32)
asm(R"(
  .text
  .globl foreign_call
foreign_call:
  pushq %rbp
  movq  %rsp, %rbp
  pushq %rbx
  pushq %rsi
  pushq %rdi
  pushq %r12
  pushq %r13
  pushq %r9
  movq  %rcx, %rax
  movq  %rdx, %r10
  stmxcsr 20(%r9)
  fnstcw  24(%r9)
  subl  $4, %r8d              # arguments that go on the stack
  xorl  %ecx, %ecx
  testl %r8d, %r8d
  cmovsl %ecx, %r8d
  movl  %r8d, %ecx
  andl  $1, %ecx
  shll  $3, %ecx
  subq  %rcx, %rsp            # aligned to 16 bytes at the call
1:
  testl %r8d, %r8d
  jz    2f
  pushq 24(%r10,%r8,8)
  decl  %r8d
  jmp   1b
2:
  subq  $32, %rsp             # room that belongs to the routine
  movl  $0x5A5A0001, %ebx
  movl  $0x5A5A0002, %esi
  movl  $0x5A5A0003, %edi
  movl  $0x5A5A0004, %r12d
  movl  $0x5A5A0005, %r13d
  ldmxcsr (%r9)
  fnclex
  fldcw 4(%r9)
  movq  (%r10), %rcx
  movq  8(%r10), %rdx
  movq  16(%r10), %r8
  movq  24(%r10), %r9
  call  *%rax
  movq  -48(%rbp), %rcx
  stmxcsr (%rcx)
  fnstcw 4(%rcx)
  fnstsw 8(%rcx)
  pushfq
  popq  %rdx
  movl  %edx, 12(%rcx)
  cld
  fnclex
  fldcw 24(%rcx)
  ldmxcsr 20(%rcx)
  movl  $1, 16(%rcx)
  cmpq  $0x5A5A0001, %rbx
  jne   3f
  cmpq  $0x5A5A0002, %rsi
  jne   3f
  cmpq  $0x5A5A0003, %rdi
  jne   3f
  cmpq  $0x5A5A0004, %r12
  jne   3f
  cmpq  $0x5A5A0005, %r13
  jne   3f
  movl  $0, 16(%rcx)
3:
  leaq  -40(%rbp), %rsp
  popq  %r13
  popq  %r12
  popq  %rdi
  popq  %rsi
  popq  %rbx
  popq  %rbp
  ret
)");
#elif defined(__x86_64__)
asm(R"(
  .text
  .globl foreign_call
  .type foreign_call, @function
foreign_call:
  pushq %rbp
  movq  %rsp, %rbp
  pushq %rbx
  pushq %r12
  pushq %r13
  pushq %r14
  pushq %r15
  pushq %rcx
  movq  %rdi, %rax
  movq  %rsi, %r10
  stmxcsr 20(%rcx)
  fnstcw  24(%rcx)
  leal  -6(%rdx), %r8d        # arguments that go on the stack
  xorl  %r9d, %r9d
  testl %r8d, %r8d
  cmovsl %r9d, %r8d
  movl  %r8d, %r9d
  andl  $1, %r9d
  shll  $3, %r9d
  subq  %r9, %rsp             # aligned to 16 bytes at the call
1:
  testl %r8d, %r8d
  jz    2f
  pushq 40(%r10,%r8,8)
  decl  %r8d
  jmp   1b
2:
  movl  $0x5A5A0001, %ebx
  movl  $0x5A5A0002, %r12d
  movl  $0x5A5A0003, %r13d
  movl  $0x5A5A0004, %r14d
  movl  $0x5A5A0005, %r15d
  ldmxcsr (%rcx)
  fnclex
  fldcw 4(%rcx)
  movq  (%r10), %rdi
  movq  8(%r10), %rsi
  movq  16(%r10), %rdx
  movq  24(%r10), %rcx
  movq  32(%r10), %r8
  movq  40(%r10), %r9
  call  *%rax
  movq  -48(%rbp), %rcx
  stmxcsr (%rcx)
  fnstcw 4(%rcx)
  fnstsw 8(%rcx)
  pushfq
  popq  %rdx
  movl  %edx, 12(%rcx)
  cld
  fnclex
  fldcw 24(%rcx)
  ldmxcsr 20(%rcx)
  movl  $1, 16(%rcx)
  cmpq  $0x5A5A0001, %rbx
  jne   3f
  cmpq  $0x5A5A0002, %r12
  jne   3f
  cmpq  $0x5A5A0003, %r13
  jne   3f
  cmpq  $0x5A5A0004, %r14
  jne   3f
  cmpq  $0x5A5A0005, %r15
  jne   3f
  movl  $0, 16(%rcx)
3:
  leaq  -40(%rbp), %rsp
  popq  %r15
  popq  %r14
  popq  %r13
  popq  %r12
  popq  %rbx
  popq  %rbp
  ret
  .size foreign_call, . - foreign_call
)");
#else
asm(R"(
  .text
  .globl _foreign_call
_foreign_call:
  pushl %ebp
  movl  %esp, %ebp
  pushl %ebx
  pushl %esi
  pushl %edi
  movl  12(%ebp), %esi
  movl  16(%ebp), %ecx
  movl  20(%ebp), %edx
  stmxcsr 20(%edx)
  fnstcw  24(%edx)
  movl  %esp, %ebx            # where the routine must leave the stack
1:
  testl %ecx, %ecx
  jz    2f
  pushl -4(%esi,%ecx,4)
  decl  %ecx
  jmp   1b
2:
  movl  $0x5A5A0001, %esi
  movl  $0x5A5A0002, %edi
  ldmxcsr (%edx)
  fnclex
  fldcw 4(%edx)
  call  *8(%ebp)
  movl  20(%ebp), %ecx
  stmxcsr (%ecx)
  fnstcw 4(%ecx)
  fnstsw 8(%ecx)
  movl  $1, 16(%ecx)
  cmpl  %esp, %ebx
  jne   3f
  cmpl  $0x5A5A0001, %esi
  jne   3f
  cmpl  $0x5A5A0002, %edi
  jne   3f
  movl  $0, 16(%ecx)
3:
  leal  -16(%ebp), %esp
  pushfl
  popl  12(%ecx)
  cld
  fnclex
  fldcw 24(%ecx)
  ldmxcsr 20(%ecx)
  leal  -12(%ebp), %esp
  popl  %edi
  popl  %esi
  popl  %ebx
  popl  %ebp
  ret
)");
#endif
