#pragma once

#include "pages/page.h"

class QFrame;
class QPushButton;

/// What the sections of the Installation tab share: a header whose button opens and closes the body. A closed
/// section writes nothing, which keeps its loads and refreshes out of the document.
class Section : public Page
{
public:
    explicit Section(QWidget *parent = nullptr);

protected:
    /// Starts closed, and lets a click anywhere on the header be one on its button.
    void startCollapsed(QPushButton *hideButton, QFrame *frame);
    void toggle(QPushButton *hideButton, QFrame *frame);
    /// The guarded write: only while the section is open, and never into an empty document.
    void writeWhileExpanded(const QString &path, const QJsonValue &value) const;

    bool eventFilter(QObject *watched, QEvent *event) override;

    bool expanded = false;

private:
    /// Hides the body and gives the button its arrow.
    void collapse(QPushButton *hideButton, QFrame *frame);
    /// Scrolls as little as shows the section's first rows, so that its header stays near the mouse.
    void scrollIntoView();
    /// Lets the header of the button end as the body below it goes on, or as a card of its own.
    static void styleHeader(const QPushButton *hideButton, bool open);

    QPushButton *headerButton = nullptr;
    bool headerPressed = false;
};
