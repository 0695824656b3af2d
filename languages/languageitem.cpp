#include "languages/languageitem.h"

#include "ui_languageitem.h"

LanguageItem::LanguageItem(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::LanguageItem>())
{
    // The list would show it when it has its form, which would be laid out at once.
    setVisible(parent != nullptr);
    ui->setupUi(this);
    // The line below the row is a border of its style sheet.
    setAttribute(Qt::WA_StyledBackground);
}

LanguageItem::~LanguageItem() = default;

void LanguageItem::setLanguage(const QString &name) { ui->labelLanguage->setText(name); }

QString LanguageItem::language() const { return ui->labelLanguage->text(); }

void LanguageItem::on_buttonModify_clicked() { emit clickedModifyButton(ui->labelLanguage->text()); }
