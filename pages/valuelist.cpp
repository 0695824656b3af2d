#include "pages/valuelist.h"

#include "widgets/palette.h"

#include <QKeyEvent>
#include <QListView>
#include <QPainter>
#include <QScrollArea>
#include <QStyleOptionComboBox>
#include <QStyledItemDelegate>
#include <QWheelEvent>

namespace {

/// Marks the item that is chosen; the style sheet tells the one under the mouse.
class ItemPainter : public QStyledItemDelegate
{
public:
    explicit ItemPainter(QComboBox *painted)
        : QStyledItemDelegate(painted)
        , list(painted)
    {
    }

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::paint(painter, option, index);
        if (index.row() == list->currentIndex()) {
            constexpr int widthOfBar = 2;
            const QRect bar(option.rect.topLeft(), QSize(widthOfBar, option.rect.height()));
            painter->fillRect(bar, QColor(palette::accent.value));
        }
    }

private:
    QComboBox *list;
};

} // namespace

ValueList::ValueList(QWidget *parent)
    : QComboBox(parent)
{
    // The wheel gives no focus.
    setFocusPolicy(Qt::StrongFocus);
    // The twelve months and the item that stands for none.
    setMaxVisibleItems(13);
}

QSize ValueList::sizeHint() const
{
    QStyleOptionComboBox option;
    initStyleOption(&option);
    const int height = qMax(fontMetrics().height(), option.iconSize.height()) + 2;
    return style()->sizeFromContents(QStyle::CT_ComboBox, &option, QSize(0, height), this);
}

bool ValueList::hasPopup() const
{
    return findChild<QWidget *>(QString(), Qt::FindDirectChildrenOnly) != nullptr;
}

// The delegate that a popup has by itself leaves what the style sheet says of items undrawn. Whether the
// popup is there tells nothing: a press of the mouse builds it before it comes here.
void ValueList::showPopup()
{
    if (itemPainter == nullptr) {
        itemPainter = new ItemPainter(this);
        setItemDelegate(itemPainter);
    }
    // Measuring each item by itself would delay the opening noticeably.
    constexpr int longList = 1000;
    if (auto *rows = qobject_cast<QListView *>(view())) {
        rows->setUniformItemSizes(count() > longList);
    }
    QComboBox::showPopup();
    // Its neighbours on both sides of it.
    view()->scrollTo(view()->currentIndex(), QAbstractItemView::PositionAtCenter);
}

// For a change of font or style a combo box builds its popup, nine widgets, long before it is first opened.
// The popup takes both over when it is built.
void ValueList::changeEvent(QEvent *event)
{
    const bool restyled = event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    if (restyled && !hasPopup()) {
        QWidget::changeEvent(event); // NOLINT(bugprone-parent-virtual-call): QComboBox is what builds it
    } else {
        QComboBox::changeEvent(event);
    }
}

bool ValueList::isOutOfSight() const { return isVisible() && visibleRegion().isEmpty(); }

void ValueList::scrollIntoView()
{
    for (QWidget *above = parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (auto *area = qobject_cast<QScrollArea *>(above)) {
            area->ensureWidgetVisible(this);
        }
    }
}

// What turns a page is left unaccepted, so that the scroll area above gets it. Out of sight no value changes:
// a key that would change it shows the list instead.
void ValueList::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    const bool turns = key == Qt::Key_PageUp || key == Qt::Key_PageDown;
    const bool steps = key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_Home || key == Qt::Key_End;
    if (turns) {
        event->ignore();
    } else if (isOutOfSight() && (steps || !event->text().trimmed().isEmpty())) {
        scrollIntoView();
    } else {
        QComboBox::keyPressEvent(event);
    }
}

void ValueList::wheelEvent(QWheelEvent *event) { event->ignore(); }
