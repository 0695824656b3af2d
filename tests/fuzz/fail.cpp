#include "fuzz/target.h"

#include <cstdio>
#include <cstdlib>

void fail(const char *what, const QByteArray &detail)
{
    static_cast<void>(std::fprintf(stderr, "fault: %s\n%s\n", what, detail.constData()));
    std::abort();
}
