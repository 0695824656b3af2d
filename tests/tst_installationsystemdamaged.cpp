#include "support/systemsection.h"

#include <QJsonArray>
#include <QJsonObject>

#include <limits>

namespace {

/// What the three sections read of the installation settings.
QStringList readKeys()
{
    return {"sensorDefine.settemp_select",
            "sensorDefine.airTempLocation",
            "sensorDefine.airAndWaterUse",
            "drycontactAuto",
            "modbusAddress",
            "pumpOperationByForce.ByForcePeriod",
            "pumpOperationByForce.ByForceRuntime",
            "pumpOperationByForce.ByForceUse",
            "cc_address",
            "cement_cure.cmt_step",
            "cement_cure.cmt_maxTemp",
            "cement_cure.cmt_holding",
            "pumpRPM.pumpRPMValue",
            "dryContactInstallation",
            "digitalInput",
            "circuitMainZone.enableMainZone",
            "circuitMainZone.controlTimeMainZone",
            "circuitMainZone.hysterisisMainZone",
            "smartGrid.smartGridUse",
            "smartGrid.smartGridMode",
            "EH_BH_priority",
            "is_indoor_model",
            "eheater_onoff.heater1_value",
            "hotWaterTankHeater.tankHeaterUse",
            "hotWaterTankHeater.tankHeaterPriority",
            "hotWaterTankHeater.tankHeaterDelay",
            "antiFreezeTemp",
            "pumpPreOverRun.preRun",
            "pumpPreOverRun.overRun",
            "extWaterPump",
            "boilerOfThirdParty.thirdPartyMode",
            "boilerOfThirdParty.thirdPartyUse",
            "boilerOfThirdParty.thirdPartyTemp",
            "boilerOfThirdParty.thirdPartyHysterisis",
            "modePriority.modeStandby",
            "hsSetting",
            "combination200.combiValue",
            "combination200.combiOilRecover",
            "kNightType",
            "waterFlowRate",
            "leakRefrigerant"};
}

/// What the sections write without reading it.
const QStringList writtenKeys{"sensorDefine.remote_sensor"};

/// Flags that show every group of the three sections, and let every value be loaded.
QVariantMap allGroups()
{
    QVariantMap flags = heatPumpGroups();
    for (const char *name :
         {"isIduAirTempSW", "isWaterCtrBasisAir", "isModbusAddress", "is_cement_Curing", "is_PumpRpmOption",
          "isWaterPumpOperationByForce", "isWaterPumpOperationByForceAdv", "is_DryContactInstallationSetting",
          "isDiExpand", "isEmergencyAllStop", "isModeStandby", "isHsModel", "is_200Combination",
          "is200CombinationOp2", "isKnightModel", "isWaterFlowRate", "isLeakRefrigerant"}) {
        flags.insert(flag(name), "SET");
    }
    return flags;
}

} // namespace

// The system section and both product sections on documents that some other program has spoilt: nothing may
// crash, hang or spread.
class TestInstallationSystemDamaged : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { section = std::make_unique<SystemSection>(); }
    void cleanupTestCase() { section.reset(); }

    void loadsAnyValue_data();
    void loadsAnyValue();
    void loadsAnyFlag_data() { anyValues(); }
    void loadsAnyFlag();
    void loadsAnythingForAGroup_data() { anyValues(); }
    void loadsAnythingForAGroup();
    void unlistedNumbersStayBlank_data();
    void unlistedNumbersStayBlank();

private:
    static void anyValues();
    void loadClosedAndOpen(const QVariantMap &values, const QString &unit = "CENTIGRADE");

    std::unique_ptr<SystemSection> section;
};

void TestInstallationSystemDamaged::anyValues()
{
    QTest::addColumn<QVariant>("value");
    QTest::newRow("missing") << QVariant();
    QTest::newRow("null") << QVariant::fromValue(nullptr);
    QTest::newRow("bool") << QVariant(true);
    QTest::newRow("least") << QVariant(std::numeric_limits<int>::min());
    QTest::newRow("greatest") << QVariant(std::numeric_limits<int>::max());
    QTest::newRow("huge") << QVariant(1e300);
    QTest::newRow("text") << QVariant("x");
    QTest::newRow("text of a number") << QVariant("5");
    QTest::newRow("least step") << QVariant("STEP-2147483648");
    QTest::newRow("great step") << QVariant("STEP99999999999");
    QTest::newRow("long text") << QVariant(QString(10000, 'x'));
    QTest::newRow("list") << QVariant(QVariantList{1, "x"});
    QTest::newRow("object") << QVariant(QVariantMap{{"x", 1}});
}

// A closed section keeps the document; an open one changes only what it shows.
void TestInstallationSystemDamaged::loadClosedAndOpen(const QVariantMap &values, const QString &unit)
{
    const QJsonDocument expected = documents::with(documents::standard("R32"), values);
    section->load(values, "R32", unit);
    QCOMPARE(section->document(), expected);
    const QVariantMap changes = section->window.changes([this] {
        Window::expand(section->page);
        section->showAgain();
    });
    const QStringList known = readKeys() + writtenKeys;
    for (const QString &path : changes.keys()) {
        const bool own = std::any_of(known.begin(), known.end(), [&path](const QString &key) {
            const QString read = installation(qPrintable(key));
            return path.startsWith(read) || read.startsWith(path + '.');
        });
        QVERIFY2(own, qPrintable(path));
    }
}

void TestInstallationSystemDamaged::loadsAnyValue_data() { anyValues(); }

void TestInstallationSystemDamaged::loadsAnyValue()
{
    QFETCH(QVariant, value);
    QVariantMap values = allGroups();
    for (const QString &key : readKeys()) {
        values.insert(installation(qPrintable(key)), value);
    }
    values.insert("product", "AQUABOX");
    loadClosedAndOpen(values);
    // The numbers are loaded only in use.
    values.insert(installation("pumpOperationByForce.ByForceUse"), "USE");
    values.insert(installation("boilerOfThirdParty.thirdPartyUse"), "SET");
    values.insert("product", "AWHP");
    loadClosedAndOpen(values);
    loadClosedAndOpen(values, "FAHRENHEIT");
}

void TestInstallationSystemDamaged::loadsAnyFlag()
{
    QFETCH(QVariant, value);
    QVariantMap values{{"ExtSysInfo.hard_lock", value}};
    for (const QString &path : allGroups().keys()) {
        values.insert(path, value);
    }
    loadClosedAndOpen(values);
    values.insert("product", value);
    loadClosedAndOpen(values);
}

// A write below such a value replaces it, so only the closed section is told to keep the document.
void TestInstallationSystemDamaged::loadsAnythingForAGroup()
{
    QFETCH(QVariant, value);
    for (const char *path : {"SettingInfo", "SettingInfo.installation", "IduFuncList"}) {
        const QVariantMap values{{path, value}};
        section->load(values);
        QCOMPARE(section->document(), documents::with(documents::standard("R32"), values));
        Window::expand(section->page);
        section->showAgain();
    }
}

void TestInstallationSystemDamaged::unlistedNumbersStayBlank_data()
{
    QTest::addColumn<int>("value");
    QTest::newRow("least") << std::numeric_limits<int>::min();
    QTest::newRow("greatest") << std::numeric_limits<int>::max();
}

void TestInstallationSystemDamaged::unlistedNumbersStayBlank()
{
    QFETCH(int, value);
    QVariantMap values = allGroups();
    for (const char *key :
         {"modbusAddress", "cement_cure.cmt_step", "cement_cure.cmt_holding", "pumpRPM.pumpRPMValue",
          "pumpOperationByForce.ByForcePeriod", "pumpOperationByForce.ByForceRuntime",
          "circuitMainZone.hysterisisMainZone", "smartGrid.smartGridMode",
          "hotWaterTankHeater.tankHeaterDelay", "pumpPreOverRun.preRun", "pumpPreOverRun.overRun"}) {
        values.insert(installation(key), value);
    }
    values.insert(installation("antiFreezeTemp"), QStringLiteral("STEP%1").arg(value));
    values.insert(installation("digitalInput"), QStringLiteral("STEP%1").arg(value));
    section->load(values);
    // Without the change of language that ends a show, which takes translated lists to their first item.
    Window::invoke(section->page, "loadJsonData");
    Window::invoke(section->page, "refreshAwhpWidget");
    for (const char *combo :
         {"comboModbus", "comboBoxScreedStep", "comboBoxScreedHolding", "comboWaterpumpRPM",
          "comboOperationPeriod", "comboOperationTime", "comboCnEXT", "comboHysterisis", "comboStep",
          "comboDelayTime", "comboPreRun", "comboOverRun", "comboAntiFreezingTemp"}) {
        QVERIFY2(Window::find<QComboBox>(section->page, combo)->currentIndex() == -1, combo);
    }
}

CALORA_TEST_MAIN(TestInstallationSystemDamaged)
#include "tst_installationsystemdamaged.moc"
