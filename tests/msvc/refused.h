/* Included ahead of the header in question: words that Clang knows in every mode and Microsoft's compiler
 * never. */
#include <stddef.h>
#include <stdint.h>

#pragma GCC poison __attribute__ __extension__ __typeof__ __int128 __builtin_expect __asm__
