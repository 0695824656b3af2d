#pragma once

#include <QScrollArea>

/// The scroll area of a page. It keeps the room of its scroll bar free while that is away, so that all pages
/// end at one edge and none is laid out anew when the bar comes.
class PageArea : public QScrollArea
{
    Q_OBJECT

public:
    explicit PageArea(QWidget *parent = nullptr);

    /// Scrolls by Page Up, Page Down, Home or End; false for other keys, and where nothing is to be scrolled.
    bool turn(int key);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void keepRoom(bool barIsShown);
};
