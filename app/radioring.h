#pragma once

#include <QFocusFrame>

/// The ring around the radio, painted button or button of a bar or popup that keys have reached. It lies
/// outside, but on the edge of painted and window buttons.
class RadioRing : public QFocusFrame
{
    Q_OBJECT

public:
    /// Serves all that the window has by now; the window owns it.
    explicit RadioRing(QWidget *window);

    /// Serves what a part has that came to the window later.
    void serve(const QWidget *part);

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QObject *follower;
};
