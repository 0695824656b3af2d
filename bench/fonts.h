#pragma once

#include <QApplication>
#include <QFontDatabase>

/// The four fonts that the tool loads at its start, from the folder of the running program.
inline void loadFonts()
{
    for (const char *file :
         {"NotoSans-Medium.ttf", "NotoSans-Bold.ttf", "NotoSans-Light.ttf", "NotoSans-Regular.ttf"}) {
        const QString path = QCoreApplication::applicationDirPath() + QLatin1Char('/') + QLatin1String(file);
        if (QFontDatabase::addApplicationFont(path) == -1) {
            qFatal("Can't load %s", file);
        }
    }
}
