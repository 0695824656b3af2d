#include "support/editortest.h"
#include "support/faults.h"

#include <QRegularExpression>
#include <QTemporaryDir>

// The language editor finds no room for what it saves: it stays open, and no name is remembered.

namespace {

using testfiles::content;
using testfiles::put;
using testfiles::quoted;

} // namespace

class TestLanguageEditorFaults : public EditorTest
{
    Q_OBJECT

private slots:
    void init() { open(); }
    void cleanup() { close(); }

    void noRoom_data();
    void noRoom();

private:
    void verifyNotSaved(const QByteArray &left) const;

    QTemporaryDir folder;
    const QString path = folder.filePath(QStringLiteral("disk/Ours.json"));
};

void TestLanguageEditorFaults::noRoom_data()
{
    QTest::addColumn<bool>("disk");
    QTest::addColumn<bool>("isNew");
    QTest::addColumn<bool>("exists");
    QTest::addColumn<int>("written");
    QTest::newRow("full disk, new file") << true << true << false << 0;
    QTest::newRow("full disk, over a file") << true << true << true << 4096;
    QTest::newRow("full disk, over the opened file") << true << false << true << 4096;
    QTest::newRow("limited size, new file") << false << true << false << 4500;
    QTest::newRow("limited size, over a file") << false << true << true << 4500;
    QTest::newRow("limited size, over the opened file") << false << false << true << 4500;
    QTest::newRow("limit of nothing, new file") << false << true << false << 0;
}

// The texts that were typed are in force all the same, but no page shows them. The file keeps what found
// room.
void TestLanguageEditorFaults::verifyNotSaved(const QByteArray &left) const
{
    QVERIFY(editor->isVisible());
    QCOMPARE(content(path), left);
    QCOMPARE(ini(), QByteArray("English"));
    QCOMPARE(text("labelCurrentLanguage"), QString("English"));
    QCOMPARE(text("newButton"), QString("New"));
    Texts expected = english();
    expected.insert("New", "Neu");
    QCOMPARE(dialog().languageMap(), expected);
    QCOMPARE(rowOf("New")->editText(), QString("Neu"));
}

void TestLanguageEditorFaults::noRoom()
{
    QFETCH(bool, disk);
    QFETCH(bool, isNew);
    QFETCH(bool, exists);
    QFETCH(int, written);
    QVERIFY(QDir().mkpath(QFileInfo(path).path()));
    const auto mount = disk ? faults::Mount::small(QFileInfo(path).path(), "size=64k") : nullptr;
    if (mount ? !mount->holds() : !faults::SizeLimit::possible()) {
        QSKIP("This machine doesn't let the disk be limited");
    }
    QFile::remove(path);
    if (exists) {
        put(path, "{}");
    }
    start(isNew);
    editor->setLanguageFilePath(isNew ? QString() : path);
    edit("New", "Neu");
    const QByteArray whole = QJsonDocument::fromVariant(dialog().languageSnapshotMap()).toJson();
    QVERIFY(whole.size() > written);
    if (mount) {
        mount->fillUp("filler");
    }
    messages::clear();
    const QString asked = isNew ? path : QString();
    {
        const auto limit = mount ? nullptr : std::make_unique<faults::SizeLimit>(written);
        QCOMPARE(press("saveButton", asked).title.isEmpty(), !isNew);
    }
    const QString slot = "UserLanguageEditPopup::on_saveButton_clicked";
    // The file dialog, which finds no room either, may have messages of its own.
    QCOMPARE(messages::all().filter(QRegularExpression("^(UserLanguageEditPopup|LanguageMenu|MainDialog)::")),
             isNew ? (QStringList{slot + " saveFilePath: " + quoted(path),
                                  slot + " file open failed: " + quoted(path)})
                   : QStringList{slot + ": " + quoted(path)});
    verifyNotSaved(whole.left(written));

    QFile::remove(QFileInfo(path).path() + "/filler");
    press("saveButton", asked);
    QVERIFY(!editor->isVisible());
    QCOMPARE(content(path), whole);
    QCOMPARE(ini(), QByteArray("Ours"));
}

int main(int argc, char *argv[])
{
    faults::isolate();
    QApplication application(argc, argv);
    TestLanguageEditorFaults tests;
    return runTests(&tests, argc, argv);
}
#include "tst_languageeditorfaults.moc"
