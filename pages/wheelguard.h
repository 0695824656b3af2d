#pragma once

#include <QObject>

/// Lets a turn of the mouse wheel over a closed combo box scroll the page instead of changing the value: a
/// settings file must not change because somebody scrolled.
class WheelGuard : public QObject
{
public:
    /// Guards every combo box below `page` and gives them one way of sizing.
    static void guard(QWidget *page);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    using QObject::QObject;
};
