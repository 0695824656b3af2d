#pragma once

#include <QApplication>
#include <QDebug>
#include <QFontDatabase>

/// Loads the tool's fonts from the folder where they lie, beside the executable, and sets that of the
/// application. The log tells of one that is missing; the system's own then takes its place.
inline void loadFonts(const QString &folder = QCoreApplication::applicationDirPath())
{
    // Reads the list of installed fonts. Read after the files are added, it would have each of them read
    // again.
    const QFontDatabase installed;
    for (const char *file :
         {"NotoSans-Medium.ttf", "NotoSans-Bold.ttf", "NotoSans-Light.ttf", "NotoSans-Regular.ttf"}) {
        const QString path = folder + QLatin1Char('/') + QLatin1String(file);
        if (QFontDatabase::addApplicationFont(path) == -1) {
            qWarning("Failed to load %s", file);
        }
    }
    // The medium face registers under a longer name than the one that is asked for; the face of the product
    // page's headings is used where it is installed.
    QFont::insertSubstitution(QStringLiteral("Noto Sans Med"), QStringLiteral("Noto Sans Medium"));
    QFont::insertSubstitution(QStringLiteral("Noto Sans CJK KR Bold"), QStringLiteral("Noto Sans"));
    // Each call replaces the one before; pages and style sheets ask for the other families by name.
    for (const char *family : {"Noto Sans", "Noto Sans Light", "Noto Sans Med"}) {
        QApplication::setFont(QFont(QLatin1String(family)));
    }
}
