#include "support/automode.h"

#include "pages/installation/installationcool.h"
#include "pages/installation/installationheat.h"
#include "pages/installation/installationsystemsetting.h"

using automode::join;
using automode::mainZone;
using automode::root;
using automode::seasonalPlant;
using automode::seasonalRoot;
using automode::sensing;

// The Auto mode section: texts, its mode, which rows stand on the page.
// What plain controls list, write and show: walk/tst_controls.cpp.
class TestInstallationaAuto : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { section = std::make_unique<automode::Section>(); }
    void init() { messages::clear(); }
    void cleanupTestCase() { section.reset(); }

    void startsClosedWithoutDocument();
    void headerOpensAndCloses();
    void textsFollowTheLanguage_data();
    void textsFollowTheLanguage();
    void circuitCaptionsKeepTheirFormUntilTheLanguageChanges();
    void endCaptions();
    void smallLettersKeepTheMainZone();
    void closedSectionWritesNothing();
    void nothingIsWrittenWithoutDocument();
    void modeIsWritten_data();
    void modeIsWritten();
    void modeIsLoaded();
    void rowsFollowTheFlags_data();
    void rowsFollowTheFlags();
    void unknownSensingChangesNoRow();
    void viewOfAValue();
    void rowsLieInTheirBoxes();
    void otherSectionsRefresh();
    void alwaysValid();

private:
    std::unique_ptr<automode::Section> section;
};

void TestInstallationaAuto::startsClosedWithoutDocument()
{
    section.reset();
    section = std::make_unique<automode::Section>();
    QVERIFY(section->window.dialog.document().isNull());
    QVERIFY(!Window::shownItself(section->page, "frame"));
    QCOMPARE(section->shown("comboOutdoorOutdoorMax"), QString("10°C"));
    QCOMPARE(section->shown("comboOutdoorOutdoorMin"), QString("0°C"));
    QCOMPARE(section->shown("comboOutdoorWaterMax"), QString("35°C"));
    QCOMPARE(section->shown("comboOutdoorWaterMin"), QString("20°C"));
    QCOMPARE(section->items("comboOutdoorOutdoorMax"), range(10, 20, "°C"));
    QCOMPARE(section->items("comboOutdoorOutdoorMin"), range(-20, 5, "°C"));
    QCOMPARE(section->items("comboOutdoorIndoorMax"), range(20, 30, "°C"));
    QCOMPARE(section->items("comboOutdoorIndoorMin"), range(16, 19, "°C"));
    QCOMPARE(section->items("comboOutdoorWaterMax"), range(35, 50, "°C"));
    QCOMPARE(section->items("comboOutdoorWaterMin"), range(20, 34, "°C"));
    QCOMPARE(section->items("comboHeatingWaterMax"), QStringList());
}

void TestInstallationaAuto::headerOpensAndCloses()
{
    const auto icon = [this] {
        return Window::find<QPushButton>(section->page, "hideButton")->icon().pixmap(24).toImage();
    };
    const QImage open = QIcon(":/images/btn_header_arrow_open.png").pixmap(24).toImage();
    const QImage close = QIcon(":/images/btn_header_arrow_close.png").pixmap(24).toImage();
    QVERIFY(open != close);
    section->load({});
    QVERIFY(Window::visible(section->page, "frame"));
    QCOMPARE(icon(), close);
    Window::click(section->page, "hideButton");
    QVERIFY(!Window::shownItself(section->page, "frame"));
    QCOMPARE(icon(), open);
    Window::click(section->page, "hideButton");
    QVERIFY(Window::visible(section->page, "frame"));
}

void TestInstallationaAuto::textsFollowTheLanguage_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("withMainZone");
    const auto row = [](const char *name, const char *text, const char *withMainZone = nullptr) {
        QTest::newRow(name) << QString(text) << QString(withMainZone == nullptr ? text : withMainZone);
    };
    row("labelTitle", "Auto mode");
    row("labelOutdoorTemp", "Outdoor temp\ndependent mode");
    row("labelOutdoorTempSub1", "Reference outdoor temp.");
    row("labelOutdoorTempSub2", "Indoor air temp. range");
    row("labelOutdoorTempSub3", "Water temp. range");
    for (const char *name : {"labelOutdoorTempMax1", "labelOutdoorTempMax2", "labelOutdoorTempMax3"}) {
        row(name, "Max");
    }
    for (const char *name : {"labelOutdoorTempMin1", "labelOutdoorTempMin2", "labelOutdoorTempMin3"}) {
        row(name, "Min");
    }
    row("labelSeasonalAutoMode", "Seasonal auto mode");
    row("radioHeatingOnly", "Heating only");
    row("radioCoolingOnly", "Cooling only");
    row("radioBoth", "Heating and Cooling");
    row("labelSeasonalOutdoor", "Reference outdoor temp.");
    row("labelSeasonalAir", "Indoor air temp. curve", "Indoor air temp. curve (Circuit 2)");
    row("labelSeasonalWater", "Water temp. curve", "Water temp. curve (Circuit 2)");
    row("labelMainZoneIndoor", "Indoor air temp. curve (Circuit 1)");
    row("labelMainZoneWater", "Water temp. curve (Circuit 1)");
    for (const char *name : {"labelSeasonalOutdoorCool", "labelSeasonalAirCool", "labelSeasonalWaterCool",
                             "labelMainZoneIndoorCool", "labelMainZoneWaterCool"}) {
        row(name, "Cooling");
    }
    for (const char *name : {"labelSeasonalOutdoorHeat", "labelSeasonalAirHeat", "labelSeasonalWaterHeat",
                             "labelMainZoneIndoorHeat", "labelMainZoneWaterHeat"}) {
        row(name, "Heating");
    }
}

void TestInstallationaAuto::textsFollowTheLanguage()
{
    QFETCH(QString, text);
    QFETCH(QString, withMainZone);
    const auto caption = [this] {
        return Window::find(section->page, QTest::currentDataTag())->property("text").toString();
    };
    section->load(seasonalPlant("clr"));
    section->window.speak();
    QCOMPARE(caption(), text);
    section->load(seasonalPlant("set"));
    const QJsonDocument before = section->window.dialog.document();
    const QStringList lists = section->allLists();
    section->window.speak("~");
    QCOMPARE(caption(), withMainZone + "~");
    QCOMPARE(section->window.dialog.document(), before);
    QCOMPARE(section->allLists(), lists);
    section->window.speak();
}

void TestInstallationaAuto::circuitCaptionsKeepTheirFormUntilTheLanguageChanges()
{
    const auto caption = [this](const char *name) {
        return Window::find<QLabel>(section->page, name)->text();
    };
    section->load(seasonalPlant("CLR"));
    section->window.speak();
    section->load(seasonalPlant("SET"));
    QCOMPARE(caption("labelSeasonalAir"), QString("Indoor air temp. curve"));
    QCOMPARE(caption("labelSeasonalWater"), QString("Water temp. curve"));
    section->window.speak();
    QCOMPARE(caption("labelSeasonalAir"), QString("Indoor air temp. curve (Circuit 2)"));
    QCOMPARE(caption("labelSeasonalWater"), QString("Water temp. curve (Circuit 2)"));
}

void TestInstallationaAuto::endCaptions()
{
    section->load({});
    section->window.speak("~");
    QStringList captioned;
    const auto labels = section->page->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        if (label->buddy() != nullptr && (label->text() == "Max~" || label->text() == "Min~")) {
            QCOMPARE(label->buddy()->objectName().right(3), label->text().left(3));
            captioned.append(label->buddy()->objectName());
        }
    }
    captioned.removeDuplicates();
    QCOMPARE(captioned.size(), 26);
    section->window.speak();
}

// Any text but "CLR" as it stands counts as the main zone in use.
void TestInstallationaAuto::smallLettersKeepTheMainZone()
{
    section->load(seasonalPlant("clr"));
    QCOMPARE(
        section->window.changes([this] { Window::choose(section->page, "comboHeatingWaterMax", "50°C"); }),
        (QVariantMap{{seasonalRoot + "heatWaterTemp.max", 50}}));
}

void TestInstallationaAuto::closedSectionWritesNothing()
{
    section->load(join({seasonalPlant("CLR"), {{root + "autoOp_outtemp.max", 99}}}));
    Window::expand(section->page, false);
    section->window.use(
        documents::with(section->window.dialog.document(), {{root + "autoOp_outtemp.max", 99}}));
    QCOMPARE(section->window.changes([this] { section->page->refresh(); }), QVariantMap());
    QCOMPARE(section->shown("comboOutdoorOutdoorMax"), QString("35°C"));
    auto *combo = Window::find<QComboBox>(section->page, "comboHeatingWaterMax");
    QCOMPARE(section->window.changes([combo] { combo->setCurrentText("40°C"); }), QVariantMap());
    QCOMPARE(combo->currentText(), QString("40°C"));
    QCOMPARE(section->shown("comboMainZoneHeatingWaterMax"), QString("40°C"));
    QCOMPARE(section->window.changes([this] { Window::invoke(section->page, "on_radioBoth_clicked"); }),
             QVariantMap());
    // The lists stay apart from the document until the next refresh; opening alone loads nothing.
    QCOMPARE(section->window.changes([this] { Window::expand(section->page); }), QVariantMap());
    QCOMPARE(combo->currentText(), QString("40°C"));
    QCOMPARE(section->window.changes([combo] { Window::choose(combo, "41°C"); }),
             (QVariantMap{{seasonalRoot + "heatWaterTemp.max", 41},
                          {seasonalRoot + "heatWaterTempMainZone.max", 41}}));
}

void TestInstallationaAuto::nothingIsWrittenWithoutDocument()
{
    section->load({});
    section->window.dialog.setDocument(QJsonDocument());
    section->page->refresh();
    Window::invoke(section->page, "on_radioBoth_clicked");
    Window::find<QComboBox>(section->page, "comboOutdoorWaterMax")->setCurrentIndex(5);
    QVERIFY(section->window.dialog.document().isNull());
}

void TestInstallationaAuto::modeIsWritten_data()
{
    QTest::addColumn<QString>("word");
    QTest::newRow("radioHeatingOnly") << "HEAT_ONLY";
    QTest::newRow("radioCoolingOnly") << "COOL_ONLY";
    QTest::newRow("radioBoth") << "HEAT_N_COOL";
}

void TestInstallationaAuto::modeIsWritten()
{
    QFETCH(QString, word);
    const QString path = seasonalRoot + "seasonalAutoOpMode";
    section->load(join({seasonalPlant("SET"), {{path, "x"}}}));
    section->window.dialog.setAutoSectionValid(false);
    const QStringList lists = section->allLists();
    QCOMPARE(section->window.changes([this] { Window::click(section->page, QTest::currentDataTag()); }),
             (QVariantMap{{path, word}}));
    QVERIFY(section->window.dialog.members().results.autoSectionValid);
    QCOMPARE(section->allLists(), lists);
    for (const char *row : {"groupBoxHeatOutTemp", "groupBoxCoolOutTemp", "groupBoxHeatWaterTemp",
                            "groupBoxCoolWaterTemp", "groupBoxMainZoneIndoor"}) {
        QVERIFY2(Window::visible(section->page, row) && Window::enabled(section->page, row), row);
    }
}

void TestInstallationaAuto::modeIsLoaded()
{
    const QString path = seasonalRoot + "seasonalAutoOpMode";
    const QList<QPair<QString, const char *>> words{
        {"heat_only", "radioHeatingOnly"}, {"Cool_Only", "radioCoolingOnly"}, {"HEAT_N_COOL", "radioBoth"}};
    for (const auto &[word, radio] : words) {
        section->load(join({seasonalPlant("SET"), {{path, word}}}));
        QVERIFY2(Window::checked(section->page, radio), radio);
        QCOMPARE(
            section->window.dialog.document(),
            documents::with(
                documents::standard("R32"),
                join({seasonalPlant("SET"), {{path, word}}, {{root + "autoOp_tempwater.low_limit", 20}}})));
    }
    section->load(join({seasonalPlant("SET"), {{path, "NONE"}}}));
    QVERIFY(Window::checked(section->page, "radioBoth"));
}

void TestInstallationaAuto::rowsFollowTheFlags_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<QStringList>("hidden");
    const QVariantMap on{{"IduFuncList.isSeasonalAuto", "set"}};
    const QString outdoorMode = "groupBoxOutdoorMode";
    const QStringList mainZoneRows{"groupBoxMainZoneIndoor", "groupBoxMainZoneWater"};
    const QStringList mainZoneWater{"groupBoxHeatWaterTempMainZone", "groupBoxCoolWaterTempMainZone"};
    const QStringList airRows{"groupBoxHeatAirTemp", "groupBoxCoolAirTemp"};
    const QStringList waterRows{"groupBoxHeatWaterTemp", "groupBoxCoolWaterTemp"};
    const auto row = [](const char *name, const QVariantMap &values, const QStringList &hidden) {
        QTest::newRow(name) << values << hidden;
    };
    row("outdoor mode",
        join({sensing("AIR", "SET"), mainZone("SET"), {{"IduFuncList.isSeasonalAuto", "CLR"}}}),
        {"groupBoxSeasonalAutoMode"});
    row("air and water, main zone", join({on, sensing("air", "set"), mainZone("set")}), {outdoorMode});
    row("air and water", join({on, sensing("AIR", "SET"), mainZone("clr")}),
        QStringList{outdoorMode} + mainZoneRows + mainZoneWater);
    row("air and water, main zone of another word", join({on, sensing("AIR", "SET"), mainZone("x")}),
        QStringList{outdoorMode} + mainZoneRows);
    row("air, main zone", join({on, sensing("AIR", "clr"), mainZone("SET")}),
        QStringList{outdoorMode, "groupBoxMainZoneWater", "groupBoxSeasonalWater"} + mainZoneWater
            + waterRows);
    row("air", join({on, sensing("AIR", "CLR"), mainZone("CLR")}),
        QStringList{outdoorMode, "groupBoxSeasonalWater"} + mainZoneRows + mainZoneWater + waterRows);
    row("air, neither SET nor CLR", join({on, sensing("AIR", "x"), mainZone("SET")}),
        {outdoorMode, "groupBoxMainZoneWater", "groupBoxSeasonalWater"});
    row("water, main zone", join({on, sensing("water", "CLR"), mainZone("SET")}),
        QStringList{outdoorMode, "groupBoxMainZoneIndoor", "groupBoxSeasonalIndoor"} + airRows);
    row("water", join({on, sensing("WATER", "CLR"), mainZone("CLR")}),
        QStringList{outdoorMode, "groupBoxSeasonalIndoor"} + mainZoneRows + mainZoneWater + airRows);
    row("water and both", join({on, sensing("WATER", "SET"), mainZone("SET")}),
        QStringList{outdoorMode} + airRows);
}

void TestInstallationaAuto::rowsFollowTheFlags()
{
    QFETCH(QVariantMap, values);
    QFETCH(QStringList, hidden);
    section->load(values);
    for (const char *row :
         {"groupBoxOutdoorMode", "groupBoxSeasonalAutoMode", "groupBoxHeatOutTemp", "groupBoxCoolOutTemp",
          "groupBoxMainZoneIndoor", "groupBoxSeasonalIndoor", "groupBoxHeatAirTemp", "groupBoxCoolAirTemp",
          "groupBoxMainZoneWater", "groupBoxHeatWaterTempMainZone", "groupBoxCoolWaterTempMainZone",
          "groupBoxSeasonalWater", "groupBoxHeatWaterTemp", "groupBoxCoolWaterTemp"}) {
        QVERIFY2(Window::shownItself(section->page, row) == !hidden.contains(row), row);
    }
    // The lists of the hidden form are filled all the same.
    QCOMPARE(section->shown("comboHeatingOutdoorMax"), QString("16°C"));
    QCOMPARE(section->shown("comboOutdoorOutdoorMax"), QString("15°C"));
}

void TestInstallationaAuto::unknownSensingChangesNoRow()
{
    section->load(join({seasonalPlant("SET"), sensing("WATER", "CLR")}));
    section->window.use(documents::with(section->window.dialog.document(), sensing("x", "CLR")));
    section->page->refresh();
    QVERIFY(!Window::shownItself(section->page, "groupBoxMainZoneIndoor"));
    QVERIFY(!Window::shownItself(section->page, "groupBoxSeasonalIndoor"));
    QVERIFY(Window::shownItself(section->page, "groupBoxMainZoneWater"));
    QVERIFY(Window::shownItself(section->page, "groupBoxSeasonalWater"));
    // These start over from all shown.
    QVERIFY(Window::shownItself(section->page, "groupBoxHeatAirTemp"));
}

void TestInstallationaAuto::viewOfAValue()
{
    section->load(seasonalPlant("SET"));
    const auto view = [this](const char *value) {
        QMetaObject::invokeMethod(section->page, "setVisibleIndoorWaterView", Q_ARG(QString, value));
        QString rows;
        for (const char *row : {"groupBoxSeasonalIndoor", "groupBoxMainZoneIndoor", "groupBoxSeasonalWater",
                                "groupBoxMainZoneWater"}) {
            rows.append(Window::shownItself(section->page, row) ? '1' : '0');
        }
        return rows;
    };
    QCOMPARE(view("AIR"), QString("1100"));
    QCOMPARE(view("x"), QString("1100"));
    QCOMPARE(view("water"), QString("0011"));
    QCOMPARE(view(""), QString("0011"));
    QCOMPARE(view("AIR_WATER"), QString("1111"));
}

void TestInstallationaAuto::rowsLieInTheirBoxes()
{
    const QList<QPair<const char *, const char *>> nesting{
        {"groupBoxSeasonalAutoMode", "radioHeatingOnly"},
        {"groupBoxSeasonalAutoMode", "groupBoxHeatOutTemp"},
        {"groupBoxSeasonalAutoMode", "groupBoxCoolOutTemp"},
        {"groupBoxSeasonalAutoMode", "groupBoxMainZoneIndoor"},
        {"groupBoxSeasonalAutoMode", "groupBoxSeasonalIndoor"},
        {"groupBoxSeasonalAutoMode", "groupBoxMainZoneWater"},
        {"groupBoxSeasonalAutoMode", "groupBoxSeasonalWater"},
        {"groupBoxSeasonalIndoor", "groupBoxHeatAirTemp"},
        {"groupBoxSeasonalIndoor", "groupBoxCoolAirTemp"},
        {"groupBoxMainZoneWater", "groupBoxHeatWaterTempMainZone"},
        {"groupBoxMainZoneWater", "groupBoxCoolWaterTempMainZone"},
        {"groupBoxSeasonalWater", "groupBoxHeatWaterTemp"},
        {"groupBoxSeasonalWater", "groupBoxCoolWaterTemp"},
        {"groupBoxHeatOutTemp", "comboHeatingOutdoorMin"},
        {"groupBoxCoolOutTemp", "comboCoolingOutdoorMax"},
        {"groupBoxMainZoneIndoor", "comboMainZoneHeatingIndoorMax"},
        {"groupBoxMainZoneIndoor", "comboMainZoneIndoorMin"},
        {"groupBoxHeatAirTemp", "comboHeatingIndoorMax"},
        {"groupBoxCoolAirTemp", "comboCoolingIndoorMin"},
        {"groupBoxHeatWaterTempMainZone", "comboMainZoneHeatingWaterMax"},
        {"groupBoxCoolWaterTempMainZone", "comboMainZoneWaterMin"},
        {"groupBoxHeatWaterTemp", "comboHeatingWaterMin"},
        {"groupBoxCoolWaterTemp", "comboCoolingWaterMax"},
        {"groupBoxOutdoorMode", "comboOutdoorWaterMin"}};
    for (const auto &[outer, inner] : nesting) {
        QVERIFY2(Window::find(section->page, outer)->isAncestorOf(Window::find(section->page, inner)), inner);
    }
}

void TestInstallationaAuto::otherSectionsRefresh()
{
    for (QObject *sender : {static_cast<QObject *>(section->window.page<InstallationSystemSetting>()),
                            static_cast<QObject *>(section->window.page<InstallationCool>()),
                            static_cast<QObject *>(section->window.page<InstallationHeat>())}) {
        section->load(seasonalPlant("SET"));
        section->window.use(
            documents::with(section->window.dialog.document(), {{seasonalRoot + "heatWaterTemp.max", 60}}));
        QVERIFY(Window::invoke(sender, "refreshInstallationPageSignal"));
        QCOMPARE(section->shown("comboHeatingWaterMax"), QString("60°C"));
    }
}

void TestInstallationaAuto::alwaysValid()
{
    section->load({});
    section->window.dialog.setAutoSectionValid(false);
    section->window.dialog.setSystemSectionValid(true);
    section->window.dialog.setCoolSectionValid(true);
    section->window.dialog.setHeatSectionValid(true);
    section->window.dialog.setDwhSectionValid(true);
    section->window.dialog.updateInstallationValid();
    QVERIFY(!section->window.dialog.members().results.installationValid);
    messages::clear();
    Window::invoke(section->page, "validationCheck");
    QVERIFY(messages::contain("InstallationaAuto::validationCheck :  true"));
    QVERIFY(section->window.dialog.members().results.autoSectionValid);
    QVERIFY(section->window.dialog.members().results.installationValid);
}

CALORA_TEST_MAIN(TestInstallationaAuto)
#include "tst_installationaauto.moc"
