#include "app/accessible.h"

#include "app/accessibleparts.h"
#include "app/accessnames.h"
#include "app/maindialog.h"
#include "app/opencontrols.h"
#include "app/paintedbutton.h"
#include "app/tabbutton.h"
#include "languages/languagebox.h"
#include "languages/userlanguageeditpopup.h"
#include "pages/valuelist.h"

#include <QCoreApplication>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QStackedWidget>

AccessiblePart::AccessiblePart(QWidget *widget, QAccessible::Role role)
    : QAccessibleWidget(widget, role)
{
}

QString AccessiblePart::text(QAccessible::Text kind) const
{
    const QWidget *window = widget()->window();
    if (window != mainDialog && qobject_cast<const UserLanguageEditPopup *>(window) == nullptr) {
        return QAccessibleWidget::text(kind); // the window is still being built
    }
    QString own;
    if (kind == QAccessible::Name) {
        own = name();
    } else if (kind == QAccessible::Description) {
        own = description();
    } else if (kind == QAccessible::Value) {
        own = value();
    }
    return own.isEmpty() ? QAccessibleWidget::text(kind) : own;
}

namespace {

/// Clicks when the call of the screen reader has been answered: a button may open a dialog. Radios are
/// clicked too; Qt would check them, of which their page isn't told.
class Button : public AccessiblePart
{
public:
    explicit Button(QWidget *button, QAccessible::Role role = QAccessible::Button)
        : AccessiblePart(button, role)
    {
    }

    QStringList actionNames() const override
    {
        return QStringList{pressAction()} + AccessiblePart::actionNames();
    }

    void doAction(const QString &action) override
    {
        if (action == pressAction()) {
            press();
        } else {
            AccessiblePart::doAction(action);
        }
    }

protected:
    QString name() const override { return accessnames::ofButton(button()); }

    virtual void press()
    {
        QMetaObject::invokeMethod(button(), &QAbstractButton::click, Qt::QueuedConnection);
    }

    QAbstractButton *button() const { return static_cast<QAbstractButton *>(widget()); }
};

class Radio : public Button
{
public:
    explicit Radio(QWidget *radio)
        : Button(radio, QAccessible::RadioButton)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = Button::state();
        state.checkable = true;
        state.checked = button()->isChecked();
        return state;
    }
};

class MaximumButton : public Button
{
public:
    using Button::Button;

protected:
    QString name() const override
    {
        return widget()->window()->isMaximized() ? QStringLiteral("Restore") : Button::name();
    }
};

class Step : public Button
{
public:
    using Button::Button;

protected:
    QString name() const override { return accessnames::ofStep(widget()); }
    QString description() const override { return accessnames::stepState(widget()); }
};

/// The header of a section: its body is hidden or shown.
class Header : public Button
{
public:
    using Button::Button;

    QAccessible::State state() const override
    {
        QAccessible::State state = Button::state();
        state.expandable = true;
        state.expanded = widget()->parentWidget()->property("open").toBool();
        state.collapsed = !state.expanded;
        return state;
    }
};

/// A drawn switch tells by its text whether it is on. Nobody presses it.
class Switch : public AccessiblePart
{
public:
    explicit Switch(QWidget *drawn)
        : AccessiblePart(drawn, QAccessible::CheckBox)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePart::state();
        state.checkable = true;
        state.checked = isOn();
        state.readOnly = true;
        return state;
    }

protected:
    QString name() const override { return accessnames::given(widget()); }
    QString description() const override
    {
        return accessnames::spoken(
            mainDialog->languageTextOrKey(isOn() ? QStringLiteral("On") : QStringLiteral("Off")));
    }

private:
    bool isOn() const { return static_cast<QPushButton *>(widget())->text() == QLatin1String("true"); }
};

/// A painted button knows Space. A tab is the current one when its page is shown, whatever is highlighted.
class Painted : public Button
{
public:
    explicit Painted(QWidget *painted)
        : Button(painted, accessnames::tabOf(painted) < 0 ? QAccessible::Button : QAccessible::PageTab)
    {
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = Button::state();
        const int tab = accessnames::tabOf(widget());
        if (tab >= 0) {
            const auto *tabs = mainDialog->findChild<QStackedWidget *>(
                QStringLiteral("settingStackedWidget"));
            state.selectable = true;
            state.selected = tabs->currentIndex() == tab;
        }
        return state;
    }

protected:
    QString name() const override { return accessnames::given(widget()); }
    QString description() const override
    {
        return opencontrols::ofTab(accessnames::tabOf(widget())).join(QStringLiteral(", "));
    }
    void press() override
    {
        QCoreApplication::postEvent(widget(), new QKeyEvent(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier));
    }
};

/// A text, or a picture that a form names. All else that a label draws is decoration.
class Label : public AccessiblePart
{
public:
    using AccessiblePart::AccessiblePart;

    QAccessible::Role role() const override
    {
        if (!widget()->accessibleName().isEmpty()) {
            return label()->text().isEmpty() ? QAccessible::Graphic : QAccessible::StaticText;
        }
        const bool bullet = widget()->property("role") == QLatin1String("bullet");
        return bullet || label()->text().isEmpty() ? QAccessible::Whitespace : QAccessible::StaticText;
    }

    QAccessible::State state() const override
    {
        QAccessible::State state = AccessiblePart::state();
        state.focusable = state.focusable && role() != QAccessible::Whitespace;
        return state;
    }

    QVector<QPair<QAccessibleInterface *, QAccessible::Relation>> relations(
        QAccessible::Relation match) const override
    {
        auto all = AccessiblePart::relations(match);
        if (label()->buddy() != nullptr && (match & QAccessible::Labelled) != 0) {
            all.append({QAccessible::queryAccessibleInterface(label()->buddy()), QAccessible::Labelled});
        }
        return all;
    }

protected:
    QString name() const override
    {
        return role() == QAccessible::StaticText ? accessnames::spoken(label()->text())
                                                 : accessnames::given(widget());
    }
    /// Of a mark, what is open there.
    QString description() const override
    {
        const int tab = accessnames::tabOf(widget());
        const QStringList open = tab < 0 ? opencontrols::ofStep(accessnames::stepOf(widget()))
                                         : opencontrols::ofTab(tab);
        return open.join(QStringLiteral(", "));
    }

private:
    const QLabel *label() const { return static_cast<QLabel *>(widget()); }
};

class Group : public AccessiblePart
{
public:
    using AccessiblePart::AccessiblePart;

    QAccessible::Role role() const override
    {
        if (widget()->objectName() == QLatin1String("tabBar")) {
            return QAccessible::PageTabList;
        }
        return name().isEmpty() ? QAccessible::Pane : QAccessible::Grouping;
    }

protected:
    QString name() const override { return accessnames::ofGroup(widget()); }
};

QAccessibleInterface *ofButton(QWidget *button)
{
    if (accessnames::stepOf(button) > 0) {
        return new Step(button);
    }
    if (button->objectName() == QLatin1String("hideButton")) {
        return new Header(button);
    }
    if (button->objectName() == QLatin1String("maximumButton")) {
        return new MaximumButton(button);
    }
    if (button->objectName().startsWith(QLatin1String("DipSwitch"))) {
        return new Switch(button);
    }
    return new Button(button);
}

QAccessibleInterface *ofWidget(QWidget *widget, const QString &className)
{
    if (qobject_cast<QLabel *>(widget) != nullptr) {
        return new Label(widget);
    }
    if (qobject_cast<QPushButton *>(widget) != nullptr) {
        return ofButton(widget);
    }
    if (qobject_cast<QRadioButton *>(widget) != nullptr) {
        return new Radio(widget);
    }
    if (qobject_cast<ValueList *>(widget) != nullptr) {
        return new AccessibleValues(widget);
    }
    if (qobject_cast<LanguageBox *>(widget) != nullptr) {
        return new AccessibleLanguage(widget);
    }
    if (dynamic_cast<PaintedButton *>(widget) != nullptr) {
        return new Painted(widget);
    }
    if (qobject_cast<QListWidget *>(widget) != nullptr) {
        return new AccessibleRows(widget);
    }
    if (className == QLatin1String("LanguageItem") || className == QLatin1String("LetterItem")) {
        return new AccessibleRow(widget);
    }
    static const QStringList groups{QStringLiteral("QGroupBox"), QStringLiteral("QFrame"),
                                    QStringLiteral("QWidget"), QStringLiteral("SectionBody")};
    return groups.contains(className) ? new Group(widget) : nullptr;
}

/// Qt asks for the class of the object first, then for those above it. Its own dialogs are its own matter. A
/// page that isn't in the window yet is asked for too, when there is a screen reader at the start.
QAccessibleInterface *make(const QString &className, QObject *object)
{
    if (!object->isWidgetType() || className != QLatin1String(object->metaObject()->className())) {
        return nullptr;
    }
    auto *widget = static_cast<QWidget *>(object);
    const QWidget *window = widget->window();
    const bool own = qobject_cast<const MainDialog *>(window) != nullptr
        || qobject_cast<const UserLanguageEditPopup *>(window) != nullptr;
    const bool ofQt = !own && qobject_cast<const QDialog *>(window) != nullptr;
    return ofQt ? nullptr : ofWidget(widget, className);
}

} // namespace

void accessible::install() { QAccessible::installFactory(make); }

void accessible::languageChanged(const QWidget *window)
{
    if (!QAccessible::isActive()) {
        return;
    }
    const auto parts = window->findChildren<QWidget *>();
    for (QWidget *part : parts) {
        QAccessibleEvent event(part, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
}
