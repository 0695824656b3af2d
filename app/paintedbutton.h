#pragma once

#include <QWidget>

/// What the painted buttons share: a press of the left button alone arms the widget, and a release anywhere
/// clicks it. Tab reaches it, and Space or Return clicks it then.
class PaintedButton : public QWidget
{
public:
    explicit PaintedButton(QWidget *parent = nullptr);

    /// The text on the button.
    void setText(const QString &text);

protected:
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

    /// Emits the button's own signal.
    virtual void click() = 0;

    /// Draws the text in the middle of `place`, in the widget's font at 15 points.
    void drawText(QPainter &painter, const QRect &place) const;

    /// How much of the width the text takes.
    int textWidth() const;

    bool pressed = false;
    bool hovered = false;
    QString text;

private:
    QFont large() const;
};
