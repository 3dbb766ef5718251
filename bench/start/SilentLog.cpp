// Stands before the system library in one child process, where touches are measured without
// what the log costs.

#include <syslog.h>

#include <cstdarg>

#define BENCH_VISIBLE __attribute__((visibility("default")))

extern "C" {

BENCH_VISIBLE void openlog(const char*, int, int) {}

BENCH_VISIBLE void syslog(int, const char*, ...) {}

// what syslog becomes under _FORTIFY_SOURCE
BENCH_VISIBLE void __syslog_chk(int, int, const char*, ...) {}

BENCH_VISIBLE void closelog(void) {}
}
