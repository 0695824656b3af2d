#pragma once

#include "pages/installation/section.h"

class InstallationSystemSetting : public Section
{
    Q_OBJECT

public:
    explicit InstallationSystemSetting(QWidget *parent = nullptr);

signals:
    void refreshInstallationPageSignal();

public slots:
    void changeLanguage();
    void saveJsonData(const QString &path, const QJsonValue &value) override;
};
