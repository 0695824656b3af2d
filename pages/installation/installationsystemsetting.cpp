#include "pages/installation/installationsystemsetting.h"

InstallationSystemSetting::InstallationSystemSetting(QWidget *parent)
    : Section(parent)
{
}

void InstallationSystemSetting::changeLanguage() {}

void InstallationSystemSetting::saveJsonData(const QString &, const QJsonValue &) {}
