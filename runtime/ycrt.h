/* The run-time library's declarations for YARL C programs. */

/* One command-line argument: its text (occurs characters, NUL after them). */
struct yc_argument {
   char var text[];
};

/* The program's main receives every argument, the program name first, and
   hands its status back through its return variable. */
main(struct yc_argument args[]) int status;
