#pragma once

#include "pages/page.h"

class SettingUser : public Page
{
    Q_OBJECT

public:
    explicit SettingUser(QWidget *parent = nullptr);

public slots:
    void changeLanguage();
    void saveJsonData(const QString &path, const QJsonValue &value) override;
};
