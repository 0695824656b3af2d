#pragma once

#include "app/paintedbutton.h"

/// A tab header of the Setting step: a text on white above a line that tells the current tab.
class TabButton : public PaintedButton
{
    Q_OBJECT

public:
    explicit TabButton(QWidget *parent = nullptr);

    void setText(const QString &newText);

    /// Marks the tab as the current one. A click doesn't do so by itself.
    void setSelected(bool selected);

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;
    void click() override;

private:
    void placeMark();

    bool selected = false;
};
