#include "pages/operation/settingservice.h"

#include "app/maindialog.h"
#include "ui_settingservice.h"

#include <QRegExpValidator>

namespace {

constexpr const char *company = "SettingInfo.svc.svcContact.company";
constexpr const char *installer = "SettingInfo.svc.svcContact.installerName";
constexpr const char *telephone = "SettingInfo.svc.svcContact.phoneNumber";

/// An empty value leaves its line edit as it is.
void showIfAny(QLineEdit *lineEdit, const QString &stored)
{
    if (!stored.isEmpty()) {
        lineEdit->setText(stored);
    }
}

} // namespace

SettingService::SettingService(QWidget *parent)
    : Page(parent)
    , ui(std::make_unique<Ui::SettingService>())
{
    ui->setupUi(this);
    initUi();
}

SettingService::~SettingService() = default;

void SettingService::showEvent(QShowEvent *event)
{
    Page::showEvent(event);
    loadJsonData();
    validataionCheck();
}

void SettingService::initUi()
{
    auto *digits = new QRegExpValidator(QRegExp(QStringLiteral("^[0-9-]{0,15}$")), this);
    ui->lineEditTelephone->setValidator(digits);
    auto *anyText = new QRegExpValidator(QRegExp(QStringLiteral(".{0,15}$")), this);
    ui->lineEditInstallerName->setValidator(anyText);
    ui->lineEditOfficeName->setValidator(anyText);
}

// Without a test for an empty document, as on the User tab.
void SettingService::saveJsonData(const QString &path, const QJsonValue &value) { write(path, value); }

QJsonValue SettingService::parseJsonData(const QString &path) { return read(path); }

void SettingService::loadJsonData()
{
    showIfAny(ui->lineEditOfficeName, text(company));
    showIfAny(ui->lineEditInstallerName, text(installer));
    showIfAny(ui->lineEditTelephone, text(telephone));
}

void SettingService::validataionCheck() { mainDialog->setSettingTabValid(true, MainDialog::ServiceTab); }

// Oddity 15: the company alone falls back to "-".
void SettingService::on_lineEditOfficeName_textChanged(const QString &arg1)
{
    save(company, arg1.isEmpty() ? QStringLiteral("-") : ui->lineEditOfficeName->text());
}

void SettingService::on_lineEditInstallerName_textChanged(const QString & /*arg1*/)
{
    save(installer, ui->lineEditInstallerName->text());
}

void SettingService::on_lineEditTelephone_textChanged(const QString & /*arg1*/)
{
    save(telephone, ui->lineEditTelephone->text());
}

void SettingService::changeLanguage() { setCaptions(*ui); }
