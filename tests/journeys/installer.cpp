#include "journeys/installer.h"

#include "app/tabbutton.h"
#include "pages/operation/settinguser.h"
#include "pages/product/productselection.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QJsonArray>

void Installer::startNew(const QString &refrigerant)
{
    press("newButton");
    const auto *page = window.page<ProductSelection>();
    Window::click(page, "radioButtonMiddleTemp");
    Window::click(page, refrigerant == QLatin1String("R32") ? "radioButtonR32" : "radioButtonR410");
}

QString Installer::open(const QJsonDocument &document)
{
    file = folder.filePath(QStringLiteral("plant.json"));
    QFile plant(file);
    if (!plant.open(QIODevice::WriteOnly) || plant.write(document.toJson()) < 0) {
        qFatal("Can't write %s", qPrintable(file));
    }
    plant.close();
    filedialogs::answer([this] { press("openButton"); }, file);
    return file;
}

void Installer::tab(const char *tabButton)
{
    Window::click(Window::find<TabButton>(&window.dialog, tabButton));
}

bool Installer::save(const QString &path)
{
    const bool asked = !filedialogs::answer([this] { press("saveButton"); }, path).title.isEmpty();
    if (asked) {
        file = path;
    }
    keepSaved();
    return asked;
}

void Installer::keepSaved() const
{
    const QDir kept(QCoreApplication::applicationDirPath() + QStringLiteral("/saved"));
    const QString copy = kept.filePath(QLatin1String(QTest::currentTestFunction()) + QStringLiteral(".json"));
    if (QFile::exists(file)) {
        kept.mkpath(QStringLiteral("."));
        QFile::remove(copy);
        QFile::copy(file, copy);
    }
}

void Installer::enterDate(int year, int month, int day)
{
    const auto *page = window.page<SettingUser>();
    Window::choose(page, "comboDateYear", QString::number(year));
    Window::choose(page, "comboDateMonth", QString::number(month));
    Window::choose(page, "comboDateDay", QString::number(day));
}

QByteArray Installer::content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray Installer::expected(const QJsonDocument &document, const QString &table)
{
    QFile file(QStringLiteral(TEST_DATA_DIR "/journeys/") + table);
    if (!file.open(QIODevice::ReadOnly)) {
        qFatal("No table %s", qPrintable(table));
    }
    QVariantMap values;
    const auto lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        if (line.isEmpty() || line.startsWith('#')) {
            continue;
        }
        const auto cells = line.split('\t');
        values.insert(QString::fromUtf8(cells.at(0)),
                      QJsonDocument::fromJson('[' + cells.at(1) + ']').array().at(0).toVariant());
    }
    return documents::with(document, values).toJson(QJsonDocument::Compact);
}
