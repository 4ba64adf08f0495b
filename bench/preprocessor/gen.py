#!/usr/bin/env python3
"""Writes a preprocessor benchmark input: DIR/main.yc of about LINES lines
with includes, object-like and function-like macros, conditionals, comments
and continuations."""
import os
import sys

def main():
    out_dir, lines = sys.argv[1], int(sys.argv[2])
    os.makedirs(os.path.join(out_dir, "inc"), exist_ok=True)
    for h in range(20):
        with open(os.path.join(out_dir, "inc", "h%d.h" % h), "w") as f:
            f.write("#ifndef H%d_H\n#define H%d_H\n" % (h, h))
            for k in range(50):
                f.write("#define K%d_%d (%d + %d)\n" % (h, k, h, k))
            f.write("#define MAX%d(a, b) ((a) > (b) ? (a) : (b))\n" % h)
            f.write("int shared%d;\n#endif\n" % h)
    body = []
    for h in range(20):
        body.append('#include "h%d.h"' % h)
    body += [
        "#define SQR(x) ((x) * (x))",
        "#define ADD3(a, b, c) ((a) + (b) + (c))",
        "#define NAME(p, n) p ## n",
        "#define STR(x) #x",
        "#define LIMIT 1000",
    ]
    i = 0
    physical = len(body)
    while physical < lines:
        h = i % 20
        body.append("/* block %d */" % i)
        body.append("int NAME(v, %d) = SQR(K%d_%d) + ADD3(%d, LIMIT, MAX%d(%d, K%d_1));"
                    % (i, h, i % 50, i, h, i, h))
        body.append("#if defined(K%d_%d) && LIMIT > %d" % (h, i % 50, i % 2000))
        body.append('char *s%d = STR(value %d) "tail";  // comment' % (i, i))
        body.append("#elif LIMIT == 1000")
        body.append("long l%d = %d + \\\n    %d;" % (i, i, i * 2))
        body.append("#else")
        body.append("int never%d;" % i)
        body.append("#endif")
        physical += 10
        i += 1
    # A last invalid directive: preprocessing completes and writes main.i,
    # and the compile pass stays out of the timing.
    body.append("#end_of_benchmark")
    with open(os.path.join(out_dir, "main.yc"), "w") as f:
        f.write("\n".join(body) + "\n")

main()
