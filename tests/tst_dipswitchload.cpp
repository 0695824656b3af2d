#include "support/dipswitchtest.h"

// Step 2: what the page shows of a document, and what showing it writes. By which words a radio is checked:
// tests/data/dipswitches.tsv.
class TestDipSwitchLoad : public DipSwitchTest
{
    Q_OBJECT

private slots:
    void initTestCase() { open(); }
    void init() { messages::clear(); }
    void cleanupTestCase() { close(); }

    void pulsesAreShown_data();
    void pulsesAreShown();
    void showsHotWater_data();
    void showsHotWater();
    void showsSolarKit_data();
    void showsSolarKit();
    void showsOperationMode_data();
    void showsOperationMode();
    void showsPair_data();
    void showsPair();
    void flowSwitchStaysAsDrawn();
    void showsElectricHeater_data();
    void showsElectricHeater();
    void showsMeterAddress_data();
    void showsMeterAddress();
    void unknownAddressLeavesTheAddressRadios();
    void productDecidesWhatIsShown();
    void unknownProductLeavesTheControls();
    void coolExpansionHidesBankC();
    void showsOduFunction_data();
    void showsOduFunction();
    void showingDefaultDocuments();
    void firstShowWritesAndMarksTheStep();
    void absurdDocumentsAreShown_data();
    void absurdDocumentsAreShown();
    void showingAgainFollowsTheDocument();
};

void TestDipSwitchLoad::pulsesAreShown_data()
{
    QTest::addColumn<QVariant>("stored");
    QTest::addColumn<QString>("shown");
    QTest::newRow("tenths") << QVariant(125) << "12.5";
    QTest::newRow("default") << QVariant(10000) << "1000";
    QTest::newRow("zero") << QVariant(0) << "0";
    QTest::newRow("six figures") << QVariant(1234567) << "123457";
    QTest::newRow("long") << QVariant(12345678) << "1.23457e+06";
    QTest::newRow("fraction") << QVariant(12.5) << "1.25";
    QTest::newRow("missing") << QVariant() << "0";
    QTest::newRow("text") << QVariant("125") << "0";
    QTest::newRow("negative") << QVariant(-5) << "-0.5";
    QTest::newRow("huge") << QVariant(1e300) << "1e+299";
}

void TestDipSwitchLoad::pulsesAreShown()
{
    QFETCH(QVariant, stored);
    QFETCH(QString, shown);
    for (const char *field : {"1", "2", "3", "4"}) {
        load({{meter + "interface" + field, stored}});
        QCOMPARE(Window::find<QLineEdit>(page, QByteArray("lineEditWHM") + field)->text(), shown);
    }
}

void TestDipSwitchLoad::showsHotWater_data()
{
    QTest::addColumn<QString>("product");
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("pair");
    const auto row = [](const char *name, const char *product, const char *values, const char *pair) {
        QTest::newRow(name) << product << values << pair;
    };
    row("no tank", "awhp", "is_hotwater CLR", "00");
    row("tank", "awhp", "is_hotwater set", "01");
    row("Aquabox, tank", "aquabox", "is_hotwater SET", "01");
    row("Aquabox, no tank", "aquabox", "is_hotwater CLR", "00");
    row("DHW only", "aquabox", "is_boosterht_onlyMode set is_heater1 SET", "11");
    row("never for an AWHP", "awhp", "is_boosterht_onlyMode SET is_hotwater CLR", "00");
    row("AWHP with both", "awhp", "is_boosterht_onlyMode SET is_hotwater SET", "01");
    row("other product", "boiler", "is_boosterht_onlyMode SET is_hotwater SET", "01");
}

void TestDipSwitchLoad::showsHotWater()
{
    QFETCH(QString, product);
    QFETCH(QString, values);
    QFETCH(QString, pair);
    load({{"product", product}});
    const QVariantMap shown = documents::joined(flags(values), {{"product", product}});
    load(shown);
    QCOMPARE(checkedOf("radioDhwNotUse radioDhwUse radioDhwOnly"), expected("tank", shown));
    QCOMPARE(bank(2).mid(1, 2), pair);
}

void TestDipSwitchLoad::showsSolarKit_data()
{
    QTest::addColumn<QString>("values");
    QTest::addColumn<bool>("offered");
    QTest::addColumn<QString>("pair");
    QTest::newRow("no kit") << "is_hotwater SET is_sun CLR" << true << "01";
    QTest::newRow("kit") << "is_hotwater SET is_sun set" << true << "10";
    QTest::newRow("no tank") << "is_hotwater CLR is_sun SET" << false << "00";
    QTest::newRow("DHW only") << "is_boosterht_onlyMode SET is_sun SET is_heater1 SET" << false << "11";
}

void TestDipSwitchLoad::showsSolarKit()
{
    QFETCH(QString, values);
    QFETCH(bool, offered);
    QFETCH(QString, pair);
    load(documents::joined(flags(values), {{"product", "aquabox"}}));
    QCOMPARE(checkedOf("radioSolarThermalKitNotuse radioSolarThermalKitUse"),
             offered ? expected("solar", flags(values)) : QString());
    QCOMPARE(bank(2).mid(1, 2), pair);
    QCOMPARE(style("labelSolar"), offered ? labelEnabled : labelDimmed + ';');
    for (const char *name : {"radioSolarThermalKitNotuse", "radioSolarThermalKitUse"}) {
        QCOMPARE(Window::enabled(page, name), offered);
        QCOMPARE(style(name), offered ? radioEnabled : radioDimmed);
    }
    QVERIFY(done());
}

void TestDipSwitchLoad::showsOperationMode_data()
{
    QTest::addColumn<QString>("values");
    QTest::newRow("heating only") << "is_autoOp SET is_heat set is_cool clr";
    QTest::newRow("both") << "is_autoOp SET is_heat SET is_cool SET";
    QTest::newRow("no auto") << "is_autoOp CLR is_heat SET is_cool CLR";
    QTest::newRow("no heat") << "is_autoOp SET is_heat CLR is_cool CLR";
    QTest::newRow("odd cool") << "is_autoOp SET is_heat SET is_cool x";
}

void TestDipSwitchLoad::showsOperationMode()
{
    QFETCH(QString, values);
    load(flags(values));
    const QString radio = expected("operation", flags(values));
    QCOMPARE(checkedOf("radioOperationHeating radioOperationBoth"), radio);
    QCOMPARE(bank(2).at(3), QChar(radio == QLatin1String("radioOperationBoth") ? '1' : '0'));
}

void TestDipSwitchLoad::showsPair_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("banks");
    QTest::newRow("sensor") << "IduFuncList.isIduAirTempSW"
                            << "00000000 1000";
    QTest::newRow("flow") << "IduFuncList.is_flow_switch"
                          << "00000000 0000";
    QTest::newRow("antifreeze") << "IduFuncList.isAntiFreeze"
                                << "00000000 0100";
    QTest::newRow("thermostat") << "IduFuncList.is_ThermostatModeChange"
                                << "00000001 0000";
}

void TestDipSwitchLoad::showsPair()
{
    QFETCH(QString, path);
    QFETCH(QString, banks);
    const QString choice = QTest::currentDataTag();
    load({});
    Window::click(page, "radioFlowAlways");
    for (const QVariant &word :
         {QVariant("SET"), QVariant("set"), QVariant("CLR"), QVariant("x"), QVariant()}) {
        load({{path, word}});
        QCOMPARE(checkedOf(dipswitches::radios(choice).join(' ')), expected(choice, {{path, word}}));
        QCOMPARE(bank(2) + ' ' + bank(3),
                 word.toString().toUpper() == "SET" ? banks : QStringLiteral("00000000 0000"));
    }
}

// A load doesn't touch switch 25, whatever the radios show.
void TestDipSwitchLoad::flowSwitchStaysAsDrawn()
{
    load({});
    Window::click(page, "radioFlowOnlyPump");
    load({});
    QVERIFY(checked("radioFlowAlways"));
    QCOMPARE(bank(2), QStringLiteral("00001000"));
    Window::click(page, "radioFlowAlways");
    load(flags("is_flow_switch SET"));
    QVERIFY(checked("radioFlowOnlyPump"));
    QCOMPARE(bank(2), QStringLiteral("00000000"));
}

void TestDipSwitchLoad::showsElectricHeater_data()
{
    QTest::addColumn<QString>("values");
    QTest::addColumn<QString>("pair");
    QTest::addColumn<QString>("written"); // as for this radio
    QTest::newRow("step 1") << "is_heater1 set is_heater2 CLR"
                            << "10"
                            << "radioElectricHeater1";
    QTest::newRow("step 1 and 2") << "is_heater1 CLR is_heater2 set"
                                  << "11"
                                  << "radioElectricHeaterBoth";
    QTest::newRow("none") << "is_heater1 CLR is_heater2 CLR"
                          << "00"
                          << "radioElectricHeaterNotuse";
    QTest::newRow("both flags") << "is_heater1 SET is_heater2 SET"
                                << "10"
                                << "radioElectricHeater1";
}

void TestDipSwitchLoad::showsElectricHeater()
{
    QFETCH(QString, values);
    QFETCH(QString, pair);
    QFETCH(QString, written);
    const QVariantMap marked = documents::joined(
        marks(), documents::joined(flags(values), {{meter + "interfaceAdd", 0}}));
    load(marked);
    QCOMPARE(
        documents::changes(documents::with(documents::standard("R32"), marked), window->dialog.document()),
        dipswitches::loaded(written));
    QCOMPARE(checkedOf("radioElectricHeaterNotuse radioElectricHeater1 radioElectricHeaterBoth"),
             expected("heater", marked));
    QCOMPARE(bank(2).mid(5, 2), pair);
}

void TestDipSwitchLoad::showsMeterAddress_data()
{
    QTest::addColumn<QVariant>("address");
    QTest::addColumn<bool>("pulses");
    QTest::newRow("none") << QVariant(0) << false;
    QTest::newRow("B0") << QVariant(176) << true;
    QTest::newRow("B1") << QVariant(177) << true;
    QTest::newRow("other") << QVariant(5) << true;
    QTest::newRow("missing") << QVariant() << false;
    QTest::newRow("text") << QVariant("176") << false;
    QTest::newRow("huge") << QVariant(1e300) << false;
}

void TestDipSwitchLoad::showsMeterAddress()
{
    QFETCH(QVariant, address);
    QFETCH(bool, pulses);
    for (const int before : {0, 176}) {
        load({{meter + "interfaceAdd", before}});
        load({{meter + "interfaceAdd", 0}});
        load({{meter + "interfaceAdd", address}});
        QCOMPARE(checkedOf("radioOrvometerInterfaceNotuse radioOrvoAddressB0 radioOrvoAddressB1"),
                 expected("meter", {{meter + "interfaceAdd", address}}));
        QCOMPARE(Window::enabled(page, "groupBoxMeterInterface"), pulses);
        QCOMPARE(Window::enabled(page, "lineEditWHM1"), pulses);
        QVERIFY(Window::enabled(page, "radioOrvoAddressB0"));
        QVERIFY(Window::enabled(page, "radioOrvoAddressB1"));
        QCOMPARE(window->dialog.document(),
                 documents::with(documents::standard("R32"), {{meter + "interfaceAdd", address}}));
        QVERIFY(done());
    }
}

void TestDipSwitchLoad::unknownAddressLeavesTheAddressRadios()
{
    load({{meter + "interfaceAdd", 177}});
    load({{meter + "interfaceAdd", 5}});
    QCOMPARE(checkedOf("radioOrvometerInterfaceNotuse radioOrvoAddressB0 radioOrvoAddressB1"),
             QStringLiteral("radioOrvoAddressB1"));
    // Unless the meter was not used before: then the load clears them first.
    load({{meter + "interfaceAdd", 0}});
    Window::find<QRadioButton>(page, "radioOrvoAddressB0")->setChecked(true);
    load({{meter + "interfaceAdd", 5}});
    QCOMPARE(checkedOf("radioOrvometerInterfaceNotuse radioOrvoAddressB0 radioOrvoAddressB1"), QString());
}

void TestDipSwitchLoad::productDecidesWhatIsShown()
{
    const QVariantMap odu = flags("isOduFunctionMS SET");
    load(documents::joined(odu, {{"product", "Aquabox"}}));
    QVERIFY(Window::visible(page, "radioDhwOnly"));
    QVERIFY(!Window::shownItself(page, "labelDhwSpacing"));
    QVERIFY(Window::visible(page, "groupBoxOduFunctionMaster"));
    QVERIFY(Window::enabled(page, "groupBoxOduFunctionMaster"));
    QCOMPARE(style("labelSilentMode"), labelEnabled);
    for (const char *name : {"radioSilentODU", "radioSilentRemote"}) {
        QVERIFY(Window::find(page, name)->isEnabledTo(Window::find(page, "groupBoxSilentModePriority")));
    }

    load(documents::joined(odu, {{"product", "Awhp"}}));
    QVERIFY(!Window::shownItself(page, "radioDhwOnly"));
    QVERIFY(Window::shownItself(page, "labelDhwSpacing"));
    // Two radios take no room below their caption.
    QTRY_COMPARE(Window::find(page, "groupBoxDhw")->height(), Window::find(page, "labelDWH")->height());
    QVERIFY(!Window::shownItself(page, "groupBoxOduFunctionMaster"));
    QVERIFY(!Window::enabled(page, "groupBoxOduFunctionMaster"));
    QCOMPARE(style("labelODUFunctionMaster"), labelDimmed);
    QCOMPARE(style("labelSilentMode"), labelDimmed);
    for (const char *name : {"radioOduMaster", "radioOduSlave", "radioSilentODU", "radioSilentRemote"}) {
        QVERIFY2(!Window::find(page, name)->isEnabledTo(Window::find(page, name)->parentWidget()), name);
    }
}

// It counts as no AWHP where the function master is asked for.
void TestDipSwitchLoad::unknownProductLeavesTheControls()
{
    for (const char *product : {"awhp", "aquabox"}) {
        load({{"product", product}});
        load({{"product", "boiler"}});
        const bool aquabox = product == QByteArray("aquabox");
        QCOMPARE(Window::shownItself(page, "radioDhwOnly"), aquabox);
        QCOMPARE(Window::shownItself(page, "labelDhwSpacing"), !aquabox);
        QVERIFY(!Window::shownItself(page, "groupBoxOduFunctionMaster"));
        load(documents::joined(flags("isOduFunctionMS SET"), {{"product", "boiler"}}));
        QVERIFY(Window::visible(page, "groupBoxOduFunctionMaster"));
    }
}

void TestDipSwitchLoad::coolExpansionHidesBankC()
{
    for (const char *word : {"set", "CLR", "SET"}) {
        load(flags(QStringLiteral("isR410CoolExpand ") + word));
        for (const char *name : {"groupBoxAdditionalAir", "groupBoxAntifreeze", "frameSw3", "labelSW3"}) {
            QCOMPARE(Window::visible(page, name), word == QByteArray("CLR"));
        }
        QVERIFY(done());
    }
}

void TestDipSwitchLoad::showsOduFunction_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<bool>("group");
    QTest::addColumn<QString>("radios");
    QTest::addColumn<bool>("silentGroup");
    const auto with = [](const QVariantMap &values) { return documents::joined(everything(), values); };
    const QString read = QStringLiteral("SettingInfo.installation.OduFunctionMs");
    QTest::newRow("master, switch") << with({}) << true << "radioOduMaster radioSilentODU" << true;
    QTest::newRow("master, controller")
        << with({{silentPriority, "rmcSetting"}}) << true << "radioOduMaster radioSilentRemote" << true;
    QTest::newRow("exact words") << with({{silentPriority, "RMCSETTING"}}) << true << "radioOduMaster"
                                 << true;
    QTest::newRow("no silent priority")
        << with(flags("isSilentPriority CLR")) << true << "radioOduMaster" << false;
    QTest::newRow("slave") << with({{read, "SLAVE"}}) << true << "" << false;
    QTest::newRow("no such key") << with({{read, QVariant()}, {oduFunction, "MASTER"}}) << true << ""
                                 << false;
    QTest::newRow("not offered") << with(flags("isOduFunctionMS CLR")) << false << "" << true;
    QTest::newRow("AWHP") << with({{"product", "awhp"}}) << false << "" << true;
}

void TestDipSwitchLoad::showsOduFunction()
{
    QFETCH(QVariantMap, values);
    QFETCH(bool, group);
    QFETCH(QString, radios);
    QFETCH(bool, silentGroup);
    const QString all = QStringLiteral("radioOduMaster radioOduSlave radioSilentODU radioSilentRemote");
    load(everything());
    uncheck(all);
    load(values);
    QCOMPARE(checkedOf(all), radios);
    QCOMPARE(Window::shownItself(page, "groupBoxOduFunctionMaster"), group);
    QCOMPARE(Window::enabled(page, "groupBoxOduFunctionMaster"), group);
    QCOMPARE(Window::shownItself(page, "groupBoxSilentModePriority"), silentGroup);
    const bool master = radios.startsWith(QLatin1String("radioOduMaster"));
    QCOMPARE(style("labelODUFunctionMaster"), master ? labelEnabled : labelDimmed);
    for (const char *name : {"radioOduMaster", "radioOduSlave"}) {
        QCOMPARE(Window::enabled(page, name), master);
        QCOMPARE(style(name), master ? radioEnabled : radioDimmed);
    }
    QCOMPARE(done(), QByteArray("exact words") != QTest::currentDataTag());
}

// The heater flags of the R410 document don't fit its heater; showing the page mends them.
void TestDipSwitchLoad::showingDefaultDocuments()
{
    load({}, "R32");
    QCOMPARE(window->dialog.document(), documents::standard("R32"));
    QVERIFY(done());
    QVERIFY(!Window::shownItself(&window->dialog, "labelErrorDipSwitch"));

    load({}, "R410");
    QCOMPARE(documents::changes(documents::standard("R410"), window->dialog.document()),
             flags("is_installed_heater SET is_comm_disinfection SET isIndoorHotWaterKey SET "
                   "is_hotwater_by_disinfection SET"));
    QCOMPARE(bank(2), QStringLiteral("00000110"));
    QVERIFY(!Window::visible(page, "frameSw3"));
    QVERIFY(done());
}

// The guard falls before the first load, and steps that aren't done lose the focus look.
void TestDipSwitchLoad::firstShowWritesAndMarksTheStep()
{
    close();
    open();
    window->dialog.setCurrentStep(3);
    load(flags("is_flow_switch SET"), "R410");
    QCOMPARE(documents::changes(documents::with(documents::standard("R410"), flags("is_flow_switch SET")),
                                window->dialog.document()),
             flags("is_installed_heater SET is_comm_disinfection SET isIndoorHotWaterKey SET "
                   "is_hotwater_by_disinfection SET"));
    QVERIFY(checked("radioFlowOnlyPump"));
    QCOMPARE(bank(2), QStringLiteral("00000110"));
    QVERIFY(style("labelPCB").isEmpty());
    QVERIFY(Window::find(&window->dialog, "settingButton")
                ->styleSheet()
                .startsWith("QPushButton {border : none;outline : none;"
                            "background-image: url(:/images/btn_step_3_normal.png);}"));
}

void TestDipSwitchLoad::absurdDocumentsAreShown_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("flags are a text") << QByteArray(R"({"product": "awhp", "IduFuncList": "SET"})");
    QTest::newRow("flags are numbers")
        << QByteArray(R"({"IduFuncList": {"is_hotwater": 1, "is_sun": true}})");
    QTest::newRow("product is a list") << QByteArray(R"({"product": ["aquabox"]})");
    QTest::newRow("list") << QByteArray(R"([1, 2])");
}

// What isn't "SET" counts as not set.
void TestDipSwitchLoad::absurdDocumentsAreShown()
{
    QFETCH(QByteArray, json);
    load({});
    window->use(QJsonDocument::fromJson(json));
    window->showPage(MainDialog::DipSwitchPage);
    QCOMPARE(checkedOf("radioDhwNotUse radioOperationBoth radioAdditionalAirNotUse radioFlowAlways "
                       "radioElectricHeaterNotuse radioAntifreezeNotuse radioThermostatNone "
                       "radioOrvometerInterfaceNotuse"),
             QStringLiteral("radioDhwNotUse radioOperationBoth radioAdditionalAirNotUse radioFlowAlways "
                            "radioElectricHeaterNotuse radioAntifreezeNotuse radioThermostatNone "
                            "radioOrvometerInterfaceNotuse"));
    QCOMPARE(bank(2), QStringLiteral("00010000"));
    QVERIFY(done());
}

void TestDipSwitchLoad::showingAgainFollowsTheDocument()
{
    load(flags("is_hotwater SET is_sun SET is_ThermostatModeChange SET"));
    QCOMPARE(bank(2), QStringLiteral("01000001"));
    load({});
    QCOMPARE(bank(2), QStringLiteral("00000000"));
    QCOMPARE(checkedOf("radioDhwNotUse radioThermostatNone"),
             QStringLiteral("radioDhwNotUse radioThermostatNone"));
    // The page keeps writing after New.
    Window::click(&window->dialog, "newButton");
    Window::click(&window->dialog, "radioButtonR32");
    QVERIFY(!window->changes([this] { Window::invoke(page, "on_radioThermostatUse_clicked"); }).isEmpty());
}

CALORA_TEST_MAIN(TestDipSwitchLoad)
#include "tst_dipswitchload.moc"
