// The yardstick of the tool's start: a Qt program that loads the same four fonts and shows an empty dialog of
// the same size.

#include "bench/fonts.h"

#include <QDialog>

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication application(argc, argv);
    loadFonts();
    QDialog dialog;
    dialog.resize(1440, 800);
    dialog.show();
    return QApplication::exec();
}
