#pragma once

#include "support/testfiles.h"
#include "support/tour.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>

/// What tests of the look share: where things stand in the window, at a size and in a language.
namespace look {

inline QRect placeOf(const QWidget *widget)
{
    return {widget->mapTo(widget->window(), QPoint()), widget->size()};
}

inline void resize(Window &window, const QSize &size)
{
    window.dialog.resize(size);
    QTRY_COMPARE(window.dialog.size(), size);
    Tour::settle();
}

inline QStringList languages()
{
    QStringList names = QDir(LANGUAGES_DIR).entryList({"*.json"}, QDir::Files);
    names.replaceInStrings(QStringLiteral(".json"), QString());
    return names;
}

inline void speak(Window &window, const QString &language)
{
    QFile file(QDir(LANGUAGES_DIR).filePath(language + ".json"));
    QVERIFY(file.open(QIODevice::ReadOnly));
    window.dialog.setLanguageDocument(QJsonDocument::fromJson(file.readAll()));
    window.dialog.changeLanguage();
    Tour::settle();
}

/// A row for each language that is delivered.
inline void everyLanguage()
{
    QTest::addColumn<QString>("language");
    const QStringList all = languages();
    QCOMPARE(all.size(), 16);
    for (const QString &language : all) {
        QTest::newRow(qPrintable(language)) << language;
    }
}

} // namespace look
