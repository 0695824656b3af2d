#include "support/faults.h"

#include <QByteArray>
#include <QProcess>

#include <array>
#include <csignal>
#include <utility>

#include <fcntl.h>
#include <linux/capability.h>
#include <sched.h>
#include <sys/file.h>
#include <sys/mount.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

constexpr quint32 overPermissions = (1U << CAP_DAC_OVERRIDE) | (1U << CAP_DAC_READ_SEARCH);

/// Takes capabilities from those in effect, or gives them back. Returns those that were in effect.
quint32 changeCapabilities(quint32 taken, quint32 given)
{
    __user_cap_header_struct header{_LINUX_CAPABILITY_VERSION_3, 0};
    std::array<__user_cap_data_struct, _LINUX_CAPABILITY_U32S_3> data{};
    syscall(SYS_capget, &header, data.data());
    const quint32 before = data[0].effective;
    data[0].effective = (before & ~taken) | given;
    syscall(SYS_capset, &header, data.data());
    return before;
}

void writeTo(const char *path, const QByteArray &text)
{
    QFile file{QString::fromLatin1(path)};
    if (file.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        file.write(text);
    }
}

QByteArray itself(quint32 number)
{
    return QByteArray::number(number) + ' ' + QByteArray::number(number) + " 1\n";
}

rlim_t setSizeLimit(rlim_t bytes)
{
    static_cast<void>(std::signal(SIGXFSZ, SIG_IGN)); // the write fails instead
    rlimit limit{};
    getrlimit(RLIMIT_FSIZE, &limit);
    const rlim_t before = limit.rlim_cur;
    limit.rlim_cur = bytes;
    setrlimit(RLIMIT_FSIZE, &limit);
    return before;
}

} // namespace

void faults::isolate()
{
    const uid_t user = geteuid();
    const gid_t group = getegid();
    if (unshare(CLONE_NEWNS) != 0) {
        // An ordinary user gets the right within a user namespace, in which he stays who he is.
        if (unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) {
            return;
        }
        writeTo("/proc/self/uid_map", itself(user));
        writeTo("/proc/self/setgroups", "deny");
        writeTo("/proc/self/gid_map", itself(group));
        // Entering it forbids debuggers, and with them the search for leaks.
        prctl(PR_SET_DUMPABLE, 1, 0, 0, 0);
    }
    mount("none", "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
}

faults::WithoutPrivilege::WithoutPrivilege()
    : dropped(changeCapabilities(overPermissions, 0) & overPermissions)
{
}

faults::WithoutPrivilege::~WithoutPrivilege() { changeCapabilities(0, dropped); }

faults::SizeLimit::SizeLimit(quint64 bytes)
    : before(setSizeLimit(bytes))
{
}

faults::SizeLimit::~SizeLimit() { setSizeLimit(before); }

bool faults::SizeLimit::possible() { return true; }

std::unique_ptr<faults::Mount> faults::Mount::small(const QString &folder, const char *options)
{
    const bool mounted = mount("none", qPrintable(folder), "tmpfs", 0, options) == 0;
    return std::unique_ptr<Mount>(new Mount(folder, mounted));
}

std::unique_ptr<faults::Mount> faults::Mount::readOnly(const QString &folder)
{
    const QByteArray path = QFile::encodeName(folder);
    const bool bound = mount(path.constData(), path.constData(), nullptr, MS_BIND, nullptr) == 0;
    // What the file system forbids already has to stay forbidden within a user namespace.
    constexpr unsigned long options = MS_REMOUNT | MS_BIND | MS_RDONLY;
    bool closed = false;
    for (const unsigned long kept : {0UL, static_cast<unsigned long>(MS_NOSUID | MS_NODEV)}) {
        closed = closed || (bound && mount("none", path.constData(), nullptr, options | kept, nullptr) == 0);
    }
    if (bound && !closed) {
        umount2(path.constData(), MNT_DETACH);
    }
    return std::unique_ptr<Mount>(new Mount(folder, closed));
}

faults::Mount::Mount(QString where, bool isMounted)
    : folder(std::move(where))
    , mounted(isMounted)
{
}

faults::Mount::~Mount()
{
    if (mounted) {
        umount2(qPrintable(folder), MNT_DETACH);
    }
}

// Nothing but a file system of its own, which has an end near by.
void faults::Mount::fillUp(const QString &name) const
{
    QFile filler(folder + QLatin1Char('/') + name);
    if (mounted && filler.open(QIODevice::WriteOnly | QIODevice::Unbuffered)) {
        while (filler.write(QByteArray(4096, 'x')) > 0) {}
    }
}

faults::Fault faults::permissions(const QString &path, QFile::Permissions allowed)
{
    QFile::setPermissions(path, allowed);
    return {std::make_shared<WithoutPrivilege>()};
}

faults::Fault faults::readOnlyFileSystem(const QString &folder)
{
    const std::shared_ptr<Mount> mount = Mount::readOnly(folder);
    return {mount, mount->holds()};
}

faults::Fault faults::smallFileSystem(const QString &folder, const char *options)
{
    const std::shared_ptr<Mount> mount = Mount::small(folder, options);
    return {mount, mount->holds()};
}

faults::Fault faults::pipe(const QString &path)
{
    QFile::remove(path);
    return {nullptr, mkfifo(qPrintable(path), 0600) == 0};
}

faults::Fault faults::link(const QString &target, const QString &path)
{
    QFile::remove(path);
    return {nullptr, ::symlink(qPrintable(target), qPrintable(path)) == 0};
}

faults::Fault faults::runningProgram(const QString &path)
{
    QFile::remove(path);
    QFile::copy(QStringLiteral("/bin/sleep"), path);
    auto program = std::make_shared<QProcess>();
    program->start(path, {QStringLiteral("300")});
    return {program, program->waitForStarted()};
}

faults::Fault faults::secondName(const QString &path, const QString &name)
{
    return {nullptr, ::link(qPrintable(path), qPrintable(name)) == 0};
}

bool faults::lock(const QFile &file) { return flock(file.handle(), LOCK_EX) == 0; }
