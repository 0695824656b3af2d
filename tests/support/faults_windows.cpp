#include "support/faults.h"

#include <QFileInfo>

#include <utility>

#include <windows.h>

// Of the faults of a machine, those that Windows lets a program make: no mounts, no limits, no FIFOs, and
// permissions that only keep from writing into a file.

void faults::isolate() {}

faults::WithoutPrivilege::WithoutPrivilege() = default;
faults::WithoutPrivilege::~WithoutPrivilege() = default;

faults::SizeLimit::SizeLimit(quint64 bytes)
    : before(bytes)
{
}

faults::SizeLimit::~SizeLimit() = default;

bool faults::SizeLimit::possible() { return false; }

std::unique_ptr<faults::Mount> faults::Mount::small(const QString &folder, const char *)
{
    return std::unique_ptr<Mount>(new Mount(folder, false));
}

std::unique_ptr<faults::Mount> faults::Mount::readOnly(const QString &folder)
{
    return std::unique_ptr<Mount>(new Mount(folder, false));
}

faults::Mount::Mount(QString where, bool isMounted)
    : folder(std::move(where))
    , mounted(isMounted)
{
}

faults::Mount::~Mount() = default;

void faults::Mount::fillUp(const QString &) const {}

// Judged by what it does, since Wine lets root write into any file.
faults::Fault faults::permissions(const QString &path, QFile::Permissions allowed)
{
    QFile::setPermissions(path, allowed);
    QFile file(path);
    const bool closed = QFileInfo(path).isFile() && !file.open(QIODevice::ReadWrite);
    return {nullptr, closed && allowed == QFile::ReadOwner};
}

faults::Fault faults::readOnlyFileSystem(const QString &) { return {nullptr, false}; }

faults::Fault faults::smallFileSystem(const QString &, const char *) { return {nullptr, false}; }

faults::Fault faults::pipe(const QString &) { return {nullptr, false}; }

faults::Fault faults::link(const QString &, const QString &) { return {nullptr, false}; }

faults::Fault faults::runningProgram(const QString &) { return {nullptr, false}; }

faults::Fault faults::secondName(const QString &path, const QString &name)
{
    const auto *from = reinterpret_cast<const wchar_t *>(path.utf16());
    const auto *to = reinterpret_cast<const wchar_t *>(name.utf16());
    return {nullptr, CreateHardLinkW(to, from, nullptr) != 0};
}

bool faults::lock(const QFile &) { return true; }
