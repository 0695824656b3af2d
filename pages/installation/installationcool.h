#pragma once

#include "pages/installation/section.h"

class InstallationCool : public Section
{
    Q_OBJECT

public:
    explicit InstallationCool(QWidget *parent = nullptr);

signals:
    void refreshInstallationPageSignal();

public slots:
    void changeLanguage();
    void refresh();
    void saveJsonData(const QString &path, const QJsonValue &value) override;
};
