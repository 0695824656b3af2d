#include "support/measure.h"

#include "app/paintedbutton.h"

#include <QAbstractScrollArea>
#include <QCheckBox>
#include <QComboBox>
#include <QHash>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QStyleOptionComboBox>

#include <algorithm>

namespace {

/// The widget's name after those of its nearest named parents.
QString place(const QWidget *widget)
{
    QStringList names;
    for (; widget != nullptr && names.size() < 3; widget = widget->parentWidget()) {
        if (!widget->objectName().isEmpty() && !widget->objectName().startsWith(QLatin1String("qt_"))) {
            names.prepend(widget->objectName());
        }
    }
    return names.join(QLatin1Char('/'));
}

QString shown(const QSize &size) { return QStringLiteral("%1 x %2").arg(size.width()).arg(size.height()); }

void compare(QStringList &faults, const QWidget *widget, const QString &text, const QSize &needed,
             const QSize &room)
{
    if (!text.isEmpty() && (needed.width() > room.width() || needed.height() > room.height())) {
        faults.append(QStringLiteral("%1: \"%2\" needs %3 and has %4")
                          .arg(place(widget), QString(text).replace(QLatin1Char('\n'), QLatin1Char(' ')),
                               shown(needed), shown(room)));
    }
}

QSize sizeOf(const QWidget *widget, const QString &text)
{
    return widget->fontMetrics().size(Qt::TextShowMnemonic, text);
}

void measureLabel(QStringList &faults, const QLabel *label)
{
    const QRect room = label->contentsRect().marginsRemoved(
        {label->margin(), label->margin(), label->margin(), label->margin()});
    const int wrap = label->wordWrap() ? Qt::TextWordWrap : 0;
    const QSize needed =
        label->fontMetrics().boundingRect(QRect(0, 0, room.width(), 10000), wrap, label->text()).size();
    compare(faults, label, label->text(), needed, room.size());
}

template <class Button>
void measureButton(QStringList &faults, const Button *button, QStyle::SubElement element)
{
    struct Peek : Button {
        static void fill(const Button *from, QStyleOptionButton *option)
        {
            (from->*(&Peek::initStyleOption))(option);
        }
    };
    QStyleOptionButton option;
    Peek::fill(button, &option);
    const QRect room = button->style()->subElementRect(element, &option, button);
    compare(faults, button, button->text(), sizeOf(button, button->text()), room.size());
}

void measureCombo(QStringList &faults, const QComboBox *combo)
{
    struct Peek : QComboBox {
        static void fill(const QComboBox *from, QStyleOptionComboBox *option)
        {
            (from->*(&Peek::initStyleOption))(option);
        }
    };
    QStyleOptionComboBox option;
    Peek::fill(combo, &option);
    // The style leaves a pixel free on each side of the text.
    const QRect room = combo->style()
                           ->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, combo)
                           .adjusted(1, 0, -1, 0);
    // The same items come again on page after page.
    static QHash<QString, QSize> known;
    const QString font = combo->font().key();
    QString widest;
    QSize needed;
    for (int index = 0; index < combo->count(); ++index) {
        const QString text = combo->itemText(index);
        QSize &size = known[font + text];
        if (!size.isValid()) {
            size = sizeOf(combo, text);
        }
        if (size.width() >= needed.width()) {
            widest = text;
            needed = size;
        }
    }
    compare(faults, combo, widest, needed, room.size());
}

// A line scrolls, so its text may be wider than the line; it has one row whatever it holds.
void measureLine(QStringList &faults, const QLineEdit *line)
{
    // Qt keeps a pixel free above and below the text.
    const QRect room = line->contentsRect().marginsRemoved(line->textMargins()).adjusted(0, 1, 0, -1);
    compare(faults, line, line->text(), QSize(0, line->fontMetrics().height()), room.size());
}

void measurePainted(QStringList &faults, const PaintedButton *button)
{
    struct Peek : PaintedButton {
        static QString shown(const PaintedButton *from) { return from->*(&Peek::text); }
    };
    QFont large = button->font();
    large.setPointSize(15);
    const bool slices = button->inherits("ImageButton");
    const QSize room = button->size() - (slices ? QSize(38, 0) : QSize(0, 2));
    compare(faults, button, Peek::shown(button), QFontMetrics(large).size(0, Peek::shown(button)), room);
}

void measureText(QStringList &faults, const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        measureLabel(faults, label);
    } else if (const auto *radio = qobject_cast<const QRadioButton *>(widget)) {
        measureButton(faults, radio, QStyle::SE_RadioButtonContents);
    } else if (const auto *push = qobject_cast<const QPushButton *>(widget)) {
        // What a button without colour shows is no text: the drawn switches keep their position in it.
        if (!push->styleSheet().contains(QLatin1String("0%"))) {
            measureButton(faults, push, QStyle::SE_PushButtonContents);
        }
    } else if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
        measureCombo(faults, combo);
    } else if (const auto *line = qobject_cast<const QLineEdit *>(widget)) {
        measureLine(faults, line);
    } else if (const auto *painted = dynamic_cast<const PaintedButton *>(widget)) {
        measurePainted(faults, painted);
    }
}

/// Children that have a place of their own: what a control is made of places itself, what scrolls may reach
/// out of its viewport, and what floats above the window has no name or is the language menu.
QList<const QWidget *> placedChildren(const QWidget *parent)
{
    QList<const QWidget *> placed;
    if (qobject_cast<const QComboBox *>(parent) != nullptr
        || qobject_cast<const QAbstractScrollArea *>(parent) != nullptr
        || qobject_cast<const QAbstractScrollArea *>(parent->parentWidget()) != nullptr) {
        return placed;
    }
    const auto children = parent->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *child : children) {
        if (child->isVisible() && !child->objectName().isEmpty() && !child->inherits("LanguageMenu")) {
            placed.append(child);
        }
    }
    return placed;
}

QString corners(const QRect &rect)
{
    return QStringLiteral("(%1, %2, %3)").arg(rect.x()).arg(rect.y()).arg(shown(rect.size()));
}

/// The visible widgets below the window and the window itself.
QList<const QWidget *> visible(const QWidget *window)
{
    QList<const QWidget *> widgets{window};
    const auto all = window->findChildren<QWidget *>();
    for (const QWidget *widget : all) {
        if (widget->isVisible()) {
            widgets.append(widget);
        }
    }
    return widgets;
}

/// How far down the content reaches: the lowest edge of a control or text in it.
int depth(const QWidget *content)
{
    int lowest = 0;
    for (const QWidget *widget : visible(content)) {
        if (widget != content && placedChildren(widget).isEmpty()) {
            lowest = std::max(lowest, widget->mapTo(content, QPoint(0, widget->height())).y());
        }
    }
    return lowest;
}

} // namespace

QStringList measure::cutTexts(const QWidget *window)
{
    QStringList faults;
    for (const QWidget *widget : visible(window)) {
        measureText(faults, widget);
    }
    return faults;
}

QStringList measure::misplaced(const QWidget *window)
{
    QStringList faults;
    for (const QWidget *parent : visible(window)) {
        const auto children = placedChildren(parent);
        for (int index = 0; index < children.size(); ++index) {
            const QWidget *child = children.at(index);
            if (!parent->rect().contains(child->geometry())) {
                faults.append(QStringLiteral("%1 at %2 reaches out of its parent of %3")
                                  .arg(place(child), corners(child->geometry()), shown(parent->size())));
            }
            for (int other = index + 1; other < children.size(); ++other) {
                if (child->geometry().intersects(children.at(other)->geometry())) {
                    faults.append(QStringLiteral("%1 at %2 and %3 at %4 overlap")
                                      .arg(place(child), corners(child->geometry()),
                                           place(children.at(other)),
                                           corners(children.at(other)->geometry())));
                }
            }
        }
    }
    return faults;
}

QStringList measure::needlessScrolling(const QWidget *window)
{
    constexpr int margin = 40; // below the last control of a page
    QStringList faults;
    for (const QWidget *widget : visible(window)) {
        const auto *area = qobject_cast<const QScrollArea *>(widget);
        if (area == nullptr || area->widget() == nullptr) {
            continue;
        }
        if (area->horizontalScrollBar()->maximum() > 0) {
            faults.append(QStringLiteral("%1 scrolls sideways by %2")
                              .arg(place(area))
                              .arg(area->horizontalScrollBar()->maximum()));
        }
        const int needed = depth(area->widget());
        if (area->verticalScrollBar()->maximum() > 0 && needed + margin < area->viewport()->height()) {
            faults.append(QStringLiteral("%1 scrolls by %2 though its %3 fit into %4")
                              .arg(place(area))
                              .arg(area->verticalScrollBar()->maximum())
                              .arg(needed)
                              .arg(area->viewport()->height()));
        }
    }
    return faults;
}

QString measure::lengthened(const QString &text)
{
    static const QRegularExpression word(QStringLiteral("[A-Za-z]+"));
    QString longer;
    int end = 0;
    auto found = word.globalMatch(text);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        const int more = (match.capturedLength() * 2 + 4) / 5;
        longer += text.midRef(end, match.capturedEnd() - end) + match.captured().left(more).toLower();
        end = match.capturedEnd();
    }
    return longer + text.midRef(end);
}
