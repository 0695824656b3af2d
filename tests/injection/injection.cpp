#include "injection/injection.h"

#include <QFile>
#include <QMap>

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstdio>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct OpenFile {
    QByteArray path;
    bool isRead = false;
};

} // namespace

struct injection::Calls {
    QByteArray folder;
    int number = 0;
    Fault fault;
    QStringList made;
    QString failed;
    int counted = 0;
    QMap<int, OpenFile> files;
    /// The file that takes no more bytes, or -1.
    int full = -1;

    bool has(const QByteArray &path) const { return path == folder || path.startsWith(folder + '/'); }

    /// Notes a call; returns whether it is the one to fail.
    bool fails(const char *what, const QByteArray &path, bool writes = false)
    {
        const QString call = QLatin1String(what) + QLatin1Char(' ')
            + QFile::decodeName(path.mid(folder.size() + 1));
        const int before = made.count(call);
        made.append(call);
        if ((fault.half && !writes) || ++counted != number) {
            return false;
        }
        failed = call + QStringLiteral(" again").repeated(before);
        errno = fault.error;
        return true;
    }
};

namespace {

thread_local injection::Calls *watched = nullptr;

/// The system's own function, which this program's stands before.
template <class Function>
Function *next(const char *name)
{
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): there is no other way from what is found
    return reinterpret_cast<Function *>(dlsym(RTLD_NEXT, name));
}

/// An open file that is watched, or null.
const OpenFile *watchedFile(int file)
{
    if (watched == nullptr) {
        return nullptr;
    }
    const auto found = watched->files.constFind(file);
    return found == watched->files.constEnd() ? nullptr : &*found;
}

/// Whether a call that names one or two files is to fail.
bool failsAt(const char *what, const char *path, const char *other = nullptr)
{
    for (const char *each : {other, path}) {
        if (watched != nullptr && each != nullptr && watched->has(each)) {
            return watched->fails(what, each);
        }
    }
    return false;
}

/// Writes by `write`, which takes how many bytes to write, or fails.
template <class Write>
ssize_t writeUnlessFull(int file, size_t size, const Write &write)
{
    const OpenFile *open = watchedFile(file);
    if (open == nullptr) {
        return write(size);
    }
    if (watched->full == file) {
        errno = ENOSPC;
        return -1;
    }
    if (!watched->fails("write", open->path, true)) {
        return write(size);
    }
    if (!watched->fault.half) {
        return -1;
    }
    watched->full = file;
    return write(size / 2);
}

} // namespace

injection::Watch::Watch(const QString &folder, int number, Fault fault)
    : state(std::make_unique<Calls>())
{
    state->folder = QFile::encodeName(folder);
    state->number = number;
    state->fault = fault;
    watched = state.get();
}

injection::Watch::~Watch() { watched = nullptr; }

QStringList injection::Watch::calls() const { return state->made; }

QString injection::Watch::failed() const { return state->failed; }

// As the system declares them, but for the names of parameters, which are reserved.
// NOLINTBEGIN(readability-inconsistent-declaration-parameter-name)
extern "C" {

Q_DECL_EXPORT int open64(const char *path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) == 0 ? 0 : va_arg(more, mode_t);
    va_end(more);
    const bool reads = (flags & O_ACCMODE) == O_RDONLY;
    const bool isWatched = watched != nullptr && watched->has(path);
    if (isWatched && watched->fails(reads ? "open to read" : "open", path)) {
        return -1;
    }
    const int file = next<int(const char *, int, ...)>("open64")(path, flags, mode);
    if (isWatched && file >= 0) {
        watched->files.insert(file, {path, reads});
    }
    return file;
}

// Closes it all the same, as the system does.
Q_DECL_EXPORT int close(int file)
{
    const OpenFile *open = watchedFile(file);
    bool fails = false;
    if (open != nullptr) {
        fails = watched->fails(open->isRead ? "close after reading" : "close", open->path);
        watched->files.remove(file);
        watched->full = watched->full == file ? -1 : watched->full;
    }
    const int error = errno;
    const int result = next<int(int)>("close")(file);
    if (!fails) {
        return result;
    }
    errno = error;
    return -1;
}

Q_DECL_EXPORT ssize_t write(int file, const void *bytes, size_t size)
{
    return writeUnlessFull(file, size, [file, bytes](size_t some) {
        return next<ssize_t(int, const void *, size_t)>("write")(file, bytes, some);
    });
}

// It is asked for more than any file has.
Q_DECL_EXPORT ssize_t sendfile(int to, int from, off_t *offset, size_t size) noexcept
{
    struct stat status {
    };
    const bool known = fstat(from, &status) == 0;
    const size_t some = known ? std::min(size, static_cast<size_t>(status.st_size)) : size;
    return writeUnlessFull(to, some, [to, from, offset](size_t bytes) {
        return next<ssize_t(int, int, off_t *, size_t)>("sendfile")(to, from, offset, bytes);
    });
}

Q_DECL_EXPORT int ftruncate64(int file, off64_t size) noexcept
{
    const OpenFile *open = watchedFile(file);
    const bool fails = open != nullptr && watched->fails("cut", open->path);
    return fails ? -1 : next<int(int, off64_t)>("ftruncate64")(file, size);
}

Q_DECL_EXPORT int ftruncate(int file, off_t size) noexcept { return ftruncate64(file, size); }

Q_DECL_EXPORT int fdatasync(int file)
{
    const OpenFile *open = watchedFile(file);
    const bool fails = open != nullptr && watched->fails("sync", open->path);
    return fails ? -1 : next<int(int)>("fdatasync")(file);
}

Q_DECL_EXPORT int rename(const char *from, const char *to) noexcept
{
    return failsAt("rename", from, to) ? -1 : next<int(const char *, const char *)>("rename")(from, to);
}

Q_DECL_EXPORT int renameat2(int fromFolder, const char *from, int toFolder, const char *to,
                            unsigned flags) noexcept
{
    return failsAt("rename", from, to) ? -1
                                       : next<int(int, const char *, int, const char *, unsigned)>(
                                           "renameat2")(fromFolder, from, toFolder, to, flags);
}

Q_DECL_EXPORT int link(const char *from, const char *to) noexcept
{
    return failsAt("link", from, to) ? -1 : next<int(const char *, const char *)>("link")(from, to);
}

Q_DECL_EXPORT int linkat(int fromFolder, const char *from, int toFolder, const char *to, int flags) noexcept
{
    return failsAt("link", from, to) ? -1
                                     : next<int(int, const char *, int, const char *, int)>("linkat")(
                                         fromFolder, from, toFolder, to, flags);
}

Q_DECL_EXPORT int unlink(const char *path) noexcept
{
    return failsAt("unlink", path) ? -1 : next<int(const char *)>("unlink")(path);
}
}
// NOLINTEND(readability-inconsistent-declaration-parameter-name)
