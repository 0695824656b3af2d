#include "support/dipswitchtest.h"

#include <QScrollArea>
#include <QScrollBar>

// Step 2: texts, looks and the check of the page.
class TestDipSwitch : public DipSwitchTest
{
    Q_OBJECT

private slots:
    void initTestCase() { open(); }
    void init()
    {
        messages::clear();
        window->speak();
    }
    void cleanupTestCase() { close(); }

    void startsOffAndUnchecked();
    void languageKeepsChoicesAndDocument();
    void styleTexts();
    void showsTheBoardOfTheRefrigerant();
    void refrigerantClickShowsTheBoard();
    void fitsTheSmallestWindow();
    void switchesCantBeOperated();
    void stopsAtTheFirstMissingChoice_data();
    void stopsAtTheFirstMissingChoice();
    void emptyPulsesFail_data();
    void emptyPulsesFail();
    void hiddenTankRadioPasses();
    void functionMasterThatIsNotOfferedPasses();
    void readsAndWritesByPath();
};

void TestDipSwitch::startsOffAndUnchecked()
{
    const DipSwitchSettingStatus fresh;
    for (const QRadioButton *radio : fresh.findChildren<QRadioButton *>()) {
        QVERIFY(radio->autoExclusive());
        QCOMPARE(radio->isChecked(), radio->objectName() == "radioFlowAlways");
    }
    QCOMPARE(bank(&fresh, 1) + bank(&fresh, 2) + bank(&fresh, 3), QStringLiteral("0000000000000000"));
    QVERIFY(style("labelPCB").isEmpty());
    QCOMPARE(Window::find<QLabel>(&fresh, "labelDhwSpacing")->text(), QString());
    const QValidator *validator = Window::find<QLineEdit>(&fresh, "lineEditWHM1")->validator();
    QVERIFY(validator != nullptr);
    QCOMPARE(validator->parent(), &fresh);
    for (const char *name : {"lineEditWHM2", "lineEditWHM3", "lineEditWHM4"}) {
        QCOMPARE(Window::find<QLineEdit>(&fresh, name)->validator(), validator);
    }
    for (const char *name : {"frameSw1", "frameSw2", "frameSw3"}) {
        QVERIFY(Window::find(&fresh, name)->styleSheet().contains("rgb(214, 214, 214)"));
    }
}

void TestDipSwitch::languageKeepsChoicesAndDocument()
{
    load(documents::joined(everything(), flags("is_hotwater SET is_sun SET is_heater1 SET")));
    const QJsonDocument before = window->dialog.document();
    const QString positions = bank(1) + bank(2) + bank(3);
    const auto choices = [this] {
        QStringList names;
        for (const QRadioButton *radio : page->findChildren<QRadioButton *>()) {
            if (radio->isChecked()) {
                names.append(radio->objectName());
            }
        }
        return names;
    };
    const QStringList chosen = choices();
    window->speak("~");
    QCOMPARE(window->dialog.document(), before);
    QCOMPARE(bank(1) + bank(2) + bank(3), positions);
    QCOMPARE(choices(), chosen);
    QCOMPARE(Window::find<QLabel>(page, "labelSW1")->text(), QStringLiteral("B : 4 Pin Switch (SW1)"));
    QCOMPARE(Window::find<QLabel>(page, "labelSW2")->text(), QStringLiteral("A : 8 Pin Switch (SW2)"));
    QCOMPARE(Window::find<QLabel>(page, "labelSW3")->text(), QStringLiteral("C : 4 Pin Switch (SW3)"));
}

void TestDipSwitch::styleTexts()
{
    QCOMPARE(call("setDipSwitchButton", true), switchStyle(true));
    QCOMPARE(call("setDipSwitchButton", false), switchStyle(false));
    QCOMPARE(call("setRadioTextOpacity", true), radioEnabled);
    QCOMPARE(call("setRadioTextOpacity", false), radioDimmed);
    QCOMPARE(call("setOpacity", true), labelEnabled);
    QCOMPARE(call("setOpacity", false), labelDimmed);
}

void TestDipSwitch::showsTheBoardOfTheRefrigerant()
{
    const auto show = [this](const QString &refrigerant) {
        QMetaObject::invokeMethod(page, "changeImage", Q_ARG(QString, refrigerant));
        return style("labelPCB");
    };
    const auto board = [](const char *name) {
        return QStringLiteral("QLabel {   background-image: url(:/images/img_pcb_%1.png);}")
            .arg(QLatin1String(name));
    };
    QCOMPARE(show("R32"), board("R32"));
    QCOMPARE(show("r410"), board("R410"));
    QCOMPARE(show("R134"), board("R410"));
    QCOMPARE(show("r32"), board("R32"));
    QCOMPARE(show(QString()), board("R32"));
    QCOMPARE(Window::find(page, "labelPCB")->size(),
             QPixmap(QStringLiteral(":/images/img_pcb_R410.png")).size());
}

void TestDipSwitch::refrigerantClickShowsTheBoard()
{
    Window::click(&window->dialog, "newButton");
    for (const char *refrigerant : {"R32", "R410", "R32"}) {
        Window::click(&window->dialog, QByteArray("radioButton") + refrigerant);
        QVERIFY(style("labelPCB").contains(QStringLiteral("img_pcb_%1.png").arg(refrigerant)));
    }
}

void TestDipSwitch::fitsTheSmallestWindow()
{
    window->dialog.setSideBarVisible(true);
    window->dialog.resize(974, 612);
    load(everything());
    QTRY_COMPARE(window->dialog.size(), QSize(974, 612));
    const auto *area = Window::find<QScrollArea>(&window->dialog, "dipswitchSettingScrollArea");
    QTRY_COMPARE(area->horizontalScrollBar()->maximum(), 0);
    // The options scroll, the page with its guide doesn't.
    QCOMPARE(area->verticalScrollBar()->maximum(), 0);
    const auto *options = Window::find<QScrollArea>(&window->dialog, "optionsScrollArea");
    QVERIFY(options->verticalScrollBar()->maximum() > 0);
}

void TestDipSwitch::switchesCantBeOperated()
{
    load(everything());
    const QVariantMap changes = window->changes([this] {
        for (QPushButton *button : page->findChildren<QPushButton *>()) {
            Window::click(button);
        }
    });
    QCOMPARE(changes, QVariantMap());
    QCOMPARE(page->findChildren<QPushButton *>().size(), 16);
    QCOMPARE(bank(1) + bank(2) + bank(3), QStringLiteral("0000000000000000"));
}

void TestDipSwitch::stopsAtTheFirstMissingChoice_data()
{
    QTest::addColumn<QString>("radios");
    QTest::newRow("1") << "radioDhwUse radioDhwOnly radioDhwNotUse";
    QTest::newRow("2") << "radioSolarThermalKitNotuse radioSolarThermalKitUse";
    QTest::newRow("3") << "radioOperationHeating radioOperationBoth";
    QTest::newRow("4") << "radioFlowAlways radioFlowOnlyPump";
    QTest::newRow("5") << "radioAdditionalAirNotUse radioAdditionalAirUse";
    QTest::newRow("6") << "radioElectricHeater1 radioElectricHeaterBoth radioElectricHeaterNotuse";
    QTest::newRow("7") << "radioAntifreezeNotuse radioAntifreezeUse";
    QTest::newRow("8") << "radioThermostatNone radioThermostatUse";
    QTest::newRow("9") << "radioOduMaster radioOduSlave";
    QTest::newRow("10") << "radioSilentODU radioSilentRemote";
}

// Each row leaves its own choice and all that follow open; only the first is told.
void TestDipSwitch::stopsAtTheFirstMissingChoice()
{
    QFETCH(QString, radios);
    const QStringList groups{"radioDhwUse radioDhwOnly radioDhwNotUse",
                             "radioSolarThermalKitNotuse radioSolarThermalKitUse",
                             "radioOperationHeating radioOperationBoth",
                             "radioFlowAlways radioFlowOnlyPump",
                             "radioAdditionalAirNotUse radioAdditionalAirUse",
                             "radioElectricHeater1 radioElectricHeaterBoth radioElectricHeaterNotuse",
                             "radioAntifreezeNotuse radioAntifreezeUse",
                             "radioThermostatNone radioThermostatUse",
                             "radioOduMaster radioOduSlave",
                             "radioSilentODU radioSilentRemote"};
    load(documents::joined(everything(), flags("is_hotwater SET")));
    QVERIFY(done());
    for (int index = groups.indexOf(radios); index < groups.size(); ++index) {
        uncheck(groups.at(index));
    }
    Window::find<QLineEdit>(page, "lineEditWHM1")->clear();
    messages::clear();
    Window::invoke(page, "validationCheck");
    QVERIFY(!done());
    QVERIFY(Window::shownItself(&window->dialog, "labelErrorDipSwitch"));
    const QStringList names = radios.split(QLatin1Char(' '));
    QCOMPARE(messages::all(),
             QStringList{QStringLiteral(" MainDialog::checkValidationRadio Object Name: \"%1\" \"%2\" "
                                        "validataion check: false")
                             .arg(names.at(0), names.at(1))});
}

void TestDipSwitch::emptyPulsesFail_data()
{
    QTest::addColumn<QByteArray>("field");
    for (const char *field : {"lineEditWHM1", "lineEditWHM2", "lineEditWHM3", "lineEditWHM4"}) {
        QTest::newRow(field) << QByteArray(field);
    }
}

void TestDipSwitch::emptyPulsesFail()
{
    QFETCH(QByteArray, field);
    load({{meter + "interfaceAdd", 176}});
    QVERIFY(done());
    auto *edit = Window::find<QLineEdit>(page, field);
    Window::type(edit, QString());
    QVERIFY(!done());
    Window::type(edit, QStringLiteral("5"));
    QVERIFY(done());
}

// The tank isn't asked for where DHW only, its second radio, is hidden.
void TestDipSwitch::hiddenTankRadioPasses()
{
    load({});
    uncheck("radioDhwUse radioDhwOnly radioDhwNotUse");
    Window::invoke(page, "validationCheck");
    QVERIFY(done());
}

// Neither are master and slave asked for then, nor the silent mode priority that goes with them, though no
// load has hidden that group by itself.
void TestDipSwitch::functionMasterThatIsNotOfferedPasses()
{
    close();
    open();
    load(documents::joined(flags("isOduFunctionMS CLR"), {{"product", "aquabox"}}));
    QVERIFY(Window::shownItself(page, "groupBoxSilentModePriority"));
    QCOMPARE(checkedOf("radioOduMaster radioOduSlave radioSilentODU radioSilentRemote"), QString());
    QVERIFY(done());
}

void TestDipSwitch::readsAndWritesByPath()
{
    load({});
    QJsonValue value;
    QMetaObject::invokeMethod(page, "parseJsonData", Q_RETURN_ARG(QJsonValue, value),
                              Q_ARG(QString, meter + "interface1"));
    QCOMPARE(value, QJsonValue(10000));
    QMetaObject::invokeMethod(page, "parseJsonData", Q_RETURN_ARG(QJsonValue, value),
                              Q_ARG(QString, "IduFuncList.missing"));
    QVERIFY(value.isNull());
    const QVariantMap expected = flags("is_sun x");
    QCOMPARE(window->changes([this] {
        QMetaObject::invokeMethod(page, "saveJsonData", Q_ARG(QString, "IduFuncList.is_sun"),
                                  Q_ARG(QJsonValue, "x"));
    }),
             expected);
}

CALORA_TEST_MAIN(TestDipSwitch)
#include "tst_dipswitch.moc"
