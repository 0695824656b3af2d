#pragma once

#include "app/paintedbutton.h"

#include <QPixmap>

#include <array>

/// A button of any width, drawn from a left, a stretched middle and a right picture, with a set of three for
/// each state.
class ImageButton : public PaintedButton
{
    Q_OBJECT

public:
    enum State { Normal = 0, Unused = 1, Hover = 2, Pressed = 3, NoState = 4 };

    explicit ImageButton(QWidget *parent = nullptr);

    /// Loads the three pictures of a state. NoState loads nothing; a file that doesn't load leaves its slice
    /// undrawn.
    void setPixmaps(int state, const QString &left, const QString &middle, const QString &right);

    /// Gives the button the standard set of pictures: normal, over and press.
    void setStandardPixmaps();

signals:
    void clicked();

protected:
    void paintEvent(QPaintEvent *event) override;
    void click() override;

private:
    static constexpr int stateCount = 4;
    std::array<QPixmap, stateCount> leftPixmaps;
    std::array<QPixmap, stateCount> middlePixmaps;
    std::array<QPixmap, stateCount> rightPixmaps;
};
