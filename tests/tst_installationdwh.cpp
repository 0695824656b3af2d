#include "support/hotwatersection.h"

#include <QFrame>

namespace {

const QVariantMap everything = HotWaterSection::everything();

QString at(const char *key) { return HotWaterSection::at(key); }

} // namespace

// The hot water section of the Installation tab: its schedule, what loads write back, what it reports.
// What plain controls list, write and show: walk/tst_controls.cpp.
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
    void timerItemLosesTwoDigits();
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

// The timer's list has no unit that the slot could take off.
void TestInstallationDwh::timerItemLosesTwoDigits()
{
    section->load(everything + QVariantMap{{"IduFuncList.isHotwaterTimerExpand", "SET"}});
    const QVariantMap written = section->window.changes(
        [this] { Window::choose(section->page, "comboInletWaterMax", "1380"); });
    QCOMPARE(written, (QVariantMap{{at("hotwater_logic.compMaxTemp"), 13}}));
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
