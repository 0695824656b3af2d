#include "pages/product/dipswitchsettingstatus.h"

DipSwitchSettingStatus::DipSwitchSettingStatus(QWidget *parent)
    : Page(parent)
{
}

void DipSwitchSettingStatus::changeLanguage() {}

void DipSwitchSettingStatus::changeImage(const QString &) {}

void DipSwitchSettingStatus::saveJsonData(const QString &, const QJsonValue &) {}
