#include "support/languagefolder.h"
#include "support/window.h"

// The order in which a language change reaches the window, its pages and the texts of each, told by an empty
// language: each lookup logs its key.

namespace {

/// Who asks, and for which keys; `more` follows them. "1:" and "2:" stand before a key that only a document
/// of one circuit asks for, and before one that takes two circuits or a flag.
struct Part {
    const char *name;
    const char *keys;
    const char *more = "";
};

// What cooling and heating have in common.
constexpr auto water =
    "TemperatureRange IndoorAirTemp Min Max WaterTemp Min Max TemperatureControl ControlMode Auto Constant "
    "MainZoneTemp 1:ConstantWaterTemp 2:WaterTempRoom2 THOnOffCriteria IndoorAirTemp WaterTemp "
    "WaterPumpnOperationTimer OperationContinue TimeSetting ONTimer OFFTimer "
    "Outlet Inlet STEP0 STEP1 STEP2 STEP3 OperationMinute";

constexpr Part parts[] = {
    {"window",
     "New Open Save Language ProductSelection DipSwitchSettingStatus Setting Validation "
     "Function Installation Service User Select"},
    {"Select", "New Open SubText"},
    {"ProductSelection",
     "Producttype AWHP Aquabox ProductSpec MediumTemperature HighTemperature RefrigerantType R410A R32"},
    {"SettingService", "ServiceContact OfficeName InstallerName Telephone TelephoneSubString"},
    {"Validation", "CompleteMessage CompleteSubMessage ErrorMessage ErrorSubMessage"},
    {"DipSwitchSettingStatus",
     "DomesticHotWaterTank NotUse Use DhwOnly Solarthermalkit NotUse Use Operationmode HeatingOnly "
     "HeatingCooling Flowswitchdetection Always OnlyPumpOperating ElectricHeather Heater0 Heater1 Heater12 "
     "Thermostat NotUse Use OrvoMeterInterface Address NotUse B0 B1 "
     "PulseSpecWHM1 PulseSpecWHM2 PulseSpecWHM3 PulseSpecHeatMeter pulsekWh pulsekWh pulsekWh pulsekWh "
     "ODUFunctionMaster Master Slave SilentModePriority ODU RemoteController "
     "RemoteAirTempSensor NotUse Use AntifreezingSolution NotUse Use DipSwitchGuide"},
    {"SettingFunction",
     "SilentMode Off On SilentModeStartTime SilentModeEndTime LockTitle AllButtonLock Release Lock "
     "OnOffButtonLock Release Lock OperationModeButtonLock Release Lock DHWOnOffButtonLock Release Lock "
     "ODEFunction DefrostSnowRemove STEP0 STEP1 STEP2 STEP3"},
    {"InstallationCool", "Cool ControlBasisTemp forcedStopTemp FanCoilUnit NotUse Use WaterTemp", water},
    {"InstallationHeat", "Heat ControlBasisTemp", water},
    {"InstallationaAuto",
     "Automode OutdoorTempDependentMode OutdoorTempRange IndoorAirTempRange WaterTempRange Max Max Max "
     "Min Min Min SeasonalAutoMode HeatingOnly CoolingOnly Both OutdoorTempRange CoolingRange HeatingRange "
     "1:SeasonalAirTemp 1:SeasonalWaterTemp 2:SeasonalAirTempRoom2 2:SeasonalWaterTempRoom2 "
     "CoolingRange HeatingRange CoolingRange HeatingRange SeasonalAirTempMainZone "
     "SeasonalWaterTempMainZone CoolingRange HeatingRange CoolingRange HeatingRange "
     "Max Min Max Min Max Min Max Min Max Min Max Min Max Min Max Min Max Min Max Min"},
    {"InstallationDWH",
     "DomesticHotWater HotWaterTargetTempRange Min Max TankWaterTemperature MinimumTankWaterTemp "
     "MaximumInletWaterTemp TankHeatingHysterisis UnderFloorHeatingPriority DHW RoomHeating "
     "HeatingOperationTimer HeatingDurationTime StopDurationTime THOnOffCriteria Disinfection NotUse Use "
     "Schedule MaximumTemp MaxTempDuration CutOffDuration "
     "STEP0 STEP1 STEP2 STEP3 OperationMinute Hour SUN MON TUE WED THU FRI SAT"},
    {"InstallationSystemSetting",
     "SystemSetting TemperatureSensor SensingTemperature AirTemperatureSensor DryContactMode Manual Auto "
     "CentralControlAddress ScreedDry ScreedStep ScreedMaxtemp ScreedHolding ModbusAddress WaterPumpRPM "
     "WaterPumpRPM EnforcedCirculation NotUse Use OperationPeriod OperationTime DryContact CNEXT"},
    {"InstallationSystemAWHP",
     "Secondcircuit NotUse Use ValveClosingTime Hysterisis SmartGrid NotUse Use ControlMode HeaterPriority "
     "BackupBoostBoth BoostOnly HeaterOnTemperature WaterTankHeater NotUse Use DisinfectionMode "
     "HeatingPriority DelayTime AntifreezingSolutionTemperature PumpControl PreRun OverRun ExternalPump "
     "NotUse Use ThirdPartyBoiler NotUse Use ControlMode ControlTemperatureRun Hysterisis "
     "OperationSecond OperationMinute Cycle Cycle_Heater Manual Auto STEP0 STEP1 STEP2"},
    {"InstallationSystemAquabox",
     "ModeStandby NotUse ModePriority HSMode NotUse Use Combination NotUse Use OilRecovery Opt0 Opt1 "
     "NightTime WaterFlowRate RefrigerantLeakageSensor NotUse Use STEP0 STEP1 STEP2 STEP3"},
    {"lists of InstallationSystemSetting",
     "NotUse SimpleOperation SimpleDryContact SingleEmergencyStop 2:MultiEmergencyStop day Hour "
     "OperationMinute Auto NOTINSTALL INSTALL WATER AIR 2:AIR_WATER 2:IDU RemoteController"},
    {"SettingUser",
     "TemperatureUnit Celicious Fahrenheit BacklightControl ScreenSaverTimer BRIGHTNESS Date SummerTime "
     "Off On StartDay EndDay DisplayTheme White Black "
     "Year Month Month Month OperationSecond UserDay UserDay UserDay"},
};

QStringList keysOf(const Part &part, int circuits)
{
    QStringList keys;
    const QStringList words = QString(part.keys).append(' ').append(part.more).split(' ', Qt::SkipEmptyParts);
    for (const QString &word : words) {
        const int colon = word.indexOf(':');
        if (colon < 0 || word.left(colon).toInt() == circuits) {
            keys.append(word.mid(colon + 1));
        }
    }
    return keys;
}

/// Keys that have come since the table of English texts: their place among the others is their form's.
const QStringList &laterKeys()
{
    static const QStringList later = [] {
        QStringList keys = QJsonDocument::fromJson(languagefolder::english()).object().keys();
        const QByteArray table = testfiles::content(QStringLiteral(TEST_DATA_DIR "/english.tsv"));
        for (const QByteArray &line : table.split('\n')) {
            keys.removeOne(QString::fromUtf8(line.split('\t').first()));
        }
        return keys;
    }();
    return later;
}

QStringList keysLogged()
{
    QStringList keys;
    const QStringList lines = messages::all();
    for (const QString &line : lines) {
        if (line.startsWith('"') && line.endsWith('"')) {
            keys.append(line.mid(1, line.size() - 2));
        }
    }
    for (const QString &key : laterKeys()) {
        keys.removeAll(key);
    }
    return keys;
}

QStringList keysAskedFor(int circuits)
{
    Window window;
    if (circuits == 2) {
        window.use(documents::with(documents::standard("R32"),
                                   {{"SettingInfo.installation.circuitMainZone.enableMainZone", "SET"},
                                    {"IduFuncList.isWaterCtrBasisAir", "SET"},
                                    {"IduFuncList.isIduAirTempSW", "SET"},
                                    {"IduFuncList.isEmergencyAllStop", "SET"}}));
    }
    window.dialog.setLanguageDocument(QJsonDocument());
    messages::clear();
    window.dialog.changeLanguage();
    return keysLogged();
}

} // namespace

class TestLanguageOrder : public QObject
{
    Q_OBJECT

private slots:
    void formsAskForNothing();
    void eachTextIsAskedForInOrder_data();
    void eachTextIsAskedForInOrder();
};

// While it is built, a form shows its own texts and asks for none; the lists of dates ask for their first
// item.
void TestLanguageOrder::formsAskForNothing()
{
    messages::clear();
    const Window window;
    QCOMPARE(keysLogged(), QStringList({"Year", "Month", "Month", "Month", "UserDay", "UserDay", "UserDay"}));
}

void TestLanguageOrder::eachTextIsAskedForInOrder_data()
{
    QTest::addColumn<QStringList>("asked");
    QTest::addColumn<QStringList>("expected");
    for (const int circuits : {1, 2}) {
        QStringList asked = keysAskedFor(circuits);
        for (const Part &part : parts) {
            const QStringList expected = keysOf(part, circuits);
            QTest::addRow("%s, %d", part.name, circuits)
                << QStringList(asked.mid(0, expected.size())) << expected;
            asked = asked.mid(expected.size());
        }
        QTest::addRow("nobody else, %d", circuits) << asked << QStringList();
    }
}

void TestLanguageOrder::eachTextIsAskedForInOrder()
{
    QFETCH(QStringList, asked);
    QTEST(asked, "expected");
}

CALORA_TEST_MAIN(TestLanguageOrder)
#include "tst_languageorder.moc"
