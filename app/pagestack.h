#pragma once

#include <QStackedWidget>

/// A stack that takes the room it is given. It asks no page how large it would like to be, so that a page
/// that isn't shown isn't laid out.
class PageStack : public QStackedWidget
{
    Q_OBJECT

public:
    explicit PageStack(QWidget *parent = nullptr);

    QSize sizeHint() const override { return {}; }
    QSize minimumSizeHint() const override { return {}; }
    bool hasHeightForWidth() const override { return false; }
};
