#include "support/openedfiles.h"

#include <QFile>

#ifdef Q_OS_LINUX
#include <linux/fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstdarg>
#endif

namespace {

QStringList &opened()
{
    static QStringList paths;
    return paths;
}

} // namespace

#ifdef Q_OS_LINUX
// In the place of the C library's, whose header isn't included: Qt opens all files by it, and the libraries
// that read fonts use another.
extern "C" int open64(const char *path, int flags, ...);

extern "C" int open64(const char *path, int flags, ...)
{
    va_list arguments;
    va_start(arguments, flags);
    const int mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, int) : 0;
    va_end(arguments);
    opened().append(QFile::decodeName(path));
    return static_cast<int>(syscall(SYS_openat, AT_FDCWD, path, flags, mode));
}
#endif

namespace openedfiles {

void clear() { opened().clear(); }

QStringList all() { return opened(); }

} // namespace openedfiles
