#include "pages/completion/datasave.h"

#include "ui_datasave.h"

DataSave::DataSave(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::DataSave>())
{
    ui->setupUi(this);
    initUi();
}

DataSave::~DataSave() = default;

void DataSave::initUi()
{
    connect(ui->checkValidationButton, &ImageButton::clicked, this, &DataSave::clickedCheckValidationButton);
    connect(ui->fileCookingButton, &ImageButton::clicked, this, &DataSave::clickedFileCookingButton);
    ui->checkValidationButton->setStandardPixmaps();
    ui->fileCookingButton->setStandardPixmaps();
    ui->label_checkValidation->setPixmap(QPixmap(QStringLiteral(":/images/img_checkvalidation.png")));
    ui->label_fileCooking->setPixmap(QPixmap(QStringLiteral(":/images/img_filecooking.png")));
}

void DataSave::clickedCheckValidationButton() {}

void DataSave::clickedFileCookingButton() {}
