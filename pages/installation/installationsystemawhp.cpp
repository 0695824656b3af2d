#include "pages/installation/installationsystemawhp.h"

InstallationSystemAWHP::InstallationSystemAWHP(QWidget *parent)
    : Page(parent)
{
}

void InstallationSystemAWHP::changeLanguage() {}

void InstallationSystemAWHP::saveJsonData(const QString &, const QJsonValue &) {}
