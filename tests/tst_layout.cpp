#include "support/measure.h"
#include "support/tour.h"

#include "languages/languagemenu.h"
#include "languages/letteritem.h"
#include "languages/userlanguageeditpopup.h"
#include "pages/installation/installationsystemsetting.h"

#include <QAbstractItemView>
#include <QGroupBox>
#include <QLayout>

#include <algorithm>

namespace {

int told(const QString &stop, const QStringList &faults)
{
    for (const QString &fault : faults) {
        QWARN(qPrintable(stop + ": " + fault));
    }
    return faults.size();
}

/// The role of what stands at `place` in a group box.
QString roleAt(const QGroupBox *box, int place)
{
    const QWidget *widget = box->layout()->itemAt(place)->widget();
    return widget != nullptr ? widget->property("role").toString() : QString();
}

/// The group boxes with something to set, but those whose caption is a heading.
QList<QGroupBox *> rowsOf(const QWidget *section)
{
    QList<QGroupBox *> rows;
    const auto boxes = section->findChildren<QGroupBox *>();
    for (QGroupBox *box : boxes) {
        const bool sets = box->findChild<QComboBox *>(QString(), Qt::FindDirectChildrenOnly) != nullptr
            || box->findChild<QRadioButton *>(QString(), Qt::FindDirectChildrenOnly) != nullptr;
        if (sets && roleAt(box, 0) != "heading") {
            rows.append(box);
        }
    }
    return rows;
}

QPoint onPage(const QWidget *widget) { return widget->mapTo(widget->window(), QPoint()); }

bool isFirstInItsRow(const QRadioButton *radio)
{
    const auto radios = radio->parentWidget()->findChildren<QRadioButton *>(QString(),
                                                                            Qt::FindDirectChildrenOnly);
    return std::none_of(radios.begin(), radios.end(), [radio](const QRadioButton *other) {
        return other->isVisible() && other->y() == radio->y() && other->x() < radio->x();
    });
}

/// What stands first behind each caption.
QList<const QWidget *> firstControls(const QWidget *pages)
{
    QList<const QWidget *> controls;
    const auto labels = pages->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        const QString role = label->property("role").toString();
        const QWidget *control = label->buddy();
        if (control != nullptr && control->isVisible() && (role == "caption" || role == "heading")) {
            controls.append(control);
        }
    }
    const auto radios = pages->findChildren<QRadioButton *>();
    for (const QRadioButton *radio : radios) {
        if (radio->isVisible() && isFirstInItsRow(radio)) {
            controls.append(radio);
        }
    }
    return controls;
}

} // namespace

// Nothing that the window shows is cut off or overlaps, at each size, in English and in a language whose
// words are longer, in °C and °F, on each page with as little and with as much as it can offer; and all pages
// have one grid.
class TestLayout : public QObject
{
    Q_OBJECT

private slots:
    void lengthensTexts();
    void hasRoom_data();
    void hasRoom();
    void controlsStandInOneColumn_data();
    void controlsStandInOneColumn();
    void rowsBeginWithBullets_data();
    void rowsBeginWithBullets();
    void openHeadersEndStraight();
    void curvesAreSetApart();
    void chosenItemIsMarked();
    void stepsAreJoined();
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
    window.stopPainting();
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

void TestLayout::controlsStandInOneColumn_data()
{
    QTest::addColumn<QString>("refrigerant");
    QTest::newRow("R32") << "R32";
    QTest::newRow("R410") << "R410";
}

// What follows a caption, and the first radio of each row; where "Min" or "Max" comes first, after its room,
// and months below the date's, after that of a year.
void TestLayout::controlsStandInOneColumn()
{
    QFETCH(QString, refrigerant);
    constexpr int roomOfWord = 44;
    constexpr int roomOfYear = 128;
    const QStringList months{"comboStartMonth", "comboEndMonth"};
    Window window;
    window.stopPainting();
    int measured = 0;
    Tour tour(window, refrigerant);
    for (const Tour::Stop &stop : tour.stops()) {
        stop.show();
        Tour::settle();
        const QList<const QWidget *> controls = firstControls(Window::find(&window.dialog, "stackedWidget"));
        for (const QWidget *control : controls) {
            const int column = onPage(control).x() - onPage(controls.first()).x();
            const bool isMonth = months.contains(control->objectName());
            QVERIFY2(isMonth ? column == roomOfYear : column == 0 || column == roomOfWord,
                     qPrintable(stop.name + ": " + control->objectName()));
            ++measured;
        }
    }
    QVERIFY(measured > 150);
}

// On the Installation tab, also those below a heading or below another row.
void TestLayout::rowsBeginWithBullets_data()
{
    QTest::addColumn<int>("atLeast");
    QTest::newRow("InstallationSystemAWHP") << 18;
    QTest::newRow("InstallationSystemAquabox") << 7;
    // With those of both products.
    QTest::newRow("InstallationSystemSetting") << 15 + 18 + 7;
    QTest::newRow("InstallationCool") << 13;
    QTest::newRow("InstallationHeat") << 11;
    QTest::newRow("InstallationaAuto") << 13;
    QTest::newRow("InstallationDWH") << 14;
}

void TestLayout::rowsBeginWithBullets()
{
    const Window window;
    const auto *area = Window::find(&window.dialog, "installationScrollArea");
    const auto widgets = area->findChildren<QWidget *>();
    const auto section = std::find_if(widgets.begin(), widgets.end(), [](const QWidget *widget) {
        return qstrcmp(widget->metaObject()->className(), QTest::currentDataTag()) == 0;
    });
    QVERIFY(section != widgets.end());
    const QList<QGroupBox *> rows = rowsOf(*section);
    QFETCH(int, atLeast);
    QVERIFY(rows.size() >= atLeast);
    for (const QGroupBox *row : rows) {
        const QByteArray name = row->objectName().toUtf8();
        QVERIFY2(roleAt(row, 0) == "bullet", name);
        QVERIFY2(row->layout()->itemAt(0)->widget()->property("text") == QString("· "), name);
        QVERIFY2(roleAt(row, 1) == "caption", name);
    }
}

// An open section is one card: its header has no round corners in the middle.
void TestLayout::openHeadersEndStraight()
{
    const QColor line(0xD6, 0xD6, 0xD7);
    Window window;
    window.use(documents::standard("R32"));
    window.showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    auto *section = window.page<InstallationSystemSetting>();
    const auto *header = Window::find(section, "hideButton")->parentWidget();
    const auto corner = [&](int y) {
        const QPoint place = header->mapTo(&window.dialog, QPoint(0, y));
        return window.dialog.grab(QRect(place, QSize(1, 1))).toImage().pixelColor(0, 0);
    };
    const int bottom = header->height() - 1;
    for (const bool open : {true, false}) {
        Window::expand(section, open);
        Tour::settle();
        QVERIFY(corner(0) != line);
        QVERIFY((corner(bottom) == line) == open);
        QCOMPARE(corner(bottom / 2), line);
    }
}

// Each curve of the auto mode, like each group of the other sections.
void TestLayout::curvesAreSetApart()
{
    Window window;
    window.use(documents::everything("R32"));
    window.dialog.setSideBarVisible(true);
    window.showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    Tour(window, QStringLiteral("R32")).expandSections();
    Tour::settle();
    auto *body = Window::find(&window.dialog, "groupBoxSeasonalAutoMode")->parentWidget();
    const QImage picture = body->grab().toImage();
    int lines = 0;
    for (int y = 1; y < picture.height() - 1; ++y) {
        lines += picture.pixelColor(20, y) == QColor(0xE6, 0xE6, 0xE7) ? 1 : 0;
    }
    QCOMPARE(lines, 5);
    QVERIFY(Window::find(body, "labelSeasonalOutdoor")->font().family()
            != Window::find(body, "labelSeasonalOutdoorHeat")->font().family());
}

// Whatever is under the mouse.
void TestLayout::chosenItemIsMarked()
{
    Window window;
    window.use(documents::standard("R32"));
    window.showPage(MainDialog::SettingPage, MainDialog::UserTab);
    auto *months = Window::find<QComboBox>(&window.dialog, "comboDateMonth");
    months->setCurrentIndex(2);
    months->showPopup();
    months->view()->setCurrentIndex(months->model()->index(5, 0));
    const QImage picture = months->view()->viewport()->grab().toImage();
    for (int row = 0; row < months->count(); ++row) {
        const QRect place = months->view()->visualRect(months->model()->index(row, 0));
        const QColor colour = picture.pixelColor(place.left(), place.center().y());
        QCOMPARE(colour == QColor(0xA5, 0x00, 0x34), row == 2);
        QCOMPARE(colour == QColor(0xF2, 0xF2, 0xF2), row == 5);
    }
    months->hidePopup();
}

void TestLayout::stepsAreJoined()
{
    Window window;
    window.dialog.setSideBarVisible(true);
    Tour::settle();
    for (const char *line : {"stepLine1", "stepLine2", "stepLine3"}) {
        QVERIFY2(Window::find(&window.dialog, line)->height() >= 20, line);
    }
    // On the axis of the discs, as far from the captions as from the discs' own edges, 3 px within.
    const QWidget *bar = Window::find(&window.dialog, "sideGroupBox");
    const QImage picture = window.dialog.grab().toImage();
    const auto placeOf = [&window](const char *name) {
        const auto *part = Window::find(&window.dialog, name);
        return QRect(part->mapTo(&window.dialog, QPoint()), part->size());
    };
    const QRect line = placeOf("stepLine1");
    const QColor pale(0xD6, 0xD6, 0xD7);
    QRect painted;
    for (int y = line.top(); y <= line.bottom(); ++y) {
        for (int x = bar->x(); x < bar->x() + bar->width(); ++x) {
            if (picture.pixelColor(x, y) == pale && x < bar->x() + bar->width() - 2) {
                painted |= QRect(x, y, 1, 1);
            }
        }
    }
    QCOMPARE(painted.width(), 2);
    QCOMPARE(painted.left() + painted.right(),
             placeOf("productSelectionButton").left() + placeOf("productSelectionButton").right());
    const int above = painted.top() - placeOf("labelSlide1").bottom();
    const int below = placeOf("dipSwitchButton").top() + 3 - painted.bottom();
    QVERIFY2(qAbs(above - below) <= 1, qPrintable(QString("%1 and %2").arg(above).arg(below)));
    // Crimson is left to the caption of the page that is shown.
    const QImage disc(QStringLiteral(":/images/btn_step_1_focus.png"));
    QCOMPARE(disc.pixelColor(4, disc.height() / 2), QColor(0x33, 0x33, 0x33));
    QCOMPARE(disc.pixelColor(10, disc.height() / 2), QColor(Qt::white));
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
