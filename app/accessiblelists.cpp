// Lists for a screen reader: those of values, and those of rows that are widgets.

#include "app/accessibleparts.h"
#include "app/accessnames.h"
#include "app/maindialog.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>

AccessibleBox::AccessibleBox(QWidget *box)
    : AccessiblePart(box, QAccessible::ComboBox)
{
}

void *AccessibleBox::interface_cast(QAccessible::InterfaceType type)
{
    return type == QAccessible::TextInterface ? static_cast<QAccessibleTextInterface *>(this)
                                              : AccessiblePart::interface_cast(type);
}

QAccessible::State AccessibleBox::state() const
{
    QAccessible::State state = AccessiblePart::state();
    state.expandable = true;
    state.hasPopup = true;
    state.expanded = isOpen();
    state.collapsed = !state.expanded;
    return state;
}

QStringList AccessibleBox::actionNames() const { return {showMenuAction(), setFocusAction()}; }

// Space opens the list, once the call of the screen reader has been answered.
void AccessibleBox::doAction(const QString &action)
{
    if (action == showMenuAction()) {
        widget()->setFocus();
        QCoreApplication::postEvent(widget(), new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier));
    } else {
        AccessiblePart::doAction(action);
    }
}

void AccessibleBox::selection(int, int *start, int *end) const { *start = *end = 0; }

QString AccessibleBox::text(int start, int end) const { return value().mid(start, end - start); }

QString AccessibleBox::attributes(int, int *start, int *end) const
{
    *start = 0;
    *end = characterCount();
    return {};
}

QString AccessibleValues::name() const { return accessnames::ofList(widget()); }

QString AccessibleValues::value() const { return static_cast<QComboBox *>(widget())->currentText(); }

// QComboBox::view() would build what isn't there yet.
QWidget *AccessibleValues::popup() const
{
    const auto *view = widget()->findChild<QAbstractItemView *>();
    return view != nullptr && view->isVisible() ? view->window() : nullptr;
}

int AccessibleValues::childCount() const { return isOpen() ? 1 : 0; }

QAccessibleInterface *AccessibleValues::child(int index) const
{
    return index == 0 ? QAccessible::queryAccessibleInterface(popup()) : nullptr;
}

int AccessibleValues::indexOfChild(const QAccessibleInterface *child) const
{
    return isOpen() && child->object() == popup() ? 0 : -1;
}

QString AccessibleLanguage::name() const { return accessnames::given(widget()); }

QString AccessibleLanguage::value() const
{
    const auto *shown = widget()->findChild<QLabel *>(QStringLiteral("labelCurrentLanguage"));
    return shown == nullptr ? QString() : shown->text();
}

bool AccessibleLanguage::isOpen() const { return mainDialog->members().languageMenuOpen; }

AccessibleRows::AccessibleRows(QWidget *list)
    : AccessiblePart(list, QAccessible::List)
{
}

const QListWidget *AccessibleRows::list() const { return static_cast<QListWidget *>(widget()); }

int AccessibleRows::childCount() const { return list()->count(); }

QAccessibleInterface *AccessibleRows::child(int index) const
{
    QWidget *row = list()->itemWidget(list()->item(index));
    return row == nullptr ? nullptr : QAccessible::queryAccessibleInterface(row);
}

int AccessibleRows::indexOfChild(const QAccessibleInterface *child) const
{
    for (int index = 0; index < list()->count(); ++index) {
        if (list()->itemWidget(list()->item(index)) == child->object()) {
            return index;
        }
    }
    return -1;
}

QAccessibleInterface *AccessibleRows::focusChild() const
{
    return list()->hasFocus() && list()->currentRow() >= 0 ? child(list()->currentRow())
                                                           : AccessiblePart::focusChild();
}

QString AccessibleRows::name() const { return accessnames::given(widget()); }

AccessibleRow::AccessibleRow(QWidget *row)
    : AccessiblePart(row, QAccessible::ListItem)
{
}

QListWidget *AccessibleRow::list() const
{
    QWidget *above = widget();
    while (above != nullptr && qobject_cast<QListWidget *>(above) == nullptr) {
        above = above->parentWidget();
    }
    return static_cast<QListWidget *>(above);
}

int AccessibleRow::number() const
{
    return QAccessible::queryAccessibleInterface(list())->indexOfChild(this);
}

// Rows of the editor aren't chosen: what lies in them takes the focus.
QAccessible::State AccessibleRow::state() const
{
    QAccessible::State state = AccessiblePart::state();
    const QListWidget *above = list();
    if (above != nullptr && above->focusPolicy() != Qt::NoFocus) {
        const bool current = above->currentRow() >= 0 && above->currentRow() == number();
        state.selectable = true;
        state.focusable = true;
        state.selected = current;
        state.focused = current && above->hasFocus();
    }
    return state;
}

QAccessibleInterface *AccessibleRow::parent() const { return QAccessible::queryAccessibleInterface(list()); }

QStringList AccessibleRow::actionNames() const
{
    return list()->focusPolicy() == Qt::NoFocus ? QStringList() : QStringList{pressAction()};
}

void AccessibleRow::doAction(const QString &action)
{
    if (action == pressAction()) {
        QListWidget *above = list();
        QMetaObject::invokeMethod(
            above, [above, row = number()] { emit above->itemClicked(above->item(row)); },
            Qt::QueuedConnection);
    }
}

QString AccessibleRow::name() const
{
    const auto *label = widget()->findChild<QLabel *>();
    return label == nullptr ? QString() : accessnames::spoken(label->text());
}
