#pragma once

#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>

// What is read from files is shown letter for letter: "<" makes no markup, and "&" neither vanishes nor makes
// a shortcut. What is longer than any screen is shown as far as plaintext::shown() goes, since drawing it
// whole would take minutes. Their setText(), which the forms call too, hides that of Qt. To style sheets
// these classes are those of Qt that they derive from.

/// A label of plain text, with or without a buddy.
class PlainLabel : public QLabel
{
public:
    explicit PlainLabel(QWidget *parent = nullptr);

    void setText(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void changeEvent(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool drawsItself() const;
    void makeRoomForHooks();
    int textFlags() const;
    QSize sizeForWidth(int width) const;
};

/// What the buttons below share.
template <class Button>
class PlainButton : public Button
{
public:
    using Button::Button;

protected:
    /// How a style is to draw and measure the button.
    QStyleOptionButton shownOption() const;
};

/// Any two arrows choose the next one and the one before, however a group stands at the moment.
class PlainRadioButton : public PlainButton<QRadioButton>
{
public:
    using PlainButton::PlainButton;

    void setText(const QString &text);
    QSize sizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    bool hitButton(const QPoint &position) const override;
};

class PlainPushButton : public PlainButton<QPushButton>
{
public:
    using PlainButton::PlainButton;

    void setText(const QString &text);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
};

namespace plaintext {

/// The text, but cut off after a thousand characters.
QString shown(const QString &text);

/// Sets a text that a "&" makes no shortcut of. For labels with a buddy, and for buttons.
void setText(QLabel *label, const QString &text);
void setText(QAbstractButton *button, const QString &text);

} // namespace plaintext
