#pragma once

#include "pages/installation/section.h"

class InstallationaAuto : public Section
{
    Q_OBJECT

public:
    explicit InstallationaAuto(QWidget *parent = nullptr);

public slots:
    void changeLanguage();
    void refresh();
    void saveJsonData(const QString &path, const QJsonValue &value) override;
};
