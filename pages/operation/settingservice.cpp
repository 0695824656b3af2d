#include "pages/operation/settingservice.h"

SettingService::SettingService(QWidget *parent)
    : Page(parent)
{
}

void SettingService::changeLanguage() {}

void SettingService::saveJsonData(const QString &, const QJsonValue &) {}
