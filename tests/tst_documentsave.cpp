#include "support/documentwindow.h"
#include "support/faults.h"

// Save, through the real file dialogs.

namespace {

using testfiles::content;
using testfiles::put;
using testfiles::quoted;
using testfiles::resource;
using testfiles::sorted;
using testfiles::unsorted;

} // namespace

class TestDocumentSave : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { DocumentWindow::useDesktopIn(home); }
    void init() { window = std::make_unique<DocumentWindow>(); }
    void cleanup() { window.reset(); }

    void saveIsRefused_data();
    void saveIsRefused();
    void saveNeedsADocument();
    void firstSaveAsks();
    void firstSaveReplacesAFile();
    void cancelledSaveAsksAgain();
    void laterSaveDoesNotAsk();
    void questionNamesTheFileLetterForLetter();
    void openedFileIsOverwrittenInPlace();
    void savedFormIsCompactAndSorted();
    void savesADefaultDocumentWhole();
    void savesNoDocument();
    void newAfterOpenAsksAgain();
    void failedFirstSaveKeepsTheName();
    void failedLaterSaveKeepsTheName();
    void cantSave_data();
    void cantSave();
    void foldersOfTheDialogs();

private:
    void saveAs(const QString &file) const
    {
        QMetaObject::invokeMethod(&window->dialog, "saveJsonFile", Q_ARG(QString, file));
    }

    QTemporaryDir home;
    std::unique_ptr<DocumentWindow> window;
};

void TestDocumentSave::saveIsRefused_data()
{
    QTest::addColumn<int>("missing");
    QTest::newRow("product") << 1;
    QTest::newRow("dip switch") << 2;
    QTest::newRow("setting") << 3;
    QTest::newRow("started over") << 0;
}

void TestDocumentSave::saveIsRefused()
{
    QFETCH(int, missing);
    put(window->path("a.json"), unsorted);
    window->open(window->path("a.json"));
    window->completeSteps();
    if (missing == 0) {
        window->clickNew();
    } else {
        window->dialog.setStepCompleted(false, missing);
    }
    messages::clear();
    const filedialogs::Seen seen = window->save(window->path("b.json"));
    QVERIFY(seen.title.isEmpty());
    QCOMPARE(DocumentWindow::told(),
             QStringList{"MainDialog::on_saveButton_clicked save is failed validation : false"});
    QCOMPARE(content(window->path("a.json")), unsorted);
    QVERIFY(!QFile::exists(window->path("b.json")));
    QVERIFY(Window::enabled(&window->dialog, "saveButton"));
}

void TestDocumentSave::saveNeedsADocument()
{
    window->completeSteps();
    messages::clear();
    QVERIFY(window->save(window->path("b.json")).title.isEmpty());
    QCOMPARE(DocumentWindow::told(), QStringList{"MainDialog::on_saveButton_clicked file is not opened"});
    QVERIFY(!QFile::exists(window->path("b.json")));
}

void TestDocumentSave::firstSaveAsks()
{
    window->dialog.openNewJsonFile("R410");
    window->completeSteps();
    messages::clear();
    const filedialogs::Seen seen = window->save(window->path("new.json"));
    QCOMPARE(seen.title, QString("Save"));
    QCOMPARE(seen.folder, DocumentWindow::desktop(home));
    QCOMPARE(seen.filter, QString("JSON File(*.json;)"));
    QCOMPARE(seen.question, QString());
    QCOMPARE(content(window->path("new.json")), documents::standard("R410").toJson(QJsonDocument::Compact));
    QCOMPARE(window->members().settings.filePath, window->path("new.json"));
    QVERIFY(!window->members().settings.isNewFile);
    QCOMPARE(window->shownPath(), QString("R410"));
    QCOMPARE(DocumentWindow::told(),
             QStringList{"MainDialog::on_saveButton_clicked save file finished "
                         + quoted(window->path("new.json"))});
}

void TestDocumentSave::firstSaveReplacesAFile()
{
    put(window->path("old.json"), QByteArray(100000, 'x'));
    window->dialog.openNewJsonFile("R32");
    window->completeSteps();
    QVERIFY(window->save(window->path("old.json")).question.contains("old.json"));
    QCOMPARE(content(window->path("old.json")), documents::standard("R32").toJson(QJsonDocument::Compact));
}

void TestDocumentSave::cancelledSaveAsksAgain()
{
    window->dialog.openNewJsonFile("R32");
    window->completeSteps();
    messages::clear();
    for (int round = 0; round < 2; ++round) {
        QCOMPARE(window->save(QString()).title, QString("Save"));
        QCOMPARE(window->members().settings.filePath, resource("R32"));
        QVERIFY(window->members().settings.isNewFile);
        QCOMPARE(DocumentWindow::told(), QStringList());
    }
    QCOMPARE(window->save(window->path("new.json")).title, QString("Save"));
    QVERIFY(QFile::exists(window->path("new.json")));
}

void TestDocumentSave::laterSaveDoesNotAsk()
{
    window->dialog.openNewJsonFile("R32");
    window->completeSteps();
    window->save(window->path("new.json"));
    window->use(QJsonDocument::fromJson(unsorted));
    QVERIFY(window->save(window->path("other.json")).title.isEmpty());
    QCOMPARE(content(window->path("new.json")), sorted);
    QVERIFY(!QFile::exists(window->path("other.json")));
}

void TestDocumentSave::questionNamesTheFileLetterForLetter()
{
#ifdef Q_OS_WIN
    const QString name = QStringLiteral("&lt;b&gt;a.json"); // no name has a "<" there
#else
    const QString name = QStringLiteral("<b>a.json");
#endif
    put(window->path(name), unsorted);
    window->dialog.openNewJsonFile("R32");
    window->completeSteps();
    const filedialogs::Seen seen = window->save(window->path(name));
    QVERIFY(seen.question.contains(name));
    QVERIFY(seen.questionIsPlain);
}

void TestDocumentSave::openedFileIsOverwrittenInPlace()
{
    put(window->path("a.json"), unsorted);
    QVERIFY(faults::secondName(window->path("a.json"), window->path("second name")).holds);
    if (!faults::link(window->path("a.json"), window->path("link.json")).holds) {
        QSKIP("This machine doesn't let links be made");
    }
    window->open(window->path("link.json"));
    window->completeSteps();
    QVERIFY(window->save(QString()).title.isEmpty());
    QCOMPARE(content(window->path("second name")), sorted);
    QVERIFY(QFileInfo(window->path("link.json")).isSymLink());
    QCOMPARE(window->shownPath(), window->path("link.json"));
}

void TestDocumentSave::savedFormIsCompactAndSorted()
{
    window->use(QJsonDocument::fromJson(unsorted));
    saveAs(window->path("a.json"));
    QCOMPARE(content(window->path("a.json")), sorted);
    saveAs(window->path("a.json"));
    QCOMPARE(content(window->path("a.json")), sorted);
    QCOMPARE(DocumentWindow::told(), QStringList());
}

void TestDocumentSave::savesADefaultDocumentWhole()
{
    for (const char *refrigerant : {"R32", "R410"}) {
        const QByteArray original = content(resource(refrigerant));
        put(window->path("a.json"), original);
        window->open(window->path("a.json"));
        // The pages that were shown may have written already.
        window->use(QJsonDocument::fromJson(original));
        window->completeSteps();
        window->save(QString());
        const QByteArray saved = content(window->path("a.json"));
        QVERIFY(saved != original);
        QVERIFY(saved.startsWith('{') && saved.endsWith('}') && !saved.contains('\n'));
        QCOMPARE(QJsonDocument::fromJson(saved), QJsonDocument::fromJson(original));
    }
}

void TestDocumentSave::savesNoDocument()
{
    put(window->path("a.json"), "not JSON");
    window->open(window->path("a.json"));
    window->completeSteps();
    window->save(QString());
    QCOMPARE(content(window->path("a.json")), QByteArray());
}

void TestDocumentSave::newAfterOpenAsksAgain()
{
    put(window->path("a.json"), unsorted);
    window->open(window->path("a.json"));
    window->clickNew();
    window->chooseRefrigerant("radioButtonR32");
    window->completeSteps();
    QCOMPARE(window->save(window->path("b.json")).title, QString("Save"));
    QCOMPARE(content(window->path("a.json")), unsorted);
    QCOMPARE(QJsonDocument::fromJson(content(window->path("b.json"))), documents::standard("R32"));
}

// Not even root may make files there; Wine shows the folder on its drive Z.
void TestDocumentSave::failedFirstSaveKeepsTheName()
{
#ifdef Q_OS_WIN
    const QString unwritable = "Z:/proc/calora.json";
#else
    const QString unwritable = "/proc/calora.json";
#endif
    window->dialog.openNewJsonFile("R32");
    window->completeSteps();
    messages::clear();
    window->save(unwritable);
    QCOMPARE(DocumentWindow::told(),
             (QStringList{"MainDialog::saveJsonFile: " + quoted(unwritable),
                          "MainDialog::on_saveButton_clicked save file finished " + quoted(unwritable)}));
    QVERIFY(!window->members().settings.isNewFile);
    QCOMPARE(window->members().settings.filePath, unwritable);
    QVERIFY(window->save(window->path("b.json")).title.isEmpty());
    QVERIFY(!QFile::exists(window->path("b.json")));
}

void TestDocumentSave::failedLaterSaveKeepsTheName()
{
    put(window->path("a.json"), unsorted);
    window->open(window->path("a.json"));
    window->completeSteps();
    QVERIFY(QFile::remove(window->path("a.json")));
    QVERIFY(QDir().mkpath(window->path("a.json")));
    messages::clear();
    window->save(QString());
    QCOMPARE(DocumentWindow::told().first(), "MainDialog::saveJsonFile: " + quoted(window->path("a.json")));
    QCOMPARE(window->members().settings.filePath, window->path("a.json"));
    // Once the way is free again, the next Save makes the file anew.
    QVERIFY(QDir().rmdir(window->path("a.json")));
    window->save(QString());
    QCOMPARE(content(window->path("a.json")), sorted);
}

void TestDocumentSave::cantSave_data()
{
    QTest::addColumn<QString>("name");
    for (const char *name : {"folder.json", "pipe.json", "nowhere/a.json", "file/a.json"}) {
        QTest::newRow(name) << name;
    }
}

void TestDocumentSave::cantSave()
{
    QFETCH(QString, name);
    QVERIFY(QDir().mkpath(window->path("folder.json")));
    QStringList files{"file", "folder.json"};
    if (faults::pipe(window->path("pipe.json")).holds) {
        files.append("pipe.json");
    } else if (name == "pipe.json") {
        QSKIP("This machine has no FIFOs");
    }
    put(window->path("file"), "x");
    saveAs(window->path(name));
    QCOMPARE(DocumentWindow::told(), QStringList{"MainDialog::saveJsonFile: " + quoted(window->path(name))});
    messages::clear();
    saveAs(QString());
    QCOMPARE(DocumentWindow::told(), QStringList{"MainDialog::saveJsonFile save file path is empty"});
    QCOMPARE(QDir(window->path()).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot), files);
}

void TestDocumentSave::foldersOfTheDialogs()
{
    const QString desktop = DocumentWindow::desktop(home);
    QCOMPARE(window->dialog.dialogDirectory(), desktop + '/');
    QString given;
    QVERIFY(QMetaObject::invokeMethod(&window->dialog, "defaultSavePath", Q_RETURN_ARG(QString, given)));
    QCOMPARE(given, desktop + "//Calora configurator");
    QVERIFY(QDir(desktop + "/Calora configurator").exists());
    QVERIFY(QMetaObject::invokeMethod(&window->dialog, "defaultLoadPath", Q_RETURN_ARG(QString, given)));
    QCOMPARE(given, QString());
    // The dialogs go on starting at the desktop.
    QCOMPARE(window->open(QString()).folder, desktop);
}

CALORA_TEST_MAIN(TestDocumentSave)
#include "tst_documentsave.moc"
