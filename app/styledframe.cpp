#include "app/styledframe.h"

#include "widgets/palette.h"

#include <QFile>

StyledFrame::StyledFrame(QWidget *parent)
    : QFrame(parent)
{
    QFile look(QStringLiteral(":/style/calora.qss"));
    if (look.open(QIODevice::ReadOnly)) {
        QByteArray sheet = look.readAll();
        for (const palette::Colour &colour : palette::all) {
            sheet.replace(colour.name, colour.value);
        }
        setStyleSheet(QString::fromUtf8(sheet));
    }
}
