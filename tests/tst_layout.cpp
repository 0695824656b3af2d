#include "support/measure.h"
#include "support/tour.h"

#include "languages/languagemenu.h"
#include "languages/letteritem.h"
#include "languages/userlanguageeditpopup.h"

namespace {

int told(const QString &stop, const QStringList &faults)
{
    for (const QString &fault : faults) {
        QWARN(qPrintable(stop + ": " + fault));
    }
    return faults.size();
}

} // namespace

// Nothing that the window shows is cut off or overlaps, at each size, in English and in a language whose
// words are longer, in °C and °F, on each page with as little and with as much as it can offer.
class TestLayout : public QObject
{
    Q_OBJECT

private slots:
    void lengthensTexts();
    void hasRoom_data();
    void hasRoom();
    void guideGivesWay();
    void editorHasRoom();
    void menuHasRoom();
};

void TestLayout::lengthensTexts()
{
    QCOMPARE(measure::lengthened("Dry contact installation\n(CN_CC)"),
             QString("Drydr contactcon installationinsta\n(CNc_CCc)"));
    QCOMPARE(measure::lengthened("Use"), QString("Useus"));
    QCOMPARE(measure::lengthened("12"), QString("12"));
}

void TestLayout::hasRoom_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<bool>("longer");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("refrigerant");
    const auto row = [](const QSize &size, bool longer, const char *unit, const char *refrigerant) {
        QTest::addRow("%d x %d, %s, %s, %s", size.width(), size.height(), longer ? "longer" : "English", unit,
                      refrigerant)
            << size << longer << unit << refrigerant;
    };
    for (const bool longer : {false, true}) {
        for (const QSize &size : {QSize(974, 612), QSize(1440, 800), QSize(1920, 1080)}) {
            row(size, longer, "CENTIGRADE", "R32");
            row(size, longer, "FAHRENHEIT", "R410");
        }
        row(QSize(974, 612), longer, "FAHRENHEIT", "R32");
        row(QSize(974, 612), longer, "CENTIGRADE", "R410");
    }
}

void TestLayout::hasRoom()
{
    QFETCH(QSize, size);
    QFETCH(bool, longer);
    QFETCH(QString, unit);
    QFETCH(QString, refrigerant);
    Window window;
    window.dialog.resize(size);
    QTRY_COMPARE(window.dialog.size(), size);
    if (longer) {
        window.speak(measure::lengthened);
    }
    int faults = 0;
    Tour tour(window, refrigerant, unit);
    for (const Tour::Stop &stop : tour.stops()) {
        stop.show();
        Tour::settle();
        faults += told(stop.name,
                       measure::cutTexts(&window.dialog) + measure::misplaced(&window.dialog)
                           + measure::needlessScrolling(&window.dialog));
    }
    QCOMPARE(faults, 0);
}

void TestLayout::guideGivesWay()
{
    Window window;
    window.use(documents::standard("R32"));
    window.dialog.setSideBarVisible(true);
    window.showPage(MainDialog::DipSwitchPage);
    const auto *options = Window::find(&window.dialog, "groupBoxOptions");
    const auto *guide = Window::find(&window.dialog, "guide");
    window.dialog.resize(974, 612);
    QTRY_VERIFY(guide->x() > options->geometry().right());
    window.speak(measure::lengthened);
    QTRY_VERIFY(guide->y() > options->geometry().bottom());
    window.dialog.resize(1440, 800);
    QTRY_VERIFY(guide->x() > options->geometry().right());
    window.dialog.resize(974, 612);
    QTRY_VERIFY(guide->y() > options->geometry().bottom());
    window.speak();
    QTRY_VERIFY(guide->x() > options->geometry().right());
}

void TestLayout::editorHasRoom()
{
    Window window;
    window.dialog.setLanguageSnapshot(window.dialog.languageDocument());
    UserLanguageEditPopup editor;
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QVERIFY(editor.findChildren<LetterItem *>().size() > 200);
    QCOMPARE(told("editor", measure::cutTexts(&editor) + measure::misplaced(&editor)), 0);
}

void TestLayout::menuHasRoom()
{
    Window window;
    window.dialog.resize(974, 612);
    Window::click(&window.dialog, "languageCombobox");
    auto *menu = window.dialog.findChild<LanguageMenu *>();
    QVERIFY(menu->isVisible());
    QVERIFY(window.dialog.rect().contains(menu->geometry()));
    QCOMPARE(told("menu", measure::cutTexts(menu) + measure::misplaced(menu)), 0);
}

CALORA_TEST_MAIN(TestLayout)
#include "tst_layout.moc"
