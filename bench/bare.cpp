// The yardstick of the tool's start is this program with --text: it loads the same four fonts and shows a
// dialog of the same size that holds a line of text. Without, the dialog is empty.

#include "app/fonts.h"

#include <QDialog>
#include <QLabel>

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication application(argc, argv);
    loadFonts();
    QDialog dialog;
    dialog.resize(1440, 800);
    if (QCoreApplication::arguments().contains(QLatin1String("--text"))) {
        new QLabel(QStringLiteral("Calora configurator"), &dialog);
    }
    dialog.show();
    return QApplication::exec();
}
