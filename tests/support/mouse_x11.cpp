#include "support/mouse.h"

#include <QCursor>
#include <QEventLoop>
#include <QProcess>
#include <QTest>

namespace {

void xdotool(const QStringList &arguments)
{
    QProcess process;
    QEventLoop loop;
    QObject::connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &loop,
                     &QEventLoop::quit);
    QObject::connect(&process, &QProcess::errorOccurred, &loop, &QEventLoop::quit);
    process.start(QStringLiteral("xdotool"), arguments);
    loop.exec();
    if (process.exitCode() != 0 || process.error() != QProcess::UnknownError) {
        qFatal("xdotool %s failed", qPrintable(arguments.join(QLatin1Char(' '))));
    }
    // What the server has sent is served, and what that has asked of the window manager comes back.
    QTest::qWait(30);
}

} // namespace

void mouse::moveTo(const QPoint &globalPos)
{
    xdotool({QStringLiteral("mousemove"), QString::number(globalPos.x()), QString::number(globalPos.y())});
    if (!QTest::qWaitFor([globalPos] { return QCursor::pos() == globalPos; })) {
        qFatal("The pointer doesn't reach %d, %d", globalPos.x(), globalPos.y());
    }
}

void mouse::press(int button) { xdotool({QStringLiteral("mousedown"), QString::number(button)}); }

void mouse::release(int button) { xdotool({QStringLiteral("mouseup"), QString::number(button)}); }
