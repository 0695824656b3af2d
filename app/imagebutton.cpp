#include "app/imagebutton.h"

#include <QPainter>

ImageButton::ImageButton(QWidget *parent)
    : PaintedButton(parent)
{
}

void ImageButton::setPixmaps(int state, const QString &left, const QString &middle, const QString &right)
{
    if (state < Normal || state >= NoState) {
        return;
    }
    const auto slot = static_cast<std::size_t>(state);
    leftPixmaps.at(slot).load(left);
    middlePixmaps.at(slot).load(middle);
    rightPixmaps.at(slot).load(right);
}

void ImageButton::setStandardPixmaps()
{
    const QString picture = QStringLiteral(":/images/btn_button_%1_%2.png");
    const auto load = [&](State state, const QString &name) {
        setPixmaps(state, picture.arg(name, QStringLiteral("left")),
                   picture.arg(name, QStringLiteral("middle")), picture.arg(name, QStringLiteral("right")));
    };
    load(Normal, QStringLiteral("normal"));
    load(Hover, QStringLiteral("over"));
    load(Pressed, QStringLiteral("press"));
}

void ImageButton::click() { emit clicked(); }

void ImageButton::paintEvent(QPaintEvent *)
{
    const std::size_t state = pressed ? Pressed : hovered ? Hover : Normal;
    const QPixmap &left = leftPixmaps.at(state);
    const QPixmap &middle = middlePixmaps.at(state);
    const QPixmap &right = rightPixmaps.at(state);
    // The slices are of equal width, so the left one tells the width of the right one too.
    const int slice = left.width();
    const QRect inner(slice, 0, width() - slice - slice, height());

    QPainter painter(this);
    if (!left.isNull()) {
        painter.drawPixmap(0, 0, left);
    }
    if (!middle.isNull()) {
        painter.drawPixmap(inner, middle);
    }
    if (!right.isNull()) {
        painter.drawPixmap(width() - slice, 0, right);
    }
    drawText(painter, inner);
}
