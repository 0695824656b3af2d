#include "pages/completion/validation.h"

#include "app/maindialog.h"
#include "pages/style.h"
#include "ui_validation.h"

Validation::Validation(QWidget *parent)
    : QWidget(parent)
    , ui(std::make_unique<Ui::Validation>())
{
    ui->setupUi(this);
    initUi();
}

Validation::~Validation() = default;

void Validation::initUi()
{
    completeMessage = QStringLiteral("Complete!");
    completeSubMessage = QStringLiteral("This setup is complete. Be sure to save.");
    errorMessage = QStringLiteral("Setup is not complete");
    errorSubMessage = QStringLiteral(
        "Please go back to the settings provided with \n the image below to complete the setup");
}

void Validation::setResult(bool complete)
{
    ui->messageLabel->setText(complete ? completeMessage : errorMessage);
    ui->messageLabel2->setText(complete ? completeSubMessage : errorSubMessage);
    style::apply(ui->imgLabel,
                 complete ? QStringLiteral("QLabel{image: url(:/images/img_complete.png);}")
                          : QStringLiteral("QLabel{image: url(:/images/img_error.png);}"));
}

void Validation::changeLanguage()
{
    completeMessage = mainDialog->languageValue(QStringLiteral("CompleteMessage"));
    completeSubMessage = mainDialog->languageValue(QStringLiteral("CompleteSubMessage"));
    errorMessage = mainDialog->languageValue(QStringLiteral("ErrorMessage"));
    errorSubMessage = mainDialog->languageValue(QStringLiteral("ErrorSubMessage"));
    setResult(mainDialog->stepsDone());
}

void Validation::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    mainDialog->setCurrentStep(4);
}
