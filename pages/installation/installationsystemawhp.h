#pragma once

#include "pages/page.h"

class InstallationSystemAWHP : public Page
{
    Q_OBJECT

public:
    explicit InstallationSystemAWHP(QWidget *parent = nullptr);

public slots:
    void changeLanguage();
    void saveJsonData(const QString &path, const QJsonValue &value) override;
};
