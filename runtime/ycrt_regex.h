/* The layout of a machine, shared by its compiler (regex.c) and its
   matcher (match.c).

   A machine is a character space of NUL-free bytes, so it stays whole when
   copied, stored or read back as text. Every number in it is written with
   ycrt_put7: 7 bits a byte, each byte with its top bit set.

     header   "YCRE1", then 7 numbers of NUM bytes: forward state count,
              reverse state count, set count, forward start, reverse start,
              scratch entries, reserved; then the first-byte set
     states   forward program, then reverse program: STATE bytes each
              (op, character, out1, out2)
     sets     SET bytes each: 256 bits, 7 to a byte
     scratch  the matcher's working storage, SCRATCH bytes per entry

   The reverse program matches the expression backwards; strfndr uses it to
   find where the last match begins. */
#ifndef YCRT_REGEX_H
#define YCRT_REGEX_H

#define RE_MAGIC "YCRE1"
#define RE_MAGIC_LEN 5
#define RE_NUM 4          /* bytes of a number: 28 bits */
#define RE_POS 5          /* bytes of a text position: 35 bits */
#define RE_SET 37         /* bytes of a 256-bit set */
#define RE_STATE (2 + 2 * RE_NUM)
#define RE_FIELDS 7
#define RE_HEADER (RE_MAGIC_LEN + RE_FIELDS * RE_NUM + RE_SET)
/* scratch entry: sparse index, two thread lists (state, start), a stack */
#define RE_SCRATCH (RE_NUM + 2 * (RE_NUM + RE_POS) + RE_NUM)

/* The most states one program may have: larger expressions are refused. */
#define RE_MAX_STATES 262144

/* State operations (printable, so never NUL). */
#define OP_CHAR 'c'
#define OP_SET 's'
#define OP_ANY 'a'
#define OP_JUMP 'j'
#define OP_FORK 'f'
#define OP_BOL 'b'
#define OP_EOL 'e'
#define OP_MATCH 'm'

#endif
