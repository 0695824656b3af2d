#include "pages/installation/installationsystemaquabox.h"

InstallationSystemAquabox::InstallationSystemAquabox(QWidget *parent)
    : Page(parent)
{
}

void InstallationSystemAquabox::changeLanguage() {}

void InstallationSystemAquabox::saveJsonData(const QString &, const QJsonValue &) {}
