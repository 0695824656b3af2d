#include "pages/installation/installationdwh.h"

InstallationDWH::InstallationDWH(QWidget *parent)
    : Section(parent)
{
}

void InstallationDWH::changeLanguage() {}

void InstallationDWH::refresh() {}

void InstallationDWH::saveJsonData(const QString &, const QJsonValue &) {}
