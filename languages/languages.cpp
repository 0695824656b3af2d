#include "languages/languages.h"

#include "document/files.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>

namespace {

Languages *theOne = nullptr;

QString folder() { return QCoreApplication::applicationDirPath() + QStringLiteral("/language"); }

QString filePath(const QString &name) { return folder() + QLatin1Char('/') + name + QStringLiteral(".json"); }

} // namespace

Languages::Languages() { theOne = this; }

Languages &Languages::instance() { return *theOne; }

QStringList Languages::names()
{
    QStringList names = QDir(folder()).entryList({QStringLiteral("*.JSON"), QStringLiteral("*.json")},
                                                 QDir::Files);
    return names.replaceInStrings(QStringLiteral(".json"), QString());
}

QString Languages::nameOf(const QString &path)
{
    return QFileInfo(path).fileName().remove(QStringLiteral(".json"));
}

// The name isn't trimmed: a line end becomes part of it.
void Languages::load(const QString &namePath)
{
    const auto name = files::read(namePath);
    if (!name) {
        qWarning() << "MainDialog::loadLanguageData failed to open file:";
        return;
    }
    emit nameChanged(QString::fromUtf8(*name));
    const QString path = filePath(QString::fromUtf8(*name));
    qDebug() << "MainDialog::loadLanguageData path:" << path;
    if (!inForce.read(path)) {
        qWarning() << "MainDialog::loadLanguageData failed to open file:" << path;
        return;
    }
    emit changed();
}

// Oddity 49: the message names another class; it stands for every caller.
void Languages::saveName(const QString &name)
{
    if (!files::replaceContent(iniPath, name.toUtf8())) {
        qWarning() << "LanguageMenu::on_listWidget_itemClicked failed to open file:";
        return;
    }
    emit nameChanged(name);
}

void Languages::loadAnotherPath(const QString &source)
{
    if (!inForce.read(source)) {
        qWarning() << "MainDialog::loadLanguageAnotherPath failed to open file:" << source;
        return;
    }
    const QString name = nameOf(source);
    saveName(name);
    const QString target = filePath(name);
    // A file that lies at its target already stays as it is: removing it would lose it.
    if (QFileInfo(source) != QFileInfo(target)) {
        if (QFile::exists(target)) {
            QFile::remove(target);
        }
        QFile::copy(source, target);
    }
    emit filesChanged();
    emit changed();
}

// Oddity 47: a path from the root of the drive: neither the language folder nor the resource of that name.
void Languages::loadDefault()
{
    const QString path = QStringLiteral("/language/English.json");
    if (!inForce.read(path)) {
        qWarning() << "MainDialog::loadDefaultLanguageJsonFile failed to open file:" << path;
    }
}

void Languages::reload()
{
    emit filesChanged();
    emit replaced();
    load(iniPath);
    emit reloaded();
}
