#include "languages/letteritem.h"

#include "languages/languages.h"
#include "ui_letteritem.h"
#include "widgets/palette.h"
#include "widgets/plaintext.h"

#include <QEvent>
#include <QLineEdit>
#include <QPainter>

LetterFrame::LetterFrame(QWidget *parent)
    : QGroupBox(parent)
{
}

void LetterFrame::setLine(QLineEdit *framed)
{
    line = framed;
    line->setAttribute(Qt::WA_Hover);
    line->installEventFilter(this);
}

bool LetterFrame::eventFilter(QObject *watched, QEvent *event)
{
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::HoverEnter:
    case QEvent::HoverLeave:
        update();
        break;
    default:
        break;
    }
    return QGroupBox::eventFilter(watched, event);
}

void LetterFrame::paintEvent(QPaintEvent *event)
{
    QGroupBox::paintEvent(event);
    if (line == nullptr) {
        return;
    }
    const bool focused = line->hasFocus();
    const palette::Colour &colour = focused ? palette::focus
        : line->underMouse()                ? palette::text
                                            : palette::edge;
    const qreal width = focused ? 2 : 1;
    const QRectF frame = QRectF(line->geometry()).adjusted(-6, -5, 6, 5);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(colour.value), width));
    painter.drawRoundedRect(frame.adjusted(width / 2, width / 2, -width / 2, -width / 2), 4, 4);
}

LetterItem::LetterItem(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::LetterItem>())
{
    ui->setupUi(this);
    ui->groupBoxRow->setLine(ui->lineEdit);
    // A pixmap comes from the cache; a file name in the form would be looked up for each of the many rows.
    ui->ButtonRemove->setIcon(QPixmap(QStringLiteral(":/images/btn_language_popup_edit_delete.png")));
}

LetterItem::~LetterItem() = default;

void LetterItem::setData(const QString &reference, const QString &editText)
{
    plaintext::setText(ui->labelReference, reference);
    ui->lineEdit->setText(editText);
    // A long text is read from its start.
    ui->lineEdit->setCursorPosition(0);
}

QString LetterItem::editText() const { return ui->lineEdit->text(); }

// Oddity 43: empties the row on the screen only: setting the text is no edit, so the key keeps its old text.
void LetterItem::on_ButtonRemove_clicked() { ui->lineEdit->setText(QString()); }

// Oddity 42: keys with equal texts share the first of them in sorted order: a row knows its text, not its
// key. A text that the language in force has lost since goes to the empty key.
void LetterItem::on_lineEdit_textEdited(const QString &arg1)
{
    Languages &languages = Languages::instance();
    languages.snapshot.map.insert(languages.inForce.key(ui->labelReference->text()), arg1);
}
