#pragma once

#include "pages/page.h"

#include <memory>

namespace Ui {
class SettingService;
}

/// The Service tab of the Setting step: the service contact that the remote controller shows, below
/// SettingInfo.svc.svcContact. Nothing is required, so the tab is complete once it has been shown.
class SettingService : public Page
{
    Q_OBJECT

public:
    /// Built by the form of the dialog, before there is a dialog to ask.
    explicit SettingService(QWidget *parent = nullptr);
    ~SettingService() override;

    /// Sets the page's texts from the language in force.
    void changeLanguage();

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void initUi();
    void saveJsonData(const QString &path, const QJsonValue &value) override;
    QJsonValue parseJsonData(const QString &path);
    void loadJsonData();
    void validataionCheck();
    void on_lineEditOfficeName_textChanged(const QString &arg1);
    void on_lineEditInstallerName_textChanged(const QString &arg1);
    void on_lineEditTelephone_textChanged(const QString &arg1);

private:
    void validationCheck() override { validataionCheck(); }

    std::unique_ptr<Ui::SettingService> ui;
};
