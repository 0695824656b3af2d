#include "journeys/installer.h"

#include "pages/installation/installationaauto.h"
#include "pages/installation/installationcool.h"
#include "pages/installation/installationdwh.h"
#include "pages/installation/installationheat.h"
#include "pages/installation/installationsystemsetting.h"
#include "pages/product/dipswitchsettingstatus.h"

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>

namespace {

/// The value with every leaf replaced.
QJsonValue replaced(const QJsonValue &value, const QJsonValue &leaf)
{
    if (!value.isObject()) {
        return leaf;
    }
    QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member) {
        member.value() = replaced(member.value(), leaf);
    }
    return object;
}

QByteArray withLeaves(const QJsonValue &leaf)
{
    return QJsonDocument(replaced(documents::standard("R32").object(), leaf).toObject()).toJson();
}

QByteArray standardText()
{
    return Installer::content(QStringLiteral(":/defaultsettings/KV5_AWHP_DATA_R32.json"));
}

} // namespace

// Settings files that are damaged or foreign: the tool takes them, every page can be used, and what is loaded
// next is as if they had never been.
class TestBadFiles : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { installer = std::make_unique<Installer>(); }
    void cleanupTestCase() { installer.reset(); }

    void leavesNoTrace_data();
    void leavesNoTrace();
    void isTheSameDocument_data();
    void isTheSameDocument();
    void isSavedAsAnEmptyFile();

private:
    void open(const QByteArray &content);
    void walk();
    void setSectionsOpen(bool isOpen);

    std::unique_ptr<Installer> installer;
};

void TestBadFiles::open(const QByteArray &content)
{
    const QString path = installer->folder.filePath("bad.json");
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
    file.write(content);
    file.close();
    filedialogs::answer([this] { installer->press("openButton"); }, path);
    QCOMPARE(installer->window.dialog.members().settings.filePath, path);
}

void TestBadFiles::setSectionsOpen(bool isOpen)
{
    const Window &window = installer->window;
    for (QWidget *section :
         std::initializer_list<QWidget *>{window.page<InstallationSystemSetting>(),
                                          window.page<InstallationCool>(), window.page<InstallationHeat>(),
                                          window.page<InstallationaAuto>(), window.page<InstallationDWH>()}) {
        Window::expand(section, isOpen);
    }
}

void TestBadFiles::walk()
{
    installer->window.showPage(MainDialog::ProductPage);
    installer->window.showPage(MainDialog::DipSwitchPage);
    for (const int tab : {MainDialog::FunctionTab, MainDialog::UserTab, MainDialog::ServiceTab,
                          MainDialog::InstallationTab}) {
        installer->window.showPage(MainDialog::SettingPage, tab);
    }
}

void TestBadFiles::leavesNoTrace_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::newRow("empty") << QByteArray();
    QTest::newRow("no JSON") << QByteArray("Heat pump, cellar");
    QTest::newRow("array") << QByteArray(R"([1,{"product":"awhp"}])");
    QTest::newRow("empty array") << QByteArray("[]");
    QTest::newRow("empty object") << QByteArray("{}");
    QTest::newRow("number") << QByteArray("12");
    QTest::newRow("string") << QByteArray("\"awhp\"");
    QTest::newRow("texts for all") << withLeaves(QStringLiteral("nothing known"));
    QTest::newRow("SET for all") << withLeaves(QStringLiteral("SET"));
    QTest::newRow("empty texts for all") << withLeaves(QString());
    QTest::newRow("huge numbers for all") << withLeaves(1e18);
    QTest::newRow("largest int for all") << withLeaves(2147483647);
    QTest::newRow("smallest int for all") << withLeaves(-2147483647 - 1);
    QTest::newRow("fractions for all") << withLeaves(0.5);
    QTest::newRow("booleans for all") << withLeaves(true);
    QTest::newRow("null for all") << withLeaves(QJsonValue());
    QTest::newRow("arrays for all") << withLeaves(QJsonArray{1, QStringLiteral("SET")});
    QTest::newRow("objects for all") << withLeaves(QJsonObject{{"SET", "SET"}});
    QTest::newRow("groups that are texts")
        << QByteArray(R"({"product":"awhp","IduFuncList":"SET","SettingInfo":"SET"})");
    const QByteArray whole = standardText();
    for (const int part : {1, 10, 25, 50, 75, 90, 99}) {
        QTest::newRow(qPrintable(QString("cut off at %1 %").arg(part)))
            << whole.left(whole.size() * part / 100);
    }
}

void TestBadFiles::leavesNoTrace()
{
    QFETCH(QByteArray, content);
    open(content);
    walk();
    setSectionsOpen(true);
    walk();
    setSectionsOpen(false);
    installer->goToValidation();

    installer->startNew("R32");
    walk();
    QCOMPARE(documents::changes(documents::standard("R32"), installer->window.dialog.document()),
             QVariantMap());
    open(standardText());
    walk();
    QCOMPARE(documents::changes(documents::standard("R32"), installer->window.dialog.document()),
             QVariantMap());
}

// What differs in form alone, or holds more than the tool knows.
void TestBadFiles::isTheSameDocument_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QVariantMap>("more");
    QByteArray lines = standardText();
    QTest::newRow("line feeds") << QByteArray(lines).replace("\r\n", "\n") << QVariantMap();
    QTest::newRow("carriage returns") << QByteArray(lines).replace("\r\n", "\r") << QVariantMap();
    QTest::newRow("byte-order mark") << QByteArray("\xEF\xBB\xBF" + lines) << QVariantMap();
    QTest::newRow("unknown key") << QByteArray(lines).replace("\"rsvStep\"",
                                                              "\"mine\": {\"a\": [1, null]},\n\"rsvStep\"")
                                 << QVariantMap{
                                        {"rsv.mine.a", QVariantList{1, QVariant::fromValue(nullptr)}}};
    // The last of two counts.
    QTest::newRow("doubled key") << QByteArray(lines).replace("\"rsvStep\"", "\"rsvStep\": 7,\n\"rsvStep\"")
                                 << QVariantMap();
}

void TestBadFiles::isTheSameDocument()
{
    QFETCH(QByteArray, content);
    QFETCH(QVariantMap, more);
    open(content);
    walk();
    QCOMPARE(documents::changes(documents::standard("R32"), installer->window.dialog.document()), more);
}

// The ticks and marks are those of the document before, so Save isn't refused.
void TestBadFiles::isSavedAsAnEmptyFile()
{
    installer.reset();
    installer = std::make_unique<Installer>();
    open(documents::with(documents::standard("R32"),
                         {{"SettingInfo.user.DateInfo.year", 2025},
                          {"SettingInfo.user.DateInfo.month", 6},
                          {"SettingInfo.user.DateInfo.mday", 15}})
             .toJson());
    Window::click(installer->window.page<DipSwitchSettingStatus>(), "radioOperationBoth");
    installer->goToSettings();
    installer->tab("userTabButton");
    installer->tab("installationTabButton");
    installer->goToValidation();
    QCOMPARE(installer->message(), QString("Complete!"));

    open(standardText().left(5000));
    installer->goToValidation();
    QCOMPARE(installer->message(), QString("Complete!"));
    QVERIFY(!installer->save());
    QCOMPARE(Installer::content(installer->folder.filePath("bad.json")), QByteArray());
}

CALORA_TEST_MAIN(TestBadFiles)
#include "tst_badfiles.moc"
