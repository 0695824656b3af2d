#include "fuzz/pages.h"

#include "fuzz/standins.h"
#include "fuzz/target.h"

#include "pages/installation/installationaauto.h"
#include "pages/installation/installationcool.h"
#include "pages/installation/installationdwh.h"
#include "pages/installation/installationheat.h"
#include "pages/installation/installationsystemaquabox.h"
#include "pages/installation/installationsystemawhp.h"
#include "pages/installation/installationsystemsetting.h"
#include "pages/operation/settingfunction.h"
#include "pages/operation/settingservice.h"
#include "pages/operation/settinguser.h"

#include <QLayout>

namespace {

void beSilent(QtMsgType type, const QMessageLogContext & /*context*/, const QString &text)
{
    if (type == QtFatalMsg || text.contains(QLatin1String("QObject::connect"))) {
        fail("message", text.toUtf8());
    }
}

} // namespace

Pages::Pages()
{
    prepareApplication();
    qInstallMessageHandler(beSilent);
    // Nobody looks.
    window.dialog.setUpdatesEnabled(false);
    for (QLayout *layout : window.dialog.findChildren<QLayout *>()) {
        layout->setEnabled(false);
    }
}

void Pages::setSectionsOpen(bool open)
{
    for (const QWidget *section :
         std::initializer_list<QWidget *>{window.page<InstallationSystemSetting>(),
                                          window.page<InstallationCool>(), window.page<InstallationHeat>(),
                                          window.page<InstallationaAuto>(), window.page<InstallationDWH>()}) {
        if (Window::find<QFrame>(section, "frame")->isHidden() == open) {
            Window::find<QPushButton>(section, "hideButton")->click();
        }
    }
}

void Pages::showSettings()
{
    window.showPage(MainDialog::SettingPage, MainDialog::FunctionTab);
    for (const char *slot :
         {"clickedUserTabButton", "clickedServiceTabButton", "clickedInstallationTabButton"}) {
        QMetaObject::invokeMethod(&window.dialog, slot);
    }
    QMetaObject::invokeMethod(&window.dialog, "on_validationButton_clicked");
    // What the pages have posted.
    QCoreApplication::processEvents();
}

void Pages::loadSettings()
{
    const auto *system = window.page<InstallationSystemSetting>();
    for (QWidget *page : std::initializer_list<QWidget *>{
             window.page<SettingFunction>(), window.page<SettingUser>(), window.page<SettingService>(),
             window.page<InstallationSystemAWHP>(), window.page<InstallationSystemAquabox>(),
             window.page<InstallationSystemSetting>(), window.page<InstallationCool>(),
             window.page<InstallationHeat>(), window.page<InstallationaAuto>(),
             window.page<InstallationDWH>()}) {
        if (!system->isAncestorOf(page) || page->isVisibleTo(system)) {
            QShowEvent event;
            QCoreApplication::sendEvent(page, &event);
        }
    }
    QCoreApplication::processEvents();
}

void Pages::open(const QString &path)
{
    standins::chosenFile = path;
    QMetaObject::invokeMethod(&window.dialog, "on_openButton_clicked");
    if (window.dialog.members().settings.filePath != path) {
        fail("not opened", path.toUtf8());
    }
}

void Pages::save()
{
    for (const int step : {1, 2, 3}) {
        window.dialog.setStepCompleted(true, step);
    }
    QMetaObject::invokeMethod(&window.dialog, "on_saveButton_clicked");
}
