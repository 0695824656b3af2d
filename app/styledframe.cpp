#include "app/styledframe.h"

#include <QFile>

StyledFrame::StyledFrame(QWidget *parent)
    : QFrame(parent)
{
    QFile look(QStringLiteral(":/style/calora.qss"));
    if (look.open(QIODevice::ReadOnly)) {
        setStyleSheet(QString::fromUtf8(look.readAll()));
    }
}
