#include "app/captioncolumn.h"

#include <QEvent>
#include <QLabel>
#include <QLayout>

#include <algorithm>

namespace {

/// Widths of captions in the forms, between that of an indented row and that of a row without a bullet.
constexpr int narrowest = 370;
constexpr int widest = 418;

constexpr int fullPage = 1040 + 2 * 16 + 12; // cards, their margins and the scroll bar

/// How much a page of this width takes from its captions, down to 236 pixels for an indented one.
int takenAt(int pages)
{
    constexpr int most = narrowest - 236;
    return std::clamp(fullPage - pages, 0, most);
}

} // namespace

CaptionColumn::CaptionColumn(QWidget *pages, const std::vector<QLayout *> &pageLayouts)
    : QObject(pages)
{
    for (QLayout *layout : pageLayouts) {
        places.push_back({layout, layout->contentsMargins().left()});
    }
    const auto labels = pages->findChildren<QLabel *>();
    for (QLabel *label : labels) {
        const int width = label->maximumWidth();
        if (width >= narrowest && width <= widest) {
            captions.push_back({label, width, label->minimumWidth() == width});
        }
    }
    pages->installEventFilter(this);
}

bool CaptionColumn::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::Resize) {
        const int room = static_cast<QWidget *>(watched)->width();
        centre(room);
        narrow(room);
    }
    return QObject::eventFilter(watched, event);
}

void CaptionColumn::centre(int room)
{
    const int beside = std::max(0, (room - fullPage) / 2);
    for (const Place &place : places) {
        QMargins margins = place.layout->contentsMargins();
        margins.setLeft(place.margin + beside);
        place.layout->setContentsMargins(margins);
    }
}

void CaptionColumn::narrow(int room)
{
    const int toTake = takenAt(room);
    if (toTake == taken) {
        return;
    }
    taken = toTake;
    for (const Caption &caption : captions) {
        caption.label->setMaximumWidth(caption.fullWidth - taken);
        if (caption.isFixed) {
            caption.label->setMinimumWidth(caption.fullWidth - taken);
        }
    }
}
