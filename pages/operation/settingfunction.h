#pragma once

#include "pages/page.h"

class SettingFunction : public Page
{
    Q_OBJECT

public:
    explicit SettingFunction(QWidget *parent = nullptr);

public slots:
    void changeLanguage();
    void saveJsonData(const QString &path, const QJsonValue &value) override;
};
