#include "support/look.h"
#include "support/measure.h"

#include "pages/product/dipswitchsettingstatus.h"
#include "widgets/palette.h"

#include <QScrollArea>
#include <QScrollBar>

namespace {

QScrollBar *barOf(const Window &window, const char *area)
{
    return Window::find<QScrollArea>(&window.dialog, area)->verticalScrollBar();
}

/// The page with all of the document's texts and marks.
void show(Window &window, const QJsonDocument &document, const QString &language, const QSize &size)
{
    window.use(document);
    window.dialog.setSideBarVisible(true);
    look::speak(window, language);
    look::resize(window, size);
    window.showPage(MainDialog::DipSwitchPage);
    Tour::settle();
}

} // namespace

// The dip switch page: one line for a decision, the guide beside the hand.
class TestDipSwitchLook : public QObject
{
    Q_OBJECT

private slots:
    void dipSwitchPageShowsAll_data();
    void dipSwitchPageShowsAll();
    void pairsStandSideBySide();
    void dipSwitchPageHasNoHistory_data() { look::everyLanguage(); }
    void dipSwitchPageHasNoHistory();
    void guideStandsBesideTheOptions_data() { look::everyLanguage(); }
    void guideStandsBesideTheOptions();
    void pairsComeBeforeLongCaptions();
    void cardsEndTogether_data() { look::everyLanguage(); }
    void cardsEndTogether();
    void captionsStandApart_data() { look::everyLanguage(); }
    void captionsStandApart();
    void threeChoicesKeepTheColumn_data() { look::everyLanguage(); }
    void threeChoicesKeepTheColumn();
    void guideHasOneEdge_data();
    void guideHasOneEdge();
    void meterRowsDependOnTheMeter();
};

void TestDipSwitchLook::dipSwitchPageShowsAll_data()
{
    QTest::addColumn<QString>("refrigerant");
    QTest::newRow("R32") << "R32";
    QTest::newRow("R410") << "R410";
}

void TestDipSwitchLook::dipSwitchPageShowsAll()
{
    QFETCH(QString, refrigerant);
    Window window;
    window.dialog.setSideBarVisible(true);
    for (const QJsonDocument &document :
         {documents::standard(refrigerant), documents::everything(refrigerant)}) {
        window.use(document);
        window.showPage(MainDialog::DipSwitchPage);
        Tour::settle();
        QCOMPARE(barOf(window, "dipswitchSettingScrollArea")->maximum(), 0);
        QCOMPARE(barOf(window, "optionsScrollArea")->maximum(), 0);
    }
}

void TestDipSwitchLook::pairsStandSideBySide()
{
    Window window;
    window.use(documents::standard("R32"));
    window.dialog.setSideBarVisible(true);
    window.showPage(MainDialog::DipSwitchPage);
    Tour::settle();
    int column = 0;
    for (const auto &[left, right] : std::initializer_list<std::pair<const char *, const char *>>{
             {"radioDhwNotUse", "radioDhwUse"},
             {"radioOperationHeating", "radioOperationBoth"},
             {"radioFlowAlways", "radioFlowOnlyPump"},
             {"radioThermostatNone", "radioThermostatUse"},
             {"radioOrvoAddressB0", "radioOrvoAddressB1"}}) {
        const QRect first = look::placeOf(Window::find(&window.dialog, left));
        const QRect second = look::placeOf(Window::find(&window.dialog, right));
        QCOMPARE(first.top(), second.top());
        column = column == 0 ? second.left() : column;
        QVERIFY2(second.left() == column, right);
    }
}

// Bank C comes and goes while the page is shown.
void TestDipSwitchLook::dipSwitchPageHasNoHistory()
{
    QFETCH(QString, language);
    Window window;
    window.dialog.setSideBarVisible(true);
    look::speak(window, language);
    look::resize(window, QSize(974, 612));
    const auto places = [&window](const char *refrigerant) {
        window.use(documents::standard(refrigerant));
        window.showPage(MainDialog::SelectPage);
        window.showPage(MainDialog::DipSwitchPage);
        Tour::settle();
        QList<QPoint> all;
        for (const char *name :
             {"radioDhwNotUse", "radioDhwUse", "radioOperationBoth", "radioThermostatUse"}) {
            all.append(look::placeOf(Window::find(&window.dialog, name)).topLeft());
        }
        return all;
    };
    places("R32");
    const QList<QPoint> first = places("R410");
    QCOMPARE(places("R410"), first);
    const QList<QPoint> back = places("R32");
    QCOMPARE(places("R32"), back);
}

void TestDipSwitchLook::guideStandsBesideTheOptions()
{
    QFETCH(QString, language);
    Window window;
    show(window, documents::everything("R32"), language, QSize(974, 612));
    const auto *guide = Window::find(&window.dialog, "guide");
    QVERIFY(look::placeOf(guide).left()
            > look::placeOf(Window::find(&window.dialog, "groupBoxOptions")).right());
    QScrollBar *bar = barOf(window, "optionsScrollArea");
    QVERIFY(bar->maximum() > 0);
    bar->setValue(bar->maximum());
    QCOMPARE(guide->visibleRegion().boundingRect(), guide->rect());
    const QStringList faults = measure::cutTexts(&window.dialog) + measure::misplaced(&window.dialog)
        + measure::needlessScrolling(&window.dialog);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(", ")));
}

// Captions break their lines in the smallest window before choices that would fit stand below each other.
void TestDipSwitchLook::pairsComeBeforeLongCaptions()
{
    Window window;
    show(window, documents::standard("R32"), QStringLiteral("Suomi"), QSize(974, 612));
    const auto top = [&window](const char *name) {
        return look::placeOf(Window::find(&window.dialog, name)).top();
    };
    QCOMPARE(top("radioDhwNotUse"), top("radioDhwUse"));
    QCOMPARE(top("radioThermostatNone"), top("radioThermostatUse"));
    const QWidget *address = Window::find(&window.dialog, "labelOrvoAddress");
    const QWidget *first = Window::find(&window.dialog, "radioOrvoAddressB0");
    QCOMPARE(address->geometry().top(), first->geometry().top());
}

// The options and the guide beside them, where the options fill the page.
void TestDipSwitchLook::cardsEndTogether()
{
    QFETCH(QString, language);
    for (const char *refrigerant : {"R32", "R410"}) {
        Window window;
        show(window, documents::everything(refrigerant), language, QSize(974, 612));
        QCOMPARE(look::placeOf(Window::find(&window.dialog, "guide")).bottom(),
                 look::placeOf(Window::find(&window.dialog, "groupBoxOptions")).bottom());
    }
}

// Further than a circle from its own words.
void TestDipSwitchLook::captionsStandApart()
{
    QFETCH(QString, language);
    for (const char *refrigerant : {"R32", "R410"}) {
        Window window;
        show(window, documents::everything(refrigerant), language, QSize(1440, 800));
        int measured = 0;
        for (const auto *caption : Window::find(&window.dialog, "optionRows")->findChildren<QLabel *>()) {
            const auto *group = caption->parentWidget();
            const auto *circle = group->findChild<QRadioButton *>(QString(), Qt::FindDirectChildrenOnly);
            if (!caption->isVisible() || circle == nullptr || caption->text().isEmpty()) {
                continue;
            }
            const int words = look::placeOf(caption).left() + caption->contentsMargins().left()
                + caption->fontMetrics().size(0, caption->text()).width();
            QVERIFY2(look::placeOf(circle).left() - words >= 24, qPrintable(caption->objectName()));
            ++measured;
        }
        QVERIFY(measured > 7);
    }
}

// One below the other sooner than beside each other out of the column of the pairs.
void TestDipSwitchLook::threeChoicesKeepTheColumn()
{
    QFETCH(QString, language);
    for (const QSize &size : {QSize(974, 612), QSize(1440, 800)}) {
        Window window;
        show(window, documents::everything("R410"), language, size);
        QMap<int, QString> columns;
        for (const char *name : {"radioDhwUse", "radioSolarThermalKitUse", "radioOperationBoth",
                                 "radioElectricHeater1", "radioThermostatUse", "radioOrvoAddressB1"}) {
            columns[look::placeOf(Window::find(&window.dialog, name)).left()] += QString(" ") + name;
        }
        QVERIFY2(columns.size() <= 2, qPrintable(columns.values().join(" |")));
    }
}

void TestDipSwitchLook::guideHasOneEdge_data() { dipSwitchPageShowsAll_data(); }

// Captions, banks and board on both sides, and as wide with bank C as without.
void TestDipSwitchLook::guideHasOneEdge()
{
    QFETCH(QString, refrigerant);
    Window window;
    window.dialog.setSideBarVisible(true);
    window.use(documents::standard(refrigerant));
    window.showPage(MainDialog::DipSwitchPage);
    window.dialog.findChild<DipSwitchSettingStatus *>()->changeImage(refrigerant);
    Tour::settle();
    const QRect guide = look::placeOf(Window::find(&window.dialog, "guide"));
    QCOMPARE(guide.width(), 1 + 16 + 270 + 16 + 1);
    for (const char *name : {"labelDWHGuide", "labelSW2", "frameSw2", "labelSW1", "frameSw1", "labelPCB"}) {
        QVERIFY2(look::placeOf(Window::find(&window.dialog, name)).left() == guide.left() + 17, name);
    }
    QStringList rights{"frameSw2", "labelPCB"};
    if (refrigerant == "R32") {
        rights.append("frameSw3");
    }
    for (const QString &name : qAsConst(rights)) {
        QVERIFY2(look::placeOf(Window::find(&window.dialog, name.toLatin1())).right() == guide.right() - 17,
                 qPrintable(name));
    }
}

// The address and the pulses stand below the interface; without one the captions of the pulses are as dim as
// their fields.
void TestDipSwitchLook::meterRowsDependOnTheMeter()
{
    Window window;
    window.use(documents::everything("R32"));
    window.dialog.setSideBarVisible(true);
    window.showPage(MainDialog::DipSwitchPage);
    Tour::settle();
    const auto ink = [&window](const char *name) {
        return Window::find(&window.dialog, name)->palette().color(QPalette::WindowText);
    };
    const auto *meter = Window::find(&window.dialog, "labelOrvometerInterface");
    for (const char *name :
         {"labelOrvoAddress", "labelOrvoWHM1", "labelOrvoWHM2", "labelOrvoWHM3", "labelOrvoWHM4"}) {
        const auto *label = Window::find<QLabel>(&window.dialog, name);
        QCOMPARE(look::placeOf(label).left(), look::placeOf(meter).left());
        QCOMPARE(label->contentsRect().left(), 12);
        QCOMPARE(ink(name), QColor(palette::text.value));
    }
    Window::click(&window.dialog, "radioOrvometerInterfaceNotuse");
    for (const char *name : {"labelOrvoWHM1", "labelPulsekW1", "labelOrvoWHM4", "labelPulsekW4"}) {
        QCOMPARE(ink(name).alpha(), QColor::fromRgbF(0, 0, 0, 0.3).alpha());
    }
    // What can be chosen isn't dim.
    QCOMPARE(ink("labelOrvoAddress"), QColor(palette::text.value));
    Window::click(&window.dialog, "radioOrvoAddressB0");
    QCOMPARE(ink("labelOrvoWHM1"), QColor(palette::text.value));
    QCOMPARE(ink("labelPulsekW1"), QColor(palette::quiet.value));
}

CALORA_TEST_MAIN(TestDipSwitchLook)
#include "tst_dipswitchlook.moc"
