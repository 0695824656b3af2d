#include "support/window.h"

#include "app/tabbutton.h"

// Steps, tabs and sections: how results become marks, and what the marks let through.

namespace {

const QByteArrayList stepButtons{"productSelectionButton", "dipSwitchButton", "settingButton",
                                 "validationButton"};
const QByteArrayList errorMarks{"labelErrorProduct", "labelErrorDipSwitch", "labelErrorSetting"};
const QByteArrayList tabButtons{"functionTabButton", "userTabButton", "serviceTabButton",
                                "installationTabButton"};
const QByteArrayList tabIcons{"functionValidationIcon", "userValidationIcon", "serviceValidationIcon",
                              "installationValidationIcon"};
constexpr auto selectedTab = "TabButton {color: #333333;}";
constexpr auto otherTab = "TabButton {color: #777777;}";
constexpr auto completed = "QPushButton {border : none;outline : none;background-image: "
                           "url(:/images/btn_step_completed.png);}";

/// The style of a step button in the state "normal", "focus" or "completed".
QString style(int step, const QString &state)
{
    if (state == "completed") {
        return completed;
    }
    return QStringLiteral("QPushButton {border : none;outline : none;background-image: "
                          "url(:/images/btn_step_%1_%2.png);}"
                          "QPushButton::hover {border: none; outline: none;background-image: "
                          "url(:/images/btn_step_%1_focus.png);}")
        .arg(step)
        .arg(state);
}

} // namespace

class TestWizard : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        window = std::make_unique<Window>();
        messages::clear();
    }
    void cleanup() { window.reset(); }

    void focusStyleByTheLetter();
    void picturesExist_data();
    void picturesExist();
    void currentStepIsPainted();
    void otherStepsAreIgnored_data();
    void otherStepsAreIgnored();
    void stepResult_data();
    void stepResult();
    void tabResultsJoin();
    void unknownTabJoinsAllTheSame();
    void sectionResultsJoin();
    void sectionSettersOnlySet();
    void captionTellsTheShownPage();
    void sideBarIsHiddenBeforeNew();
    void stepsNeedADocument();
    void stepsNeedTheOnesBefore_data();
    void stepsNeedTheOnesBefore();
    void refusedSettingTellsAnotherName();
    void validationIsAlwaysReached_data();
    void validationIsAlwaysReached();
    void stepButtonsHaveNoEffectWhenDisabled();
    void tabsSwitch_data();
    void tabsSwitch();
    void tabStyleTexts();
    void settingStepKeepsItsTab();

private:
    MainDialog &dialog() const { return window->dialog; }
    const DialogState &members() const { return window->dialog.members(); }
    QWidget *find(const QByteArray &name) const { return Window::find(&dialog(), name.constData()); }
    bool shown(const QByteArray &name) const { return !find(name)->isHidden(); }
    int page() const { return Window::find<QStackedWidget>(&dialog(), "stackedWidget")->currentIndex(); }
    int tab() const
    {
        return Window::find<QStackedWidget>(&dialog(), "settingStackedWidget")->currentIndex();
    }
    void setDone(const QVector<bool> &done) const
    {
        for (int step = 1; step <= 3; ++step) {
            dialog().setStepCompleted(done.at(step - 1), step);
        }
    }
    QStringList stepStyles() const
    {
        QStringList styles;
        for (const QByteArray &name : stepButtons) {
            styles.append(find(name)->styleSheet());
        }
        return styles;
    }
    QStringList tabStyles() const
    {
        QStringList styles;
        for (const QByteArray &name : tabButtons) {
            styles.append(find(name)->styleSheet());
        }
        return styles;
    }
    /// Which tabs show the line of the selected one.
    QVector<int> underlined() const
    {
        QVector<int> tabs;
        for (int each = 0; each < 4; ++each) {
            const QImage image = find(tabButtons.at(each))->grab().toImage();
            if (image.pixelColor(2, image.height() - 1) == QColor("#A50034")) {
                tabs.append(each);
            }
        }
        return tabs;
    }

    std::unique_ptr<Window> window;
};

void TestWizard::focusStyleByTheLetter()
{
    dialog().setCurrentStep(1);
    QCOMPARE(find("productSelectionButton")->styleSheet(),
             QString("QPushButton {border : none;outline : none;background-image: "
                     "url(:/images/btn_step_1_focus.png);}QPushButton::hover {border: none; outline: "
                     "none;background-image: url(:/images/btn_step_1_focus.png);}"));
}

void TestWizard::picturesExist_data()
{
    QTest::addColumn<QString>("file");
    for (const char *name :
         {"step_1_normal", "step_2_normal", "step_3_normal", "step_4_normal", "step_1_focus", "step_2_focus",
          "step_3_focus", "step_4_focus", "step_completed", "title_resize_normal", "title_resize_over",
          "title_resize_press", "title_maximize_normal", "title_maximize_over", "title_maximize_press"}) {
        QTest::newRow(name) << QStringLiteral(":/images/btn_%1.png").arg(name);
    }
}

void TestWizard::picturesExist()
{
    QFETCH(QString, file);
    QVERIFY(!QPixmap(file).isNull());
}

void TestWizard::currentStepIsPainted()
{
    for (int bits = 0; bits < 8; ++bits) {
        const QVector<bool> done{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, false};
        setDone(done);
        for (int step = 1; step <= 4; ++step) {
            dialog().setCurrentStep(step);
            for (int each = 1; each <= 4; ++each) {
                const QString state = done.at(each - 1) ? "completed" : each == step ? "focus" : "normal";
                QCOMPARE(stepStyles().at(each - 1), style(each, state));
            }
        }
    }
}

void TestWizard::otherStepsAreIgnored_data()
{
    QTest::addColumn<int>("step");
    QTest::newRow("0") << 0;
    QTest::newRow("5") << 5;
    QTest::newRow("-1") << -1;
    QTest::newRow("1000") << 1000;
}

void TestWizard::otherStepsAreIgnored()
{
    QFETCH(int, step);
    dialog().setCurrentStep(2);
    const QStringList before = stepStyles();
    dialog().setCurrentStep(step);
    dialog().setStepCompleted(true, step == 1000 ? 4 : step);
    QCOMPARE(stepStyles(), before);
    QVERIFY(!members().results.productDone && !members().results.dipSwitchDone
            && !members().results.settingDone);
}

void TestWizard::stepResult_data()
{
    QTest::addColumn<int>("step");
    for (int step = 1; step <= 3; ++step) {
        QTest::addRow("%d", step) << step;
    }
}

void TestWizard::stepResult()
{
    QFETCH(int, step);
    const auto done = [&] {
        return QVector<bool>{members().results.productDone, members().results.dipSwitchDone,
                             members().results.settingDone};
    };
    dialog().setCurrentStep(4);
    QStringList styles = stepStyles();
    QVector<bool> expected(3, false);
    QVector<bool> marks(3, false);
    const auto seen = [&] {
        return QVector<bool>{shown(errorMarks.at(0)), shown(errorMarks.at(1)), shown(errorMarks.at(2))};
    };
    QCOMPARE(seen(), marks);

    dialog().setStepCompleted(true, step);
    expected[step - 1] = true;
    styles[step - 1] = completed;
    QCOMPARE(done(), expected);
    QCOMPARE(stepStyles(), styles);
    QCOMPARE(seen(), marks);

    dialog().setStepCompleted(false, step);
    expected[step - 1] = false;
    marks[step - 1] = true;
    // The first step keeps the style it had.
    styles[step - 1] = step == 1 ? QString(completed) : style(step, "focus");
    QCOMPARE(done(), expected);
    QCOMPARE(stepStyles(), styles);
    QCOMPARE(seen(), marks);

    dialog().setStepCompleted(true, step);
    marks[step - 1] = false;
    QCOMPARE(seen(), marks);
}

void TestWizard::tabResultsJoin()
{
    for (int bits = 0; bits < 16; ++bits) {
        const QVector<bool> valid{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0};
        for (int each = 0; each < 4; ++each) {
            dialog().setSettingTabValid(valid.at(each), each);
        }
        QCOMPARE((QVector<bool>{members().results.functionValid, members().results.userValid,
                                members().results.serviceValid, members().results.installationValid}),
                 valid);
        for (int each = 0; each < 4; ++each) {
            QCOMPARE(shown(tabIcons.at(each)), !valid.at(each));
        }
        // Service, the third, takes no part.
        const bool done = valid.at(0) && valid.at(1) && valid.at(3);
        QCOMPARE(members().results.settingDone, done);
        QCOMPARE(shown("labelErrorSetting"), !done);
        QCOMPARE(find("settingButton")->styleSheet(), style(3, done ? "completed" : "focus"));
        QVERIFY(!members().results.productDone && !members().results.dipSwitchDone);
    }
}

void TestWizard::unknownTabJoinsAllTheSame()
{
    for (const int known : {0, 1, 3}) {
        dialog().setSettingTabValid(true, known);
    }
    for (const int unknown : {4, -1}) {
        dialog().setStepCompleted(false, 3);
        dialog().setSettingTabValid(false, unknown);
        QVERIFY(members().results.functionValid && members().results.userValid
                && members().results.installationValid);
        QVERIFY(members().results.settingDone);
        QVERIFY(!shown("labelErrorSetting"));
    }
}

void TestWizard::sectionResultsJoin()
{
    for (int bits = 0; bits < 32; ++bits) {
        dialog().setSettingTabValid(true, 0);
        dialog().setSettingTabValid(true, 1);
        dialog().setSystemSectionValid((bits & 1) != 0);
        dialog().setAutoSectionValid((bits & 2) != 0);
        dialog().setCoolSectionValid((bits & 4) != 0);
        dialog().setDwhSectionValid((bits & 8) != 0);
        dialog().setHeatSectionValid((bits & 16) != 0);
        QCOMPARE((QVector<bool>{members().results.systemSectionValid, members().results.autoSectionValid,
                                members().results.coolSectionValid, members().results.dwhSectionValid,
                                members().results.heatSectionValid}),
                 (QVector<bool>{(bits & 1) != 0, (bits & 2) != 0, (bits & 4) != 0, (bits & 8) != 0,
                                (bits & 16) != 0}));
        for (const bool before : {true, false}) {
            dialog().setSettingTabValid(before, 3);
            dialog().updateInstallationValid();
            const bool all = bits == 31;
            QCOMPARE(members().results.installationValid, all);
            QCOMPARE(shown("installationValidationIcon"), !all);
            QCOMPARE(members().results.settingDone, all);
            QCOMPARE(shown("labelErrorSetting"), !all);
            QCOMPARE(find("settingButton")->styleSheet(), style(3, all ? "completed" : "focus"));
        }
    }
    // The other tabs still count.
    dialog().setSettingTabValid(false, 1);
    dialog().updateInstallationValid();
    QVERIFY(members().results.installationValid && !members().results.settingDone);
}

void TestWizard::sectionSettersOnlySet()
{
    dialog().setSettingTabValid(true, 3);
    const QStringList before = stepStyles();
    for (const auto setter : {&MainDialog::setSystemSectionValid, &MainDialog::setAutoSectionValid,
                              &MainDialog::setCoolSectionValid, &MainDialog::setDwhSectionValid,
                              &MainDialog::setHeatSectionValid}) {
        (dialog().*setter)(false);
        QVERIFY(members().results.installationValid);
        QVERIFY(!shown("installationValidationIcon"));
        QCOMPARE(stepStyles(), before);
    }
}

void TestWizard::captionTellsTheShownPage()
{
    const QList<int> pages{MainDialog::SelectPage, MainDialog::ProductPage, MainDialog::DipSwitchPage,
                           MainDialog::SettingPage, MainDialog::ValidationPage};
    for (const int page : pages) {
        window->showPage(page);
        for (int step = 1; step <= 4; ++step) {
            const QByteArray name = "labelSlide" + QByteArray::number(step);
            const QFont font = Window::find(&window->dialog, name.constData())->font();
            QVERIFY2(font.bold() == (page == step), name.constData());
            QCOMPARE(font.pointSize(), 10);
        }
    }
}

void TestWizard::sideBarIsHiddenBeforeNew()
{
    for (const QByteArray &name : stepButtons) {
        QVERIFY(!find(name)->isVisible());
    }
    Window::click(&dialog(), "newButton");
    for (const QByteArray &name : stepButtons) {
        QVERIFY(find(name)->isVisible());
    }
}

void TestWizard::stepsNeedADocument()
{
    dialog().setSideBarVisible(true);
    setDone({true, true, true});
    for (const char *name : {"productSelectionButton", "dipSwitchButton", "settingButton"}) {
        Window::click(&dialog(), name);
        QCOMPARE(page(), 0);
    }
    QVERIFY(messages::all().isEmpty());
}

void TestWizard::stepsNeedTheOnesBefore_data()
{
    QTest::addColumn<QByteArray>("button");
    QTest::addColumn<QVector<bool>>("done");
    QTest::addColumn<int>("page");
    const auto row = [](const char *name, const char *button, const QVector<bool> &done, int page) {
        QTest::newRow(name) << QByteArray(button) << done << page;
    };
    row("product", "productSelectionButton", {false, false, false}, 1);
    row("dip switch", "dipSwitchButton", {true, false, false}, 2);
    row("dip switch without product", "dipSwitchButton", {false, true, true}, 4);
    row("setting", "settingButton", {true, true, false}, 3);
    row("setting without product", "settingButton", {false, true, true}, 4);
    row("setting without dip switch", "settingButton", {true, false, true}, 4);
    row("setting without either", "settingButton", {false, false, true}, 4);
}

void TestWizard::stepsNeedTheOnesBefore()
{
    QFETCH(QByteArray, button);
    QFETCH(QVector<bool>, done);
    dialog().openNewJsonFile("R32");
    dialog().setSideBarVisible(true);
    window->showPage(MainDialog::ValidationPage);
    setDone(done);
    Window::click(find(button));
    QTEST(page(), "page");
}

void TestWizard::refusedSettingTellsAnotherName()
{
    const QString told = "MainDialog::on_dipSwitchButton_clicked product selection validate fail";
    dialog().openNewJsonFile("R32");
    dialog().setSideBarVisible(true);
    messages::clear();
    Window::click(find("settingButton"));
    QCOMPARE(messages::all(), QStringList{told});
    setDone({true, false, false});
    messages::clear();
    Window::click(find("settingButton"));
    QCOMPARE(messages::all(), QStringList{told});
    QCOMPARE(page(), 0);
    setDone({false, false, false});
    messages::clear();
    Window::click(find("dipSwitchButton"));
    QVERIFY(messages::all().isEmpty());
}

void TestWizard::validationIsAlwaysReached_data()
{
    QTest::addColumn<bool>("document");
    QTest::addColumn<QVector<bool>>("done");
    QTest::addColumn<QString>("text");
    QTest::newRow("nothing") << false << QVector<bool>{false, false, false} << "ErrorMessage";
    QTest::newRow("no product") << true << QVector<bool>{false, true, true} << "ErrorMessage";
    QTest::newRow("no dip switch") << true << QVector<bool>{true, false, true} << "ErrorMessage";
    QTest::newRow("no setting") << true << QVector<bool>{true, true, false} << "ErrorMessage";
    QTest::newRow("all") << true << QVector<bool>{true, true, true} << "CompleteMessage";
    QTest::newRow("all without a document") << false << QVector<bool>{true, true, true} << "CompleteMessage";
}

void TestWizard::validationIsAlwaysReached()
{
    QFETCH(bool, document);
    QFETCH(QVector<bool>, done);
    QFETCH(QString, text);
    if (document) {
        dialog().openNewJsonFile("R32");
    }
    dialog().setSideBarVisible(true);
    setDone(done);
    Window::click(find("validationButton"));
    QCOMPARE(page(), 4);
    QCOMPARE(Window::find<QLabel>(&dialog(), "messageLabel")->text(), dialog().languageValue(text));
    QCOMPARE(find("validationButton")->styleSheet(), style(4, "focus"));
}

void TestWizard::stepButtonsHaveNoEffectWhenDisabled()
{
    dialog().openNewJsonFile("R32");
    dialog().setSideBarVisible(true);
    find("productSelectionButton")->setEnabled(false);
    QTest::mouseClick(find("productSelectionButton"), Qt::LeftButton);
    QCOMPARE(page(), 0);
}

void TestWizard::tabsSwitch_data()
{
    QTest::addColumn<int>("index");
    for (int index = 0; index < 4; ++index) {
        QTest::newRow(tabButtons.at(index)) << index;
    }
}

void TestWizard::tabsSwitch()
{
    QFETCH(int, index);
    QStringList styles{selectedTab, otherTab, otherTab, otherTab};
    QCOMPARE(tabStyles(), styles);
    window->showPage(MainDialog::SettingPage);
    QCOMPARE(underlined(), QVector<int>{0});
    Window::click(find(tabButtons.at((index + 1) % 4)));
    Window::click(find(tabButtons.at(index)));
    styles = QStringList{otherTab, otherTab, otherTab, otherTab};
    styles[index] = selectedTab;
    QCOMPARE(tabStyles(), styles);
    QCOMPARE(underlined(), QVector<int>{index});
    QCOMPARE(tab(), index);
    QCOMPARE(page(), 3);
}

void TestWizard::tabStyleTexts()
{
    QString text;
    QVERIFY(QMetaObject::invokeMethod(&dialog(), "setTabButonStyleSheet", Q_RETURN_ARG(QString, text),
                                      Q_ARG(bool, true)));
    QCOMPARE(text, QString(selectedTab));
    QVERIFY(QMetaObject::invokeMethod(&dialog(), "setTabButonStyleSheet", Q_RETURN_ARG(QString, text),
                                      Q_ARG(bool, false)));
    QCOMPARE(text, QString(otherTab));
}

// The colours go back to the first tab, the underline and the shown tab stay.
void TestWizard::settingStepKeepsItsTab()
{
    dialog().openNewJsonFile("R32");
    dialog().setSideBarVisible(true);
    setDone({true, true, false});
    Window::click(find("settingButton"));
    QCOMPARE(tab(), 0);
    Window::click(find("serviceTabButton"));
    Window::click(find("validationButton"));
    setDone({true, true, false});
    Window::click(find("settingButton"));
    QCOMPARE(page(), 3);
    QCOMPARE(tab(), 2);
    QCOMPARE(underlined(), QVector<int>{2});
    QCOMPARE(tabStyles(), (QStringList{selectedTab, otherTab, otherTab, otherTab}));
}

CALORA_TEST_MAIN(TestWizard)
#include "tst_wizard.moc"
