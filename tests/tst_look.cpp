#include "support/look.h"
#include "support/measure.h"
#include "support/modal.h"
#include "support/mouse.h"
#include "support/testfiles.h"

#include "languages/languagemenu.h"
#include "languages/userlanguageeditpopup.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFile>
#include <QGroupBox>
#include <QJsonDocument>
#include <QLayout>
#include <QScrollArea>
#include <QScrollBar>
#include <QTemporaryDir>

namespace {

/// All cards that the shown page has.
QRect cards(const Window &window)
{
    QRect all;
    const auto boxes = Window::find(&window.dialog, "stackedWidget")->findChildren<QWidget *>();
    for (const QWidget *box : boxes) {
        const QString role = box->property("role").toString();
        if (box->isVisible() && (role == "card" || role == "header")) {
            all |= look::placeOf(box);
        }
    }
    return all;
}

/// Where the paper of the cards begins in the window's column `x`, and their edge before it.
int edgeOfCards(Window &window, int x)
{
    const QImage picture = window.dialog.grab().toImage();
    const QColor ground(0xF2, 0xF2, 0xF2);
    const auto colourAt = [&](int y) { return picture.pixelColor(x, y); };
    int y = cards(window).top() - 1;
    while (y < picture.height() - 1 && colourAt(y) == ground) {
        ++y;
    }
    return colourAt(y) == QColor(0xD6, 0xD6, 0xD7) && colourAt(y + 1) == QColor(Qt::white) ? y : -1;
}

/// Where the texts in the cards begin.
int textEdge(const Window &window)
{
    int edge = window.dialog.width();
    const auto labels = Window::find(&window.dialog, "stackedWidget")->findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        const QRect place = look::placeOf(label);
        if (label->isVisible() && !label->text().isEmpty() && cards(window).contains(place)) {
            edge = qMin(edge, place.left() + label->margin());
        }
    }
    return edge;
}

/// Choices whose circle stands less than 24 pixels behind the word of the one before it; counts all pairs.
QStringList tooNear(const QWidget *page, int &measured)
{
    QStringList near;
    const auto radios = page->findChildren<QRadioButton *>();
    for (const QRadioButton *left : radios) {
        const auto neighbours = left->parentWidget()->findChildren<QRadioButton *>();
        for (const QRadioButton *right : neighbours) {
            if (left->isVisible() && right->isVisible() && left->y() == right->y()
                && left->x() < right->x()) {
                ++measured;
                if (right->x() - left->x() - left->sizeHint().width() < 24) {
                    near.append(right->objectName());
                }
            }
        }
    }
    return near;
}

} // namespace

// What makes the window one calm page: one column, one line for a decision, the guide beside the hand.
class TestLook : public QObject
{
    Q_OBJECT

private slots:
    void tabBarEndsWithTheCards_data() { sizes(); }
    void tabBarEndsWithTheCards();
    void tabsAreJoined();
    void marksStandBesideTheTabsTexts_data() { look::everyLanguage(); }
    void marksStandBesideTheTabsTexts();
    void marksAreNearTheTabsTexts();
    void pagesAreOneColumn_data() { sizes(); }
    void pagesAreOneColumn();
    void pagesHaveOneGrid();
    void tabsContentBeginsAtTheTabs();
    void captionsStandInOneLine_data() { look::everyLanguage(); }
    void captionsStandInOneLine();
    void choicesStandApart_data() { look::everyLanguage(); }
    void choicesStandApart();
    void emptySectionHasNoStrip();
    void startShowsNoRing();
    void stepCaptionsAreLargeEnough();
    void saveIsPrimaryWhileItWouldSave();
    void saveIsPrimaryForAnOpenedFile();
    void saveIsPrimaryForANewDocument();
    void monthsNeedNoScrolling();
    void popupLinesUpWithItsBox();
    void popupMarksTheLanguageInForce();
    void popupShowsTheRowUnderTheMouse();
    void editorOpensInTheMiddle();

private:
    static void sizes();
};

void TestLook::sizes()
{
    QTest::addColumn<QSize>("size");
    for (const QSize &size : {QSize(974, 612), QSize(1440, 800), QSize(1920, 1080)}) {
        QTest::addRow("%d", size.width()) << size;
    }
}

void TestLook::tabBarEndsWithTheCards()
{
    QFETCH(QSize, size);
    Window window;
    window.use(documents::standard("R32"));
    window.dialog.setSideBarVisible(true);
    look::resize(window, size);
    for (int tab = MainDialog::FunctionTab; tab <= MainDialog::InstallationTab; ++tab) {
        window.showPage(MainDialog::SettingPage, tab);
        Tour::settle();
        const QRect last = look::placeOf(Window::find(&window.dialog, "installationTabButton"));
        const QRect first = look::placeOf(Window::find(&window.dialog, "functionTabButton"));
        QCOMPARE(last.right(), cards(window).right());
        QCOMPARE(first.left(), cards(window).left());
    }
}

void TestLook::tabsAreJoined()
{
    Window window;
    window.use(documents::standard("R32"));
    window.dialog.setSideBarVisible(true);
    window.showPage(MainDialog::SettingPage, MainDialog::UserTab);
    int end = look::placeOf(Window::find(&window.dialog, "functionTabButton")).left();
    for (const char *tab : {"function", "user", "service", "installation"}) {
        const auto name = [tab](const char *kind) { return QByteArray(tab) + kind; };
        const QRect place = look::placeOf(Window::find(&window.dialog, name("TabButton")));
        QCOMPARE(place.left(), end);
        end = place.left() + place.width();
        QVERIFY(place.contains(look::placeOf(Window::find(&window.dialog, name("ValidationIcon")))));
    }
}

void TestLook::marksStandBesideTheTabsTexts()
{
    QFETCH(QString, language);
    Window window;
    window.use(documents::standard("R32"));
    window.dialog.setSideBarVisible(true);
    look::speak(window, language);
    look::resize(window, QSize(974, 612));
    window.showPage(MainDialog::SettingPage, MainDialog::UserTab);
    Tour::settle();
    for (const char *tab : {"function", "user", "service", "installation"}) {
        const auto *button = Window::find(&window.dialog, QByteArray(tab) + "TabButton");
        auto *mark = Window::find(&window.dialog, QByteArray(tab) + "ValidationIcon");
        mark->show();
        Tour::settle();
        QFont font = button->font();
        font.setPointSize(15);
        const QString key = QString(tab).replace(0, 1, QString(QString(tab).at(0).toUpper()));
        const int half = QFontMetrics(font).horizontalAdvance(window.dialog.languageTextOrKey(key)) / 2;
        QVERIFY2(look::placeOf(button).center().x() + half < look::placeOf(mark).left(), tab);
    }
}

// The free room of a wide tab lies beside both, and goes with the text.
void TestLook::marksAreNearTheTabsTexts()
{
    Window window;
    window.use(documents::standard("R32"));
    window.dialog.setSideBarVisible(true);
    look::resize(window, QSize(1920, 1080));
    window.showPage(MainDialog::SettingPage, MainDialog::FunctionTab);
    const QWidget *tab = Window::find(&window.dialog, "userTabButton");
    QWidget *mark = Window::find(&window.dialog, "userValidationIcon");
    mark->show();
    for (const QString &language : {QStringLiteral("English"), QStringLiteral("Polski")}) {
        look::speak(window, language);
        QFont font = tab->font();
        font.setPointSize(15);
        const int text = QFontMetrics(font).horizontalAdvance(window.dialog.languageTextOrKey("User"));
        const int end = look::placeOf(tab).left() + (tab->width() + text) / 2;
        const int gap = look::placeOf(mark).left() - end;
        QVERIFY2(gap >= 8 && gap <= 12, qPrintable(QString::number(gap)));
    }
}

void TestLook::pagesAreOneColumn()
{
    QFETCH(QSize, size);
    Window window;
    look::resize(window, size);
    Tour tour(window, QStringLiteral("R32"));
    QRect column;
    int measured = 0;
    for (const Tour::Stop &stop : tour.stops()) {
        stop.show();
        Tour::settle();
        const QRect shown = cards(window);
        if (stop.name.contains("select") || shown.isEmpty()) {
            continue;
        }
        column = column.isNull() ? shown : column;
        QVERIFY2(shown.left() == column.left() && shown.right() == column.right(), qPrintable(stop.name));
        ++measured;
    }
    QVERIFY(measured > 8);
    QVERIFY(column.width() <= 1040);
    QVERIFY(column.width() == 1040 || size.width() < 1440);
    QVERIFY(size.width() >= 1440 || column.left() - 148 <= 16); // all that there is
    // In the middle of what the steps and a scroll bar leave.
    const int left = column.left() - 148;
    const int right = size.width() - 12 - column.right() - 1;
    QVERIFY(qAbs(left - right) <= 1);
}

// One top, one edge and one inset: under the tool bar, and lower under the tabs.
void TestLook::pagesHaveOneGrid()
{
    constexpr int margin = 12;
    constexpr int inset = 17;
    Window window;
    look::resize(window, QSize(1440, 800));
    Tour tour(window, QStringLiteral("R32"));
    int measured = 0;
    for (const Tour::Stop &stop : tour.stops()) {
        stop.show();
        auto *area = Window::find<QScrollArea>(&window.dialog, "installationScrollArea");
        area->verticalScrollBar()->setValue(0); // opened sections have scrolled
        Tour::settle();
        const QRect shown = cards(window);
        if (stop.name.contains("select") || shown.isEmpty()) {
            continue;
        }
        const auto *tabs = Window::find(&window.dialog, "tabBar");
        const auto *above = tabs->isVisible() ? tabs : Window::find(&window.dialog, "pathGroupBox");
        QVERIFY2(shown.top() - look::placeOf(above).bottom() - 1 == margin, qPrintable(stop.name));
        QVERIFY2(edgeOfCards(window, shown.left() + 100) == shown.top(), qPrintable(stop.name));
        QVERIFY2(textEdge(window) - shown.left() == inset,
                 qPrintable(QStringLiteral("%1 at %2").arg(stop.name).arg(textEdge(window))));
        ++measured;
    }
    QVERIFY(measured > 8);
}

// Their content isn't cut off below a gap.
void TestLook::tabsContentBeginsAtTheTabs()
{
    Window window;
    window.use(documents::standard("R32"));
    window.dialog.setSideBarVisible(true);
    const auto *tabs = Window::find(&window.dialog, "tabBar");
    for (const auto &[tab, name] : std::initializer_list<std::pair<int, const char *>>{
             {MainDialog::FunctionTab, "functionScrollArea"},
             {MainDialog::UserTab, "userScrollArea"},
             {MainDialog::ServiceTab, "serviceWidget"},
             {MainDialog::InstallationTab, "installationScrollArea"}}) {
        window.showPage(MainDialog::SettingPage, tab);
        Tour::settle();
        QCOMPARE(look::placeOf(Window::find(&window.dialog, name)).top(), look::placeOf(tabs).bottom() + 1);
    }
}

void TestLook::captionsStandInOneLine()
{
    QFETCH(QString, language);
    Window window;
    look::speak(window, language);
    QStringList broken;
    int measured = 0;
    Tour tour(window, QStringLiteral("R32"));
    for (const Tour::Stop &stop : tour.stops()) {
        stop.show();
        Tour::settle();
        const auto labels = Window::find(&window.dialog, "stackedWidget")->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            const QString role = label->property("role").toString();
            const bool isCaption = role == "caption" || role == "heading"
                || (label->wordWrap() && label->objectName().startsWith("label"));
            if (isCaption && label->isVisible() && !label->text().contains('\n')) {
                const int needed = label->fontMetrics().horizontalAdvance(label->text());
                if (needed > label->contentsRect().width() - 2 * label->margin()) {
                    broken.append(stop.name + ": " + label->text());
                }
                ++measured;
            }
        }
    }
    QVERIFY(measured > 100);
    QCOMPARE(broken, QStringList());
}

// The circle to the right of a word isn't that word's.
void TestLook::choicesStandApart()
{
    QFETCH(QString, language);
    Window window;
    window.dialog.setSideBarVisible(true);
    look::speak(window, language);
    int measured = 0;
    for (const QSize &size : {QSize(974, 612), QSize(1440, 800)}) {
        look::resize(window, size);
        for (const QJsonDocument &document : {documents::standard("R32"), documents::everything("R410")}) {
            window.use(document);
            window.showPage(MainDialog::SelectPage);
            window.showPage(MainDialog::DipSwitchPage);
            Tour::settle();
            QCOMPARE(tooNear(Window::find(&window.dialog, "optionRows"), measured), QStringList());
            const auto inRow = [&window](const char *one, const char *other) {
                return Window::find(&window.dialog, one)->y() == Window::find(&window.dialog, other)->y();
            };
            const bool hasThird = Window::find(&window.dialog, "radioDhwOnly")->isVisible();
            QVERIFY(hasThird
                    || inRow("radioDhwNotUse", "radioDhwUse")
                        == inRow("radioSolarThermalKitNotuse", "radioSolarThermalKitUse"));
        }
    }
    Tour tour(window, QStringLiteral("R32"));
    for (const Tour::Stop &stop : tour.stops()) {
        if (stop.name.startsWith(QLatin1String("everything"))) {
            stop.show();
        }
    }
    Tour::settle();
    QCOMPARE(tooNear(Window::find(&window.dialog, "stackedWidget"), measured), QStringList());
    QVERIFY(measured > 30);
}

// Cooling offers nothing while the heat pump doesn't cool.
void TestLook::emptySectionHasNoStrip()
{
    Window window;
    window.use(documents::standard("R32"));
    window.dialog.setSideBarVisible(true);
    window.showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    Tour(window, QStringLiteral("R32")).expandSections();
    Tour::settle();
    int empty = 0;
    for (const QFrame *body : window.dialog.findChildren<QFrame *>("frame")) {
        const auto groups = body->findChildren<QGroupBox *>(QString(), Qt::FindDirectChildrenOnly);
        const bool hasRows = std::any_of(groups.begin(), groups.end(),
                                         [](const QGroupBox *group) { return group->isVisible(); });
        if (body->inherits("SectionBody") && body->isVisible() && !hasRows) {
            QVERIFY(body->height() <= 1);
            ++empty;
        }
    }
    QVERIFY(empty > 0);
}

// Save has white between its red and the ring.
void TestLook::startShowsNoRing()
{
    const QColor blue(0x1D, 0x5F, 0xA6);
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window.dialog));
    const auto *bar = Window::find(&window.dialog, "toolbarGroupBox");
    const auto beside = [&window, bar](const char *name, int away) {
        const QRect button = look::placeOf(Window::find(bar, name));
        const QPoint place(button.left() - away, button.center().y());
        return window.dialog.grab(QRect(place, QSize(1, 1))).toImage().pixelColor(0, 0);
    };
    QVERIFY(Window::find(bar, "newButton")->hasFocus());
    for (int away = -3; away <= 5; ++away) {
        QVERIFY(beside("newButton", away) != blue);
    }
    window.use(documents::standard("R32"));
    for (const int step : {1, 2, 3}) {
        window.dialog.setStepCompleted(true, step);
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(beside("openButton", 4), blue);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QCOMPARE(beside("saveButton", 4), blue);
    QCOMPARE(beside("saveButton", 2), QColor(Qt::white));
}

void TestLook::stepCaptionsAreLargeEnough()
{
    const Window window;
    for (const char *name : {"labelSlide1", "labelSlide2", "labelSlide3", "labelSlide4"}) {
        auto *caption = Window::find(&window.dialog, name);
        caption->ensurePolished();
        QVERIFY(caption->font().pointSize() >= 10);
    }
}

void TestLook::saveIsPrimaryWhileItWouldSave()
{
    Window window;
    auto *save = Window::find<QPushButton>(Window::find(&window.dialog, "toolbarGroupBox"), "saveButton");
    const auto isPrimary = [save] { return save->property("saves").toBool(); };
    const auto complete = [&window](bool completed) {
        for (const int step : {1, 2, 3}) {
            window.dialog.setStepCompleted(completed, step);
        }
    };
    QVERIFY(!isPrimary());
    complete(true);
    QVERIFY(!isPrimary()); // no document
    complete(false);
    Window::click(Window::find(&window.dialog, "toolbarGroupBox"), "newButton");
    Window::click(&window.dialog, "radioButtonMiddleTemp");
    Window::click(&window.dialog, "radioButtonR32");
    QVERIFY(!isPrimary());
    complete(true);
    QVERIFY(isPrimary());
    QVERIFY(save->styleSheet().isEmpty());
    QCOMPARE(save->grab().toImage().pixelColor(8, 18), QColor(0xA5, 0x00, 0x34));
    for (const int step : {1, 2, 3}) {
        window.dialog.setStepCompleted(false, step);
        QVERIFY(!isPrimary());
        QVERIFY(save->isEnabled());
        QCOMPARE(save->grab().toImage().pixelColor(8, 18), QColor(Qt::white));
        window.dialog.setStepCompleted(true, step);
        QVERIFY(isPrimary());
    }
    Window::click(Window::find(&window.dialog, "toolbarGroupBox"), "newButton");
    QVERIFY(!isPrimary());
}

void TestLook::saveIsPrimaryForAnOpenedFile()
{
    Window window;
    auto *bar = Window::find(&window.dialog, "toolbarGroupBox");
    const auto isPrimary = [bar] { return Window::find(bar, "saveButton")->property("saves").toBool(); };
    const auto open = [bar](const QString &file) {
        filedialogs::answer([bar] { Window::click(bar, "openButton"); }, file);
    };
    const auto completeSteps = [&window] {
        for (const int step : {1, 2, 3}) {
            window.dialog.setStepCompleted(true, step);
        }
    };
    const QTemporaryDir folder;
    const QString file = folder.filePath("plant.json");
    testfiles::put(file, documents::standard("R32").toJson());
    completeSteps();
    QVERIFY(!isPrimary()); // no document
    open(QString());
    QVERIFY(!isPrimary());
    open(file);
    QVERIFY(isPrimary());
    window.dialog.setStepCompleted(false, 2);
    QVERIFY(!isPrimary());
    open(QString());
    QVERIFY(!isPrimary());
    completeSteps();
    window.speak("~");
    QVERIFY(isPrimary());
    Window::click(bar, "saveButton");
    QVERIFY(isPrimary());
    Window::click(bar, "newButton");
    QVERIFY(!isPrimary());
}

// Whoever calls it, and whatever the steps are.
void TestLook::saveIsPrimaryForANewDocument()
{
    Window window;
    for (const int step : {1, 2, 3}) {
        window.dialog.setStepCompleted(true, step);
    }
    QVERIFY(window.dialog.openNewJsonFile("R32"));
    QVERIFY(Window::find(Window::find(&window.dialog, "toolbarGroupBox"), "saveButton")
                ->property("saves")
                .toBool());
}

void TestLook::monthsNeedNoScrolling()
{
    Window window;
    window.use(documents::standard("R32"));
    window.showPage(MainDialog::SettingPage, MainDialog::UserTab);
    auto *months = Window::find<QComboBox>(&window.dialog, "comboDateMonth");
    QCOMPARE(months->count(), 13);
    months->showPopup();
    QCOMPARE(months->view()->verticalScrollBar()->maximum(), 0);
    months->hidePopup();
}

void TestLook::popupLinesUpWithItsBox()
{
    Window window;
    const auto *box = Window::find(&window.dialog, "languageCombobox");
    Window::click(&window.dialog, "languageCombobox");
    const auto *menu = window.dialog.findChild<LanguageMenu *>();
    QVERIFY(menu->isVisible());
    QCOMPARE(menu->width(), 176);
    QCOMPARE(look::placeOf(menu).left(), look::placeOf(box).left());
    QCOMPARE(look::placeOf(menu).right(), look::placeOf(box).right());
}

void TestLook::popupMarksTheLanguageInForce()
{
    Window window;
    Window::click(&window.dialog, "languageCombobox");
    const auto *menu = window.dialog.findChild<LanguageMenu *>();
    const QString inForce = Window::find<QLabel>(&window.dialog, "labelCurrentLanguage")->text();
    int marked = 0;
    for (const QLabel *name : menu->findChildren<QLabel *>("labelLanguage")) {
        QWidget *row = name->parentWidget();
        const bool isMarked = row->grab().toImage().pixelColor(1, 20) == QColor(0xA5, 0x00, 0x34);
        QCOMPARE(isMarked, name->text() == inForce);
        marked += isMarked ? 1 : 0;
    }
    QCOMPARE(marked, 1);
}

void TestLook::popupShowsTheRowUnderTheMouse()
{
    Window window;
    mouse::place(window.dialog, QPoint(0, 0));
    Window::click(&window.dialog, "languageCombobox");
    const auto *menu = window.dialog.findChild<LanguageMenu *>();
    mouse::moveTo(window.dialog.mapToGlobal(QPoint(300, 300)));
    const QWidget *row = menu->findChild<QLabel *>("labelLanguage")->parentWidget();
    const auto ground = [&window, row] {
        const QPoint point = row->mapTo(&window.dialog, QPoint(row->width() / 2, 2));
        return window.dialog.grab().toImage().pixelColor(point);
    };
    QCOMPARE(ground(), QColor(Qt::white));
    mouse::moveTo(row->mapToGlobal(row->rect().center()));
    QTRY_COMPARE(ground(), QColor(0xF2, 0xF2, 0xF2)); // as in lists
}

void TestLook::editorOpensInTheMiddle()
{
    Window window;
    window.dialog.move(60, 40);
    QTRY_COMPARE(window.dialog.pos(), QPoint(60, 40));
    Window::click(&window.dialog, "languageCombobox");
    const auto *menu = window.dialog.findChild<LanguageMenu *>();
    QPoint apart(100, 100);
    QVERIFY(modal::drive<UserLanguageEditPopup>([menu] { Window::click(menu, "newButton"); },
                                                [&](UserLanguageEditPopup *editor) {
                                                    apart = editor->geometry().center()
                                                        - window.dialog.geometry().center();
                                                    Window::click(editor, "closeButton");
                                                }));
    QVERIFY(apart.manhattanLength() <= 2);
}

CALORA_TEST_MAIN(TestLook)
#include "tst_look.moc"
