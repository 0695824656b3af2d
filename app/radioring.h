#pragma once

#include <QFocusFrame>

/// The ring around the radio, painted button or window button that keys have reached. It lies outside the
/// radio, whose picture fills its left end, and on the edge of a button.
class RadioRing : public QFocusFrame
{
    Q_OBJECT

public:
    /// Serves all that the window has by now; the window owns it.
    explicit RadioRing(QWidget *window);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
