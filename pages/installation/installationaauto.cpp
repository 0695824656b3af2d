#include "pages/installation/installationaauto.h"

InstallationaAuto::InstallationaAuto(QWidget *parent)
    : Section(parent)
{
}

void InstallationaAuto::changeLanguage() {}

void InstallationaAuto::refresh() {}

void InstallationaAuto::saveJsonData(const QString &, const QJsonValue &) {}
