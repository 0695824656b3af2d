#include "support/window.h"

#include "pages/page.h"

#include <QLineEdit>
#include <QProcess>

#include <cstring>

namespace {

/// A page whose slots ask for controls that none of its rows names.
class StrayPage : public Page
{
public:
    StrayPage()
    {
        choices = {{nullptr, {{&several}, {&other}}}};
        radio.setObjectName(QStringLiteral("radioStray"));
        several.setObjectName(QStringLiteral("radioOfSeveralPaths"));
        combo.setObjectName(QStringLiteral("comboStray"));
        edit.setObjectName(QStringLiteral("editStray"));
    }

    void ask(const QByteArray &what)
    {
        const QMap<QByteArray, std::function<void()>> all{
            {"load a radio", [this] { loadChoice(&radio); }},
            {"save a radio", [this] { save(&radio); }},
            {"save a radio of several paths", [this] { save(&several); }},
            {"load a list", [this] { loadList(&combo); }},
            {"save a list's text", [this] { save(&combo, QStringLiteral("1")); }},
            {"save a list's index", [this] { save(&combo, 1); }},
            {"caption", [this] {
                 setCaptions({{&edit, "NotUse"}});
             }}};
        all.value(what)();
    }

private:
    void saveJsonData(const QString &, const QJsonValue &) override {}
    void validationCheck() override {}

    QRadioButton radio;
    QRadioButton several;
    QRadioButton other;
    QComboBox combo;
    QLineEdit edit;
};

} // namespace

// A control that stands in no row of its page ends the run, however the tool was built: nothing is loaded or
// saved in silence.
class TestRows : public QObject
{
    Q_OBJECT

private slots:
    void strayControlEndsTheRun_data();
    void strayControlEndsTheRun();
};

void TestRows::strayControlEndsTheRun_data()
{
    QTest::addColumn<QByteArray>("told");
    const QByteArray noRow(" stands in no row of its page");
    QTest::newRow("load a radio") << "radioStray" + noRow;
    QTest::newRow("save a radio") << "radioStray" + noRow;
    QTest::newRow("save a radio of several paths") << "radioOfSeveralPaths" + noRow;
    QTest::newRow("load a list") << "comboStray" + noRow;
    QTest::newRow("save a list's text") << "comboStray" + noRow;
    QTest::newRow("save a list's index") << "comboStray" + noRow;
    QTest::newRow("caption") << QByteArray("editStray shows no caption");
}

void TestRows::strayControlEndsTheRun()
{
    QFETCH(QByteArray, told);
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {"ask", QTest::currentDataTag()});
    QVERIFY(process.waitForFinished());
    const QByteArray errors = process.readAllStandardError();
    QVERIFY2(errors.contains(told), errors.constData());
    QVERIFY(process.exitCode() != 0);
    QVERIFY(!errors.contains("went on"));
}

int main(int argc, char *argv[])
{
    qputenv("QT_FORCE_STDERR_LOGGING", "1");
    QApplication application(argc, argv);
    if (argc > 2 && std::strcmp(argv[1], "ask") == 0) {
        const MainDialog dialog;
        StrayPage().ask(argv[2]);
        qWarning("went on");
        return 0;
    }
    TestRows tests;
    return runTests(&tests, argc, argv);
}

#include "tst_rows.moc"
