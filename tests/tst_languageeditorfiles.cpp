#include "support/editortest.h"
#include "support/modal.h"
#include "support/mouse.h"

#include "languages/languagemenu.h"

#include <QChildEvent>
#include <QFileDialog>
#include <QSignalSpy>
#include <QTemporaryDir>

// What the language editor opens and saves.

namespace {

using testfiles::content;
using testfiles::put;
using testfiles::quoted;

QByteArray asFile(const QMap<QString, QVariant> &texts)
{
    return QJsonDocument(QJsonObject::fromVariantMap(texts)).toJson();
}

/// Tells in the log when a widget gets a child.
class ChildWatch : public QObject
{
public:
    bool eventFilter(QObject *, QEvent *event) override
    {
        if (event->type() == QEvent::ChildAdded) {
            qDebug() << "child";
        }
        return false;
    }
};

} // namespace

class TestLanguageEditorFiles : public EditorTest
{
    Q_OBJECT

private slots:
    void initTestCase() { mouse::moveTo(QPoint(2, 2)); }
    void init() { open(); }
    void cleanup() { close(); }

    void fileDialogsLookPlain_data();
    void fileDialogsLookPlain();
    void opensAFile();
    void dialogsListLanguageFiles();
    void openIsCancelled();
    void fileCantBeOpened();
    void openedFileHoldsNoTexts_data();
    void openedFileHoldsNoTexts();
    void openedFileStaysInForceAfterClose();
    void savesANewLanguage();
    void saveGoesInOrder();
    void saveIsCancelled();
    void saveCantWrite();
    void nameLosesItsExtension_data();
    void nameLosesItsExtension();
    void savesWhatWasEditedNotWhatWasOpened();
    void addsTextsThatAreMissing();
    void savesOverAFile();
    void savesOverTheOpenedFile();
    void cancelledSaveLosesReferences();
    void fileCantBeSavedOver();
    void savesNoFile();
    void languageOutlivesTheRun();

private:
    /// Types a mark behind each text and saves.
    static void makeLanguage(UserLanguageEditPopup *made)
    {
        auto *rows = Window::find<QListWidget>(made, "listWidget");
        for (int index = 0; index < rows->count(); ++index) {
            auto *line = Window::find<QLineEdit>(rows->itemWidget(rows->item(index)), "lineEdit");
            line->setFocus();
            QTest::keyClick(line, Qt::Key_End);
            QTest::keyClicks(line, "!");
        }
        filedialogs::answer([made] { Window::click(made, "saveButton"); }, languagefolder::file("Ours.json"));
        QVERIFY(!made->isVisible());
    }
    void chooseLanguage(int index) const
    {
        Window::click(&dialog(), "languageCombobox");
        auto *languages = Window::find<QListWidget>(dialog().members().languageMenuWidget, "listWidget");
        Window::click(languages->itemWidget(languages->item(index)), "labelLanguage");
    }
};

void TestLanguageEditorFiles::fileDialogsLookPlain_data()
{
    QTest::addColumn<bool>("overTheEditor");
    QTest::newRow("openButton") << true;
    QTest::newRow("saveButton") << true;
    QTest::newRow("openButton of the window") << false;
}

// As the window's text, and without the frame that the editor has.
void TestLanguageEditorFiles::fileDialogsLookPlain()
{
    QFETCH(bool, overTheEditor);
    const QByteArray name = QByteArray(QTest::currentDataTag()).split(' ').first();
    const QWidget *owner = overTheEditor ? static_cast<QWidget *>(editor.get())
                                         : Window::find(&dialog(), "toolbarGroupBox");
    QVERIFY(modal::drive<QFileDialog>(
        [&] { Window::click(owner, name.constData()); },
        [&](QFileDialog *files) {
            const QImage picture = files->grab().toImage();
            for (const QPoint &place :
                 {QPoint(0, 0), QPoint(picture.width() / 2, 0), QPoint(0, picture.height() / 2)}) {
                QCOMPARE(picture.pixelColor(place), QColor(0xf2, 0xf2, 0xf2));
            }
            for (const char *part : {"lookInLabel", "fileNameEdit", "listView"}) {
                QCOMPARE(Window::find(files, part)->font().pointSize(), 10);
                QCOMPARE(Window::find(files, part)->font().family(), QString("Noto Sans"));
            }
        }));
}

void TestLanguageEditorFiles::opensAFile()
{
    QDir().mkpath(otherFolder());
    const QString path = otherFolder() + "/Polski.json";
    put(path, R"({"Save": "Zapisz", "New": "Nowy"})");
    QSignalSpy changed(&dialog(), &MainDialog::changeInstallationLanguage);
    edit("AIR", "Luft");
    const filedialogs::Seen seen = press("openButton", path);
    QCOMPARE(seen.title, QString("Json File"));
    QCOMPARE(seen.folder, otherFolder());
    QCOMPARE(seen.filter, QString("JSON File(*.json;)"));
    QCOMPARE(messages::all(),
             QStringList{"UserLanguageEditPopup::on_openButton_clicked  selectedFile: " + quoted(path)});
    QCOMPARE(shownTexts(), (QStringList{"Nowy", "Zapisz"}));
    QCOMPARE(dialog().languageMap(), (Texts{{"New", "Nowy"}, {"Save", "Zapisz"}}));
    QCOMPARE(text("newButton"), QString("New"));
    QCOMPARE(changed.size(), 0);
    Texts snapshot = english();
    snapshot.insert("AIR", "Luft");
    QCOMPARE(dialog().languageSnapshotMap(), snapshot);
    QCOMPARE(ini(), QByteArray("English"));
}

void TestLanguageEditorFiles::dialogsListLanguageFiles()
{
    QVERIFY(
        filedialogs::listed([this] { Window::click(editor.get(), "saveButton"); }).contains("English.json"));
    QDir().mkpath(otherFolder());
    put(otherFolder() + "/Polski.json", "{}");
    QCOMPARE(filedialogs::listed([this] { Window::click(editor.get(), "openButton"); }),
             QStringList{"Polski.json"});
}

void TestLanguageEditorFiles::openIsCancelled()
{
    QCOMPARE(press("openButton", QString()).title, QString("Json File"));
    QCOMPARE(list()->count(), languagefolder::textCount());
    QVERIFY(editor->isVisible());
    QVERIFY(messages::all().isEmpty());
}

void TestLanguageEditorFiles::fileCantBeOpened()
{
    const QString path = otherFolder() + "/none.json";
    QVERIFY(QMetaObject::invokeMethod(editor.get(), "loadLanguageFile", Q_ARG(QString, path)));
    QCOMPARE(messages::all(),
             QStringList{"LanguageMenu::on_loadButton_clicked failed to open file: " + quoted(path)});
    QCOMPARE(list()->count(), languagefolder::textCount());
    QCOMPARE(dialog().languageMap(), english());
    QVERIFY(editor->isVisible());
}

void TestLanguageEditorFiles::openedFileHoldsNoTexts_data()
{
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("Nowy");
    QTest::newRow("array") << QByteArray("[\"Nowy\"]");
    QTest::newRow("empty object") << QByteArray("{}");
}

void TestLanguageEditorFiles::openedFileHoldsNoTexts()
{
    QFETCH(QByteArray, bytes);
    QTemporaryDir elsewhere;
    put(elsewhere.filePath("x.json"), bytes);
    press("openButton", elsewhere.filePath("x.json"));
    QCOMPARE(list()->count(), 0);
    QVERIFY(dialog().languageMap().isEmpty());
    Window::type(search(), "a");
    QCOMPARE(dialog().languageSnapshotMap(), english());
    QCOMPARE(messages::all().size(), 1);
}

void TestLanguageEditorFiles::openedFileStaysInForceAfterClose()
{
    QTemporaryDir elsewhere;
    put(elsewhere.filePath("x.json"), languagefolder::marked("+"));
    press("openButton", elsewhere.filePath("x.json"));
    Window::click(editor.get(), "closeButton");
    QCOMPARE(dialog().languageValue("New"), QString("New+"));
    QCOMPARE(text("newButton"), QString("New"));
    QCOMPARE(ini(), QByteArray("English"));
    QCOMPARE(content(elsewhere.filePath("x.json")), languagefolder::marked("+"));
}

void TestLanguageEditorFiles::savesANewLanguage()
{
    QSignalSpy changed(&dialog(), &MainDialog::changeInstallationLanguage);
    const LanguageMenu *popup = dialog().members().languageMenuWidget;
    dialog().setLanguageMenuOpen(true);
    edit("New", "Neu");
    edit("Producttype", "Bauart");
    const QString path = languagefolder::file("Deutsch.json");
    const filedialogs::Seen seen = press("saveButton", path);
    QCOMPARE(seen.title, QString("Save"));
    QCOMPARE(seen.folder, languagefolder::path());
    QCOMPARE(seen.filter, QString("Json File(*.json;)"));
    Texts expected = english();
    expected.insert("New", "Neu");
    expected.insert("Producttype", "Bauart");
    QCOMPARE(content(path), asFile(expected));
    QVERIFY(content(path).startsWith("{\n    \"AIR\": \"Air\",\n    \"AIR_WATER\": \"Air+Water\",\n"));
    QCOMPARE(messages::all(),
             (QStringList{"UserLanguageEditPopup::on_saveButton_clicked saveFilePath: " + quoted(path),
                          "MainDialog::loadLanguageData path: " + quoted(path)}));
    QVERIFY(!editor->isVisible());
    QCOMPARE(ini(), QByteArray("Deutsch"));
    QCOMPARE(text("labelCurrentLanguage"), QString("Deutsch"));
    QCOMPARE(text("newButton"), QString("Neu"));
    QCOMPARE(text("labelProductType"), QString("Bauart"));
    QCOMPARE(changed.size(), 1);
    QVERIFY(!dialog().members().languageMenuOpen);
    QVERIFY(dialog().members().languageMenuWidget != popup);
    QCOMPARE(dialog().languageMap(), expected);
    QCOMPARE(dialog().languageSnapshotMap(), expected);
}

// The popup is built anew, the window gets its texts, the remembered language is loaded, the popup counts as
// closed, the editor closes. An empty text tells of each lookup.
void TestLanguageEditorFiles::saveGoesInOrder()
{
    const QString path = languagefolder::file("Deutsch.json");
    const LanguageMenu *popup = dialog().members().languageMenuWidget;
    int changed = 0;
    connect(&dialog(), &MainDialog::changeInstallationLanguage, editor.get(), [&] {
        ++changed;
        QVERIFY(dialog().members().languageMenuWidget != popup);
        QVERIFY(!dialog().members().languageMenuOpen);
        QVERIFY(editor->isVisible());
        dialog().setLanguageMenuOpen(true);
    });
    dialog().setLanguageSnapshotText("New", QString());
    ChildWatch watch;
    dialog().installEventFilter(&watch);
    dialog().setLanguageMenuOpen(true);
    press("saveButton", path);
    QCOMPARE(changed, 1);
    QVERIFY(!dialog().members().languageMenuOpen);
    QVERIFY(!editor->isVisible());
    const QString empty = "MainDialog::languageValue language value is empty";
    QCOMPARE(messages::all(),
             (QStringList{"UserLanguageEditPopup::on_saveButton_clicked saveFilePath: " + quoted(path),
                          "child", quoted("New"), empty, "MainDialog::loadLanguageData path: " + quoted(path),
                          quoted("New"), empty, quoted("New"), empty}));
}

void TestLanguageEditorFiles::saveIsCancelled()
{
    edit("New", "Neu");
    QCOMPARE(press("saveButton", QString()).title, QString("Save"));
    QVERIFY(editor->isVisible());
    QCOMPARE(dialog().languageValue("New"), QString("Neu"));
    QCOMPARE(text("newButton"), QString("New"));
    QCOMPARE(ini(), QByteArray("English"));
    QVERIFY(messages::all().isEmpty());
    QCOMPARE(list()->count(), languagefolder::textCount());
}

void TestLanguageEditorFiles::saveCantWrite()
{
    edit("New", "Neu");
    const QString path = otherFolder() + "/missing/Deutsch.json";
    press("saveButton", path);
    QVERIFY(editor->isVisible());
    QCOMPARE(messages::all(),
             (QStringList{"UserLanguageEditPopup::on_saveButton_clicked saveFilePath: " + quoted(path),
                          "UserLanguageEditPopup::on_saveButton_clicked file open failed: " + quoted(path)}));
    QCOMPARE(ini(), QByteArray("English"));
    QCOMPARE(text("labelCurrentLanguage"), QString("English"));
    QCOMPARE(text("newButton"), QString("New"));
    QCOMPARE(dialog().languageValue("New"), QString("Neu"));
}

void TestLanguageEditorFiles::nameLosesItsExtension_data()
{
    QTest::addColumn<QString>("file");
    QTest::addColumn<QString>("name");
    QTest::newRow("in its stem") << "my.jsonlanguage.json"
                                 << "mylanguage";
    QTest::newRow("twice") << "Deutsch.json.json"
                           << "Deutsch";
    QTest::newRow("in upper case") << "Deutsch.JSON"
                                   << "Deutsch.JSON";
    QTest::newRow("none") << "Deutsch"
                          << "Deutsch";
    QTest::newRow("dots and blanks") << "my own. language.json"
                                     << "my own. language";
}

// The remembered name may be that of no file: then the window's own texts are the new ones and the pages keep
// theirs.
void TestLanguageEditorFiles::nameLosesItsExtension()
{
    QFETCH(QString, file);
    QFETCH(QString, name);
    edit("New", "Neu");
    edit("Producttype", "Bauart");
    press("saveButton", languagefolder::file(file));
    QCOMPARE(ini(), name.toUtf8());
    QVERIFY(content(languagefolder::file(file)).contains("\"Neu\""));
    const bool found = file == name + ".json";
    QCOMPARE(messages::contain("MainDialog::loadLanguageData failed to open file: "
                               + quoted(languagefolder::file(name + ".json"))),
             !found);
    QCOMPARE(text("labelCurrentLanguage"), name);
    QCOMPARE(text("newButton"), QString("Neu"));
    QCOMPARE(text("labelProductType"), QString(found ? "Bauart" : "Product type"));
    QVERIFY(!editor->isVisible());
}

void TestLanguageEditorFiles::savesWhatWasEditedNotWhatWasOpened()
{
    QTemporaryDir elsewhere;
    put(elsewhere.filePath("x.json"), languagefolder::marked("+"));
    edit("Open", "Auf");
    press("openButton", elsewhere.filePath("x.json"));
    edit("New", "Neu");
    press("saveButton", languagefolder::file("Deutsch.json"));
    Texts expected = english();
    expected.insert("Open", "Auf");
    expected.insert("New", "Neu");
    QCOMPARE(content(languagefolder::file("Deutsch.json")), asFile(expected));
    QCOMPARE(content(elsewhere.filePath("x.json")), languagefolder::marked("+"));
}

void TestLanguageEditorFiles::addsTextsThatAreMissing()
{
    // A language that was made before the tool had the text of "Year".
    Texts old = english();
    old.remove("Year");
    put(languagefolder::file("Old.json"), asFile(old));
    put(languagefolder::iniPath(), "Old");
    editor.reset();
    window.reset();
    open();
    press("openButton", languagefolder::file("English.json"));
    edit("Year", "Jahr");
    press("saveButton", languagefolder::file("Old.json"));
    old.insert("Year", "Jahr");
    QCOMPARE(content(languagefolder::file("Old.json")), asFile(old));
    QCOMPARE(dialog().languageValue("Year"), QString("Jahr"));
}

void TestLanguageEditorFiles::savesOverAFile()
{
    put(languagefolder::file("Other.json"), languagefolder::marked("a much longer text"));
    start(false);
    editor->setLanguageFilePath(languagefolder::file("Other.json"));
    edit("New", "Neu");
    Window::click(editor.get(), "saveButton");
    Texts expected = english();
    expected.insert("New", "Neu");
    QCOMPARE(content(languagefolder::file("Other.json")), asFile(expected));
    QCOMPARE(ini(), QByteArray("Other"));
    QCOMPARE(text("newButton"), QString("Neu"));
    QVERIFY(!editor->isVisible());
    QCOMPARE(messages::all(),
             QStringList{"MainDialog::loadLanguageData path: " + quoted(languagefolder::file("Other.json"))});
}

// The file opened last is the one; one that can't be opened doesn't take its place.
void TestLanguageEditorFiles::savesOverTheOpenedFile()
{
    start(false);
    for (const char *name : {"First.json", "Second.json"}) {
        put(languagefolder::file(name), languagefolder::marked("+"));
        press("openButton", languagefolder::file(name));
    }
    const QString missing = languagefolder::file("Third.json");
    QVERIFY(QMetaObject::invokeMethod(editor.get(), "loadLanguageFile", Q_ARG(QString, missing)));
    Window::click(editor.get(), "saveButton");
    QCOMPARE(content(languagefolder::file("First.json")), languagefolder::marked("+"));
    QCOMPARE(content(languagefolder::file("Second.json")), asFile(english()));
    QVERIFY(!QFile::exists(missing));
    QCOMPARE(ini(), QByteArray("Second"));
}

// The edited texts are in force then, and a row whose reference is no text any more has no key.
void TestLanguageEditorFiles::cancelledSaveLosesReferences()
{
    edit("Always", "Immer");
    press("saveButton", QString());
    edit("Always", "Stets");
    Texts expected = english();
    expected.insert("Always", "Immer");
    expected.insert("", "Stets");
    QCOMPARE(dialog().languageSnapshotMap(), expected);
}

void TestLanguageEditorFiles::fileCantBeSavedOver()
{
    start(false);
    const QString path = otherFolder() + "/missing/Other.json";
    editor->setLanguageFilePath(path);
    edit("New", "Neu");
    Window::click(editor.get(), "saveButton");
    QCOMPARE(messages::all(), QStringList{"UserLanguageEditPopup::on_saveButton_clicked: " + quoted(path)});
    QVERIFY(editor->isVisible());
    QCOMPARE(ini(), QByteArray("English"));
}

void TestLanguageEditorFiles::savesNoFile()
{
    start(false);
    edit("New", "Neu");
    Window::click(editor.get(), "saveButton");
    QVERIFY(!editor->isVisible());
    QCOMPARE(QDir(languagefolder::path()).entryList(QDir::Files),
             (QStringList{"English.json", "language.ini"}));
    QCOMPARE(content(languagefolder::file("English.json")), languagefolder::english());
    // The language that language.ini names comes back.
    QCOMPARE(text("newButton"), QString("New"));
    QCOMPARE(dialog().languageMap(), english());
}

// A language is made by the popup's button, saved, another one chosen, this one chosen again, the tool
// restarted.
void TestLanguageEditorFiles::languageOutlivesTheRun()
{
    editor.reset();
    window->use(documents::standard("R32"));
    const QJsonDocument document = dialog().document();
    Window::click(&dialog(), "languageCombobox");
    auto *newButton = Window::find<QPushButton>(dialog().members().languageMenuWidget, "newButton");
    QVERIFY(modal::drive<UserLanguageEditPopup>([newButton] { Window::click(newButton); }, makeLanguage));
    QCOMPARE(text("saveButton"), QString("Save!"));
    QCOMPARE(text("labelSlide1"), QString("Product\nselection!"));
    chooseLanguage(0);
    QCOMPARE(ini(), QByteArray("English"));
    QCOMPARE(text("saveButton"), QString("Save"));
    chooseLanguage(1);
    QCOMPARE(ini(), QByteArray("Ours"));
    QCOMPARE(dialog().document(), document);
    window.reset();
    window = std::make_unique<Window>();
    QCOMPARE(text("labelCurrentLanguage"), QString("Ours"));
    QCOMPARE(text("saveButton"), QString("Save!"));
    // Only the second of two keys that share a text has kept it.
    QStringList plain;
    const Texts texts = dialog().languageMap();
    for (auto entry = texts.begin(); entry != texts.end(); ++entry) {
        if (!entry->toString().endsWith(QLatin1Char('!'))) {
            plain.append(entry.key());
        }
    }
    QCOMPARE(plain, (QStringList{"HeatingCooling", "Inlet", "ModbusAddress", "Outlet"}));
}

CALORA_TEST_MAIN(TestLanguageEditorFiles)
#include "tst_languageeditorfiles.moc"
