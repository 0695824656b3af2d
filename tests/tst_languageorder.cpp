#include "support/window.h"

// The order in which a language change reaches the window and its pages, told by the keys that an empty
// language lacks: each lookup logs its key.
class TestLanguageOrder : public QObject
{
    Q_OBJECT

private slots:
    void windowComesFirst();
    void pagesFollowInOrder();

private:
    static QStringList keysAskedFor();
};

QStringList TestLanguageOrder::keysAskedFor()
{
    Window window;
    window.dialog.setLanguageDocument(QJsonDocument());
    messages::clear();
    window.dialog.changeLanguage();
    QStringList keys;
    const QStringList lines = messages::all();
    for (const QString &line : lines) {
        if (line.startsWith('"') && line.endsWith('"')) {
            keys.append(line.mid(1, line.size() - 2));
        }
    }
    return keys;
}

void TestLanguageOrder::windowComesFirst()
{
    const QStringList expected{
        "New",     "Open",       "Save",     "Language",     "ProductSelection", "DipSwitchSettingStatus",
        "Setting", "Validation", "Function", "Installation", "Service",          "User",
        "Select",  "New",        "Open",     "SubText"};
    QCOMPARE(keysAskedFor().mid(0, expected.size()), expected);
}

void TestLanguageOrder::pagesFollowInOrder()
{
    // A key of each page that no page before it asks for.
    const QStringList pages{"SubText",         "Producttype",      "ServiceContact", "CompleteMessage",
                            "Solarthermalkit", "LockTitle",        "Cool",           "Heat",
                            "Automode",        "DomesticHotWater", "SystemSetting",  "Secondcircuit",
                            "HSMode",          "TemperatureUnit"};
    const QStringList keys = keysAskedFor();
    int last = -1;
    for (const QString &key : pages) {
        const int place = keys.indexOf(key);
        QVERIFY2(place > last, qPrintable(key));
        last = place;
    }
    QCOMPARE(keys.count("Automode"), 1);
}

CALORA_TEST_MAIN(TestLanguageOrder)
#include "tst_languageorder.moc"
