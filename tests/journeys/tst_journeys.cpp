#include "journeys/installer.h"

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
#include "pages/product/dipswitchsettingstatus.h"

// Whole ways through the wizard, from the first window to the saved file. The files expected are the starting
// document with a table of values in tests/data/journeys, worked out by hand.
class TestJourneys : public QObject
{
    Q_OBJECT

private slots:
    void newR32WithTwoCircuits();
    void newR410();
    void openedFileIsChangedAndSavedOverItself();
    void newR32InFahrenheit();
    void incompleteSetupIsNotSaved();
    void choiceTakenBackIsNotSaved();
    void openedAquabox();
    void languageChangesOnEveryPage();

private:
    static void equipR32(const QWidget *page);
    static void setFunctions(const QWidget *page);
    static void setUser(Installer &installer, const QWidget *page);
    static void setService(const QWidget *page);
    static void setSystem(QWidget *page);
    static void setHeatPump(const QWidget *page);
    static void setCooling(QWidget *page);
    static void setHeating(QWidget *page);
    static void setSeasonalAuto(QWidget *page);
    static void setHotWater(QWidget *page);
};

void TestJourneys::equipR32(const QWidget *page)
{
    for (const char *radio : {"radioDhwUse", "radioSolarThermalKitUse", "radioOperationBoth",
                              "radioFlowOnlyPump", "radioElectricHeater1", "radioThermostatUse",
                              "radioAdditionalAirUse", "radioAntifreezeUse", "radioOrvoAddressB0"}) {
        Window::click(page, radio);
    }
    Window::type(Window::find<QLineEdit>(page, "lineEditWHM1"), "12.5");
}

void TestJourneys::setFunctions(const QWidget *page)
{
    Window::click(page, "radioSlientModeUse");
    Window::choose(page, "comboSilentStartHour", "21");
    Window::choose(page, "comboSilentStartMin", "30");
    Window::choose(page, "comboSilentEndHour", "12");
    Window::click(page, "radioOnOffButtonUse");
    Window::click(page, "radioDhwOnOffUse");
}

void TestJourneys::setUser(Installer &installer, const QWidget *page)
{
    Window::choose(page, "comboScreenSaverTimer", "60s");
    Window::choose(page, "comboBrightness", "20%");
    installer.enterDate(2026, 11, 21);
    Window::click(page, "radioSummerTimeUse");
    Window::click(page, "radioBlack");
}

void TestJourneys::setService(const QWidget *page)
{
    Window::type(Window::find<QLineEdit>(page, "lineEditOfficeName"), "Warm Works");
    Window::type(Window::find<QLineEdit>(page, "lineEditInstallerName"), "A. Novak");
    Window::type(Window::find<QLineEdit>(page, "lineEditTelephone"), "0123-456789");
}

void TestJourneys::setSystem(QWidget *page)
{
    Window::expand(page);
    Window::choose(page, "comboBoxSensingTemp", "Air+Water");
    Window::choose(page, "comboBoxAirTemp", "Remote room sensor");
    Window::click(page, "radioDryManual");
    Window::choose(page, "comboCentral", "1F");
    Window::choose(page, "comboBoxScreedStep", "3");
    Window::choose(page, "comboBoxScreedMaxTemp", "50°C");
    Window::choose(page, "comboBoxScreedHolding", "5days");
    Window::choose(page, "comboWaterRpmDuty", "80%");
    Window::choose(page, "comboOperationPeriod", "24Hour");
    Window::choose(page, "comboDryContactInstallation", "Installed");
    Window::choose(page, "comboCnEXT", "Simple operation");
}

void TestJourneys::setHeatPump(const QWidget *page)
{
    Window::click(page, "radio2ndUse");
    Window::choose(page, "comboValveClosingTime", "120s");
    Window::choose(page, "comboHysterisis", "4K");
    Window::click(page, "radioSgUse");
    Window::choose(page, "comboStep", "STEP2");
    Window::click(page, "radioHeaterPriorityUse");
    Window::choose(page, "comboHeaterOnTemperature", "-10°C");
    Window::click(page, "radioWaterTankHeaterMode");
    Window::choose(page, "comboAntiFreezingTemp", "-15K");
    Window::choose(page, "comboPreRun", "3min");
    Window::click(page, "radio3rdUse");
    Window::choose(page, "comboControlMode", "Auto");
    Window::choose(page, "comboControlTemp", "-5°C");
}

void TestJourneys::setCooling(QWidget *page)
{
    Window::expand(page);
    Window::choose(page, "comboForcerWater", "20°C");
    Window::choose(page, "comboTemperatureIndoorMin", "18°C");
    Window::choose(page, "comboTemperatureWaterMin", "17°C");
    Window::choose(page, "comboTemperatureWaterMax", "26°C");
    Window::choose(page, "comboControlMainZoneTemp", "22°C");
    Window::choose(page, "comboControlWaterTemp", "20°C");
    Window::choose(page, "comboTNIndoorAirTemp", "STEP2");
    Window::choose(page, "comboWaterPumpOnTimer", "5min");
    Window::choose(page, "comboWaterPumpOffTimer", "10min");
}

void TestJourneys::setHeating(QWidget *page)
{
    Window::expand(page);
    Window::choose(page, "comboReferenceWater", "Inlet");
    Window::choose(page, "comboTemperatureIndoorMax", "28°C");
    Window::choose(page, "comboControlWaterTemp", "45°C");
    Window::choose(page, "comboControlMainZoneTemp", "30°C");
    Window::click(page, "radioWaterPumpUse");
}

void TestJourneys::setSeasonalAuto(QWidget *page)
{
    Window::expand(page);
    Window::click(page, "radioBoth");
    Window::choose(page, "comboCoolingOutdoorMin", "29°C");
    Window::choose(page, "comboHeatingOutdoorMax", "20°C");
    Window::choose(page, "comboHeatingWaterMax", "45°C");
    Window::choose(page, "comboMainZoneHeatingWaterMin", "25°C");
    Window::choose(page, "comboCoolingIndoorMax", "21°C");
}

void TestJourneys::setHotWater(QWidget *page)
{
    Window::expand(page);
    Window::choose(page, "comboHotWaterMin", "35°C");
    Window::choose(page, "comboHotWaterMax", "53°C");
    Window::choose(page, "comboTankWaterMin", "8K");
    Window::choose(page, "comboInletWaterMax", "52°C");
    Window::choose(page, "comboTankHeatingHysterisis", "4K");
    Window::click(page, "radioUnderFloorUse");
    Window::choose(page, "comboHeatingDurationTime", "40min");
    Window::choose(page, "comboStopDurationTime", "60min");
    Window::click(page, "radioDisinfectionUse");
    Window::choose(page, "comboSchedule1", "Wed");
    Window::choose(page, "comboSchedule2", "02:00");
    Window::choose(page, "comboMaxTemp", "65°C");
    Window::choose(page, "comboMaxTempDuration", "40min");
    Window::choose(page, "comboCutOffDuration", "3Hour");
}

void TestJourneys::newR32WithTwoCircuits()
{
    Installer installer;
    const Window &window = installer.window;
    installer.startNew("R32");
    installer.goToDipSwitches();
    equipR32(window.page<DipSwitchSettingStatus>());
    QVERIFY(!Window::shownItself(&window.dialog, "labelErrorDipSwitch"));

    installer.goToSettings();
    setFunctions(window.page<SettingFunction>());
    installer.tab("userTabButton");
    QVERIFY(Window::shownItself(&window.dialog, "userValidationIcon"));
    setUser(installer, window.page<SettingUser>());
    QVERIFY(!Window::shownItself(&window.dialog, "userValidationIcon"));
    installer.tab("serviceTabButton");
    setService(window.page<SettingService>());
    installer.tab("installationTabButton");
    setSystem(window.page<InstallationSystemSetting>());
    setHeatPump(window.page<InstallationSystemAWHP>());
    setCooling(window.page<InstallationCool>());
    setHeating(window.page<InstallationHeat>());
    setSeasonalAuto(window.page<InstallationaAuto>());
    setHotWater(window.page<InstallationDWH>());

    installer.goToValidation();
    QCOMPARE(installer.message(), QStringLiteral("Complete!"));
    const QString path = installer.folder.filePath("new-r32.json");
    QVERIFY(installer.save(path));
    QCOMPARE(Installer::content(path), Installer::expected(documents::standard("R32"), "new-r32.tsv"));
    // The next Save doesn't ask.
    QVERIFY(!installer.save());
    QCOMPARE(Installer::content(path), Installer::expected(documents::standard("R32"), "new-r32.tsv"));
}

void TestJourneys::newR410()
{
    Installer installer;
    const Window &window = installer.window;
    installer.startNew("R410");
    installer.goToDipSwitches();
    installer.goToSettings();
    installer.tab("userTabButton");
    installer.enterDate(2027, 2, 28);
    installer.tab("installationTabButton");

    auto *system = window.page<InstallationSystemSetting>();
    Window::expand(system);
    Window::choose(system, "comboWaterpumpRPM", "3000");
    auto *heating = window.page<InstallationHeat>();
    Window::expand(heating);
    Window::choose(heating, "comboTemperatureWaterMin", "22°C");
    auto *automatic = window.page<InstallationaAuto>();
    Window::expand(automatic);
    Window::choose(automatic, "comboOutdoorOutdoorMax", "18°C");
    Window::choose(automatic, "comboOutdoorWaterMax", "50°C");

    installer.goToValidation();
    QCOMPARE(installer.message(), QStringLiteral("Complete!"));
    const QString path = installer.folder.filePath("new-r410.json");
    QVERIFY(installer.save(path));
    QCOMPARE(Installer::content(path), Installer::expected(documents::standard("R410"), "new-r410.tsv"));
}

void TestJourneys::openedFileIsChangedAndSavedOverItself()
{
    Installer installer;
    const Window &window = installer.window;
    const QJsonDocument plant = documents::with(documents::standard("R32"),
                                                {{"SettingInfo.user.DateInfo.year", 2025},
                                                 {"SettingInfo.user.DateInfo.month", 6},
                                                 {"SettingInfo.user.DateInfo.mday", 15},
                                                 {"maker.serial", "X-77"},
                                                 {"rsv.extra", 4.5}});
    const QString path = installer.open(plant);
    QVERIFY(!Window::enabled(&window.dialog, "productSelectionButton"));
    Window::click(window.page<DipSwitchSettingStatus>(), "radioOperationBoth");
    installer.goToSettings();
    Window::click(window.page<SettingFunction>(), "radioAllButtonUse");
    installer.tab("userTabButton");
    Window::choose(window.page<SettingUser>(), "comboDateDay", "16");
    installer.tab("installationTabButton");
    auto *cooling = window.page<InstallationCool>();
    Window::expand(cooling);
    Window::click(cooling, "radioFanCoilUse");
    Window::choose(cooling, "comboTemperatureWaterMin", "7°C");

    QVERIFY(!installer.save());
    QCOMPARE(Installer::content(path), Installer::expected(plant, "opened.tsv"));
    QCOMPARE(Window::find<QLabel>(&window.dialog, "pathLabel")->text(), path);
}

void TestJourneys::newR32InFahrenheit()
{
    Installer installer;
    const Window &window = installer.window;
    installer.startNew("R32");
    installer.goToDipSwitches();
    Window::click(window.page<DipSwitchSettingStatus>(), "radioOperationBoth");
    installer.goToSettings();
    installer.tab("userTabButton");
    installer.enterDate(2026, 4, 30);
    Window::click(window.page<SettingUser>(), "radioFahreheit");
    installer.tab("installationTabButton");
    auto *heating = window.page<InstallationHeat>();
    Window::expand(heating);
    Window::choose(heating, "comboTemperatureWaterMax", "140°F");
    auto *cooling = window.page<InstallationCool>();
    Window::expand(cooling);
    Window::choose(cooling, "comboForcerWater", "76°F");
    auto *automatic = window.page<InstallationaAuto>();
    Window::expand(automatic);
    Window::choose(automatic, "comboCoolingWaterMax", "74°F");
    Window::choose(automatic, "comboHeatingOutdoorMin", "4°F");

    installer.goToValidation();
    const QString path = installer.folder.filePath("fahrenheit.json");
    QVERIFY(installer.save(path));
    QCOMPARE(Installer::content(path), Installer::expected(documents::standard("R32"), "fahrenheit.tsv"));
}

void TestJourneys::incompleteSetupIsNotSaved()
{
    Installer installer;
    const Window &window = installer.window;
    installer.startNew("R32");
    installer.goToDipSwitches();
    installer.goToSettings();
    installer.goToValidation();
    QCOMPARE(installer.message(), QStringLiteral("Setup is not complete"));
    const QString path = installer.folder.filePath("refused.json");
    QVERIFY(!installer.save(path));
    QVERIFY(!QFile::exists(path));
    QVERIFY(messages::contain("MainDialog::on_saveButton_clicked save is failed validation :"));
    QVERIFY(window.dialog.members().settings.isNewFile);

    // The date is what is missing; with it, and the Installation tab seen, Save asks for a name.
    installer.goToSettings();
    installer.tab("userTabButton");
    installer.enterDate(2026, 1, 1);
    QVERIFY(!installer.save(path));
    installer.tab("installationTabButton");
    QVERIFY(installer.save(path));
    QCOMPARE(Installer::content(path), Installer::expected(documents::standard("R32"), "date-only.tsv"));
}

// Back to the item that asks for a choice.
void TestJourneys::choiceTakenBackIsNotSaved()
{
    Installer installer;
    const Window &window = installer.window;
    installer.startNew("R32");
    installer.goToDipSwitches();
    installer.goToSettings();
    installer.tab("installationTabButton");
    installer.tab("userTabButton");
    installer.enterDate(2026, 1, 1);
    const QString path = installer.folder.filePath("taken-back.json");
    QVERIFY(installer.save(path));
    const QByteArray saved = Installer::content(path);
    const auto marked = [&](bool mark) {
        for (const char *name : {"userValidationIcon", "labelErrorSetting"}) {
            QCOMPARE(Window::visible(&window.dialog, name), mark);
        }
        QVERIFY(!Window::visible(&window.dialog, "functionValidationIcon"));
        QVERIFY(!Window::visible(&window.dialog, "installationValidationIcon"));
    };
    marked(false);
    Window::choose(window.page<SettingUser>(), "comboDateYear", "Year");
    marked(true);
    messages::clear();
    QVERIFY(!installer.save());
    QCOMPARE(messages::all(),
             QStringList{"MainDialog::on_saveButton_clicked save is failed validation : false"});
    QCOMPARE(Installer::content(path), saved);
    installer.goToValidation();
    QCOMPARE(installer.message(), QStringLiteral("Setup is not complete"));
}

void TestJourneys::openedAquabox()
{
    Installer installer;
    const Window &window = installer.window;
    const QJsonDocument plant = QJsonDocument::fromJson(
        Installer::expected(documents::standard("R410"), "aquabox-start.tsv"));
    const QString path = installer.open(plant);
    Window::click(window.page<DipSwitchSettingStatus>(), "radioDhwOnly");
    installer.goToSettings();
    installer.tab("userTabButton");
    installer.tab("installationTabButton");
    Window::expand(window.page<InstallationSystemSetting>());
    const auto *aquabox = window.page<InstallationSystemAquabox>();
    Window::click(aquabox, "radioStandbyUse");
    Window::click(aquabox, "radioHsmodeUse");
    Window::click(aquabox, "radioCombinationUse");
    // The oil recovery is open; the tab's mark follows at the next check of another section.
    QVERIFY(!window.dialog.members().results.systemSectionValid);
    QVERIFY(!Window::shownItself(&window.dialog, "installationValidationIcon"));
    Window::click(aquabox, "radioOpt2");
    Window::choose(aquabox, "comboWater", "60");
    Window::click(aquabox, "radioRefrigerantUse");
    installer.goToValidation();
    QCOMPARE(installer.message(), QStringLiteral("Complete!"));
    QVERIFY(!installer.save());
    QCOMPARE(Installer::content(path), Installer::expected(plant, "aquabox.tsv"));
}

void TestJourneys::languageChangesOnEveryPage()
{
    Installer installer;
    Window &window = installer.window;
    installer.startNew("R32");
    installer.goToDipSwitches();
    equipR32(window.page<DipSwitchSettingStatus>());
    window.showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    setSystem(window.page<InstallationSystemSetting>());
    setHeatPump(window.page<InstallationSystemAWHP>());
    setCooling(window.page<InstallationCool>());
    setHeating(window.page<InstallationHeat>());
    setSeasonalAuto(window.page<InstallationaAuto>());
    setHotWater(window.page<InstallationDWH>());

    const auto combos = window.dialog.findChildren<QComboBox *>();
    const auto radios = window.dialog.findChildren<QRadioButton *>();
    const auto positions = [&] {
        QVector<int> result;
        for (const QComboBox *combo : combos) {
            result.append(combo->currentIndex());
        }
        for (const QRadioButton *radio : radios) {
            result.append(radio->isChecked() ? 1 : 0);
        }
        return result;
    };
    const auto change = [&] {
        const QByteArray document = window.dialog.document().toJson();
        const QVector<int> before = positions();
        window.speak("~");
        QCOMPARE(positions(), before);
        QCOMPARE(window.dialog.document().toJson(), document);
        QCOMPARE(Window::find<QLabel>(&window.dialog, "labelLanguage")->text(), QStringLiteral("Language~"));
        window.speak();
        QCOMPARE(positions(), before);
        QCOMPARE(window.dialog.document().toJson(), document);
    };
    for (const int step : {MainDialog::SelectPage, MainDialog::ProductPage, MainDialog::DipSwitchPage,
                           MainDialog::ValidationPage}) {
        window.showPage(step);
        change();
    }
    for (const int tab : {MainDialog::FunctionTab, MainDialog::UserTab, MainDialog::ServiceTab,
                          MainDialog::InstallationTab}) {
        window.showPage(MainDialog::SettingPage, tab);
        change();
    }
}

CALORA_TEST_MAIN(TestJourneys)
#include "tst_journeys.moc"
