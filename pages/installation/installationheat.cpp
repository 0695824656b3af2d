#include "pages/installation/installationheat.h"

InstallationHeat::InstallationHeat(QWidget *parent)
    : Section(parent)
{
}

void InstallationHeat::changeLanguage() {}

void InstallationHeat::refresh() {}

void InstallationHeat::saveJsonData(const QString &, const QJsonValue &) {}
