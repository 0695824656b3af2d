#include "support/filefaults.h"

// Disks, folders and files that fail under Save: the tool takes the name, keeps the document, says nothing
// but in its log, and neither waits nor ends.

namespace {

using faults::Fault;
using filefaults::MakeFault;
using testfiles::content;
using testfiles::put;
using testfiles::quoted;

/// The bytes of a regular file; "(none)" for all else.
QByteArray regularContent(const QString &path)
{
    return QFileInfo(path).isFile() ? content(path) : QByteArray("(none)");
}

} // namespace

class TestFaults : public FileFaultTest
{
    Q_OBJECT

private slots:
    void initTestCase() { DocumentWindow::useDesktopIn(home); }
    void init() { start(); }
    void cleanup() { end(); }

    void openedFileCantBeSaved_data();
    void openedFileCantBeSaved();
    void newFileCantBeSaved_data();
    void newFileCantBeSaved();
    void diskFills_data();
    void diskFills();
    void savesWhereTheLinkLeads_data();
    void savesWhereTheLinkLeads();
    void savesIntoAFileThatIsHeldOpen();
    void savesIntoTheFileThatCameInItsPlace();
    void longNames_data();
    void longNames();

private:
    void saveAndExpectFailure(const QString &path);
};

// The name is taken all the same, and the document stays.
void TestFaults::saveAndExpectFailure(const QString &path)
{
    const QJsonDocument document = window->dialog.document();
    const QByteArray before = regularContent(path);
    const int step = window->step();
    messages::clear();
    window->save(path);
    QCOMPARE(DocumentWindow::told(),
             (QStringList{"MainDialog::saveJsonFile: " + quoted(path),
                          "MainDialog::on_saveButton_clicked save file finished " + quoted(path)}));
    QCOMPARE(regularContent(path), before);
    QCOMPARE(window->members().settings.filePath, path);
    QVERIFY(!window->members().settings.isNewFile);
    QCOMPARE(window->dialog.document(), document);
    QCOMPARE(window->step(), step);
    QVERIFY(window->dialog.isVisible());
    QVERIFY(Window::enabled(&window->dialog, "saveButton"));
}

void TestFaults::openedFileCantBeSaved_data()
{
    QTest::addColumn<MakeFault>("make");
    QTest::newRow("read-only file") << &filefaults::readOnlyFile;
    QTest::newRow("read-only file system") << &filefaults::readOnlyFileSystem;
    QTest::newRow("unreadable file") << &filefaults::closedFile;
    QTest::newRow("folder without permissions") << &filefaults::closedFolder;
    QTest::newRow("removed folder") << &filefaults::removedFolder;
    QTest::newRow("a file in place of the folder") << &filefaults::fileForAFolder;
    QTest::newRow("a folder in place of the file") << &filefaults::folderForAFile;
    QTest::newRow("a running program") << &filefaults::executedFile;
    QTest::newRow("FIFO") << &filefaults::pipeForAFile;
    QTest::newRow("link to a FIFO") << &filefaults::linkToAPipe;
    QTest::newRow("link to a folder") << &filefaults::linkToAFolder;
    QTest::newRow("link to itself") << &filefaults::linkToItself;
    QTest::newRow("link to nowhere") << &filefaults::linkToNowhere;
    QTest::newRow("link to a full device") << &filefaults::linkToAFullDevice;
}

void TestFaults::openedFileCantBeSaved()
{
    QFETCH(MakeFault, make);
    put(file(), small());
    window->open(file());
    window->completeSteps();
    const Fault fault = make(folder(), file());
    if (!fault.holds) {
        QSKIP("This machine doesn't let the fault be made");
    }
    saveAndExpectFailure(file());
    QCOMPARE(window->shownPath(), file());
}

void TestFaults::newFileCantBeSaved_data()
{
    QTest::addColumn<MakeFault>("make");
    QTest::addColumn<QString>("name");
    QTest::newRow("read-only folder") << &filefaults::readOnlyFolder << "a.json";
    QTest::newRow("folder without permissions") << &filefaults::closedFolder << "a.json";
    QTest::newRow("read-only file system") << &filefaults::readOnlyFileSystem << "a.json";
    QTest::newRow("no room for a name") << &filefaults::noRoomForAName << "a.json";
    QTest::newRow("removed folder") << &filefaults::removedFolder << "a.json";
    QTest::newRow("link to nowhere") << &filefaults::linkToNowhere << "a.json";
    QTest::newRow("link to a full device") << &filefaults::linkToAFullDevice << "a.json";
    QTest::newRow("FIFO") << &filefaults::pipeForAFile << "a.json";
    // Few enough letters for the file dialog, too many bytes for the disk.
    QTest::newRow("name too long") << &filefaults::nothing << QString(200, QChar(0xFC));
}

void TestFaults::newFileCantBeSaved()
{
    QFETCH(MakeFault, make);
    QFETCH(QString, name);
    window->dialog.openNewJsonFile("R32");
    window->completeSteps();
    const Fault fault = make(folder(), file());
    if (!fault.holds) {
        QSKIP("This machine doesn't let the fault be made");
    }
    saveAndExpectFailure(folder() + '/' + name);
    QCOMPARE(window->shownPath(), QString("R32"));
    QCOMPARE(window->dialog.document(), documents::standard("R32"));
}

void TestFaults::diskFills_data()
{
    QTest::addColumn<bool>("disk");
    QTest::addColumn<bool>("opened");
    QTest::addColumn<int>("written");
    QTest::newRow("full disk, new file") << true << false << 0;
    QTest::newRow("full disk, opened file") << true << true << 4096;
    QTest::newRow("limited size, new file") << false << false << 4500;
    QTest::newRow("limited size, opened file") << false << true << 4500;
}

// The file is emptied before it is written: what finds no room is missing in it until there is room again.
void TestFaults::diskFills()
{
    QFETCH(bool, disk);
    QFETCH(bool, opened);
    QFETCH(int, written);
    const auto mount = disk ? faults::Mount::small(folder(), "size=64k") : nullptr;
    if (mount ? !mount->holds() : !faults::SizeLimit::possible()) {
        QSKIP("This machine doesn't let the disk be limited");
    }
    if (opened) {
        put(file(), small());
        window->open(file());
        window->use(documents::standard("R32"));
    } else {
        window->dialog.openNewJsonFile("R32");
    }
    window->completeSteps();
    const QByteArray whole = compact(documents::standard("R32"));
    QVERIFY(whole.size() > 2 * written);
    if (mount) {
        mount->fillUp("filler");
    }
    messages::clear();
    {
        const auto limit = mount ? nullptr : std::make_unique<faults::SizeLimit>(written);
        window->save(file());
    }
    QCOMPARE(DocumentWindow::told(),
             (QStringList{"MainDialog::saveJsonFile: " + quoted(file()),
                          "MainDialog::on_saveButton_clicked save file finished " + quoted(file())}));
    QCOMPARE(content(file()), whole.left(written));
    QCOMPARE(window->members().settings.filePath, file());
    QVERIFY(!window->members().settings.isNewFile);
    QCOMPARE(window->dialog.document(), documents::standard("R32"));

    QFile::remove(folder() + "/filler");
    messages::clear();
    QVERIFY(window->save(QString()).title.isEmpty());
    QCOMPARE(DocumentWindow::told(),
             QStringList{"MainDialog::on_saveButton_clicked save file finished " + quoted(file())});
    QCOMPARE(content(file()), whole);
}

void TestFaults::savesWhereTheLinkLeads_data()
{
    QTest::addColumn<QString>("link");
    QTest::addColumn<QString>("target");
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("written");
    QTest::newRow("to a file") << "link.json"
                               << "disk/old.json"
                               << "link.json"
                               << "disk/old.json";
    QTest::newRow("to nothing yet") << "link.json"
                                    << "disk/none.json"
                                    << "link.json"
                                    << "disk/none.json";
    QTest::newRow("to a folder on the way") << "way"
                                            << "disk"
                                            << "way/a.json"
                                            << "disk/a.json";
    QTest::newRow("to a link") << "link.json"
                               << "disk/link.json"
                               << "link.json"
                               << "disk/old.json";
}

void TestFaults::savesWhereTheLinkLeads()
{
    QFETCH(QString, link);
    QFETCH(QString, target);
    QFETCH(QString, path);
    QFETCH(QString, written);
    put(folder() + "/old.json", "old");
    if (!faults::link(folder() + "/old.json", folder() + "/link.json").holds) {
        QSKIP("This machine doesn't let links be made");
    }
    QVERIFY(faults::link(window->path(target), window->path(link)).holds);
    window->dialog.openNewJsonFile("R410");
    window->completeSteps();
    window->save(window->path(path));
    QCOMPARE(content(window->path(written)), compact(documents::standard("R410")));
    QVERIFY(QFileInfo(window->path(link)).isSymLink());
    QCOMPARE(window->members().settings.filePath, window->path(path));
    window->open(window->path(path));
    QCOMPARE(window->shownPath(), window->path(path));
}

void TestFaults::savesIntoAFileThatIsHeldOpen()
{
    put(file(), small());
    window->open(file());
    window->completeSteps();
    QFile holder(file());
    QVERIFY(holder.open(QIODevice::ReadWrite));
    QVERIFY(faults::lock(holder));
    window->write("cmdId", "all");
    window->save(QString());
    const QByteArray saved = compact(window->dialog.document());
    QVERIFY(saved.contains("cmdId"));
    QCOMPARE(holder.readAll(), saved);
    QCOMPARE(content(file()), saved);
}

void TestFaults::savesIntoTheFileThatCameInItsPlace()
{
    put(file(), small());
    window->open(file());
    window->completeSteps();
    QFile holder(file());
    QVERIFY(holder.open(QIODevice::ReadOnly));
    put(folder() + "/other.json", "another program's");
    if (std::rename(qPrintable(folder() + "/other.json"), qPrintable(file())) != 0) {
        QSKIP("This machine doesn't let an open file be replaced");
    }
    window->save(QString());
    QCOMPARE(content(file()), small());
    QCOMPARE(holder.readAll(), small());
    QCOMPARE(QDir(folder()).entryList(QDir::Files), QStringList{"a.json"});
}

void TestFaults::longNames_data()
{
    QTest::addColumn<QString>("name");
    const QString letters = QString::fromUtf8("Wärmepumpe Kraków 暖房 Ωμέγα ");
    QTest::newRow("200 letters in a name") << QString(195, 'n') + ".json";
    QTest::newRow("200 bytes in a name, not Latin") << letters.repeated(6).left(110) + ".json";
    QTest::newRow("200 letters on the way") << letters.repeated(3) + "/" + letters.repeated(5) + "/a.json";
}

void TestFaults::longNames()
{
    QFETCH(QString, name);
    const QString path = folder() + '/' + name;
    QVERIFY(path.size() > 140);
#ifdef Q_OS_WIN
    if (path.size() >= 260) {
        QSKIP("The file dialogs of Windows take no longer paths");
    }
#endif
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    const QSize size = window->dialog.size();
    const auto geometry = [this] {
        QList<QRect> places;
        for (const char *part : {"saveButton", "languageCombobox", "stackedWidget", "closeButton"}) {
            const QWidget *widget = Window::find(&window->dialog, part);
            places.append({widget->mapTo(&window->dialog, QPoint()), widget->size()});
        }
        return places;
    };
    window->dialog.openNewJsonFile("R32");
    window->dialog.setSideBarVisible(true);
    QTest::qWait(0);
    const auto before = geometry();
    window->completeSteps();
    window->save(path);
    QCOMPARE(content(path), compact(documents::standard("R32")));
    window->open(path);
    QCOMPARE(window->shownPath(), path);
    QCOMPARE(window->members().settings.filePath, path);
    // The path is cut off at the end of its bar, and moves nothing.
    QTest::qWait(0);
    QCOMPARE(window->dialog.size(), size);
    QCOMPARE(geometry(), before);
    QVERIFY(Window::find(&window->dialog, "pathLabel")->width() < size.width());
}

int main(int argc, char *argv[])
{
    faults::isolate();
    QApplication application(argc, argv);
    TestFaults tests;
    return runTests(&tests, argc, argv);
}
#include "tst_faults.moc"
