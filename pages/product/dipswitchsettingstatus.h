#pragma once

#include "pages/page.h"

class DipSwitchSettingStatus : public Page
{
    Q_OBJECT

public:
    explicit DipSwitchSettingStatus(QWidget *parent = nullptr);

public slots:
    void changeLanguage();
    void changeImage(const QString &product);
    void saveJsonData(const QString &path, const QJsonValue &value) override;
};
