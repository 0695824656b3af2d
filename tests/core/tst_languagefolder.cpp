#include "languages/languages.h"
#include "support/messages.h"
#include "support/testfiles.h"

#include <QCoreApplication>
#include <QDir>
#include <QTest>

// The language folder and the name that is remembered, and what the windows are told, in its order.
class TestLanguageFolder : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void tellsInOrder();
    void keepsTheLanguageWithoutAFile();
    void copiesAForeignFile();

private:
    QDir folder;
    std::unique_ptr<Languages> languages;
    QStringList told;
};

void TestLanguageFolder::init()
{
    messages::install();
    folder.setPath(QCoreApplication::applicationDirPath() + "/language");
    folder.removeRecursively();
    folder.mkpath(".");
    testfiles::put(folder.filePath("One.json"), R"({"New":"one"})");
    testfiles::put(folder.filePath("language.ini"), "One");
    languages = std::make_unique<Languages>();
    languages->iniPath = folder.filePath("language.ini");
    told.clear();
    const auto note = [this](const char *what) { return [this, what] { told.append(what); }; };
    connect(languages.get(), &Languages::nameChanged, this,
            [this](const QString &name) { told.append(name); });
    connect(languages.get(), &Languages::filesChanged, this, note("files"));
    connect(languages.get(), &Languages::replaced, this, note("replaced"));
    connect(languages.get(), &Languages::changed, this, note("changed"));
    connect(languages.get(), &Languages::reloaded, this, note("reloaded"));
    messages::clear();
}

void TestLanguageFolder::tellsInOrder()
{
    languages->reload();
    QCOMPARE(told, (QStringList{"files", "replaced", "One", "changed", "reloaded"}));
    QCOMPARE(languages->inForce.value("New"), QString("one"));
    QCOMPARE(&Languages::instance(), languages.get());
}

void TestLanguageFolder::keepsTheLanguageWithoutAFile()
{
    languages->load(languages->iniPath);
    languages->saveName("Two\n");
    languages->load(languages->iniPath);
    QCOMPARE(told, (QStringList{"One", "changed", "Two\n", "Two\n"}));
    QCOMPARE(languages->inForce.value("New"), QString("one"));
    QVERIFY(messages::all().last().startsWith("MainDialog::loadLanguageData failed to open file: "));
}

void TestLanguageFolder::copiesAForeignFile()
{
    const QString foreign = QDir(QCoreApplication::applicationDirPath()).filePath("A.json.json");
    testfiles::put(foreign, R"({"New":"foreign"})");
    languages->loadAnotherPath(foreign);
    QCOMPARE(told, (QStringList{"A", "files", "changed"}));
    QCOMPARE(testfiles::content(languages->iniPath), QByteArray("A"));
    QCOMPARE(testfiles::content(folder.filePath("A.json")), testfiles::content(foreign));
    QStringList names = Languages::names();
    names.sort();
    QCOMPARE(names, (QStringList{"A", "One"}));
    languages->loadAnotherPath(folder.filePath("A.json"));
    QVERIFY(folder.exists("A.json"));
}

QTEST_GUILESS_MAIN(TestLanguageFolder)
#include "tst_languagefolder.moc"
