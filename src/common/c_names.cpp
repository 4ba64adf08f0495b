#include "common/c_names.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace ycc {

namespace {

// What <stdio.h>, <stdlib.h> and <string.h> declare or define without a
// leading underscore with glibc under gcc, clang and tcc in their usual
// modes (functions, types, macros, the compilers' "linux" and "unix"), the
// ISO names of those headers, and the generated header's own FALSE and
// TRUE. Sorted: the lookup is a binary search.
constexpr std::array<std::string_view, 468> c_header_names = {
    "BIG_ENDIAN", "BUFSIZ", "BYTE_ORDER", "EOF", "EXIT_FAILURE", "EXIT_SUCCESS", "FALSE", "FD_CLR",
    "FD_ISSET", "FD_SET", "FD_SETSIZE", "FD_ZERO", "FILE", "FILENAME_MAX", "FOPEN_MAX",
    "LITTLE_ENDIAN", "L_ctermid", "L_cuserid", "L_tmpnam", "MB_CUR_MAX", "NFDBITS", "NULL",
    "PDP_ENDIAN", "P_tmpdir", "RAND_MAX", "RENAME_EXCHANGE", "RENAME_NOREPLACE", "RENAME_WHITEOUT",
    "SEEK_CUR", "SEEK_DATA", "SEEK_END", "SEEK_HOLE", "SEEK_SET", "TMP_MAX", "TRUE", "WCONTINUED",
    "WEXITED", "WEXITSTATUS", "WIFCONTINUED", "WIFEXITED", "WIFSIGNALED", "WIFSTOPPED", "WNOHANG",
    "WNOWAIT", "WSTOPPED", "WSTOPSIG", "WTERMSIG", "WUNTRACED", "a64l", "abort", "abs",
    "aligned_alloc", "alloca", "arc4random", "arc4random_buf", "arc4random_uniform", "asprintf",
    "at_quick_exit", "atexit", "atof", "atoi", "atol", "atoll", "basename", "bcmp", "bcopy",
    "be16toh", "be32toh", "be64toh", "blkcnt64_t", "blkcnt_t", "blksize_t", "bsearch", "bzero",
    "caddr_t", "calloc", "canonicalize_file_name", "clearenv", "clearerr", "clearerr_unlocked",
    "clock_t", "clockid_t", "comparison_fn_t", "cookie_close_function_t", "cookie_io_functions_t",
    "cookie_read_function_t", "cookie_seek_function_t", "cookie_write_function_t", "ctermid",
    "cuserid", "daddr_t", "dev_t", "div", "div_t", "dprintf", "drand48", "drand48_data",
    "drand48_r", "ecvt", "ecvt_r", "erand48", "erand48_r", "exit", "explicit_bzero", "fclose",
    "fcloseall", "fcvt", "fcvt_r", "fd_mask", "fd_set", "fdopen", "feof", "feof_unlocked", "ferror",
    "ferror_unlocked", "fflush", "fflush_unlocked", "ffs", "ffsl", "ffsll", "fgetc",
    "fgetc_unlocked", "fgetpos", "fgetpos64", "fgets", "fgets_unlocked", "fileno",
    "fileno_unlocked", "flockfile", "fmemopen", "fopen", "fopen64", "fopencookie", "fpos64_t",
    "fpos_t", "fprintf", "fputc", "fputc_unlocked", "fputs", "fputs_unlocked", "fread",
    "fread_unlocked", "free", "free_aligned_sized", "free_sized", "freopen", "freopen64",
    "fsblkcnt64_t", "fsblkcnt_t", "fscanf", "fseek", "fseeko", "fseeko64", "fsetpos", "fsetpos64",
    "fsfilcnt64_t", "fsfilcnt_t", "fsid_t", "ftell", "ftello", "ftello64", "ftrylockfile",
    "funlockfile", "fwrite", "fwrite_unlocked", "gcvt", "getc", "getc_unlocked", "getchar",
    "getchar_unlocked", "getdelim", "getenv", "getline", "getloadavg", "getpt", "gets", "getsubopt",
    "getw", "gid_t", "grantpt", "htobe16", "htobe32", "htobe64", "htole16", "htole32", "htole64",
    "id_t", "index", "initstate", "initstate_r", "ino64_t", "ino_t", "int16_t", "int32_t",
    "int64_t", "int8_t", "intptr_t", "jrand48", "jrand48_r", "key_t", "l64a", "labs", "lcong48",
    "lcong48_r", "ldiv", "ldiv_t", "le16toh", "le32toh", "le64toh", "linux", "llabs", "lldiv",
    "lldiv_t", "locale_t", "loff_t", "lrand48", "lrand48_r", "malloc", "mblen", "mbstowcs",
    "mbtowc", "memalignment", "memccpy", "memchr", "memcmp", "memcpy", "memfrob", "memmem",
    "memmove", "mempcpy", "memrchr", "memset", "memset_explicit", "mkdtemp", "mkostemp",
    "mkostemp64", "mkostemps", "mkostemps64", "mkstemp", "mkstemp64", "mkstemps", "mkstemps64",
    "mktemp", "mode_t", "mrand48", "mrand48_r", "nlink_t", "nrand48", "nrand48_r", "obstack",
    "obstack_printf", "obstack_vprintf", "off64_t", "off_t", "on_exit", "open_memstream", "pclose",
    "perror", "pid_t", "popen", "posix_memalign", "posix_openpt", "printf", "pselect",
    "pthread_attr_t", "pthread_barrier_t", "pthread_barrierattr_t", "pthread_cond_t",
    "pthread_condattr_t", "pthread_key_t", "pthread_mutex_t", "pthread_mutexattr_t",
    "pthread_once_t", "pthread_rwlock_t", "pthread_rwlockattr_t", "pthread_spinlock_t", "pthread_t",
    "ptrdiff_t", "ptsname", "ptsname_r", "putc", "putc_unlocked", "putchar", "putchar_unlocked",
    "putenv", "puts", "putw", "qecvt", "qecvt_r", "qfcvt", "qfcvt_r", "qgcvt", "qsort", "qsort_r",
    "quad_t", "quick_exit", "rand", "rand_r", "random", "random_data", "random_r", "rawmemchr",
    "realloc", "reallocarray", "realpath", "register_t", "remove", "rename", "renameat",
    "renameat2", "rewind", "rindex", "rpmatch", "scanf", "secure_getenv", "seed48", "seed48_r",
    "select", "setbuf", "setbuffer", "setenv", "setlinebuf", "setstate", "setstate_r", "setvbuf",
    "sigabbrev_np", "sigdescr_np", "sigset_t", "size_t", "snprintf", "sprintf", "srand", "srand48",
    "srand48_r", "srandom", "srandom_r", "sscanf", "ssize_t", "stderr", "stdin", "stdout", "stpcpy",
    "stpncpy", "strcasecmp", "strcasecmp_l", "strcasestr", "strcat", "strchr", "strchrnul",
    "strcmp", "strcoll", "strcoll_l", "strcpy", "strcspn", "strdup", "strdupa", "strerror",
    "strerror_l", "strerror_r", "strerrordesc_np", "strerrorname_np", "strfromd", "strfromf",
    "strfromf128", "strfromf32", "strfromf32x", "strfromf64", "strfromf64x", "strfroml", "strfry",
    "strlen", "strncasecmp", "strncasecmp_l", "strncat", "strncmp", "strncpy", "strndup",
    "strndupa", "strnlen", "strpbrk", "strrchr", "strsep", "strsignal", "strspn", "strstr",
    "strtod", "strtod_l", "strtof", "strtof128", "strtof128_l", "strtof32", "strtof32_l",
    "strtof32x", "strtof32x_l", "strtof64", "strtof64_l", "strtof64x", "strtof64x_l", "strtof_l",
    "strtok", "strtok_r", "strtol", "strtol_l", "strtold", "strtold_l", "strtoll", "strtoll_l",
    "strtoq", "strtoul", "strtoul_l", "strtoull", "strtoull_l", "strtouq", "strverscmp", "strxfrm",
    "strxfrm_l", "suseconds_t", "system", "tempnam", "time_t", "timer_t", "timespec", "timeval",
    "tmpfile", "tmpfile64", "tmpnam", "tmpnam_r", "u_char", "u_int", "u_int16_t", "u_int32_t",
    "u_int64_t", "u_int8_t", "u_long", "u_quad_t", "u_short", "uid_t", "uint", "uint16_t",
    "uint32_t", "uint64_t", "uint8_t", "uintptr_t", "ulong", "ungetc", "unix", "unlockpt",
    "unsetenv", "useconds_t", "ushort", "va_arg", "va_copy", "va_end", "va_list", "va_start",
    "valloc", "vasprintf", "vdprintf", "vfprintf", "vfscanf", "vprintf", "vscanf", "vsnprintf",
    "vsprintf", "vsscanf", "wchar_t", "wcstombs", "wctomb",
};
static_assert(std::is_sorted(c_header_names.begin(), c_header_names.end()));

// For each first character, the lengths (below 64) of the names that begin
// with it: most user names are ruled out without a search.
constexpr std::array<std::uint64_t, 128> lengths_by_first = [] {
  std::array<std::uint64_t, 128> bits{};
  for (std::string_view n : c_header_names) bits[static_cast<unsigned char>(n[0]) & 127] |= std::uint64_t{1} << n.size();
  return bits;
}();

}  // namespace

bool clashes_with_c_headers(std::string_view name) {
  if (name.empty() || name.size() >= 64) return false;
  unsigned char first = static_cast<unsigned char>(name[0]);
  if (first >= 128 || !(lengths_by_first[first] >> name.size() & 1)) return false;
  return std::binary_search(c_header_names.begin(), c_header_names.end(), name);
}

std::string c_name(std::string_view name) {
  std::string out;
  if (clashes_with_c_headers(name)) out = "_yc_";
  return out.append(name);
}

}  // namespace ycc
