#include "support/window.h"

#include "pages/product/productselection.h"

#include <QGroupBox>
#include <QPainter>
#include <QSet>
#include <QSignalSpy>
#include <QStyleOptionButton>

// Step 1: product type, product spec and refrigerant.
class TestProductSelection : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        window = std::make_unique<Window>();
        page = window->page<ProductSelection>();
        Window::click(&window->dialog, "newButton");
        messages::clear();
    }
    void cleanup() { window.reset(); }

    void showsAwhpAloneOnNew();
    void startsWithFormTexts();
    void languageKeepsChoicesAndDocument();
    void fontsAreThoseOfThePage();
    void indicatorsStandBehindAMargin_data();
    void indicatorsStandBehindAMargin();
    void groupsHaveNoBorder();
    void mediumTemperatureAloneLeavesTheStepOpen();
    void checkStopsAtTheFirstMissingChoice();
    void checkNeverTakesTheMarkAway();
    void completesInAnyOrder_data();
    void completesInAnyOrder();
    void refrigerantStartsTheDocumentOver();
    void refrigerantIsToldLast();
    void sameRefrigerantTwiceStartsOver();
    void showingAgainChangesNothing();
    void showingMarksTheStep();
    void showingAnAquaboxStartsR410();
    void newClearsAllRadios();
    void newShowsThePageBeforeItClears_data();
    void newShowsThePageBeforeItClears();
    void highTemperatureWritesItsFlags();
    void aquaboxWritesAndThenLoadsR410();
    void aquaboxTakesR410WithEachSpec();
    void writesBeforeItIsShown();
    void unknownRefrigerantIsRefused();
    void missingDefaultsChangeNothing();
    void writesNothingWithoutDocument();

private:
    /// Checks the radio that the page withdraws, without a click.
    void makeAquabox() const { Window::find<QRadioButton>(page, "radioButtonAquabox")->setChecked(true); }
    bool checked(const char *name) const { return Window::checked(page, name); }
    bool productDone() const { return window->dialog.members().results.productDone; }

    std::unique_ptr<Window> window;
    ProductSelection *page = nullptr;
};

void TestProductSelection::showsAwhpAloneOnNew()
{
    QVERIFY(checked("radioButtonAwhp"));
    for (const char *name : {"radioButtonMiddleTemp", "radioButtonHighTemp", "radioButtonR32",
                             "radioButtonR410", "radioButtonAquabox"}) {
        QVERIFY2(!checked(name), name);
    }
    for (const char *name :
         {"label_img_awhp", "label_img_aquabox", "radioButtonAquabox", "radioButtonHighTemp"}) {
        QVERIFY2(!Window::visible(page, name), name);
    }
    for (const char *name : {"label_img_awhp", "label_img_aquabox"}) {
        QVERIFY2(!Window::find<QLabel>(page, name)->pixmap(Qt::ReturnByValue).isNull(), name);
    }
    QVERIFY(Window::enabled(page, "radioButtonMiddleTemp"));
    QVERIFY(!Window::enabled(page, "radioButtonHighTemp"));
    QVERIFY(!Window::enabled(page, "radioButtonAquabox"));
    QVERIFY(!productDone());
}

void TestProductSelection::startsWithFormTexts()
{
    const ProductSelection fresh;
    const std::pair<const char *, const char *> texts[] = {{"labelProductType", "Product Type"},
                                                           {"radioButtonAwhp", "AWHP"},
                                                           {"radioButtonAquabox", "Aquabox"},
                                                           {"labelProductSpec", "Product Spec"},
                                                           {"radioButtonMiddleTemp", "Medium Temperature"},
                                                           {"radioButtonHighTemp", "High Temperature"},
                                                           {"labelRefregerantType", "Refrigerant Type"},
                                                           {"radioButtonR410", "R410A"},
                                                           {"radioButtonR32", "R32"}};
    for (const auto &[name, text] : texts) {
        QCOMPARE(Window::find(&fresh, name)->property("text").toString(), QLatin1String(text));
    }
    for (const QRadioButton *radio : fresh.findChildren<QRadioButton *>()) {
        QVERIFY(!radio->isChecked() && radio->autoExclusive());
    }
    QVERIFY(!Window::shownItself(&fresh, "label_img_awhp"));
    QVERIFY(!Window::shownItself(&fresh, "label_img_aquabox"));
}

void TestProductSelection::languageKeepsChoicesAndDocument()
{
    Window::click(page, "radioButtonMiddleTemp");
    Window::click(page, "radioButtonR32");
    const QJsonDocument worked = documents::with(documents::standard("R32"), {{"product", "x"}});
    window->use(worked);
    window->speak("~");
    QCOMPARE(window->dialog.document(), worked);
    QVERIFY(checked("radioButtonAwhp") && checked("radioButtonMiddleTemp") && checked("radioButtonR32"));
}

void TestProductSelection::fontsAreThoseOfThePage()
{
    for (const char *name : {"labelProductType", "labelProductSpec", "labelRefregerantType"}) {
        QCOMPARE(Window::find(page, name)->font().family(), QStringLiteral("Noto Sans CJK KR Bold"));
        QVERIFY(Window::find(page, name)->font().bold());
    }
    for (const QRadioButton *radio : page->findChildren<QRadioButton *>()) {
        QCOMPARE(radio->font().family(), QStringLiteral("Noto Sans"));
    }
}

void TestProductSelection::indicatorsStandBehindAMargin_data()
{
    QTest::addColumn<QString>("picture");
    QTest::newRow("radioButtonMiddleTemp") << ":/images/btn_radiobtn_on.png";
    QTest::newRow("radioButtonR32") << ":/images/btn_radiobtn_off.png";
}

// The left of a radio, as it is painted: a margin of 16, a picture of 18 by 18, a gap of 8, the text.
void TestProductSelection::indicatorsStandBehindAMargin()
{
    QFETCH(QString, picture);
    Window::click(page, "radioButtonMiddleTemp");
    const auto *radio = Window::find<QRadioButton>(page, QTest::currentDataTag());
    QImage expected(42, radio->height(), QImage::Format_RGB32);
    expected.fill(Qt::white);
    QPainter(&expected).drawImage(QRect(16, (radio->height() - 18) / 2, 18, 18), QImage(picture));
    const QRect left(radio->mapTo(page, QPoint()), expected.size());
    QCOMPARE(page->grab().toImage().convertToFormat(expected.format()).copy(left), expected);
    QStyleOptionButton option;
    option.initFrom(radio);
    QCOMPARE(radio->style()->subElementRect(QStyle::SE_RadioButtonContents, &option, radio).left(), 42);
}

// All around, but for the round corners, a group is as white as inside.
void TestProductSelection::groupsHaveNoBorder()
{
    constexpr int corner = 4;
    for (const QGroupBox *group : page->findChildren<QGroupBox *>()) {
        const QImage picture = page->grab(QRect(group->mapTo(page, QPoint()), group->size())).toImage();
        QSet<QRgb> edge;
        for (int x = corner; x < picture.width() - corner; ++x) {
            edge << picture.pixel(x, 0) << picture.pixel(x, picture.height() - 1);
        }
        for (int y = corner; y < picture.height() - corner; ++y) {
            edge << picture.pixel(0, y) << picture.pixel(picture.width() - 1, y);
        }
        QCOMPARE(edge, QSet<QRgb>{qRgb(255, 255, 255)});
    }
}

void TestProductSelection::mediumTemperatureAloneLeavesTheStepOpen()
{
    Window::click(page, "radioButtonMiddleTemp");
    QVERIFY(!productDone());
    QCOMPARE(messages::all(), QStringList{"ProductSelection::validationCheck radioButtonR32 false"});
}

void TestProductSelection::checkStopsAtTheFirstMissingChoice()
{
    const auto check = [](QWidget *target) {
        messages::clear();
        Window::invoke(target, "validationCheck");
        return messages::all();
    };
    ProductSelection fresh;
    QCOMPARE(check(&fresh), QStringList{"ProductSelection::validationCheck radioButton product type false"});
    QCOMPARE(check(page), QStringList{"ProductSelection::validationCheck radioButton product spec false"});
    // Either product spec will do, and an Aquabox isn't asked for its refrigerant.
    Window::find<QRadioButton>(page, "radioButtonHighTemp")->setChecked(true);
    QCOMPARE(check(page), QStringList{"ProductSelection::validationCheck radioButtonR32 false"});
    QVERIFY(!productDone());
    makeAquabox();
    QCOMPARE(check(page), QStringList());
    QVERIFY(productDone());
}

void TestProductSelection::checkNeverTakesTheMarkAway()
{
    window->dialog.setStepCompleted(true, 1);
    Window::invoke(page, "validationCheck");
    QVERIFY(messages::contain("product spec"));
    QVERIFY(productDone());
}

void TestProductSelection::completesInAnyOrder_data()
{
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QByteArray>("second");
    QTest::newRow("spec first") << QByteArray("radioButtonMiddleTemp") << QByteArray("radioButtonR32");
    QTest::newRow("refrigerant first")
        << QByteArray("radioButtonR410") << QByteArray("radioButtonMiddleTemp");
}

void TestProductSelection::completesInAnyOrder()
{
    QFETCH(QByteArray, first);
    QFETCH(QByteArray, second);
    Window::click(page, first.constData());
    QVERIFY(!productDone());
    Window::click(page, second.constData());
    QVERIFY(productDone());
}

void TestProductSelection::refrigerantStartsTheDocumentOver()
{
    QSignalSpy clicked(page, &ProductSelection::buttonClicked);
    Window::click(page, "radioButtonR32");
    QCOMPARE(window->dialog.document(), documents::standard("R32"));
    QCOMPARE(window->dialog.members().refrigerant, QStringLiteral("R32"));
    QCOMPARE(Window::find<QLabel>(&window->dialog, "pathLabel")->text(), QStringLiteral("R32"));
    Window::click(page, "radioButtonR410");
    QCOMPARE(window->dialog.document(), documents::standard("R410"));
    QCOMPARE(window->dialog.members().refrigerant, QStringLiteral("R410"));
    QCOMPARE(clicked.size(), 2);
    QCOMPARE(clicked.at(0).at(0).toString(), QStringLiteral("R32"));
    QCOMPARE(clicked.at(1).at(0).toString(), QStringLiteral("R410"));
    for (const char *icon : {"functionValidationIcon", "userValidationIcon", "serviceValidationIcon",
                             "installationValidationIcon"}) {
        QVERIFY2(Window::shownItself(&window->dialog, icon), icon);
    }
    QVERIFY(Window::shownItself(&window->dialog, "labelErrorSetting"));
    QVERIFY(!window->dialog.members().results.settingDone);
}

void TestProductSelection::refrigerantIsToldLast()
{
    Window::click(page, "radioButtonMiddleTemp");
    int told = 0;
    QObject::connect(page, &ProductSelection::buttonClicked, page, [this, &told](const QString &name) {
        ++told;
        QCOMPARE(name, QStringLiteral("R410"));
        QCOMPARE(window->dialog.document(), documents::standard("R410"));
        QCOMPARE(window->dialog.members().refrigerant, name);
        QVERIFY(productDone());
    });
    for (const int tab : {0, 1, 2, 3}) {
        window->dialog.setSettingTabValid(true, tab);
    }
    Window::click(page, "radioButtonR410");
    QCOMPARE(told, 1);
    const DialogState &state = window->dialog.members();
    QVERIFY(!state.results.functionValid && !state.results.userValid && !state.results.serviceValid
            && !state.results.installationValid);
    QVERIFY(!state.results.settingDone);
}

void TestProductSelection::sameRefrigerantTwiceStartsOver()
{
    Window::click(page, "radioButtonR32");
    window->use(documents::with(documents::standard("R32"), {{"SettingInfo.user.themeSet", "black"}}));
    Window::click(page, "radioButtonR32");
    QCOMPARE(window->dialog.document(), documents::standard("R32"));
}

void TestProductSelection::showingAgainChangesNothing()
{
    Window::click(page, "radioButtonR32");
    const QJsonDocument worked = documents::with(documents::standard("R32"),
                                                 {{"SettingInfo.user.themeSet", "black"}});
    window->use(worked);
    window->showPage(MainDialog::ProductPage);
    QCOMPARE(window->dialog.document(), worked);
}

void TestProductSelection::showingMarksTheStep()
{
    const auto *button = Window::find<QPushButton>(&window->dialog, "productSelectionButton");
    window->dialog.setCurrentStep(4);
    QVERIFY(!button->styleSheet().startsWith("QPushButton {border : none;outline : none;"
                                             "background-image: url(:/images/btn_step_1_focus.png);}"));
    window->showPage(MainDialog::ProductPage);
    QVERIFY(button->styleSheet().startsWith("QPushButton {border : none;outline : none;"
                                            "background-image: url(:/images/btn_step_1_focus.png);}"));
}

// The load follows the radio that was checked before it clicks AWHP.
void TestProductSelection::showingAnAquaboxStartsR410()
{
    Window::find(page, "radioButtonHighTemp")->setEnabled(true);
    window->use(documents::standard("R32"));
    makeAquabox();
    window->showPage(MainDialog::ProductPage);
    QCOMPARE(window->dialog.document(), documents::standard("R410"));
    QVERIFY(checked("radioButtonAwhp"));
    QVERIFY(!Window::enabled(page, "radioButtonHighTemp"));
    QVERIFY(Window::enabled(page, "radioButtonR32"));
}

// AWHP is checked again by the last step of the load that New runs; no group keeps any other radio.
void TestProductSelection::newClearsAllRadios()
{
    Window::click(page, "radioButtonMiddleTemp");
    Window::click(page, "radioButtonR32");
    QVERIFY(productDone());
    messages::clear();
    Window::click(&window->dialog, "newButton");
    QVERIFY(messages::contain("ProductSelection::newJsonData"));
    QVERIFY(!productDone());
    showsAwhpAloneOnNew();
    for (const QRadioButton *radio : page->findChildren<QRadioButton *>()) {
        QVERIFY(radio->autoExclusive());
    }
    Window::click(page, "radioButtonR410");
    Window::find<QRadioButton>(page, "radioButtonHighTemp")->setChecked(true);
    makeAquabox();
    Window::click(&window->dialog, "newButton");
    showsAwhpAloneOnNew();
}

void TestProductSelection::newShowsThePageBeforeItClears_data()
{
    QTest::addColumn<int>("from");
    QTest::newRow("from the first page") << int(MainDialog::SelectPage);
    QTest::newRow("from this page") << int(MainDialog::ProductPage);
    QTest::newRow("from the dip switches") << int(MainDialog::DipSwitchPage);
    QTest::newRow("from the settings") << int(MainDialog::SettingPage);
    QTest::newRow("from the result") << int(MainDialog::ValidationPage);
}

// From another page, showing this one finds the former choices still made and completes the step, which
// clearing them then doesn't take back.
void TestProductSelection::newShowsThePageBeforeItClears()
{
    QFETCH(int, from);
    Window::click(page, "radioButtonMiddleTemp");
    Window::click(page, "radioButtonR32");
    const QJsonDocument worked = documents::with(documents::standard("R32"), {{"rsv.extra", "x"}});
    window->showPage(from);
    window->use(worked);
    messages::clear();
    Window::click(&window->dialog, "newButton");
    const bool completed = from != MainDialog::ProductPage;
    QCOMPARE(messages::all(),
             (QStringList{"ProductSelection::newJsonData",
                          "ProductSelection::validationCheck radioButton product spec false"}));
    QCOMPARE(productDone(), completed);
    const auto *step = Window::find<QPushButton>(&window->dialog, "productSelectionButton");
    QVERIFY(step->styleSheet().contains("btn_step_completed.png"));
    QVERIFY(!Window::shownItself(&window->dialog, "labelErrorProduct"));
    QVERIFY(checked("radioButtonAwhp"));
    for (const char *name : {"radioButtonMiddleTemp", "radioButtonR32", "radioButtonR410"}) {
        QVERIFY2(!checked(name), name);
    }
    const DialogState &state = window->dialog.members();
    QVERIFY(!state.results.dipSwitchDone && !state.results.settingDone && !state.results.functionValid
            && !state.results.userValid && !state.results.serviceValid && !state.results.installationValid);
    QCOMPARE(window->dialog.document(), worked);
}

void TestProductSelection::highTemperatureWritesItsFlags()
{
    const QJsonDocument before = documents::with(documents::standard("R410"),
                                                 {{"IduFuncList.is_heater2", "x"},
                                                  {"IduFuncList.is_heater1", "x"},
                                                  {"IduFuncList.is_cool", "x"},
                                                  {"IduFuncList.isDisableDisinfect", "x"},
                                                  {"IduFuncList.is_hotwater_by_disinfection", "x"},
                                                  {"IduFuncList.is_installed_heater", "x"},
                                                  {"IduFuncList.isCoolTempMin5", "x"},
                                                  {"IduFuncList.isR32", "x"}});
    window->use(before);
    const QVariantMap changes = window->changes(
        [this] { Window::invoke(page, "on_radioButtonHighTemp_clicked"); });
    const QVariantMap expected{{"IduFuncList.is_heater2", "CLR"},
                               {"IduFuncList.is_heater1", "CLR"},
                               {"IduFuncList.is_cool", "CLR"},
                               {"IduFuncList.isDisableDisinfect", "CLR"},
                               {"IduFuncList.is_hotwater_by_disinfection", "SET"},
                               {"IduFuncList.is_installed_heater", "CLR"},
                               {"IduFuncList.isCoolTempMin5", "CLR"},
                               {"IduFuncList.isR32", "CLR"}};
    QCOMPARE(changes, expected);
}

void TestProductSelection::aquaboxWritesAndThenLoadsR410()
{
    const QVariantMap written{{"product", "aquabox"},
                              {"IduFuncList.is_schedule_boostHeater", "CLR"},
                              {"IduFuncList.isSilentDisable", "CLR"},
                              {"IduFuncList.isWaterFlowRate", "SET"},
                              {"IduFuncList.isOverride", "SET"},
                              {"IduFuncList.isDisableHotwaterKeyCool", "SET"},
                              {"IduFuncList.isDisableRunMode", "CLR"},
                              {"IduFuncList.is_200Combination", "SET"},
                              {"IduFuncList.is_cement_Curing", "CLR"},
                              {"IduFuncList.is_waterthermoonoff", "SET"},
                              {"IduFuncList.is_coolThermoOnOff", "SET"},
                              {"IduFuncList.is_ghpWarningOil", "SET"},
                              {"IduFuncList.is_ModeLock", "CLR"},
                              {"IduFuncList.is_MainZone_circuit", "CLR"},
                              {"IduFuncList.isSGReady", "CLR"},
                              {"IduFuncList.isModbusAddress", "CLR"},
                              {"IduFuncList.isOduFunctionMS", "SET"},
                              {"IduFuncList.isDefrostMode", "SET"},
                              {"IduFuncList.isLeakRefrigerant", "SET"},
                              {"IduFuncList.isIduAdd", "SET"},
                              {"IduFuncList.isEmergencyAllStop", "SET"},
                              {"IduFuncList.isSilentPriority", "SET"},
                              {"IduFuncList.isHsModel", "SET"},
                              {"IduFuncList.is200CombinationOp2", "SET"},
                              {"IduFuncList.isModeStandby", "SET"},
                              {"IduFuncList.isMotorDuty", "CLR"},
                              {"IduFuncList.isWaterCtrBasisAir", "SET"},
                              {"IduFuncList.isHotwaterTankHeaterUse", "CLR"},
                              {"IduFuncList.isAntiFreeze", "CLR"},
                              {"IduFuncList.isMeterInterface", "SET"},
                              {"IduFuncList.isCoolAir16", "SET"},
                              {"IduFuncList.isWaterPumpOperationByForceAdv", "SET"},
                              {"IduFuncList.isPumpPreOverRun", "SET"},
                              {"IduFuncList.isIduAirTempSW", "SET"},
                              {"IduFuncList.isNoticeCanEmerOper", "SET"}};
    QCOMPARE(written.size(), 35);
    QVariantMap marked;
    for (auto path = written.keyBegin(); path != written.keyEnd(); ++path) {
        marked.insert(*path, "x");
    }
    // With AWHP checked the slot's writes stay in the document.
    window->use(documents::with(documents::standard("R32"), marked));
    QCOMPARE(window->changes([this] { Window::invoke(page, "on_radioButtonAquabox_clicked"); }), written);

    // With Aquabox itself checked the refrigerant click follows and loads the R410 default.
    auto *aquabox = Window::find<QRadioButton>(page, "radioButtonAquabox");
    aquabox->setEnabled(true);
    aquabox->show();
    Window::click(aquabox);
    QCOMPARE(window->dialog.document(), documents::standard("R410"));
    QVERIFY(!Window::enabled(page, "radioButtonR32"));
    QVERIFY(checked("radioButtonR410"));
}

// The refrigerant click follows the writes of High temperature and takes them away.
void TestProductSelection::aquaboxTakesR410WithEachSpec()
{
    for (const char *slot : {"on_radioButtonMiddleTemp_clicked", "on_radioButtonHighTemp_clicked"}) {
        window->use(documents::with(documents::standard("R32"), {{"product", "x"}}));
        makeAquabox();
        Window::find(page, "radioButtonR32")->setEnabled(true);
        Window::invoke(page, slot);
        QCOMPARE(window->dialog.document(), documents::standard("R410"));
        QVERIFY(!Window::enabled(page, "radioButtonR32"));
        QVERIFY(Window::enabled(page, "radioButtonR410"));
    }
}

void TestProductSelection::writesBeforeItIsShown()
{
    window->use(documents::standard("R32"));
    ProductSelection fresh;
    const QVariantMap expected{{"IduFuncList.is_hotwater_by_disinfection", "SET"},
                               {"IduFuncList.isCoolTempMin5", "CLR"},
                               {"IduFuncList.isR32", "CLR"}};
    QCOMPARE(window->changes([&fresh] { Window::invoke(&fresh, "on_radioButtonHighTemp_clicked"); }),
             expected);
}

void TestProductSelection::unknownRefrigerantIsRefused()
{
    QVERIFY(!window->dialog.openNewJsonFile("R134"));
    QVERIFY(messages::contain("MainDialog::openNewJsonFile load json data failed"));
    QVERIFY(window->dialog.openNewJsonFile("r32"));
    QCOMPARE(Window::find<QLabel>(&window->dialog, "pathLabel")->text(), QStringLiteral("R32"));
}

// The radio stays checked, and neither the tabs nor the step nor the dip switch page hear of it.
void TestProductSelection::missingDefaultsChangeNothing()
{
    Window::click(page, "radioButtonMiddleTemp");
    Window::click(page, "radioButtonR32");
    window->dialog.setStepCompleted(false, 1);
    for (const int tab : {0, 1, 2, 3}) {
        window->dialog.setSettingTabValid(true, tab);
    }
    const QJsonDocument before = window->dialog.document();
    const QSignalSpy told(page, &ProductSelection::buttonClicked);
    messages::clear();
    Q_CLEANUP_RESOURCE(defaultsettings);
    Window::click(page, "radioButtonR410");
    Q_INIT_RESOURCE(defaultsettings);
    QCOMPARE(messages::all().last(), QStringLiteral("MainDialog::openNewJsonFile load json data failed"));
    QVERIFY(checked("radioButtonR410"));
    QCOMPARE(window->dialog.document(), before);
    const DialogState &state = window->dialog.members();
    QVERIFY(state.results.functionValid && state.results.userValid && state.results.serviceValid
            && state.results.installationValid);
    QVERIFY(!productDone());
    QCOMPARE(state.refrigerant, QStringLiteral("R32"));
    QCOMPARE(told.size(), 0);
}

void TestProductSelection::writesNothingWithoutDocument()
{
    QVERIFY(window->dialog.document().isNull());
    Window::invoke(page, "on_radioButtonHighTemp_clicked");
    QVERIFY(window->dialog.document().isNull());
}

CALORA_TEST_MAIN(TestProductSelection)
#include "tst_productselection.moc"
