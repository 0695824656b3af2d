#include "support/documentwindow.h"
#include "support/faults.h"

#include "pages/installation/installationcool.h"
#include "pages/operation/settinguser.h"
#include "pages/product/select.h"

// New and Open, through the real file dialogs.

namespace {

using testfiles::put;
using testfiles::quoted;
using testfiles::resource;
using testfiles::sorted;
using testfiles::unsorted;

} // namespace

class TestDocumentFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { DocumentWindow::useDesktopIn(home); }
    void init() { window = std::make_unique<DocumentWindow>(); }
    void cleanup() { window.reset(); }

    void startsWithoutADocument();
    void newAsksForTheRefrigerantFirst_data();
    void newAsksForTheRefrigerantFirst();
    void newKeepsTheDocumentInForce();
    void newClearsStepsAndTabs();
    void refrigerantLoadsItsDefault_data();
    void refrigerantLoadsItsDefault();
    void secondRefrigerantStartsOver();
    void unknownRefrigerantChangesNothing_data();
    void unknownRefrigerantChangesNothing();
    void opensAFile_data();
    void opensAFile();
    void openDialogLooks();
    void dialogsListJsonFiles();
    void openKeepsTheUnit();
    void openedFahrenheitWaitsForItsRadio();
    void openLoadsTheStandingPageAnew();
    void cancelledOpenChangesNothing_data();
    void cancelledOpenChangesNothing();
    void opensWhatIsNoObject_data();
    void opensWhatIsNoObject();
    void cantOpen_data();
    void cantOpen();
    void failedOpenChangesNothing();

private:
    bool load(const QString &file) const
    {
        bool loaded = false;
        QMetaObject::invokeMethod(&window->dialog, "loadJsonData", Q_RETURN_ARG(bool, loaded),
                                  Q_ARG(QString, file));
        return loaded;
    }

    QTemporaryDir home;
    std::unique_ptr<DocumentWindow> window;
};

void TestDocumentFiles::startsWithoutADocument()
{
    QVERIFY(window->dialog.document().isNull());
    QCOMPARE(window->members().settings.filePath, QString());
    QVERIFY(window->members().settings.isNewFile);
    QCOMPARE(window->shownPath(), QString());
    QCOMPARE(window->dialog.tempUnit(), QString());
    QCOMPARE(window->step(), 0);
    QVERIFY(!Window::visible(&window->dialog, "sideGroupBox"));
    // What is written into no document is dropped.
    window->write("a", 1);
    QVERIFY(window->dialog.document().isNull());
}

void TestDocumentFiles::newAsksForTheRefrigerantFirst_data()
{
    QTest::addColumn<bool>("toolBar");
    QTest::newRow("tool bar") << true;
    QTest::newRow("first page") << false;
}

void TestDocumentFiles::newAsksForTheRefrigerantFirst()
{
    QFETCH(bool, toolBar);
    if (toolBar) {
        window->clickNew();
    } else {
        Window::click(window->page<Select>(), "newButton");
    }
    QCOMPARE(window->step(), 1);
    QVERIFY(Window::visible(&window->dialog, "sideGroupBox"));
    QVERIFY(window->dialog.document().isNull());
    QCOMPARE(window->members().settings.filePath, QString());
    QVERIFY(window->members().settings.isNewFile);
    QCOMPARE(window->shownPath(), QString());
    QVERIFY(!messages::contain("Load Json Data!!"));
}

void TestDocumentFiles::newKeepsTheDocumentInForce()
{
    put(window->path("a.json"), unsorted);
    window->open(window->path("a.json"));
    QVERIFY(!Window::enabled(&window->dialog, "productSelectionButton"));
    window->clickNew();
    QCOMPARE(window->dialog.document(), QJsonDocument::fromJson(unsorted));
    QCOMPARE(window->members().settings.filePath, window->path("a.json"));
    QVERIFY(!window->members().settings.isNewFile);
    QCOMPARE(window->shownPath(), window->path("a.json"));
    QVERIFY(Window::enabled(&window->dialog, "productSelectionButton"));
    QCOMPARE(window->step(), 1);
    for (const char *radio : {"radioButtonR32", "radioButtonR410", "radioButtonMiddleTemp"}) {
        QVERIFY(!Window::checked(window->page<ProductSelection>(), radio));
    }
}

void TestDocumentFiles::newClearsStepsAndTabs()
{
    window->completeSteps();
    for (const int tab : {0, 1, 2, 3}) {
        window->dialog.setSettingTabValid(true, tab);
    }
    for (const auto setter : {&MainDialog::setSystemSectionValid, &MainDialog::setAutoSectionValid,
                              &MainDialog::setCoolSectionValid, &MainDialog::setDwhSectionValid,
                              &MainDialog::setHeatSectionValid}) {
        (window->dialog.*setter)(true);
    }
    window->clickNew();
    QVERIFY(!window->members().results.productDone && !window->members().results.dipSwitchDone
            && !window->members().results.settingDone);
    QVERIFY(!window->members().results.functionValid && !window->members().results.userValid
            && !window->members().results.serviceValid && !window->members().results.installationValid);
    QVERIFY(window->members().results.systemSectionValid && window->members().results.autoSectionValid
            && window->members().results.coolSectionValid && window->members().results.dwhSectionValid
            && window->members().results.heatSectionValid);
    for (const char *icon : {"functionValidationIcon", "userValidationIcon", "serviceValidationIcon",
                             "installationValidationIcon"}) {
        QVERIFY2(Window::shownItself(&window->dialog, icon), icon);
    }
}

void TestDocumentFiles::refrigerantLoadsItsDefault_data()
{
    QTest::addColumn<QString>("refrigerant");
    QTest::addColumn<QString>("name");
    QTest::newRow("R32") << "R32"
                         << "R32";
    QTest::newRow("R410") << "R410"
                          << "R410";
    QTest::newRow("r32") << "r32"
                         << "R32";
    QTest::newRow("r410") << "r410"
                          << "R410";
}

void TestDocumentFiles::refrigerantLoadsItsDefault()
{
    QFETCH(QString, refrigerant);
    QFETCH(QString, name);
    put(window->path("a.json"), unsorted);
    window->open(window->path("a.json"));
    window->dialog.setTempUnit("FAHRENHEIT");
    QVERIFY(window->dialog.openNewJsonFile(refrigerant));
    QCOMPARE(window->dialog.document(), documents::standard(name));
    QCOMPARE(window->members().settings.filePath, resource(name));
    QVERIFY(window->members().settings.isNewFile);
    QCOMPARE(window->shownPath(), name);
    QCOMPARE(window->dialog.tempUnit(), QString("CENTIGRADE"));
}

void TestDocumentFiles::secondRefrigerantStartsOver()
{
    window->clickNew();
    window->chooseRefrigerant("radioButtonR32");
    window->write("SettingInfo.user.themeSet", "edited");
    QCOMPARE(documents::changes(documents::standard("R32"), window->dialog.document()),
             (QVariantMap{{"SettingInfo.user.themeSet", "edited"}}));
    window->chooseRefrigerant("radioButtonR410");
    QCOMPARE(window->dialog.document(), documents::standard("R410"));
    QCOMPARE(window->shownPath(), QString("R410"));
}

void TestDocumentFiles::unknownRefrigerantChangesNothing_data()
{
    QTest::addColumn<QString>("refrigerant");
    for (const char *text : {"", "R410A", "R", " R32", "R290"}) {
        QTest::newRow(*text == '\0' ? "(empty)" : text) << text;
    }
}

void TestDocumentFiles::unknownRefrigerantChangesNothing()
{
    QFETCH(QString, refrigerant);
    window->dialog.openNewJsonFile("R32");
    messages::clear();
    QVERIFY(!window->dialog.openNewJsonFile(refrigerant));
    QCOMPARE(DocumentWindow::told(),
             (QStringList{"Load Json Data!!", "MainDialog::loadJsonData failed to open file: \"\"",
                          "MainDialog::openNewJsonFile load json data failed"}));
    QCOMPARE(window->dialog.document(), documents::standard("R32"));
    QCOMPARE(window->members().settings.filePath, resource("R32"));
    QCOMPARE(window->shownPath(), QString("R32"));
}

void TestDocumentFiles::opensAFile_data() { newAsksForTheRefrigerantFirst_data(); }

void TestDocumentFiles::opensAFile()
{
    QFETCH(bool, toolBar);
    put(window->path("a.json"), unsorted);
    auto *button = toolBar ? Window::find(&window->dialog, "openButton")
                           : Window::find(window->page<Select>(), "openButton");
    window->dialog.setStepCompleted(false, 1);
    messages::clear();
    filedialogs::answer([&] { Window::click(button); }, window->path("a.json"));
    QCOMPARE(window->dialog.document(), QJsonDocument::fromJson(unsorted));
    QCOMPARE(window->members().settings.filePath, window->path("a.json"));
    QVERIFY(!window->members().settings.isNewFile);
    QCOMPARE(window->shownPath(), window->path("a.json"));
    QVERIFY(Window::visible(&window->dialog, "sideGroupBox"));
    QCOMPARE(window->step(), 2);
    QVERIFY(window->members().results.productDone);
    auto *step = Window::find(&window->dialog, "productSelectionButton");
    QVERIFY(!step->isEnabled());
    QCOMPARE(step->styleSheet(),
             QString("QPushButton {border : none;outline : none;background-image: "
                     "url(:/images/btn_step_completed.png);}"));
    QVERIFY(!Window::shownItself(&window->dialog, "labelErrorProduct"));
    QVERIFY(!messages::contain("failed to open"));
    QCOMPARE(DocumentWindow::told().mid(0, 2),
             (QStringList{"MainDialog::openJsonFile  selectedFile: " + quoted(window->path("a.json")),
                          "Load Json Data!!"}));
}

void TestDocumentFiles::openDialogLooks()
{
    for (const QString &file : {QString(), window->path("a.json")}) {
        put(window->path("a.json"), unsorted);
        const filedialogs::Seen seen = window->open(file);
        QCOMPARE(seen.title, QString("Json File"));
        QCOMPARE(seen.folder, DocumentWindow::desktop(home));
        QCOMPARE(seen.filter, QString("JSON File(*.json;)"));
    }
    // It starts there again, whatever file was used before.
    QCOMPARE(window->open(QString()).folder, DocumentWindow::desktop(home));
}

void TestDocumentFiles::dialogsListJsonFiles()
{
    const QDir desktop(DocumentWindow::desktop(home));
    for (const char *name : {"a.json", "b.txt", "C.JSON", "json"}) {
        put(desktop.filePath(name), unsorted);
    }
    const QStringList expected{"a.json", "C.JSON"};
    for (const bool choosesFilter : {false, true}) {
        QCOMPARE(filedialogs::listed([this] { Window::click(&window->dialog, "openButton"); }, choosesFilter),
                 expected);
    }
    window->dialog.openNewJsonFile("R32");
    window->completeSteps();
    QCOMPARE(filedialogs::listed([this] { Window::click(&window->dialog, "saveButton"); }), expected);
    for (const char *name : {"a.json", "b.txt", "C.JSON", "json"}) {
        QFile::remove(desktop.filePath(name));
    }
}

void TestDocumentFiles::openKeepsTheUnit()
{
    const QVariantMap fahrenheit{{"SettingInfo.user.tempUnit.tempConversion", "FAHRENHEIT"}};
    put(window->path("f.json"), documents::with(documents::standard("R32"), fahrenheit).toJson());
    window->open(window->path("f.json"));
    QCOMPARE(window->dialog.tempUnit(), QString());
    QVERIFY(!window->dialog.isFahrenheit());
    window->dialog.openNewJsonFile("R410");
    window->open(window->path("f.json"));
    QCOMPARE(window->dialog.tempUnit(), QString("CENTIGRADE"));
    put(window->path("c.json"), documents::standard("R32").toJson());
    window->dialog.setTempUnit("FAHRENHEIT");
    window->open(window->path("c.json"));
    QCOMPARE(window->dialog.tempUnit(), QString("FAHRENHEIT"));
}

// In a fresh run the lists are in °C though the file, and so the User tab, tell otherwise.
void TestDocumentFiles::openedFahrenheitWaitsForItsRadio()
{
    const QVariantMap fahrenheit{{"SettingInfo.user.tempUnit.tempConversion", "FAHRENHEIT"}};
    put(window->path("f.json"), documents::with(documents::standard("R32"), fahrenheit).toJson());
    window->open(window->path("f.json"));
    const auto limits = [this] {
        window->showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
        return Window::items(window->page<InstallationCool>(), "comboTemperatureIndoorMax");
    };
    const QStringList celsius{"24°C", "25°C", "26°C", "27°C", "28°C", "29°C", "30°C"};
    QCOMPARE(limits(), celsius);
    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    QVERIFY(Window::checked(window->page<SettingUser>(), "radioFahreheit"));
    QCOMPARE(limits(), celsius);
    window->showPage(MainDialog::SettingPage, MainDialog::UserTab);
    Window::click(window->page<SettingUser>(), "radioFahreheit");
    QCOMPARE(window->dialog.tempUnit(), QString("FAHRENHEIT"));
    QCOMPARE(limits(), (QStringList{"76°F", "78°F", "80°F", "82°F", "84°F", "86°F"}));
}

// Both pages are shown for Open, also when the wizard stands on one of them.
void TestDocumentFiles::openLoadsTheStandingPageAnew()
{
    put(window->path("a.json"), unsorted);
    QVector<int> seen;
    connect(Window::find<QStackedWidget>(&window->dialog, "stackedWidget"), &QStackedWidget::currentChanged,
            this, [&](int index) { seen.append(index); });
    window->open(window->path("a.json"));
    QCOMPARE(seen, (QVector<int>{1, 2}));
    window->open(window->path("a.json"));
    QCOMPARE(seen, (QVector<int>{1, 2, 1, 2}));
    window->clickNew();
    window->open(window->path("a.json"));
    QCOMPARE(seen, (QVector<int>{1, 2, 1, 2, 1, 2}));
}

void TestDocumentFiles::cancelledOpenChangesNothing_data() { newAsksForTheRefrigerantFirst_data(); }

void TestDocumentFiles::cancelledOpenChangesNothing()
{
    QFETCH(bool, toolBar);
    auto *button = toolBar ? Window::find(&window->dialog, "openButton")
                           : Window::find(window->page<Select>(), "openButton");
    const auto seen = filedialogs::answer([&] { Window::click(button); }, QString());
    QCOMPARE(seen.title, QString("Json File"));
    QVERIFY(window->dialog.document().isNull());
    QCOMPARE(window->members().settings.filePath, QString());
    QVERIFY(window->members().settings.isNewFile);
    QCOMPARE(window->shownPath(), QString());
    QCOMPARE(window->step(), 0);
    QVERIFY(!Window::visible(&window->dialog, "sideGroupBox"));
    QVERIFY(Window::enabled(&window->dialog, "productSelectionButton"));
    QVERIFY(!window->members().results.productDone);
    QCOMPARE(DocumentWindow::told().last(),
             toolBar ? QString("MainDialog::on_openButton_clicked open failed")
                     : QString("Select::clickedOpenButton load json file open failed"));
    QVERIFY(!messages::contain("Load Json Data!!"));
}

void TestDocumentFiles::opensWhatIsNoObject_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<QByteArray>("document");
    QTest::newRow("empty") << QByteArray() << QByteArray();
    QTest::newRow("text") << QByteArray("Dear installer,\n") << QByteArray();
    QTest::newRow("cut off") << unsorted.chopped(4) << QByteArray();
    QTest::newRow("something behind") << unsorted + '}' << QByteArray();
    QTest::newRow("comment") << "// set\n" + unsorted << QByteArray();
    QTest::newRow("number") << QByteArray("5") << QByteArray();
    QTest::newRow("string") << QByteArray("\"a\"") << QByteArray();
    QTest::newRow("null") << QByteArray("null") << QByteArray();
    QTest::newRow("zeros") << QByteArray(100, '\0') << QByteArray();
    QTest::newRow("UTF-16") << QByteArray("\xFF\xFE{\0}\0", 6) << QByteArray();
    QTest::newRow("array") << QByteArray(R"([{"product":"awhp"}])") << QByteArray(R"([{"product":"awhp"}])");
    QTest::newRow("empty array") << QByteArray("[]") << QByteArray("[]");
    QTest::newRow("empty object") << QByteArray("{}") << QByteArray("{}");
    QTest::newRow("byte-order mark") << "\xEF\xBB\xBF" + unsorted << sorted;
}

void TestDocumentFiles::opensWhatIsNoObject()
{
    QFETCH(QByteArray, bytes);
    QFETCH(QByteArray, document);
    window->dialog.openNewJsonFile("R32");
    put(window->path("a.json"), bytes);
    QVERIFY(load(window->path("a.json")));
    QCOMPARE(window->dialog.document().isNull(), document.isEmpty());
    QCOMPARE(window->dialog.document().toJson(QJsonDocument::Compact), document);

    window->open(window->path("a.json"));
    QCOMPARE(window->members().settings.filePath, window->path("a.json"));
    QCOMPARE(window->shownPath(), window->path("a.json"));
    QCOMPARE(window->step(), 2);
    QVERIFY(window->members().results.productDone);
    QCOMPARE(DocumentWindow::told().filter("failed to open"), QStringList());
    // Into no document nothing is written.
    window->write("a.b", "w");
    QCOMPARE(window->dialog.document().isNull(), document.isEmpty());
}

void TestDocumentFiles::cantOpen_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"missing.json", "folder.json", "pipe.json", "nowhere/a.json", ""}) {
        QTest::newRow(*name == '\0' ? "(the folder itself)" : name) << name;
    }
}

void TestDocumentFiles::cantOpen()
{
    QFETCH(QString, name);
    QVERIFY(QDir().mkpath(window->path("folder.json")));
    if (name == "pipe.json" && !faults::pipe(window->path(name)).holds) {
        QSKIP("This machine has no FIFOs");
    }
    window->dialog.openNewJsonFile("R32");
    messages::clear();
    QVERIFY(!load(window->path(name)));
    QCOMPARE(DocumentWindow::told(),
             (QStringList{"Load Json Data!!",
                          "MainDialog::loadJsonData failed to open file: " + quoted(window->path(name))}));
    QCOMPARE(window->dialog.document(), documents::standard("R32"));
}

void TestDocumentFiles::failedOpenChangesNothing()
{
    const QString pipe = window->path("pipe.json");
    if (!faults::pipe(pipe).holds) {
        QSKIP("This machine has no FIFOs");
    }
    window->clickNew();
    window->chooseRefrigerant("radioButtonR32");
    messages::clear();
    window->open(pipe);
    QCOMPARE(DocumentWindow::told(),
             (QStringList{"MainDialog::openJsonFile  selectedFile: " + quoted(pipe), "Load Json Data!!",
                          "MainDialog::loadJsonData failed to open file: " + quoted(pipe),
                          "MainDialog::openJsonFile load json data failed",
                          "MainDialog::on_openButton_clicked open failed"}));
    QCOMPARE(window->dialog.document(), documents::standard("R32"));
    QCOMPARE(window->members().settings.filePath, resource("R32"));
    QVERIFY(window->members().settings.isNewFile);
    QCOMPARE(window->shownPath(), QString("R32"));
    QCOMPARE(window->step(), 1);
    QVERIFY(!window->members().results.productDone);
    QVERIFY(Window::enabled(&window->dialog, "productSelectionButton"));
}

CALORA_TEST_MAIN(TestDocumentFiles)
#include "tst_documentfiles.moc"
