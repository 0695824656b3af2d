#pragma once

#include "pages/installation/section.h"

class InstallationDWH : public Section
{
    Q_OBJECT

public:
    explicit InstallationDWH(QWidget *parent = nullptr);

public slots:
    void changeLanguage();
    void refresh();
    void saveJsonData(const QString &path, const QJsonValue &value) override;
};
