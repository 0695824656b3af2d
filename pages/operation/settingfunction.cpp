#include "pages/operation/settingfunction.h"

SettingFunction::SettingFunction(QWidget *parent)
    : Page(parent)
{
}

void SettingFunction::changeLanguage() {}

void SettingFunction::saveJsonData(const QString &, const QJsonValue &) {}
