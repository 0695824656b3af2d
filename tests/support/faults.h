#pragma once

#include <QFile>

#include <memory>

/// Faults of the machine, made for real, and undone when the object goes. They hold for root as well.
namespace faults {

/// Gives the program mounts of its own, so that it can make file systems that nobody else sees. Called before
/// the application is made; without the right to do so nothing changes, and no mount will hold.
void isolate();

/// From here on permission bits count, for root too.
class WithoutPrivilege
{
public:
    WithoutPrivilege();
    ~WithoutPrivilege();
    Q_DISABLE_COPY_MOVE(WithoutPrivilege)

private:
    quint32 dropped = 0;
};

/// A file of this program can't grow beyond `bytes`: what goes beyond fails, as on a full disk.
class SizeLimit
{
public:
    explicit SizeLimit(quint64 bytes);
    ~SizeLimit();
    Q_DISABLE_COPY_MOVE(SizeLimit)

    /// Whether this system has such limits.
    static bool possible();

private:
    quint64 before;
};

/// A file system of its own in a folder, of which only isolated programs see anything.
class Mount
{
public:
    /// An empty one; `options` limit it, such as "size=64k".
    static std::unique_ptr<Mount> small(const QString &folder, const char *options);
    /// The folder as it stands, but read-only.
    static std::unique_ptr<Mount> readOnly(const QString &folder);

    ~Mount();
    Q_DISABLE_COPY_MOVE(Mount)

    /// Whether it could be mounted; without it the test can't say anything.
    bool holds() const { return mounted; }

    /// Fills it up to the last byte by a file of that name.
    void fillUp(const QString &name) const;

private:
    Mount(QString where, bool isMounted);

    QString folder;
    bool mounted;
};

/// What holds a fault up, and whether this machine lets it be made.
struct Fault {
    std::shared_ptr<void> held;
    bool holds = true;
};

/// Only what is allowed may be done with the file or folder.
Fault permissions(const QString &path, QFile::Permissions allowed);
/// See Mount.
Fault readOnlyFileSystem(const QString &folder);
Fault smallFileSystem(const QString &folder, const char *options);

/// A FIFO in place of what is there.
Fault pipe(const QString &path);
/// A symbolic link in place of what is there.
Fault link(const QString &target, const QString &path);
/// A program in place of what is there, which runs as long as it is held.
Fault runningProgram(const QString &path);
/// Another name for the file itself.
Fault secondName(const QString &path, const QString &name);
/// Locks an open file against those who ask.
bool lock(const QFile &file);

} // namespace faults
