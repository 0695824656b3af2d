#pragma once

#include "widgets/plaintext.h"

/// Shows a path in one line: control characters as their codes, and with an ellipsis in the middle where it
/// has no room, so that the drive and the name of the file stay. Its text is the path all the same, it is
/// selected as a whole, and copying gives the path.
class PathLabel : public PlainLabel
{
    Q_OBJECT

public:
    explicit PathLabel(QWidget *parent = nullptr);

    /// Sets text and tool tip.
    void showPath(const QString &path);

    /// The line as it is drawn in a width of pixels.
    QString line(int width) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void contextMenuEvent(QContextMenuEvent *event) override;

private:
    void select(bool whole);
    void copy() const;

    QPoint pressedAt;
};
