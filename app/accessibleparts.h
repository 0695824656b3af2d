#pragma once

#include <QAccessibleTextInterface>
#include <QAccessibleWidget>

class QListWidget;

/// A widget that says something of its own. What a text is empty for, Qt says.
class AccessiblePart : public QAccessibleWidget
{
public:
    explicit AccessiblePart(QWidget *widget, QAccessible::Role role = QAccessible::Pane);

    QString text(QAccessible::Text kind) const override;

protected:
    virtual QString name() const { return {}; }
    virtual QString description() const { return {}; }
    virtual QString value() const { return {}; }
};

/// A box that is called by its caption and shows a value, which is its text.
class AccessibleBox
    : public AccessiblePart
    , public QAccessibleTextInterface
{
public:
    explicit AccessibleBox(QWidget *box);

    void *interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    QStringList actionNames() const override;
    void doAction(const QString &action) override;

    // The value can't be marked or edited.
    void selection(int, int *start, int *end) const override;
    int selectionCount() const override { return 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    QString text(int start, int end) const override;
    int characterCount() const override { return value().size(); }
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint &) const override { return -1; }
    void scrollToSubstring(int, int) override {}
    QString attributes(int offset, int *start, int *end) const override;

    using AccessiblePart::text;

protected:
    virtual bool isOpen() const = 0;
};

/// A list of values; its popup is its child while it is open.
class AccessibleValues : public AccessibleBox
{
public:
    using AccessibleBox::AccessibleBox;

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;

protected:
    QString name() const override;
    QString value() const override;
    bool isOpen() const override { return popup() != nullptr; }

private:
    QWidget *popup() const;
};

/// The box that shows the language in force.
class AccessibleLanguage : public AccessibleBox
{
public:
    using AccessibleBox::AccessibleBox;

protected:
    QString name() const override;
    QString value() const override;
    bool isOpen() const override;
};

/// A list whose rows are widgets: the popup of languages, the editor.
class AccessibleRows : public AccessiblePart
{
public:
    explicit AccessibleRows(QWidget *list);

    int childCount() const override;
    QAccessibleInterface *child(int index) const override;
    int indexOfChild(const QAccessibleInterface *child) const override;
    QAccessibleInterface *focusChild() const override;

protected:
    QString name() const override;

private:
    const QListWidget *list() const;
};

class AccessibleRow : public AccessiblePart
{
public:
    explicit AccessibleRow(QWidget *row);

    QAccessible::State state() const override;
    QAccessibleInterface *parent() const override;
    QStringList actionNames() const override;
    void doAction(const QString &action) override;

protected:
    QString name() const override;

private:
    QListWidget *list() const;
    int number() const;
};
