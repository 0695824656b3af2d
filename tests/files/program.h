#pragma once

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>

#include "support/documents.h"
#include "support/testfiles.h"

/// The program as a shell starts it; CALORA_FILES_PROGRAM, where set, names another build of it.
namespace program {

struct Outcome {
    int code = -1;
    QString out;
    QString err;
};

inline QString name() { return qEnvironmentVariable("CALORA_FILES_PROGRAM", QStringLiteral(CALORA_FILES)); }

/// In `folder`, else in the test's own one.
inline Outcome run(const QStringList &arguments, const QByteArray &input = {}, const QString &folder = {})
{
    QProcess process;
    process.setWorkingDirectory(folder);
    process.start(name(), arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished(120000)) {
        return {};
    }
    const auto text = [](const QByteArray &told) {
#ifdef Q_OS_WIN
        return QString::fromUtf8(told).replace(QLatin1String("\r\n"),
                                               QLatin1String("\n")); // how lines end there
#else
        return QString::fromUtf8(told);
#endif
    };
    return {process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1,
            text(process.readAllStandardOutput()), text(process.readAllStandardError())};
}

/// What `check --json` says of each file, by the file's name.
inline QHash<QString, QJsonObject> check(const QStringList &files, const QStringList &options = {})
{
    const Outcome outcome = run(QStringList{QStringLiteral("check"), QStringLiteral("--json")} + options
                                + files);
    const QJsonDocument told = QJsonDocument::fromJson(outcome.out.toUtf8());
    QHash<QString, QJsonObject> verdicts;
    for (const auto &each : told.object().value(QLatin1String("files")).toArray()) {
        const QJsonObject verdict = each.toObject();
        verdicts.insert(QFileInfo(verdict.value(QLatin1String("file")).toString()).fileName(), verdict);
    }
    return verdicts;
}

/// "severity path" of each finding.
inline QStringList findings(const QJsonObject &verdict)
{
    QStringList found;
    for (const auto &each : verdict.value(QLatin1String("findings")).toArray()) {
        const QJsonObject finding = each.toObject();
        found.append(finding.value(QLatin1String("severity")).toString() + QLatin1Char(' ')
                     + finding.value(QLatin1String("path")).toString());
    }
    return found;
}

/// The settings of an installation that the wizard calls complete.
inline QJsonDocument complete()
{
    return documents::with(documents::standard(QStringLiteral("R32")),
                           {{QStringLiteral("SettingInfo.user.DateInfo.year"), 2026},
                            {QStringLiteral("SettingInfo.user.DateInfo.month"), 11},
                            {QStringLiteral("SettingInfo.user.DateInfo.mday"), 22},
                            {QStringLiteral("SettingInfo.installation.autoOp_tempwater.low_limit"), 20}});
}

/// Files in a folder that goes with it.
class Folder
{
public:
    QString put(const QString &name, const QByteArray &content) const
    {
        testfiles::put(folder.filePath(name), content);
        return folder.filePath(name);
    }
    QString put(const QString &name, const QJsonDocument &document) const
    {
        return put(name, document.toJson(QJsonDocument::Compact));
    }
    QString path(const QString &name) const { return folder.filePath(name); }

private:
    QTemporaryDir folder;
};

} // namespace program
