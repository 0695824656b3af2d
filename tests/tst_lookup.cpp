#include "support/faults.h"
#include "support/languagefolder.h"
#include "support/window.h"

#include <QSignalSpy>

// The language in force and the lookup of texts.

namespace {

using testfiles::content;
using testfiles::put;
using testfiles::quoted;

const QString emptyText = QStringLiteral("MainDialog::languageValue language value is empty");
const QString unreadable = QStringLiteral("MainDialog::loadLanguageData failed to open file:");

} // namespace

class TestLookup : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        // The rows of a function share a window.
        if (function != QTest::currentTestFunction()) {
            function = QTest::currentTestFunction();
            restart();
        }
        messages::clear();
    }
    void cleanup() { languagefolder::restore(); }
    void cleanupTestCase() { window.reset(); }

    void startsWithTheDeliveredLanguage();
    void startsWithTheRememberedLanguage();
    void startsWithoutALanguage_data();
    void startsWithoutALanguage();
    void setsTheTextsOfTheWindow_data();
    void setsTheTextsOfTheWindow();
    void languageChangeReachesEveryPage();
    void languageChangeLeavesTheDocument();
    void loadsTheNamedLanguage();
    void namedFileCantBeOpened_data();
    void namedFileCantBeOpened();
    void fileHoldsNoTexts_data();
    void fileHoldsNoTexts();
    void missingKeysLogAPairEach();
    void emptyKeyCountsAsNone();
    void settingADocumentTellsNoPage();
    void snapshotIsApart();

private:
    MainDialog &dialog() const { return window->dialog; }
    QString currentLanguage() const
    {
        return Window::find<QLabel>(&dialog(), "labelCurrentLanguage")->text();
    }
    QString newText() const { return Window::find<QPushButton>(&dialog(), "newButton")->text(); }
    void restart()
    {
        window.reset();
        window = std::make_unique<Window>();
    }

    QByteArray function;
    std::unique_ptr<Window> window;
};

void TestLookup::startsWithTheDeliveredLanguage()
{
    QCOMPARE(dialog().languageIniPath(), languagefolder::iniPath());
    QCOMPARE(currentLanguage(), QString("English"));
    QCOMPARE(dialog().languageDocument(), QJsonDocument::fromJson(languagefolder::english()));
    QCOMPARE(dialog().languageMap().size(), languagefolder::textCount());
    QVERIFY(dialog().languageSnapshotMap().isEmpty());
    QCOMPARE(dialog().members().selectText, QString("Select"));
}

void TestLookup::startsWithTheRememberedLanguage()
{
    put(languagefolder::file("Español.json"), languagefolder::marked("+"));
    put(languagefolder::iniPath(), "Español");
    restart();
    QCOMPARE(currentLanguage(), QString("Español"));
    QCOMPARE(newText(), QString("New+"));
    QCOMPARE(dialog().members().selectText, QString("Select+"));
}

void TestLookup::startsWithoutALanguage_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("shown");
    QTest::newRow("no file of that name") << QByteArray("Latin") << "Latin";
    QTest::newRow("a line break behind the name") << QByteArray("English\n") << "English\n";
    QTest::newRow("an empty name") << QByteArray("") << "";
    QTest::newRow("no language.ini") << QByteArray() << "English";
}

void TestLookup::startsWithoutALanguage()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, shown);
    if (name.isNull()) {
        QVERIFY(QFile::remove(languagefolder::iniPath()));
    } else {
        put(languagefolder::iniPath(), name);
    }
    messages::clear();
    restart();
    // The forms keep their own texts: no language change ran, in which the first page asks for this key.
    QCOMPARE(currentLanguage(), shown);
    QCOMPARE(newText(), QString("New"));
    QVERIFY(dialog().languageMap().isEmpty());
    QVERIFY(!messages::all().contains(quoted("SubText")));
    QCOMPARE(messages::all().contains(unreadable), name.isNull());
    QCOMPARE(messages::contain(unreadable + ' '), !name.isNull());
    messages::clear();
    QCOMPARE(dialog().languageValue("New"), QString());
    QCOMPARE(messages::all(), (QStringList{quoted("New"), emptyText}));
}

void TestLookup::setsTheTextsOfTheWindow_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("newButton") << "New";
    QTest::newRow("openButton") << "Open";
    QTest::newRow("saveButton") << "Save";
    QTest::newRow("labelLanguage") << "Language";
    QTest::newRow("labelSlide1") << "Product\nselection";
    QTest::newRow("labelSlide2") << "Environment\nsetting";
    QTest::newRow("labelSlide3") << "Operation\nsetting";
    QTest::newRow("labelSlide4") << "Validation";
}

void TestLookup::setsTheTextsOfTheWindow()
{
    QFETCH(QString, text);
    const auto *widget = Window::find(&dialog(), QTest::currentDataTag());
    window->speak();
    QCOMPARE(widget->property("text").toString(), text);
    window->speak("~");
    QCOMPARE(widget->property("text").toString(), text + '~');
}

void TestLookup::languageChangeReachesEveryPage()
{
    QSignalSpy told(&dialog(), &MainDialog::changeInstallationLanguage);
    window->speak("~");
    QCOMPARE(told.size(), 1);
    QCOMPARE(dialog().members().selectText, QString("Select~"));
    QCOMPARE(Window::find<QLabel>(&dialog(), "label_newopen")->text(), QString("Please select new or open~"));
    QCOMPARE(Window::find<QLabel>(&dialog(), "labelProductType")->text(), QString("Product type~"));
    QCOMPARE(Window::find<QLabel>(&dialog(), "messageLabel")->text(), dialog().languageValue("ErrorMessage"));
    QVERIFY(dialog().languageValue("ErrorMessage").endsWith('~'));
}

void TestLookup::languageChangeLeavesTheDocument()
{
    window->use(documents::standard("R32"));
    window->speak("~");
    QCOMPARE(dialog().document().toJson(), documents::standard("R32").toJson());
}

void TestLookup::loadsTheNamedLanguage()
{
    put(languagefolder::file("Other.json"), languagefolder::marked("+"));
    put(languagefolder::iniPath(), "Other");
    dialog().loadLanguageData(languagefolder::iniPath());
    QCOMPARE(currentLanguage(), QString("Other"));
    QCOMPARE(newText(), QString("New+"));
    QCOMPARE(messages::all().value(0),
             "MainDialog::loadLanguageData path: " + quoted(languagefolder::file("Other.json")));
    // The name may stand in any file.
    const QString elsewhereIni = languagefolder::file("name.txt");
    put(elsewhereIni, "English");
    dialog().loadLanguageData(elsewhereIni);
    QCOMPARE(currentLanguage(), QString("English"));
    QCOMPARE(newText(), QString("New"));
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("Other"));
}

void TestLookup::namedFileCantBeOpened_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("printed");
    QTest::newRow("missing") << QByteArray("Latin") << "/Latin.json";
    QTest::newRow("line break") << QByteArray("English\r\n") << "/English\\r\\n.json";
    QTest::newRow("blank") << QByteArray("English ") << "/English .json";
    QTest::newRow("upper case extension") << QByteArray("English.JSON") << "/English.JSON.json";
    QTest::newRow("folder") << QByteArray("Folder") << "/Folder.json";
    QTest::newRow("FIFO") << QByteArray("Pipe") << "/Pipe.json";
}

void TestLookup::namedFileCantBeOpened()
{
    QFETCH(QByteArray, name);
    QFETCH(QString, printed);
    QVERIFY(QDir().mkpath(languagefolder::file("Folder.json")));
    if (name == "Pipe" && !faults::pipe(languagefolder::file("Pipe.json")).holds) {
        QSKIP("This machine has no FIFOs");
    }
    put(languagefolder::iniPath(), name);
    dialog().loadLanguageData(languagefolder::iniPath());
    QCOMPARE(currentLanguage(), QString::fromUtf8(name));
    QCOMPARE(messages::all(),
             (QStringList{"MainDialog::loadLanguageData path: " + quoted(languagefolder::path() + printed),
                          unreadable + ' ' + quoted(languagefolder::path() + printed)}));
    QCOMPARE(newText(), QString("New"));
    QCOMPARE(dialog().languageMap().size(), languagefolder::textCount());
}

void TestLookup::fileHoldsNoTexts_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("New=Neu\n");
    QTest::newRow("cut off") << languagefolder::english().chopped(5);
    QTest::newRow("array") << QByteArray(R"([{"New":"Neu"}])");
    QTest::newRow("text") << QByteArray("\"New\"");
    QTest::newRow("number") << QByteArray("5");
    QTest::newRow("empty object") << QByteArray("{}");
}

void TestLookup::fileHoldsNoTexts()
{
    QFETCH(QByteArray, json);
    put(languagefolder::file("Broken.json"), json);
    put(languagefolder::iniPath(), "Broken");
    QSignalSpy told(&dialog(), &MainDialog::changeInstallationLanguage);
    dialog().loadLanguageData(languagefolder::iniPath());
    QVERIFY(dialog().languageMap().isEmpty());
    QCOMPARE(told.size(), 1);
    QCOMPARE(currentLanguage(), QString("Broken"));
    QCOMPARE(dialog().members().selectText, QString());
    for (const char *name : {"newButton", "saveButton", "labelLanguage", "labelSlide1", "labelSlide4",
                             "label_newopen", "labelProductType", "radioButtonR32", "messageLabel"}) {
        QCOMPARE(Window::find(&dialog(), name)->property("text").toString(), QString());
    }
    QVERIFY(!messages::contain(unreadable));
}

void TestLookup::missingKeysLogAPairEach()
{
    put(languagefolder::file("Part.json"), R"({"Open":"Auf","Language":"","R32":7})");
    put(languagefolder::iniPath(), "Part");
    dialog().loadLanguageData(languagefolder::iniPath());
    // What is asked for in the window and on the pages that are called first, in this order.
    const QStringList keys{"New",
                           "Save",
                           "Language",
                           "ProductSelection",
                           "DipSwitchSettingStatus",
                           "Setting",
                           "Validation",
                           "Function",
                           "Installation",
                           "Service",
                           "User",
                           "Select",
                           "New",
                           "SubText",
                           "Producttype",
                           "AWHP",
                           "Aquabox",
                           "ProductSpec",
                           "MediumTemperature",
                           "HighTemperature",
                           "RefrigerantType",
                           "R410A"};
    QStringList pairs;
    for (const QString &key : keys) {
        pairs << quoted(key) << emptyText;
    }
    QCOMPARE(messages::all().mid(1, pairs.size()), pairs);
    QCOMPARE(newText(), QString());
    QCOMPARE(Window::find<QPushButton>(&dialog(), "openButton")->text(), QString("Auf"));
    QCOMPARE(Window::find<QRadioButton>(&dialog(), "radioButtonR32")->text(), QString("7"));
}

void TestLookup::emptyKeyCountsAsNone()
{
    dialog().setLanguageDocument(QJsonDocument::fromJson(R"({"":"t","a":"","b":"u"})"));
    QCOMPARE(dialog().languageKey("t"), QString());
    QCOMPARE(dialog().languageKeyOrText("t"), QString("t"));
    QCOMPARE(dialog().languageKey(""), QString("a"));
    QCOMPARE(dialog().languageKeyOrText(""), QString("a"));
    QCOMPARE(dialog().languageValue(""), QString("t"));
}

void TestLookup::settingADocumentTellsNoPage()
{
    QSignalSpy told(&dialog(), &MainDialog::changeInstallationLanguage);
    const QVariantMap before = dialog().languageMap();
    const QJsonDocument other = QJsonDocument::fromJson(languagefolder::marked("+"));
    dialog().setLanguageDocument(other);
    QCOMPARE(dialog().languageDocument(), other);
    QCOMPARE(dialog().languageMap(), other.object().toVariantMap());
    QCOMPARE(dialog().languageValue("New"), QString("New+"));
    QCOMPARE(before.value("New"), QVariant("New"));
    QCOMPARE(newText(), QString("New"));
    QCOMPARE(told.size(), 0);
    QCOMPARE(content(languagefolder::iniPath()), QByteArray("English"));
}

void TestLookup::snapshotIsApart()
{
    const QVariantMap inForce = dialog().languageMap();
    dialog().setLanguageSnapshot(dialog().languageDocument());
    QCOMPARE(dialog().languageSnapshotMap(), inForce);
    QCOMPARE(dialog().members().languages.snapshot.document, dialog().languageDocument());
    const QVariantMap taken = dialog().languageSnapshotMap();
    dialog().setLanguageSnapshotText("New", "Neu");
    dialog().setLanguageSnapshotText("Added", "x");
    QVariantMap edited = inForce;
    edited["New"] = "Neu";
    edited["Added"] = "x";
    QCOMPARE(dialog().languageSnapshotMap(), edited);
    QCOMPARE(taken, inForce);
    QCOMPARE(dialog().languageMap(), inForce);
    dialog().setLanguageSnapshot(QJsonDocument());
    QVERIFY(dialog().languageSnapshotMap().isEmpty());
}

CALORA_TEST_MAIN(TestLookup)
#include "tst_lookup.moc"
