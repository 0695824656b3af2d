#include "support/automode.h"

#include <QAbstractItemModel>

#include <limits>

using automode::join;
using automode::limits;
using automode::root;
using automode::seasonalBoxes;
using automode::seasonalPaths;
using automode::seasonalPlant;
using automode::seasonalRoot;
using automode::sensing;

namespace {

const QList<QPair<const char *, const char *>> outdoorBoxes{
    {"comboOutdoorOutdoorMax", "autoOp_outtemp.max"},
    {"comboOutdoorOutdoorMin", "autoOp_outtemp.min"},
    {"comboOutdoorIndoorMax", "autoOp_tempair.max"},
    {"comboOutdoorIndoorMin", "autoOp_tempair.min"},
    {"comboOutdoorWaterMax", "autoOp_tempwater.high_limit"},
    {"comboOutdoorWaterMin", "autoOp_tempwater.low_limit"}};

/// Words in a row, such as "1 5 2": the boxes of those numbers, by name.
QStringList named(const QString &numbers)
{
    QStringList names;
    for (const QString &number : numbers.split(' ')) {
        names.append(seasonalBoxes[number.toInt() - 1]);
    }
    return names;
}

QStringList outdoorNames(const QList<int> &order)
{
    QStringList names;
    for (const int index : order) {
        names.append(outdoorBoxes.at(index).first);
    }
    return names;
}

/// What a damaged document may hold where a text or a number belongs, and the number it reads as.
struct Odd {
    const char *name;
    QVariant value;
    int number;
};

const QList<Odd> &oddValues()
{
    static const QList<Odd> values{
        {"missing", QVariant(), 0},
        {"null", QVariant::fromValue(nullptr), 0},
        {"text", "x", 0},
        {"digits", "28", 0},
        {"true", true, 0},
        {"object", QVariantMap{{"min", 1}}, 0},
        {"empty object", QVariantMap(), 0},
        {"array", QVariantList{1, 2}, 0},
        {"fraction", 28.5, 0},
        {"1e300", 1e300, 0},
        {"2^31", 2147483648.0, 0},
        {"largest", std::numeric_limits<int>::max(), std::numeric_limits<int>::max()},
        {"smallest", std::numeric_limits<int>::min(), std::numeric_limits<int>::min()}};
    return values;
}

} // namespace

// How the Auto mode section loads: when, in which steps and order, and what it makes of a damaged document.
class TestAutoLoads : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { section = std::make_unique<automode::Section>(); }
    void init() { messages::clear(); }
    void cleanupTestCase() { section.reset(); }

    void everyShowLoads();
    void stepsStandAlone();
    void visibilitySteps();
    void fullListsByBox();
    void limitsHoldBetweenRefreshes();
    void listsAreFilledInOrder_data();
    void listsAreFilledInOrder();
    void valuesAreShownInOrder();
    void emptiedSelectionSavesZero_data();
    void emptiedSelectionSavesZero();
    void oddNumbersShowAnEnd_data();
    void oddNumbersShowAnEnd();
    void oddFlagsCountAsUnset_data();
    void oddFlagsCountAsUnset();
    void oddGroupsAreSurvived_data();
    void oddGroupsAreSurvived();
    void oddArgumentsAreSurvived();
    void unknownRefrigerantFromTheStart();

private:
    void use(const QVariantMap &values)
    {
        section->window.use(documents::with(section->window.dialog.document(), values),
                            section->window.dialog.tempUnit());
    }
    /// The document anew, without the show of the whole page that Section::load makes.
    void reload(const QJsonDocument &document)
    {
        section->window.use(document, section->window.dialog.tempUnit());
        section->page->refresh();
    }
    void step(const char *slot) { QVERIFY(Window::invoke(section->page, slot)); }
    QString rows(const std::vector<const char *> &names) const
    {
        QString shown;
        for (const char *name : names) {
            shown.append(Window::shownItself(section->page, name) ? '1' : '0');
        }
        return shown;
    }
    /// Takes the last item of every box, then none, by live signals.
    void turnEveryBox();

    std::unique_ptr<automode::Section> section;
};

void TestAutoLoads::turnEveryBox()
{
    for (QComboBox *combo : section->page->findChildren<QComboBox *>()) {
        for (const int index : {combo->count() - 1, -1}) {
            combo->setCurrentIndex(index);
        }
    }
}

void TestAutoLoads::everyShowLoads()
{
    section->load(seasonalPlant("SET"));
    for (const int value : {60, 61}) {
        // By itself: the show of the whole tab makes its neighbours tell it to refresh.
        section->page->hide();
        use({{seasonalRoot + "heatWaterTemp.max", value}, {root + "autoOp_outtemp.max", 99}});
        section->window.dialog.setAutoSectionValid(false);
        QCOMPARE(section->window.changes([this] { section->page->show(); }),
                 (QVariantMap{{root + "autoOp_outtemp.max", 35.0}}));
        QCOMPARE(section->shown("comboHeatingWaterMax"), QString("%1°C").arg(value));
        QCOMPARE(section->items("comboHeatingWaterMin"), range(25, value, "°C"));
        QVERIFY(section->window.dialog.members().results.autoSectionValid);
    }
}

void TestAutoLoads::stepsStandAlone()
{
    section->load(seasonalPlant("SET"));
    const QString mode = seasonalRoot + "seasonalAutoOpMode";
    use({{mode, "COOL_ONLY"}, {root + "autoOp_outtemp.min", -99}, {root + "autoOp_tempair.max", 29}});
    // Flags, lists and the mode; no values.
    QCOMPARE(section->window.changes([this] { step("loadJsonData"); }), QVariantMap());
    QVERIFY(Window::checked(section->page, "radioCoolingOnly"));
    QCOMPARE(section->shown("comboHeatingWaterMax"), QString("20°C"));
    QCOMPARE(section->shown("comboOutdoorIndoorMax"), QString("21°C"));
    QCOMPARE(section->shown("comboOutdoorOutdoorMin"), QString("-10°C"));
    // The outdoor mode's limits. Its indoor lists stand at their start until the values are shown.
    for (const char *slot : {"initDefaultTempRange", "initUi"}) {
        use({{root + "autoOp_outtemp.min", -99}});
        QCOMPARE(section->window.changes([this, slot] { step(slot); }),
                 (QVariantMap{{root + "autoOp_outtemp.min", -25.0}}));
        QCOMPARE(section->shown("comboOutdoorOutdoorMin"), QString("-25°C"));
        QCOMPARE(section->shown("comboOutdoorIndoorMax"), QString("20°C"));
        QCOMPARE(section->shown("comboHeatingWaterMax"), QString("20°C"));
    }
    // Values; the lists stay whole.
    QCOMPARE(section->window.changes([this] { step("setloadJsonValue"); }), QVariantMap());
    QCOMPARE(section->shown("comboOutdoorIndoorMax"), QString("29°C"));
    QCOMPARE(section->shown("comboHeatingWaterMax"), QString("45°C"));
    QCOMPARE(section->items("comboHeatingWaterMax"), range(20, 65, "°C"));
}

void TestAutoLoads::visibilitySteps()
{
    const std::vector<const char *> boxes{"groupBoxSeasonalAutoMode", "groupBoxMainZoneIndoor",
                                          "groupBoxSeasonalIndoor", "groupBoxHeatAirTemp"};
    section->load(join({seasonalPlant("SET"), sensing("WATER", "CLR")}));
    QCOMPARE(rows(boxes), QString("1000"));
    use(join({sensing("AIR", "CLR"), {{"IduFuncList.isSeasonalAuto", "CLR"}}}));
    step("setVisibleIndoorWaterView");
    QCOMPARE(rows(boxes), QString("1010"));
    use(sensing("WATER", "CLR"));
    step("setVisibleIndoorWaterView");
    QCOMPARE(rows(boxes), QString("1000"));
    use(sensing("AIR", "CLR"));
    step("setVisibleMainZone");
    QCOMPARE(rows(boxes), QString("1110"));
    step("setVisibleSeasonalAutoView");
    QCOMPARE(rows(boxes), QString("1111"));
    use(sensing("WATER", "CLR"));
    step("setVisibleMode");
    QCOMPARE(rows(boxes), QString("0001"));
    use(sensing("x", "SET"));
    step("setVisibleMode");
    QCOMPARE(rows(boxes), QString("0111"));
}

void TestAutoLoads::fullListsByBox()
{
    section->load(join({seasonalPlant("SET"),
                        {{"IduFuncList.isR32", "CLR"},
                         {"IduFuncList.isR410CoolExpand", "SET"},
                         {"IduFuncList.is_installed_heater", "SET"},
                         {"IduFuncList.isCoolAir16", "CLR"},
                         {root + "UFH_stop.FCU_disable", "CLR"},
                         {root + "coolWaterControlBasis", "ENTRANCE"}}}));
    step("setTempRangeValue");
    for (const char *name : seasonalBoxes) {
        const QString box = QString(name).remove("combo").remove("MainZone");
        const bool heating = box.startsWith("Heating");
        QStringList expected = heating ? range(16, 30, "°C") : range(18, 30, "°C");
        if (box.contains("Outdoor")) {
            expected = heating ? range(-15, 24, "°C") : range(10, 43, "°C");
        } else if (box.contains("Water")) {
            expected = heating ? range(15, 57, "°C") : range(10, 27, "°C");
        }
        QVERIFY2(section->items(name) == expected, name);
        QVERIFY2(section->box(name)->currentIndex() == 0, name);
    }
}

void TestAutoLoads::limitsHoldBetweenRefreshes()
{
    section->load(seasonalPlant("SET"));
    use({{root + "heatWaterControlBasis", "ENTRANCE"}});
    Window::choose(section->page, "comboHeatingWaterMax", "50°C");
    QCOMPARE(section->items("comboHeatingWaterMax"), range(40, 65, "°C"));
    section->page->refresh();
    QCOMPARE(section->items("comboHeatingWaterMax"), range(40, 55, "°C"));
}

void TestAutoLoads::listsAreFilledInOrder_data()
{
    QTest::addColumn<QString>("narrowed");
    QTest::newRow("SET") << "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20";
    QTest::newRow("clr") << "1 2 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 19 20";
    // The boxes of the main zone follow, and come again by themselves.
    QTest::newRow("CLR") << "1 2 3 4 5 9 6 10 7 11 8 12 9 10 11 12 13 17 14 18 15 19 16 20 17 18 19 20";
}

// Each list is narrowed by those before it.
void TestAutoLoads::listsAreFilledInOrder()
{
    QFETCH(QString, narrowed);
    section->load(join({seasonalPlant(QTest::currentDataTag()), limits("heatAirTempMainZone", 24, 29),
                        limits("coolAirTempMainZone", 18, 22), limits("heatWaterTempMainZone", 30, 45),
                        limits("coolWaterTempMainZone", 16, 20)}));
    QStringList filled;
    QObject scope;
    for (QComboBox *combo : section->page->findChildren<QComboBox *>()) {
        MainDialog::setComboItems(combo, {"another list"}, 0);
        connect(combo->model(), &QAbstractItemModel::rowsInserted, &scope,
                [&filled, combo] { filled.append(combo->objectName()); });
    }
    section->page->refresh();
    const QStringList whole = named("1 2 3 4 5 6 9 10 8 7 11 12 13 14 17 18 15 16 19 20")
        + outdoorNames({0, 1, 2, 3, 4, 5});
    QCOMPARE(filled.mid(0, whole.size()), whole);
    // Of the narrowed lists those are filled that change by it.
    QStringList order = named(narrowed);
    for (const QString &name : filled.mid(whole.size())) {
        const int place = order.indexOf(name);
        QVERIFY2(place >= 0, qPrintable(name));
        order.erase(order.begin(), order.begin() + place + 1);
    }
    QVERIFY(filled.size() > whole.size());
}

void TestAutoLoads::valuesAreShownInOrder()
{
    QVariantMap values{{root + "autoOp_tempair.max", 1000}, {root + "autoOp_tempair.min", 1000}};
    for (const char *path : seasonalPaths) {
        values.insert(seasonalRoot + path, 1000);
    }
    section->load(join({seasonalPlant("SET"), values}));
    step("setloadJsonValue");
    QStringList shown;
    for (const QString &line : messages::all()) {
        if (line.startsWith("# Error index setting")) {
            shown.append(line.section('"', 1, 1));
        }
    }
    QCOMPARE(shown, outdoorNames({2, 3}) + named("3 4 16 15 8 7 1 2 14 13 6 5 20 19 12 11 18 17 10 9"));
}

void TestAutoLoads::emptiedSelectionSavesZero_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("use");
    QTest::addColumn<QStringList>("paths");
    QTest::addColumn<bool>("holdsZero");
    for (const auto &[box, path] : outdoorBoxes) {
        QTest::newRow(box) << QString(box) << "CLR" << QStringList{root + path} << false;
    }
    for (int index = 0; index < 20; ++index) {
        QStringList paths{seasonalRoot + seasonalPaths[index]};
        const QString box = seasonalBoxes[index];
        const bool outdoor = index < 4;
        const bool follower = box.contains("MainZone");
        if (!outdoor && !follower) {
            paths.append(seasonalRoot + seasonalPaths[index + 4]);
        }
        // While the main zone is off its boxes would take their leaders' values back.
        QTest::newRow(qPrintable(box)) << box << (follower ? "SET" : "CLR") << paths << (index < 2);
    }
}

// Without a selection the text is empty and reads as 0, which is -19 °C where the list is in °F.
void TestAutoLoads::emptiedSelectionSavesZero()
{
    QFETCH(QString, box);
    QFETCH(QString, use);
    QFETCH(QStringList, paths);
    QFETCH(bool, holdsZero);
    for (const bool fahrenheit : {false, true}) {
        section->load(seasonalPlant(use), "R32", fahrenheit ? "FAHRENHEIT" : "CENTIGRADE");
        QVariantMap written;
        for (const QString &path : paths) {
            written.insert(path, fahrenheit ? -19.0 : 0.0);
        }
        auto *combo = Window::find<QComboBox>(section->page, qPrintable(box));
        QCOMPARE(section->window.changes([combo] { combo->setCurrentIndex(-1); }), written);
        QCOMPARE(combo->currentText(), holdsZero ? QString(fahrenheit ? "0°F" : "0°C") : QString());
    }
}

void TestAutoLoads::oddNumbersShowAnEnd_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<int>("number");
    for (const Odd &odd : oddValues()) {
        QTest::newRow(odd.name) << odd.value << odd.number;
    }
}

void TestAutoLoads::oddNumbersShowAnEnd()
{
    QFETCH(QVariant, value);
    QFETCH(int, number);
    QVariantMap values;
    for (const char *path : seasonalPaths) {
        values.insert(seasonalRoot + path, value);
    }
    for (const auto &box : outdoorBoxes) {
        values.insert(root + box.second, value);
    }
    for (const char *unit : {"CENTIGRADE", "FAHRENHEIT"}) {
        for (const char *use : {"SET", "CLR"}) {
            const QJsonDocument odd = documents::with(section->loadAside(seasonalPlant(use), "R32", unit),
                                                      values);
            reload(odd);
            // Only what the outdoor mode clamps is mended.
            const QVariantMap clamped{{root + "autoOp_outtemp.max", qBound(10, number, 35)},
                                      {root + "autoOp_outtemp.min", qBound(-25, number, 5)},
                                      {root + "autoOp_tempwater.high_limit", qBound(35, number, 65)},
                                      {root + "autoOp_tempwater.low_limit", qBound(20, number, 34)}};
            QCOMPARE(section->window.dialog.document(), documents::with(odd, clamped));
            step("setTempRangeValue");
            step("setloadJsonValue");
            if (qstrcmp(unit, "CENTIGRADE") == 0) {
                for (const char *name : seasonalBoxes) {
                    const QStringList list = section->items(name);
                    const QString end = number > 0 ? list.last() : list.first();
                    const bool zero = number == 0 && list.contains("0°C");
                    QCOMPARE(section->shown(name), zero ? QString("0°C") : end);
                }
            }
            turnEveryBox();
        }
    }
}

void TestAutoLoads::oddFlagsCountAsUnset_data()
{
    QTest::addColumn<QString>("path");
    for (const char *flag :
         {"isSeasonalAuto", "isR32", "isR410CoolExpand", "is_installed_heater", "isCoolTempMin5",
          "isCoolAir16", "is_heatwatercontrolbasis", "is_coolwatercontrolbasis"}) {
        QTest::newRow(flag) << QString("IduFuncList.") + flag;
    }
    for (const char *key : {"circuitMainZone.enableMainZone", "sensorDefine.settemp_select",
                            "sensorDefine.airAndWaterUse", "UFH_stop.FCU_disable", "heatWaterControlBasis",
                            "coolWaterControlBasis", "seasonalAutoOption.seasonalAutoOpMode"}) {
        QTest::newRow(key) << root + key;
    }
}

void TestAutoLoads::oddFlagsCountAsUnset()
{
    QFETCH(QString, path);
    const QJsonDocument sound = section->loadAside(seasonalPlant("SET"));
    const auto loaded = [this, path, sound](const QVariant &value) {
        // From the same state, since an unknown word may leave rows and lists as they were.
        reload(sound);
        reload(documents::with(sound, {{path, value}}));
        section->page->changeLanguage();
        const QString text = Window::find<QLabel>(section->page, "labelSeasonalAir")->text();
        return section->allLists()
            + QStringList{
                text,
                rows({"groupBoxOutdoorMode", "groupBoxSeasonalAutoMode", "groupBoxMainZoneIndoor",
                      "groupBoxMainZoneWater", "groupBoxSeasonalIndoor", "groupBoxSeasonalWater",
                      "groupBoxHeatAirTemp", "groupBoxHeatWaterTemp", "groupBoxHeatWaterTempMainZone"})};
    };
    const QStringList other = loaded("another word");
    for (const Odd &odd : oddValues()) {
        QVERIFY2(loaded(odd.value) == other, odd.name);
    }
}

void TestAutoLoads::oddGroupsAreSurvived_data()
{
    QTest::addColumn<QString>("path");
    for (const char *path :
         {"IduFuncList", "SettingInfo", "SettingInfo.installation",
          "SettingInfo.installation.seasonalAutoOption", "SettingInfo.installation.autoOp_outtemp",
          "SettingInfo.installation.autoOp_tempair", "SettingInfo.installation.autoOp_tempwater",
          "SettingInfo.installation.circuitMainZone", "SettingInfo.installation.sensorDefine",
          "SettingInfo.installation.seasonalAutoOption.heatWaterTemp"}) {
        QTest::newRow(path) << QString(path);
    }
}

void TestAutoLoads::oddGroupsAreSurvived()
{
    QFETCH(QString, path);
    const QJsonDocument sound = section->loadAside(seasonalPlant("CLR"));
    for (const Odd &odd : oddValues()) {
        reload(documents::with(sound, {{path, odd.value}}));
        turnEveryBox();
        step("on_radioBoth_clicked");
        section->page->refresh();
    }
    reload(QJsonDocument::fromJson("[1, \"x\", {}]"));
    turnEveryBox();
    QVERIFY(section->window.dialog.members().results.autoSectionValid);
}

void TestAutoLoads::oddArgumentsAreSurvived()
{
    section->load(seasonalPlant("SET"));
    for (int number = 1; number <= 20; ++number) {
        for (const int absurd : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
            section->valueChanged(number, absurd, false);
            QCOMPARE(section->shown(seasonalBoxes[number - 1]), QString());
            section->valueChanged(number, absurd, true);
            section->valueChanged(absurd, number, true);
            section->refreshTempRange(absurd);
        }
        section->page->refresh();
    }
    const auto chosen = [this](const char *text) {
        return section->window.changes([this, text] {
            QMetaObject::invokeMethod(section->page, "on_comboHeatingWaterMax_currentTextChanged",
                                      Q_ARG(QString, text));
        });
    };
    const QString path = seasonalRoot + "heatWaterTemp.max";
    QCOMPARE(chosen("2147483647°C"), (QVariantMap{{path, 2147483647.0}}));
    QCOMPARE(section->shown("comboHeatingWaterMax"), QString());
    QCOMPARE(chosen("2147483648°C"), (QVariantMap{{path, 0.0}}));
    QCOMPARE(chosen("-2147483648°C"), (QVariantMap{{path, -2147483648.0}}));
    QCOMPARE(chosen("C"), (QVariantMap{{path, 0.0}}));
}

// Cooling water has no list that could stay.
void TestAutoLoads::unknownRefrigerantFromTheStart()
{
    section.reset();
    section = std::make_unique<automode::Section>();
    section->window.use(documents::with(documents::standard("R32"),
                                        join({seasonalPlant("SET"), {{"IduFuncList.isR32", "CLR"}}})));
    messages::clear();
    step("setTempRangeValue");
    QStringList refused;
    for (const QString &line : messages::all()) {
        QVERIFY2(line.startsWith("MainDialog::setRangeValueInComboBox ComboBox:"), qPrintable(line));
        refused.append(line.section('"', 1, 1));
    }
    QCOMPARE(refused, named("8 7 11 12"));
    section->page->refresh();
    QCOMPARE(section->items("comboCoolingWaterMax"), QStringList());
    QCOMPARE(section->shown("comboCoolingOutdoorMax"), QString("0°C"));
    turnEveryBox();
    QCOMPARE(section->items("comboMainZoneWaterMin"), QStringList());
}

CALORA_TEST_MAIN(TestAutoLoads)
#include "tst_autoloads.moc"
