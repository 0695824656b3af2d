#pragma once

#include "pages/page.h"

class InstallationSystemAquabox : public Page
{
    Q_OBJECT

public:
    explicit InstallationSystemAquabox(QWidget *parent = nullptr);

public slots:
    void changeLanguage();
    void saveJsonData(const QString &path, const QJsonValue &value) override;
};
