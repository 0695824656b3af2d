#include "app/radioring.h"

#include "app/paintedbutton.h"
#include "widgets/palette.h"

#include <QFocusEvent>
#include <QPainter>
#include <QProxyStyle>
#include <QRadioButton>

namespace {

/// Between a radio and the outer edge of its ring.
constexpr int room = 5;

/// What has a look of its own for the focus, in the style sheet, needs no ring.
bool isServed(const QWidget *widget)
{
    static const QStringList buttons{QStringLiteral("minimizeButton"), QStringLiteral("maximumButton"),
                                     QStringLiteral("newButton"),      QStringLiteral("openButton"),
                                     QStringLiteral("saveButton"),     QStringLiteral("closeButton"),
                                     QStringLiteral("loadButton"),     QStringLiteral("buttonModify")};
    return buttons.contains(widget->objectName()) || qobject_cast<const QRadioButton *>(widget) != nullptr
        || dynamic_cast<const PaintedButton *>(widget) != nullptr;
}

/// Leaves room around the radio, and lets the ring be painted as it is.
class RoomAround : public QProxyStyle
{
public:
    int pixelMetric(PixelMetric metric, const QStyleOption *option, const QWidget *widget) const override
    {
        const bool isMargin = metric == PM_FocusFrameHMargin || metric == PM_FocusFrameVMargin;
        return isMargin ? room : QProxyStyle::pixelMetric(metric, option, widget);
    }

    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *data) const override
    {
        return hint == SH_FocusFrame_Mask       ? 0
            : hint == SH_FocusFrame_AboveWidget ? 1
                                                : QProxyStyle::styleHint(hint, option, widget, data);
    }
};

/// Puts the ring where keys lead the focus; a click needs none.
class Follower : public QObject
{
public:
    explicit Follower(RadioRing *follows)
        : QObject(follows)
        , ring(follows)
    {
    }

    bool eventFilter(QObject *radio, QEvent *event) override
    {
        const bool changes = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
        const Qt::FocusReason reason = changes ? static_cast<QFocusEvent *>(event)->reason()
                                               : Qt::NoFocusReason;
        if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason) {
            // The window comes back with the focus where it was.
        } else if (event->type() == QEvent::FocusIn) {
            // A window gives its first focus as if by Tab.
            const bool byKeys = (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
                && static_cast<QWidget *>(radio)->window()->testAttribute(Qt::WA_KeyboardFocusChange);
            ring->setWidget(byKeys ? static_cast<QWidget *>(radio) : nullptr);
        } else if (event->type() == QEvent::FocusOut) {
            ring->setWidget(nullptr);
        }
        return QObject::eventFilter(radio, event);
    }

private:
    RadioRing *ring;
};

} // namespace

RadioRing::RadioRing(QWidget *window)
    : QFocusFrame(window)
    , follower(new Follower(this))
{
    hide();
    auto *roomAround = new RoomAround;
    roomAround->setParent(this);
    setStyle(roomAround);
    serve(window);
}

void RadioRing::serve(const QWidget *part)
{
    const auto widgets = part->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        if (isServed(widget)) {
            widget->installEventFilter(follower);
        }
    }
}

// A focus frame hides when its widget lies outside the visible part of a page, and stays hidden when the page
// scrolls there.
bool RadioRing::eventFilter(QObject *watched, QEvent *event)
{
    const bool taken = QFocusFrame::eventFilter(watched, event);
    if (event->type() == QEvent::Move && widget() != nullptr && widget()->isVisible()) {
        show();
        raise();
    }
    return taken;
}

void RadioRing::paintEvent(QPaintEvent *)
{
    const QWidget *served = widget();
    if (served == nullptr) {
        return;
    }
    constexpr int width = 2;
    QRectF ring = QRectF(rect()).adjusted(1, 1, -1, -1);
    if (qobject_cast<const QRadioButton *>(served) != nullptr) {
        // Not around the empty end of a radio that is wider than its text.
        ring.setRight(ring.right() - qMax(0, served->width() - served->sizeHint().width()));
    } else if (served->inherits("TabButton")
               || served->parentWidget()->objectName() == QLatin1String("titleFrame")) {
        ring.adjust(room, room, -room, -room);
    }
    const bool isPill = served->inherits("ImageButton")
        || served->parentWidget()->objectName() == QLatin1String("buttonRow");
    const qreal corner = isPill ? ring.height() / 2 : 4;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(palette::focus.value), width));
    painter.drawRoundedRect(ring, corner, corner);
}
