#include "support/systemsection.h"

#include "pages/installation/installationsystemawhp.h"

#include <QFrame>
#include <QLayout>
#include <QScrollArea>
#include <QSignalSpy>

namespace {

QString use() { return installation("pumpOperationByForce.ByForceUse"); }

bool showsIcon(const QPushButton *button, const QString &path)
{
    return button->icon().pixmap(24).toImage() == QIcon(path).pixmap(24).toImage();
}

} // namespace

// The first section of the Installation tab: its rules, its gate and the product sections that it hosts.
class TestInstallationSystem : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { renew(); }
    void cleanupTestCase() { section.reset(); }

    void startsCollapsed();
    void opensAndCloses();
    void standsFirstOnTheTab();
    void sensingRefreshesTheOtherSections();
    void sensingSetsTheSensorGroup();
    void lockedAddressIsNotLoaded();
    void dryContactOfAnotherWordStays();
    void hiddenModbusKeepsItsItem();
    void enforcedCirculationDimsItsRows();
    void unusedCirculationIsLeftAlone();
    void collapsedSectionWritesNothing();
    void openSectionWritesWhatItShows();
    void modbusIsShownInHexadecimalAndStoredAsDecimal();
    void missingDigitalInputWritesBack();
    void writesNothingWithoutDocument();
    void showsTheProductsSection();
    void firstLoadRefreshesTheHeatPumpOnce();
    void firstLoadOfAModuleRefreshesNothing();
    void bothCategorySignalsRefreshTheHeatPump();
    void passesOnWhatProductsAskFor();
    void validOnlyWithBothRadioPairs();
    void joinsTheProductsResult_data();
    void joinsTheProductsResult();
    void withoutProductItsOwnResultCounts();
    void blocksItsThirteenLists();
    void selectsTemperaturesByText();
    void initUiHidesAndFillsAgain();

private:
    void renew()
    {
        section.reset();
        section = std::make_unique<SystemSection>();
    }
    int index(const char *combo) const
    {
        return Window::find<QComboBox>(section->page, combo)->currentIndex();
    }

    std::unique_ptr<SystemSection> section;
};

void TestInstallationSystem::startsCollapsed()
{
    for (const char *name : {"frame", "widgetAwhp", "widgetAquabox"}) {
        QVERIFY2(!Window::shownItself(section->page, name), name);
    }
    QVERIFY(showsIcon(Window::find<QPushButton>(section->page, "hideButton"),
                      ":/images/btn_header_arrow_open.png"));
    QCOMPARE(Window::items(section->page, "comboCentral").size(), 256);
}

void TestInstallationSystem::opensAndCloses()
{
    section->load();
    const auto *button = Window::find<QPushButton>(section->page, "hideButton");
    Window::click(section->page, "hideButton");
    QVERIFY(Window::visible(section->page, "frame"));
    QVERIFY(showsIcon(button, ":/images/btn_header_arrow_close.png"));
    Window::click(section->page, "hideButton");
    QVERIFY(!Window::visible(section->page, "frame"));
    QVERIFY(showsIcon(button, ":/images/btn_header_arrow_open.png"));
}

void TestInstallationSystem::standsFirstOnTheTab()
{
    const auto *area = Window::find<QScrollArea>(&section->window.dialog, "installationScrollArea");
    const QLayout *layout = area->widget()->layout();
    QStringList classes;
    for (int item = 0; item < layout->count(); ++item) {
        if (const QWidget *widget = layout->itemAt(item)->widget()) {
            classes.append(QLatin1String(widget->metaObject()->className()));
        }
    }
    QCOMPARE(classes,
             (QStringList{"InstallationSystemSetting", "InstallationCool", "InstallationHeat",
                          "InstallationaAuto", "InstallationDWH"}));
    const QLayout *products = Window::find(section->page, "frame_2")->layout();
    QCOMPARE(products->itemAt(0)->widget()->objectName(), QStringLiteral("widgetAwhp"));
    QCOMPARE(products->itemAt(1)->widget()->objectName(), QStringLiteral("widgetAquabox"));
}

void TestInstallationSystem::sensingRefreshesTheOtherSections()
{
    section->load();
    Window::expand(section->page);
    QSignalSpy refreshed(section->page, &InstallationSystemSetting::refreshInstallationPageSignal);
    messages::clear();
    QStringList order;
    const auto connection = connect(
        section->page, &InstallationSystemSetting::refreshInstallationPageSignal, this, [&order] {
            order.append(messages::contain("InstallationSystemSetting::validationCheck succeed!!")
                             ? "checked"
                             : "unchecked");
        });
    Window::choose(section->page, "comboBoxSensingTemp", "Air");
    disconnect(connection);
    QCOMPARE(order, QStringList{"checked"});
    QCOMPARE(refreshed.size(), 1);
    Window::click(section->page, "radioDryManual");
    Window::choose(section->page, "comboCentral", "01");
    QCOMPARE(refreshed.size(), 1);
    // A text of no method writes nothing and refreshes all the same.
    QCOMPARE(section->window.changes([this] {
        QMetaObject::invokeMethod(section->page, "on_comboBoxSensingTemp_currentTextChanged",
                                  Q_ARG(QString, QStringLiteral("Outlet")));
    }),
             QVariantMap());
    QCOMPARE(refreshed.size(), 2);
}

void TestInstallationSystem::sensingSetsTheSensorGroup()
{
    section->load({{installation("sensorDefine.settemp_select"), "AIR"}});
    QVERIFY(!Window::enabled(section->page, "groupBoxAirTempSensor"));
    section->load({{flag("isIduAirTempSW"), "SET"}, {installation("sensorDefine.settemp_select"), "WATER"}});
    QVERIFY(!Window::enabled(section->page, "groupBoxAirTempSensor"));
    section->load({{flag("isIduAirTempSW"), "SET"}, {installation("sensorDefine.settemp_select"), "AIR"}});
    QVERIFY(Window::enabled(section->page, "groupBoxAirTempSensor"));
    Window::expand(section->page);
    Window::choose(section->page, "comboBoxSensingTemp", "Water");
    QVERIFY(!Window::enabled(section->page, "groupBoxAirTempSensor"));
    Window::choose(section->page, "comboBoxSensingTemp", "Air+Water");
    QVERIFY(Window::enabled(section->page, "groupBoxAirTempSensor"));
}

void TestInstallationSystem::lockedAddressIsNotLoaded()
{
    section->load({{"ExtSysInfo.hard_lock", "SET"}, {installation("cc_address"), "AB"}});
    QVERIFY(!Window::enabled(section->page, "groupBoxCCAddress"));
    QCOMPARE(Window::shown(section->page, "comboCentral"), QStringLiteral("00"));
    section->load({{"ExtSysInfo.hard_lock", "clr"}, {installation("cc_address"), "AB"}});
    QVERIFY(Window::enabled(section->page, "groupBoxCCAddress"));
    QCOMPARE(Window::shown(section->page, "comboCentral"), QStringLiteral("AB"));
}

void TestInstallationSystem::dryContactOfAnotherWordStays()
{
    section->load({{installation("dryContactInstallation"), "INSTALL"}});
    section->window.use(
        documents::with(section->document(), {{installation("dryContactInstallation"), "x"}}));
    Window::invoke(section->page, "loadJsonData");
    QCOMPARE(index("comboDryContactInstallation"), 2);
}

void TestInstallationSystem::hiddenModbusKeepsItsItem()
{
    section->load({{flag("isModbusAddress"), "SET"}, {installation("modbusAddress"), 16}});
    section->window.use(documents::with(
        section->document(), {{flag("isModbusAddress"), "CLR"}, {installation("modbusAddress"), 2}}));
    Window::invoke(section->page, "loadJsonData");
    QCOMPARE(Window::shown(section->page, "comboModbus"), QStringLiteral("10"));
}

void TestInstallationSystem::enforcedCirculationDimsItsRows()
{
    const auto check = [this](bool used) {
        const QString style = used ? "color : #555555" : "color : rgba(55,55,55,30%)";
        for (const char *name :
             {"bulletSystem12", "comboOperationPeriod", "bulletSystem13", "comboOperationTime"}) {
            QCOMPARE(Window::enabled(section->page, name), used);
        }
        QCOMPARE(Window::find(section->page, "labelOperationPeriod")->styleSheet(), style);
        QCOMPARE(Window::find(section->page, "labelOperationTime")->styleSheet(), style);
    };
    section->load();
    check(true);
    Window::expand(section->page);
    Window::click(section->page, "radioEnforcedNotuse");
    check(false);
    Window::click(section->page, "radioEnforcedUse");
    check(true);
    section->load({{use(), "NOTUSE"}});
    check(false);
}

void TestInstallationSystem::unusedCirculationIsLeftAlone()
{
    const QVariantMap values{{use(), "NOTUSE"},
                             {installation("pumpOperationByForce.ByForcePeriod"), 100},
                             {installation("pumpOperationByForce.ByForceRuntime"), 4}};
    section->load(values);
    Window::expand(section->page);
    section->showAgain();
    QCOMPARE(section->document(), documents::with(documents::standard("R32"), values));
}

void TestInstallationSystem::collapsedSectionWritesNothing()
{
    section->load();
    const QVariantMap changes = section->window.changes([this] {
        for (const char *name :
             {"comboBoxSensingTemp", "comboCentral", "comboCnEXT", "comboDryContactInstallation",
              "comboModbus", "comboOperationPeriod", "comboOperationTime", "comboWaterpumpRPM",
              "comboWaterRpmDuty", "comboBoxScreedStep", "comboBoxScreedMaxTemp", "comboBoxScreedHolding"}) {
            auto *combo = Window::find<QComboBox>(section->page, name);
            combo->setCurrentIndex(combo->currentIndex() == 2 ? 1 : 2);
        }
        for (const char *name : {"radioDryManual", "radioEnforcedNotuse"}) {
            Window::find<QRadioButton>(section->page, name)->click();
        }
        QMetaObject::invokeMethod(section->page, "saveJsonData", Q_ARG(QString, installation("cc_address")),
                                  Q_ARG(QJsonValue, QJsonValue("AB")));
    });
    QCOMPARE(changes, QVariantMap());
}

// Each selection of a load runs its slot in an open section: what is shown goes into the document.
void TestInstallationSystem::openSectionWritesWhatItShows()
{
    const QVariantMap values{{flag("isIduAirTempSW"), "SET"},
                             {installation("sensorDefine.settemp_select"), "AIR"},
                             {installation("sensorDefine.remote_sensor"), "CLR"},
                             {installation("sensorDefine.airTempLocation"), "RMC"}};
    section->load(values);
    Window::expand(section->page);
    QCOMPARE(section->document(), documents::with(documents::standard("R32"), values));
    QCOMPARE(section->window.changes([this] { section->showAgain(); }),
             (QVariantMap{{installation("sensorDefine.remote_sensor"), "SET"},
                          {installation("sensorDefine.airTempLocation"), "RemoteController"}}));
}

void TestInstallationSystem::modbusIsShownInHexadecimalAndStoredAsDecimal()
{
    section->load({{flag("isModbusAddress"), "SET"}});
    Window::expand(section->page);
    Window::choose(section->page, "comboModbus", "10");
    Window::expand(section->page, false);
    section->showAgain();
    QCOMPARE(Window::shown(section->page, "comboModbus"), QStringLiteral("0a"));
    QCOMPARE(section->document(),
             documents::with(documents::standard("R32"),
                             {{flag("isModbusAddress"), "SET"}, {installation("modbusAddress"), 10}}));
}

void TestInstallationSystem::missingDigitalInputWritesBack()
{
    section->load({{installation("digitalInput"), "STEP4"}});
    Window::invoke(section->page, "loadJsonData");
    QCOMPARE(index("comboCnEXT"), -1);
    Window::expand(section->page);
    QCOMPARE(section->window.changes([this] { Window::invoke(section->page, "loadJsonData"); }),
             (QVariantMap{{installation("digitalInput"), "STEP-1"}}));
}

void TestInstallationSystem::writesNothingWithoutDocument()
{
    section->load();
    Window::expand(section->page);
    section->window.use(QJsonDocument());
    Window::click(section->page, "radioDryManual");
    QVERIFY(section->document().isNull());
}

void TestInstallationSystem::showsTheProductsSection()
{
    section->load({{"product", "AquaBox"}});
    QVERIFY(Window::shownItself(section->page, "widgetAquabox"));
    QVERIFY(!Window::shownItself(section->page, "widgetAwhp"));
    section->load({{"product", "other"}});
    QVERIFY(Window::shownItself(section->page, "widgetAquabox"));
    section->load({{"product", "awhp"}});
    QVERIFY(!Window::shownItself(section->page, "widgetAquabox"));
    QVERIFY(Window::shownItself(section->page, "widgetAwhp"));
}

void TestInstallationSystem::firstLoadRefreshesTheHeatPumpOnce()
{
    renew();
    QSignalSpy refreshed(section->page, &InstallationSystemSetting::refreshAwhpCategory);
    section->load();
    QCOMPARE(refreshed.size(), 1);
    QVERIFY(section->members().results.systemSectionValid);
    section->load();
    QCOMPARE(refreshed.size(), 1);
}

void TestInstallationSystem::firstLoadOfAModuleRefreshesNothing()
{
    renew();
    QSignalSpy refreshed(section->page, &InstallationSystemSetting::refreshAwhpCategory);
    QSignalSpy module(section->page, &InstallationSystemSetting::refreshAquaboxCategory);
    section->load({{"product", "aquabox"}});
    section->load();
    QCOMPARE(refreshed.size() + module.size(), 0);
}

void TestInstallationSystem::bothCategorySignalsRefreshTheHeatPump()
{
    section->load();
    const auto *awhp = section->window.page<InstallationSystemAWHP>();
    QSignalSpy checked(awhp, &InstallationSystemAWHP::validationCheckSignals);
    Window::invoke(section->page, "refreshAwhpWidget");
    QVERIFY(!checked.isEmpty());
    checked.clear();
    Window::invoke(section->page, "refreshAquaboxWidget");
    QVERIFY(checked.isEmpty());
    Window::invoke(section->page, "refreshAquaboxCategory");
    QVERIFY(!checked.isEmpty());
}

void TestInstallationSystem::passesOnWhatProductsAskFor()
{
    section->load();
    QSignalSpy refreshed(section->page, &InstallationSystemSetting::refreshInstallationPageSignal);
    int expected = 0;
    for (const char *name : {"widgetAwhp", "widgetAquabox"}) {
        QWidget *product = Window::find(section->page, name);
        QMetaObject::invokeMethod(product, "refreshInstallationPage");
        QCOMPARE(refreshed.size(), ++expected);
        const auto save = [product] {
            QMetaObject::invokeMethod(product, "saveJsonValue", Q_ARG(QString, installation("hsSetting")),
                                      Q_ARG(QJsonValue, QJsonValue(QStringLiteral("x"))));
        };
        QCOMPARE(section->window.changes(save), QVariantMap());
        Window::expand(section->page);
        QCOMPARE(section->window.changes(save), (QVariantMap{{installation("hsSetting"), "x"}}));
        section->load();
    }
}

void TestInstallationSystem::validOnlyWithBothRadioPairs()
{
    const auto valid = [this] { return section->members().results.systemSectionValid; };
    for (const QString &path : {installation("drycontactAuto"), use()}) {
        section->load({{path, "x"}});
        // Nothing of a closed section is visible, so nothing is required.
        QVERIFY(valid());
        Window::expand(section->page);
        messages::clear();
        Window::invoke(section->page, "validationCheck");
        QVERIFY(!valid());
        QVERIFY(messages::contain("InstallationSystemSetting::validationCheck failed!!"));
    }
    section->load({{installation("drycontactAuto"), "x"}, {use(), "x"}});
    Window::expand(section->page);
    messages::clear();
    Window::invoke(section->page, "validationCheck");
    // The first failure ends the check.
    QVERIFY(messages::contain("\"radioDryAuto\" \"radioDryManual\""));
    QVERIFY(!messages::contain("radioEnforcedNotuse"));
    Window::click(section->page, "radioDryAuto");
    QVERIFY(!valid());
    Window::click(section->page, "radioEnforcedNotuse");
    QVERIFY(valid());
    section->load({{use(), "x"}, {flag("isWaterPumpOperationByForce"), "CLR"}});
    Window::expand(section->page);
    Window::invoke(section->page, "validationCheck");
    QVERIFY(valid());
}

void TestInstallationSystem::joinsTheProductsResult_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("type");
    QTest::addColumn<bool>("counts");
    QTest::newRow("heat pump") << "AWHP"
                               << "awhp" << true;
    QTest::newRow("module") << "AQUABOX"
                            << "AquaBox" << true;
    QTest::newRow("the other product") << "AQUABOX"
                                       << "AWHP" << false;
    QTest::newRow("no product") << "AWHP"
                                << "x" << false;
}

void TestInstallationSystem::joinsTheProductsResult()
{
    QFETCH(QString, product);
    QFETCH(QString, type);
    QFETCH(bool, counts);
    section->load({{"product", product}});
    const auto report = [this](bool result, const QString &from) {
        QMetaObject::invokeMethod(section->page, "validationCheckByProductType", Q_ARG(bool, result),
                                  Q_ARG(QString, from));
    };
    report(true, product);
    const DialogState &state = section->members();
    QVERIFY(state.results.systemSectionValid);
    section->window.dialog.setSystemSectionValid(false);
    section->window.dialog.updateInstallationValid();
    messages::clear();
    report(false, type);
    QCOMPARE(state.results.systemSectionValid, !counts);
    QVERIFY(messages::contain("InstallationSystemSetting::validationCheck succeed!!"));
    // A failed product ends the check before its last message and before the tab's result is joined.
    QCOMPARE(messages::contain("InstallationSystemSetting::validationCheck true"), !counts);
    QVERIFY(!messages::contain("InstallationSystemSetting::validationCheck false"));
    report(true, type);
    QVERIFY(state.results.systemSectionValid);
    QVERIFY(messages::contain("InstallationSystemSetting::validationCheck true"));
}

// Failure of a product leaves the tab as it was; any other way joins the tab's result.
void TestInstallationSystem::withoutProductItsOwnResultCounts()
{
    renew();
    section->load({{"product", "other"}});
    MainDialog &dialog = section->window.dialog;
    for (const auto set : {&MainDialog::setAutoSectionValid, &MainDialog::setCoolSectionValid,
                           &MainDialog::setDwhSectionValid, &MainDialog::setHeatSectionValid}) {
        (dialog.*set)(true);
    }
    Window::invoke(section->page, "validationCheck");
    QVERIFY(dialog.members().results.installationValid);
    Window::find(section->page, "widgetAwhp")->show();
    Window::invoke(section->page, "validationCheck");
    QVERIFY(!dialog.members().results.systemSectionValid);
    QVERIFY(dialog.members().results.installationValid);
    Window::find(section->page, "widgetAwhp")->hide();
    section->window.use(documents::with(section->document(), {{installation("drycontactAuto"), "x"}}));
    Window::invoke(section->page, "loadJsonData");
    Window::expand(section->page);
    messages::clear();
    Window::invoke(section->page, "validationCheck");
    QVERIFY(messages::contain("InstallationSystemSetting::validationCheck false"));
    QVERIFY(!dialog.members().results.installationValid);
}

void TestInstallationSystem::blocksItsThirteenLists()
{
    const auto blocked = [this] {
        int count = 0;
        for (const char *name : {"comboBoxAirTemp", "comboBoxSensingTemp", "comboCentral", "comboCnEXT",
                                 "comboDryContactInstallation", "comboModbus", "comboOperationPeriod",
                                 "comboOperationTime", "comboWaterpumpRPM", "comboWaterRpmDuty",
                                 "comboBoxScreedStep", "comboBoxScreedMaxTemp", "comboBoxScreedHolding"}) {
            count += Window::find(section->page, name)->signalsBlocked() ? 1 : 0;
        }
        return count;
    };
    QMetaObject::invokeMethod(section->page, "blockComboBoxSignal", Q_ARG(bool, true));
    QCOMPARE(blocked(), 13);
    QMetaObject::invokeMethod(section->page, "blockComboBoxSignal", Q_ARG(bool, false));
    QCOMPARE(blocked(), 0);
}

void TestInstallationSystem::selectsTemperaturesByText()
{
    section->load();
    auto *combo = Window::find<QComboBox>(section->page, "comboBoxScreedMaxTemp");
    QSignalSpy changed(combo, &QComboBox::currentTextChanged);
    const auto select = [this, combo](int value) {
        QMetaObject::invokeMethod(section->page, "setTempValue", QGenericArgument("QComboBox*", &combo),
                                  Q_ARG(int, value));
        return combo->currentText();
    };
    QCOMPARE(select(41), QStringLiteral("41°C"));
    QCOMPARE(select(100), QString());
    section->load({}, "R32", "FAHRENHEIT");
    changed.clear();
    QCOMPARE(select(96), QStringLiteral("96°F"));
    QCOMPARE(changed.size(), 0);
}

void TestInstallationSystem::initUiHidesAndFillsAgain()
{
    section->load();
    Window::expand(section->page);
    Window::invoke(section->page, "initUi");
    for (const char *name : {"frame", "widgetAwhp", "widgetAquabox"}) {
        QVERIFY2(!Window::shownItself(section->page, name), name);
    }
    QCOMPARE(Window::items(section->page, "comboOperationPeriod").constFirst(), QStringLiteral("20hour"));
    renew();
}

CALORA_TEST_MAIN(TestInstallationSystem)
#include "tst_installationsystem.moc"
