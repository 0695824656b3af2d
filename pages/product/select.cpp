#include "pages/product/select.h"

#include "app/maindialog.h"
#include "ui_select.h"

#include <QDebug>

Select::Select(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::Select>())
{
    ui->setupUi(this);
    initUi();
}

Select::~Select() = default;

void Select::initUi()
{
    connect(ui->newButton, &ImageButton::clicked, this, &Select::clickedNewButton);
    connect(ui->openButton, &ImageButton::clicked, this, &Select::clickedOpenButton);
    ui->newButton->setStandardPixmaps();
    ui->openButton->setStandardPixmaps();
    ui->label_img_new->setPixmap(QPixmap(QStringLiteral(":/images/img_new.png")));
    ui->label_img_open->setPixmap(QPixmap(QStringLiteral(":/images/img_open.png")));
}

void Select::changeLanguage()
{
    captions::set(*ui, this, [](const QString &key) { return mainDialog->languageValue(key); });
}

void Select::clickedNewButton() { mainDialog->startNewDocument(); }

void Select::clickedOpenButton()
{
    if (mainDialog->openJsonFile()) {
        mainDialog->setSideBarVisible(true);
    } else {
        qWarning() << "Select::clickedOpenButton load json file open failed";
    }
}
