// Takes a picture of every page of the window in both default documents, so that one can look before reading.

#include "support/tour.h"

#include <QDir>
#include <QFile>
#include <QJsonDocument>
#include <QScrollArea>

#include <cstdio>

namespace {

/// The page on the ground that the window shows through it.
QPixmap wholePage(QWidget *page)
{
    QPixmap picture(page->size());
    picture.fill(QColor(242, 242, 242));
    page->render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

bool save(const QPixmap &picture, const QString &path)
{
    const bool saved = picture.save(path);
    if (!saved) {
        std::fprintf(stderr, "pictures: can't write %s\n", qPrintable(path));
    }
    return saved;
}

/// The window, and the whole of a page that is higher than its place in the window; `path` lacks its ending.
bool take(MainDialog &dialog, const QString &path)
{
    bool saved = save(dialog.grab(), path + QStringLiteral(".png"));
    const auto areas = dialog.findChildren<QScrollArea *>();
    for (const QScrollArea *area : areas) {
        if (area->isVisible() && area->widget() != nullptr
            && area->widget()->height() > area->viewport()->height()) {
            saved = save(wholePage(area->widget()), path + QStringLiteral("-whole.png")) && saved;
        }
    }
    return saved;
}

bool takeAll(const QString &folder, const QString &refrigerant, const QJsonDocument &language)
{
    Window window;
    window.dialog.resize(1440, 800);
    if (!language.isEmpty()) {
        window.dialog.setLanguageDocument(language);
        window.dialog.changeLanguage();
    }
    bool saved = true;
    Tour tour(window, refrigerant);
    for (const Tour::Stop &stop : tour.stops()) {
        stop.show();
        Tour::settle();
        saved = take(window.dialog, QStringLiteral("%1/%2-%3").arg(folder, refrigerant.toLower(), stop.name))
            && saved;
    }
    return saved;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2 || arguments.size() > 3 || !QDir().mkpath(arguments.at(1))) {
        std::fputs("usage: pictures FOLDER [LANGUAGE FILE]\n", stderr);
        return 2;
    }
    QFile language(arguments.value(2));
    const bool translated = arguments.size() == 3 && language.open(QIODevice::ReadOnly);
    const QJsonDocument texts = translated ? QJsonDocument::fromJson(language.readAll()) : QJsonDocument();
    prepareApplication();
    bool saved = true;
    for (const char *refrigerant : {"R32", "R410"}) {
        saved = takeAll(arguments.at(1), QLatin1String(refrigerant), texts) && saved;
    }
    return saved ? 0 : 1;
}
