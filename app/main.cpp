#include "app/fonts.h"
#include "app/maindialog.h"

#include <QApplication>
#include <QDebug>
#include <QScreen>

#include <algorithm>

namespace {

void discardMessage(QtMsgType, const QMessageLogContext &, const QString &) {}

/// Windows and their texts are shown at their own size, whatever the display's density.
void refuseScaling()
{
    for (const char *variable : {"QT_SCALE_FACTOR", "QT_SCREEN_SCALE_FACTORS", "QT_DEVICE_PIXEL_RATIO"}) {
        qunsetenv(variable);
    }
    // Takes precedence over the desktop's own setting, which would enlarge the texts alone.
    qputenv("QT_FONT_DPI", "96");
    QCoreApplication::setAttribute(Qt::AA_DisableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
}

/// The tool has a look of its own. A desktop's theme would bring file dialogs that take the filter "*.json;"
/// to the letter and list nothing, and costs time at the start. Windows' own dialogs know such filters.
void refuseDesktopTheme()
{
#ifdef Q_OS_LINUX
    for (const char *variable :
         {"QT_QPA_PLATFORMTHEME", "QT_STYLE_OVERRIDE", "XDG_CURRENT_DESKTOP", "DESKTOP_SESSION",
          "GNOME_DESKTOP_SESSION_ID", "KDE_FULL_SESSION", "KDE_SESSION_VERSION"}) {
        qunsetenv(variable);
    }
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
#endif
}

/// The tool draws none. Looking for it loads drivers, which are half of the memory of a Qt program on X11.
void refuseOpenGl() { qputenv("QT_XCB_GL_INTEGRATION", "none"); }

QByteArray platformArgument()
{
#ifdef Q_OS_WIN
    return QByteArrayLiteral("windows:dpiawareness=0");
#else
    const QByteArray named = qgetenv("QT_QPA_PLATFORM");
    // The frameless window moves itself in global coordinates, which not every platform offers.
    return named.isEmpty() ? QByteArrayLiteral("xcb") : named;
#endif
}

/// Where a window manager puts a window without a frame, Qt may not be told: it then opens lists, which are
/// windows of their own, away from their boxes. Where the window asks to stand is known.
void placeInTheMiddle(QWidget &window)
{
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    const QPoint corner = room.center() - window.rect().center();
    window.move(std::max(room.left(), corner.x()), std::max(room.top(), corner.y()));
}

} // namespace

// Command-line arguments are neither read nor passed on.
int main(int, char *[])
{
    refuseScaling();
    refuseDesktopTheme();
    refuseOpenGl();
    QByteArray platform = platformArgument();
    char name[] = "calorainstaller";
    char option[] = "-platform";
    char *arguments[] = {name, option, platform.data(), nullptr};
    int argumentCount = 3;
    QApplication application(argumentCount, arguments);
    QCoreApplication::setApplicationName(QStringLiteral("Calora configurator"));
#ifdef Q_OS_WIN
    // The style sheet is made for it; Windows' own would draw frames of focus within those of the sheet.
    QApplication::setStyle(QStringLiteral("Fusion"));
#endif
    qDebug("main() release mode");
    qInstallMessageHandler(discardMessage);
    loadFonts();
    MainDialog dialog;
    placeInTheMiddle(dialog);
    dialog.show();
    return QApplication::exec();
}
