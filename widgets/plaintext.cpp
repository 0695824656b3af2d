#include "widgets/plaintext.h"

#include <QHash>
#include <QKeyEvent>
#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>

#include <algorithm>

// Documented at QKeySequence; no header declares it.
void Q_GUI_EXPORT qt_set_sequence_auto_mnemonic(bool on);

namespace {

constexpr QLatin1Char ampersand('&');
constexpr int shownLength = 1000;

template <class Widget>
void setWithoutShortcut(Widget *widget, const QString &text)
{
    qt_set_sequence_auto_mnemonic(false);
    widget->setText(text);
    qt_set_sequence_auto_mnemonic(true);
}

/// A screen reader would get the name that follows from a text without its "&"; a name that is given stays.
void nameAfter(QWidget *named, const QString &text, const QString &former)
{
    const QString name = named->accessibleName();
    if ((text.contains(ampersand) && name.isEmpty()) || (former.contains(ampersand) && name == former)) {
        named->setAccessibleName(text.contains(ampersand) ? text : QString());
    }
}

bool isPlain(const QString &text) { return !text.contains(ampersand) && text.size() <= shownLength; }

/// A style draws "&" where it finds two.
QString forStyle(const QString &text)
{
    return plaintext::shown(text).replace(ampersand, QStringLiteral("&&"));
}

} // namespace

PlainLabel::PlainLabel(QWidget *parent)
    : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
}

void PlainLabel::setText(const QString &text)
{
    plaintext::setText(this, text);
    makeRoomForHooks();
}

void PlainLabel::changeEvent(QEvent *event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange) {
        makeRoomForHooks();
    }
}

// A "J" begins left of where its line does, which a label would cut off.
void PlainLabel::makeRoomForHooks()
{
    const QStringList lines = plaintext::shown(text()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    int hook = 0;
    for (const QString &line : lines) {
        hook = std::max(hook, -fontMetrics().leftBearing(line.at(0)));
    }
    constexpr int none = -1;
    const int room = hook > 0 ? hook + 1 : none; // its edge is blurred
    if (room != indent()) {
        setIndent(room);
    }
}

// QLabel takes the "&" out of what it draws when it has a buddy.
bool PlainLabel::drawsItself() const
{
    return (buddy() != nullptr && text().contains(ampersand)) || text().size() > shownLength;
}

int PlainLabel::textFlags() const { return Qt::TextExpandTabs | (wordWrap() ? Qt::TextWordWrap : 0); }

QSize PlainLabel::sizeForWidth(int width) const
{
    ensurePolished();
    const QMargins edges = contentsMargins() + margin();
    const QSize around(edges.left() + edges.right(), edges.top() + edges.bottom());
    const QRect room(0, 0, qMax(width, minimumWidth()) - around.width(), 0);
    return (fontMetrics().boundingRect(room, textFlags(), plaintext::shown(text())).size() + around)
        .expandedTo(minimumSize());
}

QSize PlainLabel::sizeHint() const
{
    constexpr int charactersOfALine = 80;
    return drawsItself() ? sizeForWidth(charactersOfALine * fontMetrics().averageCharWidth())
                         : QLabel::sizeHint();
}

QSize PlainLabel::minimumSizeHint() const
{
    return drawsItself() ? sizeForWidth(0) : QLabel::minimumSizeHint();
}

int PlainLabel::heightForWidth(int width) const
{
    return drawsItself() && wordWrap() ? sizeForWidth(width).height() : QLabel::heightForWidth(width);
}

void PlainLabel::paintEvent(QPaintEvent *event)
{
    if (!drawsItself()) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    drawFrame(&painter);
    const bool leftwards = text().isRightToLeft();
    const auto alignment = QStyle::visualAlignment(leftwards ? Qt::RightToLeft : Qt::LeftToRight,
                                                   this->alignment());
    const int direction = leftwards ? Qt::TextForceRightToLeft : Qt::TextForceLeftToRight;
    style()->drawItemText(&painter, contentsRect() - (QMargins() + margin()),
                          static_cast<int>(alignment) | direction | textFlags(), palette(), isEnabled(),
                          plaintext::shown(text()), foregroundRole());
}

void PlainRadioButton::setText(const QString &text) { plaintext::setText(this, text); }

template <class Button>
QStyleOptionButton PlainButton<Button>::shownOption() const
{
    QStyleOptionButton option;
    this->initStyleOption(&option);
    option.text = forStyle(this->text());
    return option;
}

// As Qt measures a radio button, and below a push button.
QSize PlainRadioButton::sizeHint() const
{
    if (isPlain(text())) {
        return QRadioButton::sizeHint();
    }
    ensurePolished();
    const QStyleOptionButton option = shownOption();
    const QRect room = style()->itemTextRect(fontMetrics(), QRect(), Qt::TextShowMnemonic, false,
                                             option.text);
    return style()->sizeFromContents(QStyle::CT_RadioButton, &option, room.size(), this);
}

void PlainRadioButton::paintEvent(QPaintEvent *)
{
    QStylePainter(this).drawControl(QStyle::CE_RadioButton, shownOption());
}

// Qt looks for a choice in the arrow's direction alone: beside each other, Down would scroll the page.
void PlainRadioButton::keyPressEvent(QKeyEvent *event)
{
    static const QHash<int, Qt::Key> across{{Qt::Key_Up, Qt::Key_Left},
                                            {Qt::Key_Left, Qt::Key_Up},
                                            {Qt::Key_Down, Qt::Key_Right},
                                            {Qt::Key_Right, Qt::Key_Down}};
    QRadioButton::keyPressEvent(event);
    const auto other = across.constFind(event->key());
    if (!event->isAccepted() && other != across.cend()) {
        QKeyEvent turned(event->type(), *other, event->modifiers());
        QRadioButton::keyPressEvent(&turned);
        event->accept();
    }
}

// QRadioButton would measure the text as it stands.
bool PlainRadioButton::hitButton(const QPoint &position) const
{
    const QStyleOptionButton option = shownOption();
    return style()->subElementRect(QStyle::SE_RadioButtonClickRect, &option, this).contains(position);
}

void PlainPushButton::setText(const QString &text) { plaintext::setText(this, text); }

QSize PlainPushButton::sizeHint() const
{
    if (isPlain(text())) {
        return QPushButton::sizeHint();
    }
    ensurePolished();
    const QStyleOptionButton option = shownOption();
    const QSize room = fontMetrics().size(Qt::TextShowMnemonic, option.text);
    return style()->sizeFromContents(QStyle::CT_PushButton, &option, room, this);
}

void PlainPushButton::paintEvent(QPaintEvent *)
{
    QStylePainter(this).drawControl(QStyle::CE_PushButton, shownOption());
}

namespace plaintext {

QString shown(const QString &text)
{
    if (text.size() <= shownLength) {
        return text;
    }
    const int half = text.at(shownLength - 1).isHighSurrogate() ? 1 : 0;
    return text.left(shownLength - half) + QStringLiteral("…");
}

void setText(QLabel *label, const QString &text)
{
    const QString former = label->text();
    setWithoutShortcut(label, text);
    if (label->buddy() != nullptr) {
        nameAfter(label, text, former);
        nameAfter(label->buddy(), text, former);
    }
}

void setText(QAbstractButton *button, const QString &text)
{
    const QString former = button->text();
    setWithoutShortcut(button, text);
    nameAfter(button, text, former);
}

} // namespace plaintext
