#include "support/filefaults.h"

#include <QJsonArray>
#include <QJsonObject>

// Files that fail under Open, and files that are out of all measure.

namespace {

using faults::Fault;
using filefaults::MakeFault;
using testfiles::content;
using testfiles::put;

QJsonDocument standardWith(const QString &key, const QJsonValue &value)
{
    QJsonObject root = documents::standard("R32").object();
    root.insert(key, value);
    return QJsonDocument(root);
}

} // namespace

class TestOpenFaults : public FileFaultTest
{
    Q_OBJECT

private slots:
    void initTestCase() { DocumentWindow::useDesktopIn(home); }
    void init() { start(); }
    void cleanup() { end(); }

    void cantBeOpened_data();
    void cantBeOpened();
    void opensWhatCantBeRead();
    void deepNesting_data();
    void deepNesting();
    void largeFile_data();
    void largeFile();
    void startsItsDialogsNowhere();

private:
    void walk() const;
};

void TestOpenFaults::cantBeOpened_data()
{
    QTest::addColumn<MakeFault>("make");
    QTest::newRow("unreadable file") << &filefaults::closedFile;
    QTest::newRow("unreadable folder") << &filefaults::closedFolder;
    QTest::newRow("removed folder") << &filefaults::removedFolder;
    QTest::newRow("folder") << &filefaults::folderForAFile;
    QTest::newRow("FIFO") << &filefaults::pipeForAFile;
    QTest::newRow("link to a FIFO") << &filefaults::linkToAPipe;
    QTest::newRow("link to an endless device") << &filefaults::linkToAnEndlessDevice;
    QTest::newRow("link to itself") << &filefaults::linkToItself;
    QTest::newRow("link to nowhere") << &filefaults::linkToNowhere;
}

void TestOpenFaults::cantBeOpened()
{
    QFETCH(MakeFault, make);
    put(file(), small());
    window->clickNew();
    window->chooseRefrigerant("radioButtonR32");
    const QJsonDocument document = window->dialog.document();
    const Fault fault = make(folder(), file());
    if (!fault.holds) {
        QSKIP("This machine doesn't let the fault be made");
    }
    messages::clear();
    window->open(file());
    QCOMPARE(DocumentWindow::told().last(), QString("MainDialog::on_openButton_clicked open failed"));
    QCOMPARE(window->dialog.document(), document);
    QVERIFY(window->members().settings.filePath.startsWith(":/"));
    QVERIFY(window->members().settings.isNewFile);
    QCOMPARE(window->shownPath(), QString("R32"));
    QCOMPARE(window->step(), 1);
    QVERIFY(Window::enabled(&window->dialog, "productSelectionButton"));
}

// A file that opens and whose reading then fails is like an empty one.
void TestOpenFaults::opensWhatCantBeRead()
{
    const QString memory = "/proc/self/mem";
    if (QFile unread(memory); !unread.open(QIODevice::ReadOnly)) {
        QSKIP("This machine doesn't let the file be opened");
    }
#ifdef Q_OS_WIN
    QSKIP("The path isn't one of Windows");
#endif
    window->open(memory);
    QVERIFY(window->dialog.document().isNull());
    QCOMPARE(window->members().settings.filePath, memory);
    QCOMPARE(window->step(), 2);
    walk();
}

void TestOpenFaults::walk() const
{
    window->showPage(MainDialog::ProductPage);
    window->showPage(MainDialog::DipSwitchPage);
    for (const int tab : {MainDialog::FunctionTab, MainDialog::UserTab, MainDialog::ServiceTab,
                          MainDialog::InstallationTab}) {
        window->showPage(MainDialog::SettingPage, tab);
    }
    window->showPage(MainDialog::ValidationPage);
}

void TestOpenFaults::deepNesting_data()
{
    QTest::addColumn<QByteArray>("opening");
    QTest::addColumn<QByteArray>("closing");
    QTest::addColumn<int>("levels");
    QTest::newRow("1,000 arrays") << QByteArray("[") << QByteArray("]") << 1000;
    QTest::newRow("1,000 objects") << QByteArray("{\"a\":") << QByteArray("}") << 1000;
    QTest::newRow("10,000 arrays") << QByteArray("[") << QByteArray("]") << 10000;
    QTest::newRow("10,000 objects") << QByteArray("{\"a\":") << QByteArray("}") << 10000;
    QTest::newRow("1,000,000 arrays that don't end") << QByteArray("[") << QByteArray() << 1000000;
}

// What the parser refuses counts as no JSON: no document, and an empty file when it is saved.
void TestOpenFaults::deepNesting()
{
    QFETCH(QByteArray, opening);
    QFETCH(QByteArray, closing);
    QFETCH(int, levels);
    const QByteArray deep = opening.repeated(levels) + '1' + closing.repeated(levels);
    const QByteArray written = small().chopped(1) + ",\"zzz\":" + deep + '}';
    put(file(), written);
    window->open(file());
    QCOMPARE(window->members().settings.filePath, file());
    QCOMPARE(window->step(), 2);
    QCOMPARE(window->dialog.document().isNull(), levels > 1000);
    window->completeSteps();
    window->save(QString());
    QCOMPARE(content(file()), levels > 1000 ? QByteArray() : written);
    walk();
}

void TestOpenFaults::largeFile_data()
{
    QTest::addColumn<QJsonDocument>("document");
    bool given = false;
    const int chosen = qEnvironmentVariableIntValue("CALORA_FILE_MB", &given);
    const int bytes = (given ? chosen : 10) * 1000 * 1000;
    const QString text(1000, 'x');
    QJsonArray list;
    QJsonObject object;
    for (int number = 0; number < bytes / 1000; ++number) {
        list.append(text);
        for (int part = 0; part < 25; ++part) {
            object.insert(QStringLiteral("k%1_%2").arg(number, 7).arg(part, 2),
                          QStringLiteral("twenty letters here"));
        }
    }
    QTest::newRow("one text") << standardWith("zzz", QString(bytes, 'x'));
    QTest::newRow("an array") << standardWith("zzz", list);
    QTest::newRow("an object") << standardWith("zzz", object);
    QJsonObject root = object;
    const QJsonObject standard = documents::standard("R32").object();
    for (auto member = standard.begin(); member != standard.end(); ++member) {
        root.insert(member.key(), member.value());
    }
    QTest::newRow("beside the groups") << QJsonDocument(root);
}

// How long Open takes is told, not judged. CALORA_FILE_MB asks for another size than 10.
void TestOpenFaults::largeFile()
{
    QFETCH(QJsonDocument, document);
    put(file(), compact(document));
    QBENCHMARK_ONCE
    {
        window->open(file());
        QTest::qWait(0);
    }
    QCOMPARE(window->shownPath(), file());
    QCOMPARE(window->step(), 2);
    QVERIFY(window->dialog.document().object().keys().size() >= 10);
    walk();
    window->use(document);
    window->completeSteps();
    window->save(QString());
    QVERIFY(content(file()) == compact(document));
}

// Neither the desktop nor the working folder are there.
void TestOpenFaults::startsItsDialogsNowhere()
{
    put(file(), small());
    const QString before = QDir::currentPath();
    QVERIFY(QDir().mkpath(window->path("gone")));
    QVERIFY(QDir::setCurrent(window->path("gone")));
    if (!QDir().rmdir(window->path("gone"))) {
        QVERIFY(QDir::setCurrent(before));
        QSKIP("This machine doesn't let the working folder be removed");
    }
    QVERIFY(QDir(DocumentWindow::desktop(home)).removeRecursively());
    window->open(QString());
    window->open(file());
    QCOMPARE(window->shownPath(), file());
    window->dialog.openNewJsonFile("R32");
    window->completeSteps();
    window->save(folder() + "/b.json");
    QCOMPARE(content(folder() + "/b.json"), compact(documents::standard("R32")));
    QVERIFY(QDir::setCurrent(before));
    QVERIFY(QDir().mkpath(DocumentWindow::desktop(home)));
}

int main(int argc, char *argv[])
{
    faults::isolate();
    QApplication application(argc, argv);
    TestOpenFaults tests;
    return runTests(&tests, argc, argv);
}
#include "tst_openfaults.moc"
