#pragma once

#include <QObject>

#include <vector>

class QLayout;
class QWidget;

/// Keeps all pages one column in the middle of the window, and their captions as wide as there is room for:
/// forms give captions their full width, a narrow window takes from it.
class CaptionColumn : public QObject
{
    Q_OBJECT

public:
    /// Serves the captions that `pages` has by now, whenever it changes its size. `pageLayouts` hold what is
    /// to stand in the middle, which has a greatest width.
    CaptionColumn(QWidget *pages, const std::vector<QLayout *> &pageLayouts);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Caption {
        QWidget *label;
        int fullWidth;
        /// Else it may be narrower where its row is tight.
        bool isFixed;
    };

    struct Place {
        QLayout *layout;
        int margin;
    };

    void centre(int room);
    void narrow(int room);

    std::vector<Place> places;
    std::vector<Caption> captions;
    int taken = 0;
};
