#include "app/fonts.h"
#include "support/window.h"

#include <QSignalSpy>
#include <QTemporaryDir>

// The loading of the fonts; what lies beside the executable, which may be links, stays untouched.
class TestFonts : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        messages::install();
        messages::clear();
    }

    void missingFontIsTold_data();
    void missingFontIsTold();
    void lastOfThreeFontsStays();

private:
    static inline const QStringList files{"NotoSans-Medium.ttf", "NotoSans-Bold.ttf", "NotoSans-Light.ttf",
                                          "NotoSans-Regular.ttf"};
};

void TestFonts::missingFontIsTold_data()
{
    QTest::addColumn<QStringList>("missing");
    QTest::newRow("none") << QStringList();
    for (const QString &file : files) {
        QTest::newRow(qPrintable(file)) << QStringList{file};
    }
    QTest::newRow("all") << files;
}

// The others are loaded all the same.
void TestFonts::missingFontIsTold()
{
    QFETCH(QStringList, missing);
    const QTemporaryDir folder;
    QStringList told;
    for (const QString &file : files) {
        if (missing.contains(file)) {
            told.append("Failed to load " + file);
        } else {
            QVERIFY(QFile::copy(QCoreApplication::applicationDirPath() + '/' + file, folder.filePath(file)));
        }
    }
    loadFonts(folder.path());
    QFontDatabase::removeAllApplicationFonts();
    QCOMPARE(messages::all(), told);
    QCOMPARE(QApplication::font(), QFont("Noto Sans Med"));
}

void TestFonts::lastOfThreeFontsStays()
{
    const QSignalSpy changed(qApp, &QGuiApplication::fontChanged);
    loadFonts();
    QVERIFY(messages::all().isEmpty());
    QCOMPARE(changed.size(), 3);
    QCOMPARE(changed.at(0).at(0).value<QFont>(), QFont("Noto Sans"));
    QCOMPARE(changed.at(1).at(0).value<QFont>(), QFont("Noto Sans Light"));
    QCOMPARE(changed.at(2).at(0).value<QFont>(), QFont("Noto Sans Med"));
    QCOMPARE(QApplication::font(), QFont("Noto Sans Med"));
}

CALORA_TEST_MAIN(TestFonts)
#include "tst_fonts.moc"
