#include "pages/installation/installationcool.h"

InstallationCool::InstallationCool(QWidget *parent)
    : Section(parent)
{
}

void InstallationCool::changeLanguage() {}

void InstallationCool::refresh() {}

void InstallationCool::saveJsonData(const QString &, const QJsonValue &) {}
