#include "support/faults.h"
#include "support/languagefolder.h"
#include "support/watersection.h"

#include "pages/installation/installationcool.h"
#include "pages/installation/installationheat.h"

// Operations that the tool offers and that nothing in it calls.

namespace {

using water::mainZone;

/// What the two constant temperatures are brought to, and the lists that the boxes get by it.
struct Constants {
    int other;
    int main;
    QStringList otherList;
    QStringList mainList;
};

QStringList degrees(int low, int high) { return range(low, high, QStringLiteral("°C")); }

/// Sets the constants behind the section's back, with limits of 18 and 24 or 30 and 50, and has them brought
/// in.
template <class Page>
Constants broughtIn(const char *group, const QString &zones, int other, int main)
{
    constexpr bool cool = std::is_same_v<Page, InstallationCool>;
    const QString constant = QStringLiteral("SettingInfo.func.waterCtrBasisAir%1.").arg(QLatin1String(group));
    const QString limits = water::root
        + QStringLiteral("settempLimit.%1Water.").arg(cool ? QStringLiteral("cool") : "heat");
    water::Driver<Page> driver;
    driver.open({{limits + "low_limit", cool ? 18 : 30}, {limits + "high_limit", cool ? 24 : 50}});
    driver.put({{mainZone, zones}, {constant + "ctrTemp", other}, {constant + "ctrTempMainZone", main}});
    const QVariantMap changes = driver.run("setControlWaterTempRange");
    return {changes.value(constant + "ctrTemp", other).toInt(),
            changes.value(constant + "ctrTempMainZone", main).toInt(), driver.items("comboControlWaterTemp"),
            driver.items("comboControlMainZoneTemp")};
}

} // namespace

class TestIdleOperations : public QObject
{
    Q_OBJECT

private slots:
    void pagesReadTheDocument_data();
    void pagesReadTheDocument();
    void constantsOfCooling_data();
    void constantsOfCooling();
    void constantsOfHeating_data();
    void constantsOfHeating();
    void defaultLanguageAtTheRoot();

private:
    static void verify(const Constants &seen);
};

void TestIdleOperations::pagesReadTheDocument_data()
{
    QTest::addColumn<QByteArray>("page");
    for (const char *page :
         {"DipSwitchSettingStatus", "SettingFunction", "SettingUser", "SettingService",
          "InstallationSystemSetting", "InstallationSystemAWHP", "InstallationSystemAquabox",
          "InstallationDWH", "InstallationCool", "InstallationHeat", "InstallationaAuto"}) {
        QTest::newRow(page) << QByteArray(page);
    }
}

void TestIdleOperations::pagesReadTheDocument()
{
    QFETCH(QByteArray, page);
    Window window;
    window.use(documents::standard("R32"));
    const auto widgets = window.dialog.findChildren<QWidget *>();
    int found = 0;
    for (QWidget *widget : widgets) {
        if (widget->metaObject()->className() != page) {
            continue;
        }
        ++found;
        const auto read = [widget](const QString &path) {
            QJsonValue value(QStringLiteral("unread"));
            QMetaObject::invokeMethod(widget, "parseJsonData", Q_RETURN_ARG(QJsonValue, value),
                                      Q_ARG(QString, path));
            return value;
        };
        QCOMPARE(read("product"), QJsonValue("awhp"));
        QCOMPARE(read("SettingInfo.user.tempUnit.tempConversion"), QJsonValue("CENTIGRADE"));
        QVERIFY(read("SettingInfo.nowhere.a").isNull());
    }
    QCOMPARE(found, 1);
}

void TestIdleOperations::verify(const Constants &seen)
{
    QTEST(seen.other, "other");
    QTEST(seen.main, "main");
    QTEST(seen.otherList, "otherList");
    QTEST(seen.mainList, "mainList");
}

namespace {

void columnsOfConstants()
{
    QTest::addColumn<QString>("zones");
    QTest::addColumn<int>("otherBefore");
    QTest::addColumn<int>("mainBefore");
    QTest::addColumn<int>("other");
    QTest::addColumn<int>("main");
    QTest::addColumn<QStringList>("otherList");
    QTest::addColumn<QStringList>("mainList");
}

} // namespace

void TestIdleOperations::constantsOfCooling_data()
{
    columnsOfConstants();
    QTest::newRow("two, inside") << "SET" << 19 << 22 << 19 << 22 << degrees(18, 22) << degrees(19, 24);
    QTest::newRow("two, below") << "SET" << 15 << 20 << 18 << 18 << degrees(18, 18) << degrees(18, 24);
    QTest::newRow("two, above") << "SET" << 20 << 30 << 24 << 24 << degrees(18, 24) << degrees(24, 24);
    QTest::newRow("two, one above") << "SET" << 24 << 30 << 24 << 24 << degrees(18, 24) << degrees(24, 24);
    QTest::newRow("one, inside") << "CLR" << 20 << 99 << 20 << 99 << degrees(18, 24) << degrees(18, 24);
    QTest::newRow("one, below") << "CLR" << 15 << 20 << 18 << 18 << degrees(18, 24) << degrees(18, 24);
    QTest::newRow("one, above") << "clr" << 30 << 20 << 24 << 24 << degrees(18, 24) << degrees(18, 24);
}

void TestIdleOperations::constantsOfCooling()
{
    QFETCH(QString, zones);
    QFETCH(int, otherBefore);
    QFETCH(int, mainBefore);
    verify(broughtIn<InstallationCool>("Cool", zones, otherBefore, mainBefore));
}

void TestIdleOperations::constantsOfHeating_data()
{
    columnsOfConstants();
    QTest::newRow("two, inside") << "SET" << 40 << 35 << 40 << 35 << degrees(35, 50) << degrees(30, 40);
    QTest::newRow("two, above") << "SET" << 60 << 35 << 50 << 50 << degrees(50, 50) << degrees(30, 50);
    QTest::newRow("two, below") << "SET" << 40 << 25 << 30 << 30 << degrees(30, 50) << degrees(30, 30);
    QTest::newRow("two, one below") << "SET" << 30 << 25 << 30 << 30 << degrees(30, 50) << degrees(30, 30);
    QTest::newRow("one, inside") << "CLR" << 40 << 5 << 40 << 5 << degrees(30, 50) << degrees(30, 50);
    QTest::newRow("one, below") << "CLR" << 25 << 40 << 30 << 30 << degrees(30, 50) << degrees(30, 50);
    QTest::newRow("one, above") << "clr" << 60 << 40 << 50 << 50 << degrees(30, 50) << degrees(30, 50);
}

void TestIdleOperations::constantsOfHeating()
{
    QFETCH(QString, zones);
    QFETCH(int, otherBefore);
    QFETCH(int, mainBefore);
    verify(broughtIn<InstallationHeat>("Heat", zones, otherBefore, mainBefore));
}

// Only this program sees the file, which lies in a file system of its own.
void TestIdleOperations::defaultLanguageAtTheRoot()
{
    const QString folder = QStringLiteral("/language");
    const bool made = !QFileInfo::exists(folder) && QDir().mkdir(folder);
    {
        const auto mount = faults::Mount::small(folder, "size=1m");
        if (!mount->holds()) {
            QSKIP("This user can't mount anything there");
        }
        testfiles::put(folder + "/English.json", languagefolder::marked("~"));
        Window window;
        messages::clear();
        window.dialog.loadDefaultLanguageJsonFile();
        QVERIFY(messages::all().isEmpty());
        QCOMPARE(window.dialog.languageValue("New"), QString("New~"));
        QCOMPARE(Window::find<QPushButton>(&window.dialog, "newButton")->text(), QString("New"));
    }
    QCOMPARE(made && !QDir().rmdir(folder), false);
}

int main(int argc, char *argv[])
{
    faults::isolate();
    QApplication application(argc, argv);
    TestIdleOperations tests;
    return runTests(&tests, argc, argv);
}
#include "tst_idleoperations.moc"
