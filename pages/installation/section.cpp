#include "pages/installation/section.h"

#include <QFrame>
#include <QIcon>
#include <QPushButton>
#include <QStyle>

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
        styleHeader(hideButton, false);
        return;
    }
    expanded = true;
    styleHeader(hideButton, true);
    hideButton->setIcon(QIcon(QStringLiteral(":/images/btn_header_arrow_close.png")));
    frame->show();
}

void Section::styleHeader(const QPushButton *hideButton, bool open)
{
    QWidget *header = hideButton->parentWidget();
    header->setProperty("open", open);
    // A style sheet looks at properties when a widget is polished.
    header->style()->unpolish(header);
    header->style()->polish(header);
}

void Section::writeWhileExpanded(const QString &path, const QJsonValue &value) const
{
    if (expanded) {
        writeUnlessEmpty(path, value);
    }
}
