#include "support/tour.h"

#include <QFile>
#include <QRegularExpression>

// The scripts that try the packages and the executable for Windows press the window at places; that they
// still hit what they name is seen here sooner than in a bare system.
class TestScriptedClicks : public QObject
{
    Q_OBJECT

private slots:
    void hitWhatTheyName_data();
    void hitWhatTheyName();
};

void TestScriptedClicks::hitWhatTheyName_data()
{
    QTest::addColumn<QString>("script");
    QTest::newRow("packages") << "scripts/test-package";
    QTest::newRow("Windows") << "tests/windows/driving.sh";
}

void TestScriptedClicks::hitWhatTheyName()
{
    static const QHash<QString, QByteArray> names{{"Open", "openButton"},
                                                  {"Save", "saveButton"},
                                                  {"Operation setting", "settingButton"},
                                                  {"User", "userTabButton"},
                                                  {"Service", "serviceTabButton"},
                                                  {"Installation", "installationTabButton"}};
    static const QRegularExpression presses(
        QStringLiteral("^ *(?:for tab in ([\\d ]+); do )?click \"?(\\S+?)\"? (\\d+)(?:; done)? +# (.+)$"),
        QRegularExpression::MultilineOption);
    QFETCH(QString, script);
    QFile file(QStringLiteral(TEST_DATA_DIR "/../../") + script);
    QVERIFY(file.open(QIODevice::ReadOnly));
    Window window;
    window.use(documents::everything("R32"));
    window.dialog.setSideBarVisible(true);
    window.showPage(MainDialog::SettingPage);
    Tour::settle();
    int hits = 0;
    auto all = presses.globalMatch(QString::fromUtf8(file.readAll()));
    while (all.hasNext()) {
        const auto press = all.next();
        const QStringList columns = press.captured(1).isEmpty() ? QStringList{press.captured(2)}
                                                                : press.captured(1).split(' ');
        const QStringList named = press.captured(4).split(", ");
        QCOMPARE(columns.size(), named.size());
        for (int index = 0; index < columns.size(); ++index) {
            const QPoint place(columns.at(index).toInt(), press.captured(3).toInt());
            const QWidget *widget = Window::find(&window.dialog, names.value(named.at(index)));
            QVERIFY2(widget->rect().contains(widget->mapFrom(&window.dialog, place)),
                     qPrintable(named.at(index)));
            ++hits;
        }
    }
    QCOMPARE(hits, 6);
}

CALORA_TEST_MAIN(TestScriptedClicks)
#include "tst_scriptedclicks.moc"
