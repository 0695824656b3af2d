#include "languages/languageitem.h"

#include "ui_languageitem.h"
#include "widgets/palette.h"

#include <QPainter>

LanguageItem::LanguageItem(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::LanguageItem>())
{
    // The list would show it when it has its form, which would be laid out at once.
    setVisible(parent != nullptr);
    ui->setupUi(this);
    // The line below the row is a border of its style sheet.
    setAttribute(Qt::WA_StyledBackground);
    setAttribute(Qt::WA_Hover);
}

LanguageItem::~LanguageItem() = default;

void LanguageItem::setLanguage(const QString &name) { ui->labelLanguage->setText(name); }

QString LanguageItem::language() const { return ui->labelLanguage->text(); }

void LanguageItem::setInForce(bool isInForce)
{
    inForce = isInForce;
    update();
}

void LanguageItem::paintEvent(QPaintEvent *)
{
    constexpr int markWidth = 3;
    const QRect row = rect().adjusted(0, 0, 0, -1); // above its line
    QPainter painter(this);
    if (underMouse()) {
        // As in lists, and seen on the current row's darker grey too.
        painter.fillRect(row, QColor(0, 0, 0, 13));
    }
    if (inForce) {
        painter.fillRect(QRect(row.topLeft(), QSize(markWidth, row.height())), QColor(palette::accent.value));
    }
}

void LanguageItem::on_buttonModify_clicked() { emit clickedModifyButton(ui->labelLanguage->text()); }
