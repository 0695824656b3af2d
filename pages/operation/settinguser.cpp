#include "pages/operation/settinguser.h"

SettingUser::SettingUser(QWidget *parent)
    : Page(parent)
{
}

void SettingUser::changeLanguage() {}

void SettingUser::saveJsonData(const QString &, const QJsonValue &) {}
