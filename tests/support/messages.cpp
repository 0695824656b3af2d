#include "support/messages.h"

#include <cstdio>
#include <cstdlib>

namespace {

QStringList &log()
{
    static QStringList lines;
    return lines;
}

QtMessageHandler &previous()
{
    static QtMessageHandler handler = nullptr;
    return handler;
}

void keep(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    log().append(text);
    if (text.contains(QLatin1String("No matching signal"))
        || text.contains(QLatin1String("QObject::connect"))) {
        static_cast<void>(std::fprintf(stderr, "%s\n", qPrintable(text)));
        std::abort();
    }
    if (type == QtFatalMsg && previous() != nullptr) {
        previous()(type, context, text);
    }
}

} // namespace

void messages::install()
{
    const QtMessageHandler replaced = qInstallMessageHandler(keep);
    if (replaced != keep) {
        previous() = replaced;
    }
}

void messages::clear() { log().clear(); }

QStringList messages::all() { return log(); }

bool messages::contain(const QString &part)
{
    const QStringList lines = log();
    for (const QString &line : lines) {
        if (line.contains(part)) {
            return true;
        }
    }
    return false;
}
