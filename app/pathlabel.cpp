#include "app/pathlabel.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyle>
#include <QTextDocument>

namespace {

/// Whether the character would break the line, or change how others are drawn, without being seen.
bool isUnseen(uint character)
{
    // Joins letters of some scripts.
    constexpr uint nonJoiner = 0x200c;
    constexpr uint joiner = 0x200d;
    switch (QChar::category(character)) {
    case QChar::Other_Control:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    case QChar::Other_Format:
        return character != nonJoiner && character != joiner;
    default:
        return false;
    }
}

QString withoutUnseen(const QString &path)
{
    QString seen;
    const QVector<uint> characters = path.toUcs4();
    for (const uint character : characters) {
        if (isUnseen(character)) {
            seen += QStringLiteral("\\u%1").arg(character, 4, 16, QLatin1Char('0'));
        } else {
            seen += QString::fromUcs4(&character, 1);
        }
    }
    return seen;
}

/// The text in a form that a tool tip doesn't take for markup: with a joiner, which isn't seen, behind what
/// would begin it.
QString toolTipOf(QString text)
{
    if (Qt::mightBeRichText(text)) {
        text.replace(QLatin1Char('<'), QStringLiteral("<\u2060"))
            .replace(QLatin1Char('&'), QStringLiteral("&\u2060"));
    }
    return text;
}

} // namespace

PathLabel::PathLabel(QWidget *parent)
    : PlainLabel(parent)
{
}

void PathLabel::showPath(const QString &path)
{
    setText(path);
    setToolTip(toolTipOf(withoutUnseen(path)));
}

QString PathLabel::line(int width) const
{
    static const QRegularExpression drivePattern(QStringLiteral("^(//[^/]*/[^/]*/|[^/]*/)"));
    const QFontMetrics metrics = fontMetrics();
    const QString whole = withoutUnseen(text());
    const int drive = drivePattern.match(whole).capturedLength();
    const int folders = whole.lastIndexOf(QLatin1Char('/')) - drive;
    if (metrics.horizontalAdvance(whole) > width && folders > 0) {
        const QString start = whole.left(drive);
        const QString end = whole.mid(drive + folders);
        const int room = width - metrics.horizontalAdvance(start) - metrics.horizontalAdvance(end);
        const QString shortened = start + metrics.elidedText(whole.mid(drive, folders), Qt::ElideMiddle, room)
            + end;
        if (metrics.horizontalAdvance(shortened) <= width) {
            return shortened;
        }
    }
    return metrics.elidedText(whole, Qt::ElideMiddle, width);
}

QSize PathLabel::sizeHint() const
{
    const QFontMetrics metrics = fontMetrics();
    const QMargins margins = contentsMargins();
    return {metrics.horizontalAdvance(withoutUnseen(text())) + margins.left() + margins.right(),
            metrics.height() + margins.top() + margins.bottom()};
}

QSize PathLabel::minimumSizeHint() const { return {0, sizeHint().height()}; }

void PathLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawFrame(&painter);
    const QRect room = contentsRect();
    const QString shown = line(room.width());
    const int flags = Qt::AlignVCenter | Qt::AlignLeft | Qt::TextSingleLine | Qt::TextForceLeftToRight;
    QPalette::ColorRole role = foregroundRole();
    if (hasSelectedText()) {
        role = QPalette::HighlightedText;
        painter.fillRect(style()->itemTextRect(fontMetrics(), room, flags, true, shown),
                         palette().brush(QPalette::Highlight));
    }
    style()->drawItemText(&painter, room, flags, palette(), isEnabled(), shown, role);
}

void PathLabel::select(bool whole)
{
    // The text as Qt selects it has one character for each end of a line.
    const int length = QString(text()).replace(QStringLiteral("\r\n"), QStringLiteral("\n")).size();
    setSelection(0, whole ? length : 0);
    QClipboard *clipboard = QApplication::clipboard();
    if (whole && clipboard->supportsSelection()) {
        clipboard->setText(text(), QClipboard::Selection);
    }
}

void PathLabel::copy() const { QApplication::clipboard()->setText(text()); }

// Without a text there is nothing to select, and a press drags the window.
void PathLabel::mousePressEvent(QMouseEvent *event)
{
    if (text().isEmpty()) {
        event->ignore();
    } else if (event->button() == Qt::LeftButton) {
        pressedAt = event->pos();
        select(false);
    }
}

void PathLabel::mouseMoveEvent(QMouseEvent *event)
{
    if (text().isEmpty()) {
        event->ignore();
    } else if ((event->buttons() & Qt::LeftButton) != 0 && !hasSelectedText()
               && (event->pos() - pressedAt).manhattanLength() >= QApplication::startDragDistance()) {
        select(true);
    }
}

void PathLabel::mouseReleaseEvent(QMouseEvent *event) { event->setAccepted(!text().isEmpty()); }

void PathLabel::mouseDoubleClickEvent(QMouseEvent *event)
{
    event->setAccepted(!text().isEmpty());
    if (event->isAccepted() && event->button() == Qt::LeftButton) {
        select(true);
    }
}

// A label of Qt's own would move a cursor in its text.
void PathLabel::keyPressEvent(QKeyEvent *event)
{
    if (event->matches(QKeySequence::Copy)) {
        if (hasSelectedText()) {
            copy();
        }
    } else if (event->matches(QKeySequence::SelectAll)) {
        select(true);
    } else {
        event->ignore();
    }
}

void PathLabel::contextMenuEvent(QContextMenuEvent *event)
{
    if (text().isEmpty()) {
        event->ignore();
        return;
    }
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Copy"), this, &PathLabel::copy);
    menu->popup(event->globalPos());
}
