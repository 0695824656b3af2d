#include "support/hotwatersection.h"

#include <QFrame>

namespace {

const QVariantMap everything = HotWaterSection::everything();

QString at(const char *key) { return HotWaterSection::at(key); }

} // namespace

// The hot water section of the Installation tab: what it shows, writes and reports.
class TestInstallationDwh : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { section = std::make_unique<HotWaterSection>(); }
    void init() { section->reset(); }
    void cleanupTestCase() { section.reset(); }

    void startsClosed();
    void opensAndCloses();
    void languageKeepsPositions();
    void showsStoredValues_data();
    void showsStoredValues();
    void checksStoredRadios_data();
    void checksStoredRadios();
    void listWritesItsValue_data();
    void listWritesItsValue();
    void timerItemLosesTwoDigits();
    void translatedStepWritesItsKey();
    void radioWritesItsWord_data();
    void radioWritesItsWord();
    void disinfectionEnablesItsSchedule();
    void scheduleFollowsTheRadio();
    void loadWritesBackWhatHasNoItem_data();
    void loadWritesBackWhatHasNoItem();
    void loadWritesNothingWhereTheItemStands();
    void loadLeavesTemperaturesAlone();
    void closedSectionWritesNothing();
    void emptyDocumentStaysEmpty();
    void showingReadsTheDocumentAnew();
    void refreshReadsTheDocumentAnew();
    void reportsItsResult();
    void pairWithNothingChosenFails_data();
    void pairWithNothingChosenFails();
    void hiddenPairPasses();

private:
    void uncheck(const char *first, const char *second) const;

    std::unique_ptr<HotWaterSection> section;
};

void TestInstallationDwh::uncheck(const char *first, const char *second) const
{
    for (const char *name : {first, second}) {
        auto *radio = Window::find<QRadioButton>(section->page, name);
        radio->setAutoExclusive(false);
        radio->setChecked(false);
        radio->setAutoExclusive(true);
    }
}

void TestInstallationDwh::startsClosed()
{
    const InstallationDWH fresh;
    QVERIFY(Window::find(&fresh, "frame")->isHidden());
    const QIcon closed(QStringLiteral(":/images/btn_header_arrow_open.png"));
    QCOMPARE(Window::find<QPushButton>(&fresh, "hideButton")->icon().pixmap(24).toImage(),
             closed.pixmap(24).toImage());
}

void TestInstallationDwh::opensAndCloses()
{
    section->load(everything);
    const auto *button = Window::find<QPushButton>(section->page, "hideButton");
    const auto arrow = [](const char *name) {
        return QIcon(QStringLiteral(":/images/btn_header_arrow_%1.png").arg(QLatin1String(name)))
            .pixmap(24)
            .toImage();
    };
    QVERIFY(arrow("open") != arrow("close"));
    QVERIFY(Window::visible(section->page, "frame"));
    QCOMPARE(button->icon().pixmap(24).toImage(), arrow("close"));
    Window::click(section->page, "hideButton");
    QVERIFY(!Window::visible(section->page, "frame"));
    QCOMPARE(button->icon().pixmap(24).toImage(), arrow("open"));
}

void TestInstallationDwh::languageKeepsPositions()
{
    section->load(everything
                  + QVariantMap{{at("waterThermoOnOff"), "STEP2"}, {at("disinfect_data.howLong"), 16}});
    const QVariantMap written = section->window.changes([this] { section->window.speak("~"); });
    QCOMPARE(written, QVariantMap());
    const QMap<QString, QString> texts{{"comboHeatPump", "STEP2~"},
                                       {"comboMaxTempDuration", "60min~"},
                                       {"comboHeatingDurationTime", "30min~"},
                                       {"comboStopDurationTime", "30min~"},
                                       {"comboCutOffDuration", "1Hour~"},
                                       {"comboSchedule1", "Fri~"},
                                       {"comboSchedule2", "23:00"}};
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        QCOMPARE(section->shown(qPrintable(text.key())), text.value());
    }
    QCOMPARE(section->items("comboSchedule1"),
             (QStringList{"Sun~", "Mon~", "Tue~", "Wed~", "Thu~", "Fri~", "Sat~"}));
    QVERIFY(!messages::contain("InstallationDWH::SettingUser"));
}

void TestInstallationDwh::showsStoredValues_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");
    const auto row = [](const char *name, const char *key, const QVariant &value, const char *text) {
        QTest::addRow("%s %s", name, text) << QByteArray(name) << at(key) << value << QString(text);
    };
    row("comboHotWaterMin", "settempLimit.hotWater.low_limit", 30, "30°C");
    row("comboHotWaterMin", "settempLimit.hotWater.low_limit", 29, "40°C");
    row("comboHotWaterMin", "settempLimit.hotWater.low_limit", 0, "30°C");
    row("comboHotWaterMax", "settempLimit.hotWater.high_limit", 55, "55°C");
    row("comboHotWaterMax", "settempLimit.hotWater.high_limit", 90, "80°C");
    row("comboTankWaterMin", "hotwater_logic.hysterisis", 30, "30K");
    row("comboTankWaterMin", "hotwater_logic.hysterisis", 31, "30K");
    row("comboInletWaterMax", "hotwater_logic.compMaxTemp", 48, "48°C");
    row("comboInletWaterMax", "hotwater_logic.compMaxTemp", 60, "55°C");
    row("comboTankHeatingHysterisis", "hotwater_addData.hysterisis", 2, "2K");
    row("comboHeatingDurationTime", "hotwater_timer.maintain_time", 6, "30min");
    row("comboHeatingDurationTime", "hotwater_timer.maintain_time", 19, "95min");
    row("comboHeatingDurationTime", "hotwater_timer.maintain_time", 0, "");
    row("comboStopDurationTime", "hotwater_timer.restrict_time", 1, "30min");
    row("comboStopDurationTime", "hotwater_timer.restrict_time", 20, "600min");
    row("comboStopDurationTime", "hotwater_timer.restrict_time", 21, "");
    row("comboHeatPump", "waterThermoOnOff", "STEP3", "STEP3");
    row("comboHeatPump", "waterThermoOnOff", "STEP4", "STEP0");
    row("comboHeatPump", "waterThermoOnOff", "", "STEP0");
    row("comboSchedule1", "disinfect_time.day", 5, "Fri");
    row("comboSchedule1", "disinfect_time.day", 7, "");
    row("comboSchedule2", "disinfect_time.start", 23, "23:00");
    row("comboSchedule2", "disinfect_time.start", 8, "08:00");
    row("comboMaxTemp", "disinfect_data.maxTemp", 61, "61°C");
    row("comboMaxTemp", "disinfect_data.maxTemp", 50, "80°C");
    row("comboMaxTempDuration", "disinfect_data.howLong", 10, "30min");
    row("comboMaxTempDuration", "disinfect_data.howLong", 5, "5min");
    row("comboMaxTempDuration", "disinfect_data.howLong", 4, "");
    row("comboMaxTempDuration", "disinfect_data.howLong", 17, "");
    row("comboCutOffDuration", "disinfect_data.cutOffTime", 12, "12Hour");
    row("comboCutOffDuration", "disinfect_data.cutOffTime", 0, "");
}

void TestInstallationDwh::showsStoredValues()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, path);
    QFETCH(QVariant, value);
    QFETCH(QString, text);
    section->load(everything + QVariantMap{{path, value}});
    QCOMPARE(section->shown(name.constData()), text);
}

void TestInstallationDwh::checksStoredRadios_data()
{
    QTest::addColumn<QVariant>("word");
    QTest::addColumn<bool>("used");
    QTest::newRow("SET") << QVariant("SET") << true;
    QTest::newRow("set") << QVariant("set") << true;
    QTest::newRow("CLR") << QVariant("CLR") << false;
    QTest::newRow("other") << QVariant("USE") << false;
    QTest::newRow("missing") << QVariant() << false;
}

void TestInstallationDwh::checksStoredRadios()
{
    QFETCH(QVariant, word);
    QFETCH(bool, used);
    section->load(
        everything
        + QVariantMap{{at("hotwater_addData.UFH_priority"), word}, {at("disinfect_time.enable"), word}});
    QCOMPARE(Window::checked(section->page, "radioUnderFloorUse"), used);
    QCOMPARE(Window::checked(section->page, "radioUnderFloorNotUse"), !used);
    QCOMPARE(Window::checked(section->page, "radioDisinfectionUse"), used);
    QCOMPARE(Window::checked(section->page, "radioDisinfectionNotUse"), !used);
    QCOMPARE(Window::enabled(section->page, "groupBoxDisinfectSub"), used);
}

void TestInstallationDwh::listWritesItsValue_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("item");
    QTest::addColumn<QVariant>("value");
    const auto row = [](const char *name, const char *key, const char *item, const QVariant &value,
                        const char *unit = "CENTIGRADE") {
        QTest::addRow("%s %s", name, item)
            << QByteArray(name) << at(key) << QString(unit) << QString(item) << value;
    };
    row("comboHotWaterMin", "settempLimit.hotWater.low_limit", "35°C", 35);
    row("comboHotWaterMin", "settempLimit.hotWater.low_limit", "90°F", 32, "FAHRENHEIT");
    row("comboHotWaterMax", "settempLimit.hotWater.high_limit", "60°C", 60);
    row("comboHotWaterMax", "settempLimit.hotWater.high_limit", "140°F", 60, "FAHRENHEIT");
    row("comboTankWaterMin", "hotwater_logic.hysterisis", "30K", 30);
    row("comboTankWaterMin", "hotwater_logic.hysterisis", "10K", -12, "FAHRENHEIT");
    row("comboTankWaterMin", "hotwater_logic.hysterisis", "7K", 0, "FAHRENHEIT");
    row("comboInletWaterMax", "hotwater_logic.compMaxTemp", "40°C", 40);
    row("comboInletWaterMax", "hotwater_logic.compMaxTemp", "122°F", 50, "FAHRENHEIT");
    row("comboTankHeatingHysterisis", "hotwater_addData.hysterisis", "4K", 4);
    row("comboTankHeatingHysterisis", "hotwater_addData.hysterisis", "2K", -17, "FAHRENHEIT");
    row("comboHeatingDurationTime", "hotwater_timer.maintain_time", "5min", 1);
    row("comboHeatingDurationTime", "hotwater_timer.maintain_time", "95min", 19);
    row("comboStopDurationTime", "hotwater_timer.restrict_time", "0min", 0);
    row("comboStopDurationTime", "hotwater_timer.restrict_time", "600min", 20);
    row("comboHeatPump", "waterThermoOnOff", "STEP3", "STEP3");
    row("comboSchedule1", "disinfect_time.day", "Sun", 0);
    row("comboSchedule1", "disinfect_time.day", "Sat", 6);
    row("comboSchedule2", "disinfect_time.start", "00:00", 0);
    row("comboMaxTemp", "disinfect_data.maxTemp", "80°C", 80);
    // Two temperatures are shown as 148°F.
    row("comboMaxTemp", "disinfect_data.maxTemp", "148°F", 64, "FAHRENHEIT");
    row("comboMaxTempDuration", "disinfect_data.howLong", "5min", 5);
    row("comboMaxTempDuration", "disinfect_data.howLong", "60min", 16);
    row("comboCutOffDuration", "disinfect_data.cutOffTime", "12Hour", 12);
}

void TestInstallationDwh::listWritesItsValue()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, path);
    QFETCH(QString, unit);
    QFETCH(QString, item);
    QFETCH(QVariant, value);
    section->load(everything, unit);
    const QVariantMap written = section->window.changes(
        [&] { Window::choose(section->page, name.constData(), item); });
    QCOMPARE(written, (QVariantMap{{path, value}}));
    QVERIFY(messages::contain("InstallationDWH::SettingUser validation succeed!"));
    QCOMPARE(section->shown(name.constData()), item);
}

// The timer's list has no unit that the slot could take off.
void TestInstallationDwh::timerItemLosesTwoDigits()
{
    section->load(everything + QVariantMap{{"IduFuncList.isHotwaterTimerExpand", "SET"}});
    const QVariantMap written = section->window.changes(
        [this] { Window::choose(section->page, "comboInletWaterMax", "1380"); });
    QCOMPARE(written, (QVariantMap{{at("hotwater_logic.compMaxTemp"), 13}}));
}

void TestInstallationDwh::translatedStepWritesItsKey()
{
    section->load(everything);
    section->window.speak("~");
    const QVariantMap written = section->window.changes(
        [this] { Window::choose(section->page, "comboHeatPump", "STEP2~"); });
    QCOMPARE(written, (QVariantMap{{at("waterThermoOnOff"), "STEP2"}}));
}

void TestInstallationDwh::radioWritesItsWord_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("before");
    QTest::addColumn<QString>("word");
    const auto row = [](const char *name, const char *key, const char *before, const char *word) {
        QTest::newRow(name) << at(key) << QString(before) << QString(word);
    };
    row("radioUnderFloorNotUse", "hotwater_addData.UFH_priority", "SET", "CLR");
    row("radioUnderFloorUse", "hotwater_addData.UFH_priority", "CLR", "SET");
    row("radioDisinfectionNotUse", "disinfect_time.enable", "SET", "CLR");
    row("radioDisinfectionUse", "disinfect_time.enable", "CLR", "SET");
}

void TestInstallationDwh::radioWritesItsWord()
{
    QFETCH(QString, path);
    QFETCH(QString, before);
    QFETCH(QString, word);
    section->load(everything + QVariantMap{{path, before}});
    const QVariantMap written = section->window.changes(
        [this] { Window::click(section->page, QTest::currentDataTag()); });
    QCOMPARE(written, (QVariantMap{{path, word}}));
    QVERIFY(messages::contain("InstallationDWH::SettingUser validation succeed!"));
}

void TestInstallationDwh::disinfectionEnablesItsSchedule()
{
    const auto schedule = [this] {
        QString enabled;
        for (const char *name : {"comboSchedule1", "comboSchedule2", "comboMaxTemp", "comboMaxTempDuration",
                                 "comboCutOffDuration"}) {
            enabled += QLatin1Char(Window::enabled(section->page, name) ? '1' : '0');
        }
        return enabled;
    };
    section->load(everything + QVariantMap{{at("disinfect_time.enable"), "CLR"}});
    QCOMPARE(schedule(), QStringLiteral("00000"));
    Window::click(section->page, "radioDisinfectionUse");
    QCOMPARE(schedule(), QStringLiteral("11111"));
    Window::click(section->page, "radioDisinfectionNotUse");
    QCOMPARE(schedule(), QStringLiteral("00000"));
}

void TestInstallationDwh::scheduleFollowsTheRadio()
{
    section->load(everything + QVariantMap{{at("disinfect_time.enable"), "CLR"}});
    Window::find<QRadioButton>(section->page, "radioDisinfectionUse")->setChecked(true);
    QVERIFY(!Window::enabled(section->page, "groupBoxDisinfectSub"));
    QVERIFY(Window::invoke(section->page, "enableDisinfection"));
    QVERIFY(Window::enabled(section->page, "groupBoxDisinfectSub"));
}

void TestInstallationDwh::loadWritesBackWhatHasNoItem_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("after");
    const auto row = [](const char *key, const QVariant &value, const QVariant &after) {
        QTest::newRow(key) << at(key) << value << after;
    };
    row("hotwater_timer.maintain_time", 40, 0);
    row("hotwater_timer.restrict_time", 21, -1);
    row("disinfect_time.day", 9, -1);
    row("disinfect_time.start", 24, -1);
    row("disinfect_data.howLong", 2, 4);
    row("disinfect_data.cutOffTime", 13, 0);
    row("waterThermoOnOff", "STEP4", "STEP0");
}

void TestInstallationDwh::loadWritesBackWhatHasNoItem()
{
    QFETCH(QString, path);
    QFETCH(QVariant, value);
    QFETCH(QVariant, after);
    section->load(everything + QVariantMap{{at("waterThermoOnOff"), "STEP2"}});
    const QJsonDocument stored = documents::with(documents::standard("R32"),
                                                 everything + QVariantMap{{path, value}});
    section->window.use(stored);
    QVERIFY(Window::invoke(section->page, "refresh"));
    QCOMPARE(documents::changes(stored, section->window.dialog.document()), (QVariantMap{{path, after}}));
}

void TestInstallationDwh::loadWritesNothingWhereTheItemStands()
{
    section->load(everything);
    const QJsonDocument stored = documents::with(documents::standard("R32"),
                                                 everything + QVariantMap{{at("waterThermoOnOff"), "STEP4"}});
    section->window.use(stored);
    QVERIFY(Window::invoke(section->page, "refresh"));
    QCOMPARE(section->window.dialog.document(), stored);
}

void TestInstallationDwh::loadLeavesTemperaturesAlone()
{
    section->load(everything);
    const QJsonDocument stored = documents::with(
        documents::standard("R32"),
        everything
            + QVariantMap{{at("settempLimit.hotWater.low_limit"), 20},
                          {at("settempLimit.hotWater.high_limit"), 99},
                          {at("hotwater_logic.hysterisis"), 40},
                          {at("hotwater_logic.compMaxTemp"), 99},
                          {at("hotwater_addData.hysterisis"), 9},
                          {at("disinfect_data.maxTemp"), 20},
                          {"IduFuncList.isHotwaterTimerExpand", "SET"}});
    section->window.use(stored);
    QVERIFY(Window::invoke(section->page, "refresh"));
    QCOMPARE(section->window.dialog.document(), stored);
    QCOMPARE(section->shown("comboInletWaterMax"), QStringLiteral("1440"));
}

void TestInstallationDwh::closedSectionWritesNothing()
{
    const QJsonDocument stored = documents::with(
        documents::standard("R32"),
        everything + QVariantMap{{at("disinfect_data.howLong"), 2}, {at("disinfect_time.day"), 9}});
    section->window.use(stored);
    section->show();
    QVERIFY(!Window::visible(section->page, "frame"));
    messages::clear();
    QVERIFY(Window::invoke(section->page, "refresh"));
    QVERIFY(messages::contain("InstallationDWH::SettingUser validation succeed!"));
    Window::find<QComboBox>(section->page, "comboHotWaterMax")->setCurrentIndex(3);
    QVERIFY(Window::invoke(section->page, "on_radioUnderFloorUse_clicked"));
    QCOMPARE(section->window.dialog.document(), stored);
}

void TestInstallationDwh::emptyDocumentStaysEmpty()
{
    section->load(everything);
    section->window.use(QJsonDocument());
    QVERIFY(Window::invoke(section->page, "on_radioUnderFloorUse_clicked"));
    Window::find<QComboBox>(section->page, "comboHotWaterMax")->setCurrentIndex(3);
    QVERIFY(section->window.dialog.document().isNull());
}

void TestInstallationDwh::showingReadsTheDocumentAnew()
{
    section->load(everything);
    section->window.use(documents::with(
        documents::standard("R32"), everything + QVariantMap{{at("settempLimit.hotWater.high_limit"), 61}}));
    QCOMPARE(section->shown("comboHotWaterMax"), QStringLiteral("55°C"));
    section->show();
    QCOMPARE(section->shown("comboHotWaterMax"), QStringLiteral("61°C"));
}

void TestInstallationDwh::refreshReadsTheDocumentAnew()
{
    section->load(everything);
    section->window.use(
        documents::with(documents::standard("R32"),
                        everything
                            + QVariantMap{{at("settempLimit.hotWater.high_limit"), 52},
                                          {at("hotWaterTankHeater.tankHeaterUse"), "NOTUSE"}}));
    QVERIFY(Window::invoke(section->page, "refresh"));
    QCOMPARE(section->items("comboHotWaterMax"), range(50, 55, "°C"));
    QCOMPARE(section->shown("comboHotWaterMax"), QStringLiteral("52°C"));
    QVERIFY(!section->offered("groupBoxDisinfection"));
}

void TestInstallationDwh::reportsItsResult()
{
    section->window.dialog.setDwhSectionValid(false);
    section->load(everything);
    QVERIFY(section->window.dialog.members().results.dwhSectionValid);
    for (const auto set : {&MainDialog::setSystemSectionValid, &MainDialog::setAutoSectionValid,
                           &MainDialog::setCoolSectionValid, &MainDialog::setHeatSectionValid}) {
        (section->window.dialog.*set)(true);
    }
    QVERIFY(Window::invoke(section->page, "validationCheck"));
    QVERIFY(section->window.dialog.members().results.installationValid);
    uncheck("radioUnderFloorNotUse", "radioUnderFloorUse");
    QVERIFY(Window::invoke(section->page, "validationCheck"));
    QVERIFY(!section->window.dialog.members().results.installationValid);
}

void TestInstallationDwh::pairWithNothingChosenFails_data()
{
    QTest::addColumn<bool>("floor");
    QTest::addColumn<bool>("disinfection");
    QTest::newRow("heating priority") << true << false;
    QTest::newRow("disinfection") << false << true;
    QTest::newRow("both") << true << true;
}

void TestInstallationDwh::pairWithNothingChosenFails()
{
    QFETCH(bool, floor);
    QFETCH(bool, disinfection);
    section->load(everything);
    if (floor) {
        uncheck("radioUnderFloorNotUse", "radioUnderFloorUse");
    }
    if (disinfection) {
        uncheck("radioDisinfectionNotUse", "radioDisinfectionUse");
    }
    QVERIFY(Window::invoke(section->page, "validationCheck"));
    QVERIFY(!section->window.dialog.members().results.dwhSectionValid);
    QVERIFY(messages::contain("InstallationCool::validationCheck validation check failed!!"));
    QCOMPARE(messages::contain("radioUnderFloorNotUse"), floor);
    // The second pair isn't tried once the first has failed.
    QCOMPARE(messages::contain("radioDisinfectionNotUse"), !floor);
}

void TestInstallationDwh::hiddenPairPasses()
{
    section->load(everything);
    uncheck("radioUnderFloorNotUse", "radioUnderFloorUse");
    uncheck("radioDisinfectionNotUse", "radioDisinfectionUse");
    Window::click(section->page, "hideButton");
    QVERIFY(Window::invoke(section->page, "validationCheck"));
    QVERIFY(messages::contain("InstallationDWH::SettingUser validation succeed!"));
    QVERIFY(section->window.dialog.members().results.dwhSectionValid);
}

CALORA_TEST_MAIN(TestInstallationDwh)
#include "tst_installationdwh.moc"
