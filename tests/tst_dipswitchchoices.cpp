#include "support/dipswitchtest.h"

// Step 2: what each control of the page writes and changes; the radios by tests/data/dipswitches.tsv.
class TestDipSwitchChoices : public DipSwitchTest
{
    Q_OBJECT

private slots:
    void initTestCase() { open(); }
    void init() { messages::clear(); }
    void cleanupTestCase() { close(); }

    void controlWrites_data();
    void controlWrites();
    void pulsesAreTyped_data();
    void pulsesAreTyped();
    void noTankGreysSolarKit();
    void tankBringsSolarKitBack();
    void solarKitLeavesPowerFlag();
    void noMeterClearsTheAddress();
    void noMeterEnablesTheAddressRadios();
    void solarKitIsOfferedWithoutTankChoice();
    void pulsesAreCutToTenths();
    void masterOffersSilentMode();
    void slaveIsForgotten();
    void masterStays();
    void dhwOnlyIsLostWithoutHeater();
    void silentSubCategoryFollowsMaster();
    void writesNothingBeforeShown();
    void writesNothingWithoutDocument();
};

// Each row clicks its way there first, then puts other values at every path that the page can write.
void TestDipSwitchChoices::controlWrites_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("banks");
    const auto row = [](const char *control, const char *first, const char *banks) {
        QTest::newRow(control) << first << banks;
    };
    row("radioDhwNotUse", "radioDhwOnly", "00000000 0000");
    row("radioDhwUse", "radioDhwOnly", "00100000 0000");
    row("radioDhwOnly", "radioDhwUse", "01100000 0000");
    row("radioSolarThermalKitNotuse", "radioDhwUse radioSolarThermalKitUse", "00100000 0000");
    row("radioSolarThermalKitUse", "radioDhwUse", "01000000 0000");
    row("radioOperationHeating", "radioOperationBoth", "00000000 0000");
    row("radioOperationBoth", "radioOperationHeating", "00010000 0000");
    row("radioFlowAlways", "radioFlowOnlyPump", "00000000 0000");
    row("radioFlowOnlyPump", "radioFlowAlways", "00001000 0000");
    row("radioElectricHeaterNotuse", "radioElectricHeaterBoth", "00000000 0000");
    row("radioElectricHeater1", "radioElectricHeaterBoth", "00000100 0000");
    row("radioElectricHeaterBoth", "radioElectricHeaterNotuse", "00000110 0000");
    row("radioThermostatNone", "radioThermostatUse", "00000000 0000");
    row("radioThermostatUse", "radioThermostatNone", "00000001 0000");
    row("radioAdditionalAirNotUse", "radioAdditionalAirUse", "00000000 0000");
    row("radioAdditionalAirUse", "radioAdditionalAirNotUse", "00000000 1000");
    row("radioAntifreezeNotuse", "radioAntifreezeUse", "00000000 0000");
    row("radioAntifreezeUse", "radioAntifreezeNotuse", "00000000 0100");
    row("radioOrvometerInterfaceNotuse", "radioOrvoAddressB1", "00000000 0000");
    row("radioOrvoAddressB0", "radioOrvoAddressB1", "00000000 0000");
    row("radioOrvoAddressB1", "radioOrvometerInterfaceNotuse", "00000000 0000");
    row("radioOduMaster", "radioOduMaster", "00000000 0000");
    row("radioOduSlave", "radioOduMaster", "00000000 0000");
    row("radioSilentODU", "radioSilentRemote", "00000000 0000");
    row("radioSilentRemote", "radioSilentODU", "00000000 0000");
}

void TestDipSwitchChoices::controlWrites()
{
    QFETCH(QString, first);
    QFETCH(QString, banks);
    load(everything());
    Window::click(page, "radioFlowAlways");
    const QStringList clicks = first.split(QLatin1Char(' '));
    for (const QString &name : clicks) {
        Window::click(page, name.toLatin1());
    }
    window->use(documents::with(window->dialog.document(), marks()));
    QCOMPARE(window->changes([this] { Window::click(page, QTest::currentDataTag()); }),
             dipswitches::clicked(QTest::currentDataTag()));
    QVERIFY(checked(QTest::currentDataTag()));
    QCOMPARE(bank(2) + ' ' + bank(3), banks);
    QCOMPARE(bank(1), QStringLiteral("0000"));
    QVERIFY(done());
    // The check follows: it finds what is open elsewhere.
    const bool operation = QString(QTest::currentDataTag()).startsWith("radioOperation");
    uncheck(operation ? "radioThermostatNone radioThermostatUse"
                      : "radioOperationHeating radioOperationBoth");
    QVERIFY(done());
    Window::click(page, QTest::currentDataTag());
    QVERIFY(!done());
}

void TestDipSwitchChoices::pulsesAreTyped_data()
{
    QTest::addColumn<QByteArray>("field");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("shown");
    QTest::addColumn<int>("stored");
    QTest::newRow("tenths") << QByteArray("1") << "12.5"
                            << "12.5" << 125;
    QTest::newRow("whole") << QByteArray("2") << "800"
                           << "800" << 8000;
    QTest::newRow("third") << QByteArray("3") << "7"
                           << "7" << 70;
    QTest::newRow("fourth") << QByteArray("4") << "9999.9"
                            << "9999.9" << 99999;
    QTest::newRow("second decimal") << QByteArray("1") << "12.55"
                                    << "12.5" << 125;
    QTest::newRow("fifth digit") << QByteArray("1") << "12345"
                                 << "1234" << 12340;
    QTest::newRow("below one") << QByteArray("1") << "0.4"
                               << "0.4" << 4;
    QTest::newRow("trailing point") << QByteArray("1") << "12."
                                    << "12." << 120;
    QTest::newRow("letters and signs") << QByteArray("1") << "-1e2"
                                       << "12" << 120;
    QTest::newRow("emptied") << QByteArray("1") << ""
                             << "" << 0;
}

void TestDipSwitchChoices::pulsesAreTyped()
{
    QFETCH(QByteArray, field);
    QFETCH(QString, typed);
    QFETCH(QString, shown);
    QFETCH(int, stored);
    load({{meter + "interfaceAdd", 177}});
    auto *edit = Window::find<QLineEdit>(page, QByteArray("lineEditWHM") + field);
    const QVariantMap expected{{meter + "interface" + field, stored}};
    QCOMPARE(window->changes([&] { Window::type(edit, typed); }), expected);
    QCOMPARE(edit->text(), shown);
    QCOMPARE(done(), !shown.isEmpty());
}

void TestDipSwitchChoices::noTankGreysSolarKit()
{
    load(flags("is_hotwater SET is_sun SET"));
    Window::click(page, "radioDhwNotUse");
    QCOMPARE(style("labelSolar"), labelDimmed + ';');
    QCOMPARE(checkedOf("radioSolarThermalKitNotuse radioSolarThermalKitUse"), QString());
    QVERIFY(!Window::enabled(page, "radioSolarThermalKitUse"));
    QVERIFY(done());
    Window::click(page, "radioDhwUse");
    QCOMPARE(checkedOf("radioSolarThermalKitNotuse radioSolarThermalKitUse"),
             QStringLiteral("radioSolarThermalKitNotuse"));
    QCOMPARE(style("labelSolar"), labelEnabled);
    QCOMPARE(bank(2), QStringLiteral("00100000"));
}

// "Use" leaves is_sun alone: a kit that the document has all the while is shown at once.
void TestDipSwitchChoices::tankBringsSolarKitBack()
{
    load(flags("is_hotwater CLR is_sun set"));
    QCOMPARE(bank(2), QStringLiteral("00000000"));
    Window::click(page, "radioDhwUse");
    QCOMPARE(checkedOf("radioSolarThermalKitNotuse radioSolarThermalKitUse"),
             QStringLiteral("radioSolarThermalKitUse"));
    QCOMPARE(style("radioSolarThermalKitUse"), radioEnabled);
    QCOMPARE(bank(2), QStringLiteral("01000000"));
}

void TestDipSwitchChoices::solarKitLeavesPowerFlag()
{
    load(flags("is_hotwater SET is_power_hotwater SET"));
    QCOMPARE(window->changes([this] { Window::click(page, "radioSolarThermalKitUse"); }),
             flags("is_sun SET"));
}

void TestDipSwitchChoices::noMeterClearsTheAddress()
{
    load({});
    Window::click(page, "radioOrvoAddressB0");
    QVERIFY(Window::enabled(page, "groupBoxMeterInterface"));
    QVERIFY(!checked("radioOrvometerInterfaceNotuse"));
    Window::type(Window::find<QLineEdit>(page, "lineEditWHM1"), QString());
    QVERIFY(!done());
    const QVariantMap expected{{meter + "interfaceAdd", 0}};
    QCOMPARE(window->changes([this] { Window::click(page, "radioOrvometerInterfaceNotuse"); }), expected);
    QCOMPARE(checkedOf("radioOrvometerInterfaceNotuse radioOrvoAddressB0 radioOrvoAddressB1"),
             QStringLiteral("radioOrvometerInterfaceNotuse"));
    QVERIFY(!Window::enabled(page, "groupBoxMeterInterface"));
    QCOMPARE(Window::find<QLineEdit>(page, "lineEditWHM1")->text(), QStringLiteral("0"));
    QVERIFY(done());
}

void TestDipSwitchChoices::noMeterEnablesTheAddressRadios()
{
    const auto disable = [this] {
        for (const char *name : {"radioOrvoAddressB0", "radioOrvoAddressB1"}) {
            Window::find(page, name)->setEnabled(false);
        }
    };
    const auto bothEnabled = [this] {
        return Window::enabled(page, "radioOrvoAddressB0") && Window::enabled(page, "radioOrvoAddressB1");
    };
    load({{meter + "interfaceAdd", 176}});
    disable();
    Window::invoke(page, "enableOrvoMeterSubCategory");
    QVERIFY(!Window::enabled(page, "radioOrvoAddressB0") && !Window::enabled(page, "radioOrvoAddressB1"));
    QVERIFY(checked("radioOrvoAddressB0"));
    load({{meter + "interfaceAdd", 0}});
    disable();
    Window::click(page, "radioOrvometerInterfaceNotuse");
    QVERIFY(bothEnabled());
    Window::find<QRadioButton>(page, "radioOrvoAddressB1")->setChecked(true);
    disable();
    Window::invoke(page, "enableOrvoMeterSubCategory");
    QVERIFY(bothEnabled());
    QVERIFY(!checked("radioOrvoAddressB1"));
}

void TestDipSwitchChoices::solarKitIsOfferedWithoutTankChoice()
{
    load(flags("is_hotwater CLR is_sun SET"));
    uncheck("radioDhwNotUse radioDhwUse radioDhwOnly");
    bool offered = false;
    QMetaObject::invokeMethod(page, "enableSolarThermalKit", Q_RETURN_ARG(bool, offered));
    QVERIFY(offered);
    QVERIFY(checked("radioSolarThermalKitUse"));
    QCOMPARE(bank(2), QStringLiteral("01000000"));
}

// The field lets no such text through.
void TestDipSwitchChoices::pulsesAreCutToTenths()
{
    load({});
    const QVariantMap expected{{meter + "interface2", 125}};
    QCOMPARE(window->changes([this] {
        QMetaObject::invokeMethod(page, "on_lineEditWHM2_textEdited", Q_ARG(QString, "12.59"));
    }),
             expected);
}

void TestDipSwitchChoices::masterOffersSilentMode()
{
    load(everything());
    Window::click(page, "radioOduSlave");
    QVERIFY(!Window::shownItself(page, "groupBoxSilentModePriority"));
    QVERIFY(Window::enabled(page, "groupBoxSilentModePriority"));
    Window::click(page, "radioOduMaster");
    QVERIFY(Window::visible(page, "groupBoxSilentModePriority"));
    window->use(documents::with(window->dialog.document(), flags("isSilentPriority CLR")));
    Window::click(page, "radioOduMaster");
    QVERIFY(!Window::shownItself(page, "groupBoxSilentModePriority"));
    QVERIFY(!Window::enabled(page, "groupBoxSilentModePriority"));
    window->use(documents::with(window->dialog.document(), flags("isSilentPriority set")));
    Window::click(page, "radioOduMaster");
    QVERIFY(Window::visible(page, "groupBoxSilentModePriority"));
    QVERIFY(Window::enabled(page, "groupBoxSilentModePriority"));
}

// What the slave radio writes isn't at the path that a load reads.
void TestDipSwitchChoices::slaveIsForgotten()
{
    load(everything());
    Window::click(page, "radioOduSlave");
    window->use(
        documents::with(window->dialog.document(), {{"SettingInfo.installation.OduFunctionMs", QVariant()}}));
    window->showPage(MainDialog::DipSwitchPage);
    QCOMPARE(checkedOf("radioOduMaster radioOduSlave"), QString());
    QVERIFY(done());
}

// A load finds nothing of what the master radio writes either, and leaves that radio checked: without the
// silent mode priority, which follows the document.
void TestDipSwitchChoices::masterStays()
{
    load(everything());
    Window::click(page, "radioOduMaster");
    window->use(
        documents::with(window->dialog.document(), {{"SettingInfo.installation.OduFunctionMs", QVariant()}}));
    window->showPage(MainDialog::DipSwitchPage);
    QCOMPARE(checkedOf("radioOduMaster radioOduSlave"), QStringLiteral("radioOduMaster"));
    QCOMPARE(style("labelODUFunctionMaster"), labelEnabled);
    for (const char *name : {"radioOduMaster", "radioOduSlave"}) {
        QVERIFY(Window::enabled(page, name));
        QCOMPARE(style(name), radioEnabled);
    }
    QVERIFY(!Window::shownItself(page, "groupBoxSilentModePriority"));
    QVERIFY(!Window::enabled(page, "groupBoxSilentModePriority"));
    QVERIFY(done());
}

// The first load shows the flag, and then takes it away as it finds no heater.
void TestDipSwitchChoices::dhwOnlyIsLostWithoutHeater()
{
    const QString tank = QStringLiteral("radioDhwNotUse radioDhwUse radioDhwOnly");
    const auto showPage = [this] { window->showPage(MainDialog::DipSwitchPage); };
    load({{"product", "aquabox"}});
    Window::click(page, "radioDhwOnly");
    QCOMPARE(window->changes(showPage), flags("is_boosterht_onlyMode CLR"));
    QCOMPARE(checkedOf(tank), QStringLiteral("radioDhwOnly"));
    QCOMPARE(bank(2).mid(1, 2), QStringLiteral("11"));
    QCOMPARE(window->changes(showPage), QVariantMap());
    QCOMPARE(checkedOf(tank), QStringLiteral("radioDhwUse"));
    QCOMPARE(checkedOf("radioSolarThermalKitNotuse radioSolarThermalKitUse"),
             QStringLiteral("radioSolarThermalKitNotuse"));
    QCOMPARE(bank(2).mid(1, 2), QStringLiteral("01"));
    // The flag that only the clicks on the tank's radios write.
    QCOMPARE(documents::with(window->dialog.document(), flags("is_power_hotwater SET")),
             window->dialog.document());
}

void TestDipSwitchChoices::silentSubCategoryFollowsMaster()
{
    load(everything());
    const auto run = [this] { Window::invoke(page, "enableOduFunctionMasterSubCategory"); };
    Window::click(page, "radioOduSlave");
    Window::click(page, "radioOduMaster");
    Window::find<QRadioButton>(page, "radioOduSlave")->setChecked(true);
    run();
    QVERIFY(!Window::enabled(page, "radioSilentODU") && !Window::enabled(page, "radioSilentRemote"));
    QCOMPARE(style("labelSilentMode"), labelDimmed);
    uncheck("radioOduMaster radioOduSlave");
    run();
    QVERIFY(!Window::enabled(page, "radioSilentODU") && !Window::enabled(page, "radioSilentRemote"));
    Window::find<QRadioButton>(page, "radioOduMaster")->setChecked(true);
    run();
    QVERIFY(Window::enabled(page, "radioSilentODU") && Window::enabled(page, "radioSilentRemote"));
    QCOMPARE(style("labelSilentMode"), labelEnabled);
    uncheck("radioOduMaster radioOduSlave");
    run();
    QVERIFY(Window::enabled(page, "radioSilentODU"));
}

void TestDipSwitchChoices::writesNothingBeforeShown()
{
    window->use(documents::with(documents::standard("R32"), marks()));
    DipSwitchSettingStatus fresh;
    const QVariantMap changes = window->changes([&fresh] {
        for (const QRadioButton *radio : fresh.findChildren<QRadioButton *>()) {
            QMetaObject::invokeMethod(&fresh,
                                      QByteArray("on_" + radio->objectName().toLatin1() + "_clicked"));
        }
        QMetaObject::invokeMethod(&fresh, "on_lineEditWHM1_textEdited", Q_ARG(QString, "5"));
        Window::invoke(&fresh, "initSeasonalAutoRange");
        Window::invoke(&fresh, "setPowerHotWater");
    });
    QCOMPARE(changes, QVariantMap());
}

void TestDipSwitchChoices::writesNothingWithoutDocument()
{
    window->use(QJsonDocument());
    window->showPage(MainDialog::DipSwitchPage);
    Window::click(page, "radioThermostatUse");
    QVERIFY(window->dialog.document().isNull());
}

CALORA_TEST_MAIN(TestDipSwitchChoices)
#include "tst_dipswitchchoices.moc"
