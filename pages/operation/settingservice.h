#pragma once

#include "pages/page.h"

class SettingService : public Page
{
    Q_OBJECT

public:
    explicit SettingService(QWidget *parent = nullptr);

public slots:
    void changeLanguage();
    void saveJsonData(const QString &path, const QJsonValue &value) override;
};
