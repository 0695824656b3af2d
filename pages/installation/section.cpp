#include "pages/installation/section.h"

#include "app/maindialog.h"
#include "pages/style.h"

#include <QApplication>
#include <QFrame>
#include <QIcon>
#include <QMouseEvent>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>

Section::Section(QWidget *parent)
    : Page(parent)
{
}

void Section::startCollapsed(QPushButton *hideButton, QFrame *frame)
{
    collapse(hideButton, frame);
    headerButton = hideButton;
    hideButton->parentWidget()->installEventFilter(this);
    // After the button's slot, which the form has connected by name.
    connect(hideButton, &QPushButton::clicked, this, &Section::scrollIntoView);
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
        // Else Qt would give the focus to the next section.
        if (frame->isAncestorOf(QApplication::focusWidget())) {
            hideButton->setFocus(Qt::OtherFocusReason);
        }
        collapse(hideButton, frame);
        styleHeader(hideButton, false);
        return;
    }
    expanded = true;
    styleHeader(hideButton, true);
    hideButton->setIcon(QIcon(QStringLiteral(":/images/btn_header_arrow_close.png")));
    frame->show();
}

bool Section::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        if (mainDialog->members().languageMenuOpen) {
            return false; // the press goes on to the window and closes the popup
        }
        headerPressed = static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton;
        return headerPressed;
    }
    if (event->type() == QEvent::MouseButtonRelease && headerPressed) {
        headerPressed = false;
        const QRect header = headerButton->parentWidget()->rect();
        if (header.contains(static_cast<QMouseEvent *>(event)->pos())) {
            headerButton->click();
        }
        return true;
    }
    return Page::eventFilter(watched, event);
}

void Section::scrollIntoView()
{
    QWidget *above = parentWidget();
    while (above != nullptr && qobject_cast<QScrollArea *>(above) == nullptr) {
        above = above->parentWidget();
    }
    if (!expanded || above == nullptr) {
        return;
    }
    // The page gets its new height.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const auto *area = static_cast<QScrollArea *>(above);
    constexpr int gap = 8;
    constexpr int firstRows = 160;
    const int top = mapTo(area->widget(), QPoint()).y();
    const int bottom = top + qMin(height(), headerButton->parentWidget()->height() + firstRows) + gap;
    QScrollBar *bar = area->verticalScrollBar();
    bar->setValue(qMin(top, qMax(bar->value(), bottom - area->viewport()->height())));
}

void Section::styleHeader(const QPushButton *hideButton, bool open)
{
    style::mark(hideButton->parentWidget(), "open", open);
}

void Section::writeWhileExpanded(const QString &path, const QJsonValue &value) const
{
    if (expanded) {
        writeUnlessEmpty(path, value);
    }
}
