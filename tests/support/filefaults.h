#pragma once

#include "support/documentwindow.h"
#include "support/faults.h"

/// Faults of a file and of the folder that it lies in.
namespace filefaults {

using faults::Fault;

/// Makes a fault in a folder, around the file of that path in it.
using MakeFault = Fault (*)(const QString &folder, const QString &path);

inline Fault readOnlyFile(const QString &, const QString &path)
{
    return faults::permissions(path, QFile::ReadOwner);
}
inline Fault readOnlyFolder(const QString &folder, const QString &)
{
    return faults::permissions(folder, QFile::ReadOwner | QFile::ExeOwner);
}
inline Fault closedFile(const QString &, const QString &path) { return faults::permissions(path, {}); }
inline Fault closedFolder(const QString &folder, const QString &) { return faults::permissions(folder, {}); }
inline Fault readOnlyFileSystem(const QString &folder, const QString &)
{
    return faults::readOnlyFileSystem(folder);
}
inline Fault noRoomForAName(const QString &folder, const QString &)
{
    return faults::smallFileSystem(folder, "nr_inodes=1");
}
inline Fault removedFolder(const QString &folder, const QString &)
{
    return {nullptr, QDir(folder).removeRecursively()};
}
inline Fault fileForAFolder(const QString &folder, const QString &)
{
    QDir(folder).removeRecursively();
    testfiles::put(folder, "x");
    return {};
}
inline Fault folderForAFile(const QString &, const QString &path)
{
    QFile::remove(path);
    return {nullptr, QDir().mkpath(path)};
}
inline Fault executedFile(const QString &, const QString &path) { return faults::runningProgram(path); }
inline Fault pipeForAFile(const QString &, const QString &path) { return faults::pipe(path); }
inline Fault linkToAPipe(const QString &folder, const QString &path)
{
    faults::pipe(folder + QStringLiteral("/pipe"));
    return faults::link(folder + QStringLiteral("/pipe"), path);
}
inline Fault linkToAFolder(const QString &folder, const QString &path) { return faults::link(folder, path); }
inline Fault linkToItself(const QString &, const QString &path) { return faults::link(path, path); }
inline Fault linkToNowhere(const QString &, const QString &path)
{
    return faults::link(QStringLiteral("/nowhere/a.json"), path);
}
inline Fault linkToAFullDevice(const QString &, const QString &path)
{
    return faults::link(QStringLiteral("/dev/full"), path);
}
inline Fault linkToAnEndlessDevice(const QString &, const QString &path)
{
    return faults::link(QStringLiteral("/dev/zero"), path);
}
inline Fault nothing(const QString &, const QString &) { return {}; }

} // namespace filefaults

/// A test of Open and Save on a file in a folder of its own, both of which are subject to faults.
class FileFaultTest : public QObject
{
protected:
    /// The document that the tests have in their file: no page changes it when it is shown.
    static QByteArray small()
    {
        return R"({"IduFuncList":{"isIndoorHotWaterKey":"CLR","is_boosterht_onlyMode":"CLR",)"
               R"("is_comm_disinfection":"CLR","is_hotwater_by_disinfection":"CLR",)"
               R"("is_installed_heater":"CLR"},"product":"awhp"})";
    }
    static QByteArray compact(const QJsonDocument &document)
    {
        return document.toJson(QJsonDocument::Compact);
    }
    void start()
    {
        window = std::make_unique<DocumentWindow>();
        QVERIFY(QDir().mkpath(folder()));
    }
    void end()
    {
        QFile::setPermissions(folder(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        window.reset();
    }
    QString folder() const { return window->path(QStringLiteral("disk")); }
    QString file() const { return folder() + QStringLiteral("/a.json"); }

    QTemporaryDir home;
    std::unique_ptr<DocumentWindow> window;
};

Q_DECLARE_METATYPE(filefaults::MakeFault)
