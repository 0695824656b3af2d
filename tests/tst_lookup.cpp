#include "support/window.h"

#include "languages/languagemenu.h"

#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <sys/stat.h>

// Language files and the lookup of texts. The test has a language folder of its own, which is put back after
// each case.

namespace {

QString folder() { return QCoreApplication::applicationDirPath() + "/language"; }

QString inFolder(const QString &name) { return folder() + '/' + name; }

QString iniPath() { return inFolder("language.ini"); }

void put(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size()) {
        qFatal("Can't write %s", qPrintable(path));
    }
}

QByteArray content(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArrayLiteral("(none)");
}

QByteArray english() { return content(":/language/English.json"); }

/// English with `mark` behind each text.
QByteArray marked(const QString &mark)
{
    QJsonObject texts = QJsonDocument::fromJson(english()).object();
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        text.value() = text.value().toString() + mark;
    }
    return QJsonDocument(texts).toJson();
}

QString quoted(const QString &path) { return '"' + path + '"'; }

const QString emptyText = QStringLiteral("MainDialog::languageValue language value is empty");
const QString unreadable = QStringLiteral("MainDialog::loadLanguageData failed to open file:");
const QString unwritable = QStringLiteral("LanguageMenu::on_listWidget_itemClicked failed to open file:");
const QString notLoaded = QStringLiteral("MainDialog::loadLanguageAnotherPath failed to open file:");

} // namespace

class TestLookup : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void cleanup();

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
    void looksUpValues_data();
    void looksUpValues();
    void looksUpKeys_data();
    void looksUpKeys();
    void sharedTextsGiveTheFirstKey();
    void emptyKeyCountsAsNone();
    void settingADocumentTellsNoPage();
    void snapshotIsApart();
    void savesTheName_data();
    void savesTheName();
    void nameCantBeSaved();
    void unwritableNameReloadsTheOldLanguage();
    void loadsFromAnotherPath_data();
    void loadsFromAnotherPath();
    void loadedFileReplacesItsNamesake();
    void loadedFileMayLieAtItsTarget();
    void linkToItsTargetLosesNothing();
    void loadsABrokenFile();
    void cantLoadFromAnotherPath_data();
    void cantLoadFromAnotherPath();
    void loadedLanguageIsntRemembered();
    void defaultLanguageLiesAtTheRoot();

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

    std::unique_ptr<Window> window;
    std::unique_ptr<QTemporaryDir> elsewhere;
};

void TestLookup::init()
{
    elsewhere = std::make_unique<QTemporaryDir>();
    restart();
    messages::clear();
}

void TestLookup::cleanup()
{
    window.reset();
    QDir(folder()).removeRecursively();
    QDir().mkpath(folder());
    put(iniPath(), "English");
    put(inFolder("English.json"), english());
}

void TestLookup::startsWithTheDeliveredLanguage()
{
    QCOMPARE(dialog().languageIniPath(), iniPath());
    QCOMPARE(currentLanguage(), QString("English"));
    QCOMPARE(dialog().languageDocument(), QJsonDocument::fromJson(english()));
    QCOMPARE(dialog().languageMap().size(), 236);
    QVERIFY(dialog().languageSnapshotMap().isEmpty());
    QCOMPARE(dialog().members().selectText, QString("Select"));
}

void TestLookup::startsWithTheRememberedLanguage()
{
    put(inFolder("Español.json"), marked("+"));
    put(iniPath(), "Español");
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
        QVERIFY(QFile::remove(iniPath()));
    } else {
        put(iniPath(), name);
    }
    messages::clear();
    restart();
    // The forms keep their own texts, and nothing was asked for.
    QCOMPARE(currentLanguage(), shown);
    QCOMPARE(newText(), QString("New"));
    QVERIFY(dialog().languageMap().isEmpty());
    QVERIFY(!messages::contain(emptyText));
    QCOMPARE(messages::all().contains(unreadable), name.isNull());
    QCOMPARE(messages::contain(unreadable + ' '), !name.isNull());
    QCOMPARE(dialog().languageValue("New"), QString());
    QVERIFY(messages::contain(emptyText));
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
    put(inFolder("Other.json"), marked("+"));
    put(iniPath(), "Other");
    dialog().loadLanguageData(iniPath());
    QCOMPARE(currentLanguage(), QString("Other"));
    QCOMPARE(newText(), QString("New+"));
    QCOMPARE(messages::all().value(0),
             "MainDialog::loadLanguageData path: " + quoted(inFolder("Other.json")));
    // The name may stand in any file.
    const QString elsewhereIni = elsewhere->filePath("name.txt");
    put(elsewhereIni, "English");
    dialog().loadLanguageData(elsewhereIni);
    QCOMPARE(currentLanguage(), QString("English"));
    QCOMPARE(newText(), QString("New"));
    QCOMPARE(content(iniPath()), QByteArray("Other"));
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
    QVERIFY(QDir().mkpath(inFolder("Folder.json")));
    QCOMPARE(mkfifo(qPrintable(inFolder("Pipe.json")), 0600), 0);
    put(iniPath(), name);
    dialog().loadLanguageData(iniPath());
    QCOMPARE(currentLanguage(), QString::fromUtf8(name));
    QCOMPARE(messages::all(),
             (QStringList{"MainDialog::loadLanguageData path: " + quoted(folder() + printed),
                          unreadable + ' ' + quoted(folder() + printed)}));
    QCOMPARE(newText(), QString("New"));
    QCOMPARE(dialog().languageMap().size(), 236);
}

void TestLookup::fileHoldsNoTexts_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::newRow("empty file") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("New=Neu\n");
    QTest::newRow("cut off") << english().chopped(5);
    QTest::newRow("array") << QByteArray("[{\"New\":\"Neu\"}]");
    QTest::newRow("text") << QByteArray("\"New\"");
    QTest::newRow("number") << QByteArray("5");
    QTest::newRow("empty object") << QByteArray("{}");
}

void TestLookup::fileHoldsNoTexts()
{
    QFETCH(QByteArray, json);
    put(inFolder("Broken.json"), json);
    put(iniPath(), "Broken");
    QSignalSpy told(&dialog(), &MainDialog::changeInstallationLanguage);
    dialog().loadLanguageData(iniPath());
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
    put(inFolder("Part.json"), "{\"Open\":\"Auf\",\"Language\":\"\",\"R32\":7}");
    put(iniPath(), "Part");
    dialog().loadLanguageData(iniPath());
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

void TestLookup::looksUpValues_data()
{
    QTest::addColumn<QString>("value");
    QTest::addColumn<QString>("textOrKey");
    QTest::newRow("text") << "t"
                          << "t";
    QTest::newRow("lines") << "one\ntwo"
                           << "one\ntwo";
    QTest::newRow("blank") << " "
                           << " ";
    QTest::newRow("number") << "7"
                            << "7";
    QTest::newRow("true") << "true"
                          << "true";
    QTest::newRow("empty") << ""
                           << "empty";
    QTest::newRow("null") << ""
                          << "null";
    QTest::newRow("object") << ""
                            << "object";
    QTest::newRow("list") << ""
                          << "list";
    QTest::newRow("TEXT") << ""
                          << "TEXT";
    QTest::newRow("absent") << ""
                            << "absent";
}

void TestLookup::looksUpValues()
{
    QFETCH(QString, value);
    QFETCH(QString, textOrKey);
    dialog().setLanguageDocument(QJsonDocument::fromJson(
        R"({"text":"t","lines":"one\ntwo","blank":" ","number":7,"true":true,"empty":"","null":null,)"
        R"("object":{"a":"b"},"list":["a"]})"));
    const QString key = QTest::currentDataTag();
    QCOMPARE(dialog().languageTextOrKey(key), textOrKey);
    QVERIFY(messages::all().isEmpty());
    QCOMPARE(dialog().languageValue(key), value);
    QCOMPARE(messages::all(), value.isEmpty() ? QStringList({quoted(key), emptyText}) : QStringList());
}

void TestLookup::looksUpKeys_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("key");
    QTest::newRow("one key") << "Save"
                             << "Save";
    QTest::newRow("another key") << "Calora"
                                 << "AWHP";
    QTest::newRow("with a line break") << "Product\nselection"
                                       << "ProductSelection";
    QTest::newRow("two keys, heat and cool") << "Heating and Cooling"
                                             << "Both";
    QTest::newRow("two keys, address") << "Modbus address"
                                       << "Address";
    QTest::newRow("two keys, outlet") << "Outlet"
                                      << "EXIT";
    QTest::newRow("two keys, inlet") << "Inlet"
                                     << "ENTRANCE";
    QTest::newRow("other case") << "save"
                                << "";
    QTest::newRow("a key, not a text") << "AWHP"
                                       << "";
    QTest::newRow("empty") << ""
                           << "";
}

void TestLookup::looksUpKeys()
{
    QFETCH(QString, text);
    QFETCH(QString, key);
    QCOMPARE(dialog().languageKey(text), key);
    QCOMPARE(dialog().languageKeyOrText(text), key.isEmpty() ? text : key);
    QVERIFY(messages::all().isEmpty());
}

void TestLookup::sharedTextsGiveTheFirstKey()
{
    const QVariantMap texts = dialog().languageMap();
    int shared = 0;
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        QStringList keys = texts.keys(text.value());
        keys.sort();
        QCOMPARE(dialog().languageKey(text->toString()), keys.first());
        shared += keys.size() > 1 ? 1 : 0;
    }
    QCOMPARE(shared, 8);
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
    const QJsonDocument other = QJsonDocument::fromJson(marked("+"));
    dialog().setLanguageDocument(other);
    QCOMPARE(dialog().languageDocument(), other);
    QCOMPARE(dialog().languageMap(), other.object().toVariantMap());
    QCOMPARE(dialog().languageValue("New"), QString("New+"));
    QCOMPARE(before.value("New"), QVariant("New"));
    QCOMPARE(newText(), QString("New"));
    QCOMPARE(told.size(), 0);
    QCOMPARE(content(iniPath()), QByteArray("English"));
}

void TestLookup::snapshotIsApart()
{
    const QVariantMap inForce = dialog().languageMap();
    dialog().setLanguageSnapshot(dialog().languageDocument());
    QCOMPARE(dialog().languageSnapshotMap(), inForce);
    QCOMPARE(dialog().members().languageSnapshot, dialog().languageDocument());
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

void TestLookup::savesTheName_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("longer") << "Brazilian Portuguese";
    QTest::newRow("shorter") << "X";
    QTest::newRow("not Latin") << "日本語";
    QTest::newRow("empty") << "";
    QTest::newRow("line break") << "a\n";
}

void TestLookup::savesTheName()
{
    QFETCH(QString, name);
    dialog().saveLanguageName(name);
    QCOMPARE(content(iniPath()), name.toUtf8());
    QCOMPARE(currentLanguage(), name);
    QVERIFY(QFile::remove(iniPath()));
    dialog().saveLanguageName(name);
    QCOMPARE(content(iniPath()), name.toUtf8());
    QVERIFY(messages::all().isEmpty());
}

void TestLookup::nameCantBeSaved()
{
    QVERIFY(QFile::remove(iniPath()));
    QVERIFY(QDir().mkpath(iniPath()));
    dialog().saveLanguageName("Other");
    QCOMPARE(messages::all(), QStringList{unwritable});
    QCOMPARE(currentLanguage(), QString("English"));
    messages::clear();
    // It can't be read either.
    dialog().loadLanguageData(iniPath());
    QCOMPARE(messages::all(), QStringList{unreadable});
    QCOMPARE(currentLanguage(), QString("English"));
    QCOMPARE(dialog().languageMap().size(), 236);
}

void TestLookup::unwritableNameReloadsTheOldLanguage()
{
    put(inFolder("Other.json"), marked("+"));
    QVERIFY(QFile::setPermissions(iniPath(), QFile::ReadOwner));
    if (QFile ini(iniPath()); ini.open(QIODevice::ReadWrite)) {
        QSKIP("This user may write any file");
    }
    dialog().saveLanguageName("Other");
    QCOMPARE(messages::all(), QStringList{unwritable});
    dialog().loadLanguageData(iniPath());
    QCOMPARE(currentLanguage(), QString("English"));
    QCOMPARE(newText(), QString("New"));
}

void TestLookup::loadsFromAnotherPath_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "Other.json"
                           << "Other";
    QTest::newRow("extension twice") << "Other.json.json"
                                     << "Other";
    QTest::newRow("extension in the middle") << "my.jsonlanguage.json"
                                             << "mylanguage";
    QTest::newRow("upper case extension") << "Other.JSON"
                                          << "Other.JSON";
    QTest::newRow("other extension") << "Other.txt"
                                     << "Other.txt";
    QTest::newRow("nothing but the extension") << ".json"
                                               << "";
    QTest::newRow("not Latin") << "日本 語.json"
                               << "日本 語";
}

void TestLookup::loadsFromAnotherPath()
{
    QFETCH(QString, file);
    QFETCH(QString, name);
    put(elsewhere->filePath(file), marked("+"));
    const auto *popup = dialog().members().languageMenuWidget;
    dialog().setLanguageMenuOpen(true);
    QSignalSpy told(&dialog(), &MainDialog::changeInstallationLanguage);
    dialog().loadLanguageAnotherPath(elsewhere->filePath(file));
    QCOMPARE(content(inFolder(name + ".json")), marked("+"));
    QCOMPARE(content(elsewhere->filePath(file)), marked("+"));
    QCOMPARE(content(iniPath()), name.toUtf8());
    QCOMPARE(currentLanguage(), name);
    QCOMPARE(newText(), QString("New+"));
    QCOMPARE(told.size(), 1);
    // The popup is built anew and stands closed; the old one stays behind.
    QVERIFY(dialog().members().languageMenuWidget != popup);
    QCOMPARE(dialog().findChildren<LanguageMenu *>().size(), 2);
    QVERIFY(!dialog().members().languageMenuOpen);
    QVERIFY(dialog().members().languageMenuWidget->isHidden());
    // The next run speaks it.
    restart();
    QCOMPARE(newText(), QString("New+"));
}

void TestLookup::loadedFileReplacesItsNamesake()
{
    put(inFolder("Other.json"), "{}");
    put(elsewhere->filePath("Other.json"), marked("+"));
    dialog().loadLanguageAnotherPath(elsewhere->filePath("Other.json"));
    QCOMPARE(content(inFolder("Other.json")), marked("+"));
}

void TestLookup::loadedFileMayLieAtItsTarget()
{
    put(inFolder("Other.json"), marked("+"));
    for (const QString &path : {inFolder("Other.json"), folder() + "/../language/./Other.json",
                                QDir::current().relativeFilePath(inFolder("Other.json"))}) {
        dialog().loadLanguageAnotherPath(path);
        QCOMPARE(content(inFolder("Other.json")), marked("+"));
        QCOMPARE(newText(), QString("New+"));
        QCOMPARE(content(iniPath()), QByteArray("Other"));
    }
}

void TestLookup::linkToItsTargetLosesNothing()
{
    put(inFolder("Other.json"), marked("+"));
    QVERIFY(QFile::link(inFolder("Other.json"), elsewhere->filePath("Other.json")));
    dialog().loadLanguageAnotherPath(elsewhere->filePath("Other.json"));
    QCOMPARE(content(inFolder("Other.json")), marked("+"));
    // The other way round: the folder holds the link.
    put(elsewhere->filePath("Far.json"), marked("-"));
    QVERIFY(QFile::link(elsewhere->filePath("Far.json"), inFolder("Far.json")));
    dialog().loadLanguageAnotherPath(elsewhere->filePath("Far.json"));
    QCOMPARE(content(inFolder("Far.json")), marked("-"));
    QCOMPARE(content(elsewhere->filePath("Far.json")), marked("-"));
}

void TestLookup::loadsABrokenFile()
{
    put(elsewhere->filePath("Broken.json"), "{\"New\":");
    dialog().loadLanguageAnotherPath(elsewhere->filePath("Broken.json"));
    QVERIFY(dialog().languageMap().isEmpty());
    QCOMPARE(newText(), QString());
    QCOMPARE(currentLanguage(), QString("Broken"));
    QCOMPARE(content(iniPath()), QByteArray("Broken"));
    QCOMPARE(content(inFolder("Broken.json")), QByteArray("{\"New\":"));
}

void TestLookup::cantLoadFromAnotherPath_data()
{
    QTest::addColumn<QString>("name");
    QTest::newRow("cancelled") << "";
    QTest::newRow("missing") << "Missing.json";
    QTest::newRow("folder") << "Folder.json";
    QTest::newRow("FIFO") << "Pipe.json";
}

void TestLookup::cantLoadFromAnotherPath()
{
    QFETCH(QString, name);
    QVERIFY(QDir().mkpath(elsewhere->filePath("Folder.json")));
    QCOMPARE(mkfifo(qPrintable(elsewhere->filePath("Pipe.json")), 0600), 0);
    const QString path = name.isEmpty() ? QString() : elsewhere->filePath(name);
    const auto *popup = dialog().members().languageMenuWidget;
    dialog().loadLanguageAnotherPath(path);
    QCOMPARE(messages::all(), QStringList{notLoaded + ' ' + quoted(path)});
    QCOMPARE(currentLanguage(), QString("English"));
    QCOMPARE(content(iniPath()), QByteArray("English"));
    QCOMPARE(dialog().languageMap().size(), 236);
    QCOMPARE(dialog().members().languageMenuWidget, popup);
    QCOMPARE(QDir(folder()).entryList(QDir::Files), (QStringList{"English.json", "language.ini"}));
}

void TestLookup::loadedLanguageIsntRemembered()
{
    QVERIFY(QFile::remove(iniPath()));
    QVERIFY(QDir().mkpath(iniPath()));
    put(elsewhere->filePath("Other.json"), marked("+"));
    dialog().loadLanguageAnotherPath(elsewhere->filePath("Other.json"));
    QCOMPARE(messages::all(), QStringList{unwritable});
    QCOMPARE(newText(), QString("New+"));
    QCOMPARE(currentLanguage(), QString("English"));
    QCOMPARE(content(inFolder("Other.json")), marked("+"));
}

void TestLookup::defaultLanguageLiesAtTheRoot()
{
    if (QFile::exists("/language/English.json")) {
        QSKIP("This machine has a file there");
    }
    QSignalSpy told(&dialog(), &MainDialog::changeInstallationLanguage);
    dialog().loadDefaultLanguageJsonFile();
    QCOMPARE(messages::all(),
             QStringList{"MainDialog::loadDefaultLanguageJsonFile failed to open file: "
                         "\"/language/English.json\""});
    QCOMPARE(dialog().languageMap().size(), 236);
    QCOMPARE(told.size(), 0);
}

CALORA_TEST_MAIN(TestLookup)
#include "tst_lookup.moc"
