#include "document/settings.h"
#include "support/documents.h"
#include "support/messages.h"
#include "support/testfiles.h"

#include <QJsonValue>
#include <QTemporaryDir>
#include <QTest>

// The settings document, from New or a file to a file, without a window.
class TestSettings : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { messages::install(); }
    void startsWithADefaultDocument();
    void opensWhatThereIs();
    void savesUnderTheNameTaken();
    void writesNothingWithoutADocument();
};

void TestSettings::startsWithADefaultDocument()
{
    for (const char *refrigerant : {"R32", "r410"}) {
        Settings settings;
        settings.takeName("/some/file.json");
        QVERIFY(settings.startWith(refrigerant));
        const QString name = QString(refrigerant).toUpper();
        QCOMPARE(settings.document, documents::standard(name));
        QCOMPARE(settings.filePath, QString(":/defaultsettings/KV5_AWHP_DATA_%1.json").arg(name));
        QVERIFY(settings.isNewFile);
        QVERIFY(!settings.startWith("R290"));
        QCOMPARE(settings.document, documents::standard(name));
    }
}

// What is no JSON counts as opened.
void TestSettings::opensWhatThereIs()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("plain.json");
    Settings settings;
    QVERIFY(settings.startWith("R32"));
    QVERIFY(!settings.open(path));
    QVERIFY(settings.isNewFile && !settings.document.isNull());
    testfiles::put(path, "plain");
    QVERIFY(settings.open(path));
    QVERIFY(settings.document.isNull() && !settings.isNewFile);
    QCOMPARE(settings.filePath, path);
}

void TestSettings::savesUnderTheNameTaken()
{
    const QTemporaryDir folder;
    const QString path = folder.filePath("saved.json");
    Settings settings;
    QVERIFY(!settings.allowsSave(true));
    QVERIFY(settings.startWith("R410"));
    QVERIFY(settings.allowsSave(true) && !settings.allowsSave(false));
    settings.setValue("SettingInfo.user.themeSet", "DARK");
    QCOMPARE(settings.value("SettingInfo.user.themeSet"), QJsonValue("DARK"));
    settings.takeName(path);
    settings.save(settings.filePath);
    const QVariantMap written{{"SettingInfo.user.themeSet", "DARK"}};
    QCOMPARE(testfiles::content(path),
             documents::with(documents::standard("R410"), written).toJson(QJsonDocument::Compact));
}

void TestSettings::writesNothingWithoutADocument()
{
    Settings settings;
    settings.setValue("a", 1);
    QVERIFY(settings.document.isNull());
    messages::clear();
    settings.save(QString());
    QCOMPARE(messages::all(), QStringList{"MainDialog::saveJsonFile save file path is empty"});
}

QTEST_APPLESS_MAIN(TestSettings)
#include "tst_settings.moc"
