#include "pages/installation/section.h"

#include <QFrame>
#include <QIcon>
#include <QPushButton>

Section::Section(QWidget *parent)
    : Page(parent)
{
}

void Section::collapse(QPushButton *hideButton, QFrame *frame)
{
    expanded = false;
    hideButton->setIcon(QIcon(QStringLiteral(":/images/btn_header_arrow_open.png")));
    frame->hide();
}

void Section::toggle(QPushButton *hideButton, QFrame *frame)
{
    if (expanded) {
        collapse(hideButton, frame);
        return;
    }
    expanded = true;
    hideButton->setIcon(QIcon(QStringLiteral(":/images/btn_header_arrow_close.png")));
    frame->show();
}

void Section::writeWhileExpanded(const QString &path, const QJsonValue &value) const
{
    if (expanded) {
        writeUnlessEmpty(path, value);
    }
}
