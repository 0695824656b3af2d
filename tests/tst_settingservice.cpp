#include "support/mouse.h"
#include "support/window.h"

#include "document/util.h"
#include "pages/operation/settingservice.h"

#include <QJsonObject>
#include <QRegExpValidator>

// The Service tab: company, installer and telephone of the service contact.
class TestSettingService : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup() { window.reset(); }

    void takesNoPartInTheLanguageSignal();
    void startsWithTheTextsOfTheForm();
    void newDocumentShowsDashes();
    void showsTheValuesOfTheDocument();
    void loadLeavesTheFieldOfAnEmptyValue();
    void loadTakesTextThatCantBeTyped();
    void typingWritesAtOnce_data();
    void typingWritesAtOnce();
    void emptyingDiffers_data();
    void emptyingDiffers();
    void slotsWriteTheFieldsText_data();
    void slotsWriteTheFieldsText();
    void firstClickSelects_data();
    void firstClickSelects();
    void firstDragSelectsItsOwn();
    void patterns();
    void telephoneRefusesLetters();
    void sixteenthCharacterIsRefused_data();
    void sixteenthCharacterIsRefused();
    void isCompleteOnceShown();
    void checkReportsWithoutChecking();
    void readsByPath();
    void writesIntoAnEmptyDocument();

private:
    void show(const QVariantMap &values);
    QLineEdit *edit(const char *name) const { return Window::find<QLineEdit>(page, name); }

    std::unique_ptr<Window> window;
    SettingService *page = nullptr;
};

void TestSettingService::init()
{
    window = std::make_unique<Window>();
    page = window->page<SettingService>();
    messages::clear();
}

void TestSettingService::show(const QVariantMap &values)
{
    window->use(documents::with(documents::standard("R410"), values));
    window->showPage(MainDialog::SettingPage, MainDialog::ServiceTab);
}

// The dialog calls the page along with its own texts instead.
void TestSettingService::takesNoPartInTheLanguageSignal()
{
    window->dialog.setLanguageDocument(QJsonDocument(QJsonObject{{"Telephone", "~"}}));
    emit window->dialog.changeInstallationLanguage();
    QCOMPARE(Window::find<QLabel>(page, "labelTel")->text(), QStringLiteral("Telephone number"));
    QCOMPARE(window->changes([this] { window->dialog.changeLanguage(); }), QVariantMap());
    QCOMPARE(Window::find<QLabel>(page, "labelTel")->text(), QStringLiteral("~"));
}

void TestSettingService::startsWithTheTextsOfTheForm()
{
    const SettingService fresh;
    const auto text = [&fresh](const char *name) { return Window::find<QLabel>(&fresh, name)->text(); };
    QCOMPARE(text("labelServiceContract"), QStringLiteral("Service Contract"));
    QCOMPARE(text("labelOfficeName"), QStringLiteral("Office name"));
    QCOMPARE(text("labelInstallerName"), QStringLiteral("Installer name"));
    QCOMPARE(text("labelTel"), QStringLiteral("Telephone"));
    QCOMPARE(text("labelTelephoneSubString"),
             QStringLiteral("(Up to 15 digits. combination of numbers and hyphen)"));
    QCOMPARE(edit("lineEditOfficeName")->placeholderText(), QStringLiteral("Typing Text"));
    QCOMPARE(edit("lineEditInstallerName")->placeholderText(), QString());
    QCOMPARE(edit("lineEditTelephone")->placeholderText(), QString());
}

void TestSettingService::newDocumentShowsDashes()
{
    for (const char *refrigerant : {"R410", "R32"}) {
        window->use(documents::standard(refrigerant));
        const QVariantMap changes = window->changes(
            [this] { window->showPage(MainDialog::SettingPage, MainDialog::ServiceTab); });
        QCOMPARE(changes, QVariantMap());
        for (const char *name : {"lineEditOfficeName", "lineEditInstallerName", "lineEditTelephone"}) {
            QCOMPARE(edit(name)->text(), QStringLiteral("-"));
        }
    }
}

void TestSettingService::showsTheValuesOfTheDocument()
{
    show({{"SettingInfo.svc.svcContact.company", "Acme"},
          {"SettingInfo.svc.svcContact.installerName", "Jo"},
          {"SettingInfo.svc.svcContact.phoneNumber", "0-1"}});
    QCOMPARE(edit("lineEditOfficeName")->text(), QStringLiteral("Acme"));
    QCOMPARE(edit("lineEditInstallerName")->text(), QStringLiteral("Jo"));
    QCOMPARE(edit("lineEditTelephone")->text(), QStringLiteral("0-1"));
}

// A field that keeps what it showed isn't written either.
void TestSettingService::loadLeavesTheFieldOfAnEmptyValue()
{
    showsTheValuesOfTheDocument();
    const QJsonDocument emptied = documents::with(documents::standard("R410"),
                                                  {{"SettingInfo.svc.svcContact.company", ""},
                                                   {"SettingInfo.svc.svcContact.installerName", QVariant()},
                                                   {"SettingInfo.svc.svcContact.phoneNumber", 5}});
    window->use(emptied);
    window->showPage(MainDialog::SettingPage, MainDialog::ServiceTab);
    QCOMPARE(window->dialog.document(), emptied);
    QCOMPARE(edit("lineEditOfficeName")->text(), QStringLiteral("Acme"));
    QCOMPARE(edit("lineEditInstallerName")->text(), QStringLiteral("Jo"));
    QCOMPARE(edit("lineEditTelephone")->text(), QStringLiteral("0-1"));
}

void TestSettingService::loadTakesTextThatCantBeTyped()
{
    show({{"SettingInfo.svc.svcContact.company", "sixteen letters.."},
          {"SettingInfo.svc.svcContact.phoneNumber", "call me"}});
    QCOMPARE(edit("lineEditOfficeName")->text(), QStringLiteral("sixteen letters.."));
    QCOMPARE(edit("lineEditTelephone")->text(), QStringLiteral("call me"));
}

void TestSettingService::typingWritesAtOnce_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("lineEditOfficeName") << "SettingInfo.svc.svcContact.company";
    QTest::newRow("lineEditInstallerName") << "SettingInfo.svc.svcContact.installerName";
    QTest::newRow("lineEditTelephone") << "SettingInfo.svc.svcContact.phoneNumber";
}

void TestSettingService::typingWritesAtOnce()
{
    QFETCH(QString, path);
    show({});
    QLineEdit *field = edit(QTest::currentDataTag());
    QCOMPARE(window->changes([field] { Window::type(field, "12"); }), (QVariantMap{{path, "12"}}));
    QCOMPARE(window->changes([field] { QTest::keyClick(field, Qt::Key_3); }), (QVariantMap{{path, "123"}}));
    // Writing checks nothing.
    window->dialog.setSettingTabValid(false, MainDialog::ServiceTab);
    Window::type(field, "4");
    QVERIFY(!window->dialog.members().results.serviceValid);
}

void TestSettingService::emptyingDiffers_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("written");
    QTest::addColumn<QString>("shownAgain");
    QTest::newRow("lineEditOfficeName") << "SettingInfo.svc.svcContact.company"
                                        << "-"
                                        << "-";
    QTest::newRow("lineEditInstallerName") << "SettingInfo.svc.svcContact.installerName"
                                           << ""
                                           << "";
    QTest::newRow("lineEditTelephone") << "SettingInfo.svc.svcContact.phoneNumber"
                                       << ""
                                       << "";
}

void TestSettingService::emptyingDiffers()
{
    QFETCH(QString, path);
    QFETCH(QString, written);
    QFETCH(QString, shownAgain);
    show({{path, "77"}});
    QLineEdit *field = edit(QTest::currentDataTag());
    QCOMPARE(field->text(), QStringLiteral("77"));
    QCOMPARE(window->changes([field] { Window::type(field, ""); }), (QVariantMap{{path, written}}));
    QCOMPARE(field->text(), QString());
    window->showPage(MainDialog::SettingPage, MainDialog::ServiceTab);
    QCOMPARE(field->text(), shownAgain);
}

void TestSettingService::slotsWriteTheFieldsText_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("writtenForNothing");
    QTest::newRow("lineEditOfficeName") << "SettingInfo.svc.svcContact.company"
                                        << "-";
    QTest::newRow("lineEditInstallerName") << "SettingInfo.svc.svcContact.installerName"
                                           << "77";
    QTest::newRow("lineEditTelephone") << "SettingInfo.svc.svcContact.phoneNumber"
                                       << "77";
}

// Whatever text they are told; the company's alone asks whether that is empty.
void TestSettingService::slotsWriteTheFieldsText()
{
    QFETCH(QString, path);
    QFETCH(QString, writtenForNothing);
    show({{path, "77"}});
    window->use(documents::with(documents::standard("R410"), {{path, "x"}}));
    const auto tell = [this](const QString &text) {
        const QByteArray slot = QByteArray("on_") + QTest::currentDataTag() + "_textChanged";
        QVERIFY(QMetaObject::invokeMethod(page, slot, Q_ARG(QString, text)));
    };
    QCOMPARE(window->changes([tell] { tell(QString()); }), (QVariantMap{{path, writtenForNothing}}));
    window->use(documents::with(documents::standard("R410"), {{path, "x"}}));
    QCOMPARE(window->changes([tell] { tell("88"); }), (QVariantMap{{path, "77"}}));
    QCOMPARE(edit(QTest::currentDataTag())->text(), QStringLiteral("77"));
}

void TestSettingService::firstClickSelects_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("lineEditOfficeName") << "company";
    QTest::newRow("lineEditInstallerName") << "installerName";
    QTest::newRow("lineEditTelephone") << "phoneNumber";
}

void TestSettingService::firstClickSelects()
{
    QFETCH(QString, path);
    show({});
    auto *line = edit(QTest::currentDataTag());
    Window::click(&window->dialog, "serviceTabButton");
    QTest::mouseClick(line, Qt::LeftButton);
    QCOMPARE(line->selectedText(), QStringLiteral("-"));
    QTest::keyClicks(line, "12");
    QCOMPARE(line->text(), QStringLiteral("12"));
    QCOMPARE(Util::readJsonValue(window->dialog.document(), "SettingInfo.svc.svcContact." + path).toString(),
             QStringLiteral("12"));
    // Further clicks put the cursor.
    QTest::mouseClick(line, Qt::LeftButton, {}, QPoint(12, line->height() / 2));
    QVERIFY(!line->hasSelectedText());
}

void TestSettingService::firstDragSelectsItsOwn()
{
    show({});
    auto *line = edit("lineEditOfficeName");
    line->setText("abcdefgh");
    mouse::place(window->dialog, QPoint(0, 0));
    mouse::drag(line->mapToGlobal(QPoint(2, line->height() / 2)), QPoint(30, 0));
    QTRY_VERIFY(line->hasSelectedText());
    QVERIFY(line->selectedText() != line->text());
}

void TestSettingService::patterns()
{
    const auto validators = page->findChildren<QRegExpValidator *>(QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(validators.size(), 2);
    QCOMPARE(validators.at(0)->regExp(), QRegExp("^[0-9-]{0,15}$", Qt::CaseSensitive));
    QCOMPARE(validators.at(1)->regExp(), QRegExp(".{0,15}$", Qt::CaseSensitive));
    QCOMPARE(edit("lineEditTelephone")->validator(), validators.at(0));
    QCOMPARE(edit("lineEditInstallerName")->validator(), validators.at(1));
    QCOMPARE(edit("lineEditOfficeName")->validator(), validators.at(1));
}

void TestSettingService::telephoneRefusesLetters()
{
    show({});
    Window::type(edit("lineEditTelephone"), "1a2-B3 4");
    QCOMPARE(edit("lineEditTelephone")->text(), QStringLiteral("12-34"));
    Window::type(edit("lineEditOfficeName"), "a/ 1-?");
    QCOMPARE(edit("lineEditOfficeName")->text(), QStringLiteral("a/ 1-?"));
}

void TestSettingService::sixteenthCharacterIsRefused_data() { typingWritesAtOnce_data(); }

void TestSettingService::sixteenthCharacterIsRefused()
{
    QFETCH(QString, path);
    show({});
    QLineEdit *field = edit(QTest::currentDataTag());
    const QVariantMap changes = window->changes([field] { Window::type(field, "1234567890123456"); });
    QCOMPARE(field->text(), QStringLiteral("123456789012345"));
    QCOMPARE(changes, (QVariantMap{{path, "123456789012345"}}));
}

void TestSettingService::isCompleteOnceShown()
{
    Window::click(&window->dialog, "newButton");
    QVERIFY(!window->dialog.members().results.serviceValid);
    show({});
    QVERIFY(window->dialog.members().results.serviceValid);
    QVERIFY(!Window::shownItself(&window->dialog, "serviceValidationIcon"));
}

void TestSettingService::checkReportsWithoutChecking()
{
    QVERIFY(!window->dialog.members().results.serviceValid);
    Window::invoke(page, "validataionCheck");
    QVERIFY(window->dialog.members().results.serviceValid);
}

void TestSettingService::readsByPath()
{
    show({});
    QJsonValue value;
    QVERIFY(QMetaObject::invokeMethod(page, "parseJsonData", Q_RETURN_ARG(QJsonValue, value),
                                      Q_ARG(QString, "SettingInfo.svc.svcContact.company")));
    QCOMPARE(value, QJsonValue("-"));
}

// The first missing name takes the value itself.
void TestSettingService::writesIntoAnEmptyDocument()
{
    QVERIFY(window->dialog.document().isNull());
    edit("lineEditOfficeName")->setText("x");
    QCOMPARE(window->dialog.document(), QJsonDocument(QJsonObject{{"SettingInfo", "x"}}));
}

CALORA_TEST_MAIN(TestSettingService)
#include "tst_settingservice.moc"
