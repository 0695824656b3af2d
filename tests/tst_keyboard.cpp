#include "support/languagefolder.h"
#include "support/tour.h"

#include "languages/languagemenu.h"
#include "languages/userlanguageeditpopup.h"
#include "widgets/palette.h"

#include <QAbstractButton>
#include <QDialog>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QSet>

namespace {

/// The part of the window that the widget lies in, what scrolls being a part of its own; null elsewhere.
const QWidget *regionOf(const QWidget *widget)
{
    static const QStringList regions{"titleFrame", "toolbarGroupBox", "sideGroupBox", "stackedWidget"};
    while (widget != nullptr && !regions.contains(widget->objectName()) && !widget->inherits("QScrollArea")) {
        widget = widget->parentWidget();
    }
    return widget;
}

QRect onScreen(const QWidget *widget) { return {widget->mapToGlobal(QPoint()), widget->size()}; }

/// In the same row from left to right, else from top to bottom.
bool readsBefore(const QWidget *first, const QWidget *second)
{
    const QRect one = onScreen(first);
    const QRect other = onScreen(second);
    const bool sameRow = one.center().y() >= other.top() && one.center().y() <= other.bottom();
    return sameRow ? one.left() < other.left() : one.top() < other.top();
}

bool takesKeys(const QWidget *widget)
{
    return widget->isVisible() && widget->isEnabled() && widget->focusPolicy() != Qt::NoFocus;
}

/// The radios beside this one that can be chosen, itself among them; alone when it is no radio.
QList<QWidget *> groupOf(QWidget *widget)
{
    QList<QWidget *> group;
    if (qobject_cast<QRadioButton *>(widget) != nullptr) {
        const auto radios = widget->parentWidget()->findChildren<QRadioButton *>(QString(),
                                                                                 Qt::FindDirectChildrenOnly);
        for (QRadioButton *radio : radios) {
            if (takesKeys(radio)) {
                group.append(radio);
            }
        }
    }
    return group.isEmpty() ? QList<QWidget *>{widget} : group;
}

/// What Tab (or Shift and Tab) visits, from the widget that has the focus until it comes back to one that it
/// has been to.
QList<QWidget *> tabThrough(Qt::Key key = Qt::Key_Tab)
{
    QList<QWidget *> visited;
    for (QWidget *at = QApplication::focusWidget(); !visited.contains(at); at = QApplication::focusWidget()) {
        visited.append(at);
        QTest::keyClick(at, key);
    }
    return visited;
}

/// Whether it is no radio, or the checked one of its group, or the first one where none is checked.
bool isChosen(QWidget *widget)
{
    const auto group = groupOf(widget);
    const auto checked = std::find_if(group.begin(), group.end(), [](QWidget *each) {
        const auto *radio = qobject_cast<QRadioButton *>(each);
        return radio != nullptr && radio->isChecked();
    });
    return widget == (checked == group.end() ? group.first() : *checked);
}

/// The widget as it is seen in its window, with a few pixels around it.
QImage look(QWidget *widget)
{
    QWidget *above = widget;
    while (above != nullptr && qobject_cast<QScrollArea *>(above) == nullptr) {
        above = above->parentWidget();
    }
    if (above != nullptr) {
        static_cast<QScrollArea *>(above)->ensureWidgetVisible(widget);
    }
    const int around = qobject_cast<QRadioButton *>(widget) != nullptr ? 5 : 8;
    const QRect place(widget->mapTo(widget->window(), QPoint()), widget->size());
    return widget->window()->grab(place.adjusted(-around, -around, around, around)).toImage();
}

QVector3D awayFromWhite(QRgb pixel)
{
    return {255.0F - float(qRed(pixel)), 255.0F - float(qGreen(pixel)), 255.0F - float(qBlue(pixel))};
}

/// The blue of the focus, mixed with white and with the accent where they meet.
bool isFocus(QRgb pixel)
{
    constexpr float tolerance = 12;
    const auto away = [](const palette::Colour &colour) { return awayFromWhite(QColor(colour.value).rgb()); };
    const QVector3D focus = away(palette::focus);
    const QVector3D accent = away(palette::accent);
    const QVector3D across = QVector3D::crossProduct(focus, accent);
    const QVector3D own = awayFromWhite(pixel);
    // How much of each is in it.
    const auto share = [&across, &own](const QVector3D &of, const QVector3D &other) {
        const QVector3D beside = QVector3D::crossProduct(across, other);
        return QVector3D::dotProduct(own, beside) / QVector3D::dotProduct(of, beside);
    };
    return qAbs(own.distanceToPlane(QVector3D(), across.normalized())) <= tolerance
        && share(focus, accent) >= 0 && share(accent, focus) * accent.length() >= -tolerance;
}

/// Or the green of what is done.
bool isOwnCold(QRgb pixel)
{
    return isFocus(pixel) || qAbs(QColor(pixel).hsvHue() - QColor(palette::done.value).hsvHue()) <= 6;
}

/// Whether the picture has a colour besides greys and the tool's own, such as the blue of a desktop's own
/// focus.
bool isForeign(const QImage &picture)
{
    constexpr int tolerance = 12;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb pixel = picture.pixelColor(x, y).rgb();
            const bool isCold = qBlue(pixel) > qRed(pixel) + tolerance
                || qGreen(pixel) > qRed(pixel) + tolerance;
            if (isCold && !isOwnCold(pixel)) {
                return true;
            }
        }
    }
    return false;
}

/// Without the Tab key.
void focusAsByTab(QWidget *widget, Qt::FocusReason reason = Qt::TabFocusReason)
{
    widget->window()->setAttribute(Qt::WA_KeyboardFocusChange);
    widget->setFocus(reason);
}

bool showsFocus(QWidget *widget)
{
    focusAsByTab(widget);
    const QImage with = look(widget);
    widget->clearFocus();
    return with != look(widget) && !isForeign(with);
}

QStringList namesOf(const QList<QWidget *> &widgets)
{
    QStringList names;
    for (const QWidget *widget : widgets) {
        names.append(widget->objectName());
    }
    return names;
}

} // namespace

// The tool by keys: Tab goes through each page in reading order and shows where it is in the tool's own
// colours, arrows choose within a group of radios, and the painted buttons are clicked.
class TestKeyboard : public QObject
{
    Q_OBJECT

private slots:
    void tabReadsThePage_data() { refrigerants(); }
    void tabReadsThePage();
    void tabReadsTheEditor();
    void radioIsRinged();
    void ringComesBackWithTheWindow();
    void clickNeedsNoRing();
    void startsAtNew();
    void clickOnATabTakesTheFocus();
    void windowButtonsArePressed();
    void menuShowsItsFocus();
    void tabsAreChosen();
    void arrowsChooseAsClicksDo_data() { refrigerants(); }
    void arrowsChooseAsClicksDo();
    void anyArrowChooses_data();
    void anyArrowChooses();

private:
    static void refrigerants();
    void readPage(const Window &window, const QString &stop);
    void compareChoices(Window &window, QRadioButton *radio, const std::function<void()> &show);
};

void TestKeyboard::refrigerants()
{
    QTest::addColumn<QString>("refrigerant");
    QTest::newRow("R32") << "R32";
    QTest::newRow("R410") << "R410";
}

void TestKeyboard::tabReadsThePage()
{
    QFETCH(QString, refrigerant);
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window.dialog));
    Tour tour(window, refrigerant);
    for (const Tour::Stop &stop : tour.stops()) {
        stop.show();
        Tour::settle();
        Window::find(&window.dialog, "newButton")->setFocus();
        readPage(window, stop.name);
        if (QTest::currentTestFailed()) {
            return;
        }
    }
}

void TestKeyboard::readPage(const Window &window, const QString &stop)
{
    const QList<QWidget *> visited = tabThrough();
    QList<QWidget *> back = tabThrough(Qt::Key_Backtab);
    std::reverse(back.begin() + 1, back.end());
    QCOMPARE(namesOf(back), namesOf(visited));
    QSet<const QWidget *> reached;
    for (int index = 0; index < visited.size(); ++index) {
        QWidget *widget = visited.at(index);
        const QString where = stop + ": " + widget->objectName();
        const auto group = groupOf(widget);
        reached.unite(QSet<const QWidget *>(group.begin(), group.end()));
        QVERIFY2(isChosen(widget), qPrintable(where + " isn't what is chosen"));
        QVERIFY2(showsFocus(widget), qPrintable(where + " hides its focus"));
        if (index > 0 && regionOf(widget) == regionOf(visited.at(index - 1))) {
            QVERIFY2(readsBefore(visited.at(index - 1), widget), qPrintable(where + " comes late"));
        }
    }
    const auto widgets = window.dialog.findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        QVERIFY2(!takesKeys(widget) || reached.contains(widget) || regionOf(widget) == nullptr,
                 qPrintable(stop + ": " + widget->objectName() + " isn't reached"));
    }
}

void TestKeyboard::tabReadsTheEditor()
{
    Window window;
    UserLanguageEditPopup editor;
    editor.show();
    QVERIFY(QTest::qWaitForWindowActive(&editor));
    Window::find(&editor, "searchLineEdit")->setFocus();
    const QList<QWidget *> visited = tabThrough();
    QCOMPARE(namesOf(visited.mid(0, 6)),
             (QStringList{"searchLineEdit", "pushButtonSearch", "lineEdit", "ButtonRemove", "lineEdit",
                          "ButtonRemove"}));
    QCOMPARE(namesOf(visited.mid(visited.size() - 3)),
             (QStringList{"openButton", "closeButton", "saveButton"}));
    Window::find<QListWidget>(&editor, "listWidget")->scrollToTop();
    for (QWidget *widget : visited.mid(0, 6) + visited.mid(visited.size() - 3)) {
        QVERIFY2(showsFocus(widget), qPrintable(widget->objectName()));
    }
}

// A ring around it: what lies within looks as before.
void TestKeyboard::radioIsRinged()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window.dialog));
    window.use(documents::standard("R32"));
    window.showPage(MainDialog::SettingPage, MainDialog::UserTab);
    for (const char *name : {"radioSummerTimeUse", "radioSummerTimeNotuse"}) {
        auto *radio = Window::find<QRadioButton>(&window.dialog, name);
        radio->clearFocus();
        const QImage without = look(radio);
        focusAsByTab(radio);
        const QImage with = look(radio);
        const QRect inside = with.rect().adjusted(5, 5, -5, -5);
        QVERIFY(with != without);
        const int end = inside.left() + radio->sizeHint().width();
        for (int x = inside.left(); x < end; ++x) {
            for (int y = inside.top(); y <= inside.bottom(); ++y) {
                QCOMPARE(with.pixelColor(x, y), without.pixelColor(x, y));
            }
        }
        const QColor blue(0x1D, 0x5F, 0xA6);
        const int middle = with.height() / 2;
        QCOMPARE(with.pixelColor(inside.left() - 4, middle), blue);
        QCOMPARE(with.pixelColor(inside.left() - 2, middle), QColor(Qt::white));
        QCOMPARE(with.pixelColor(inside.left() + radio->sizeHint().width() + 3, middle), blue);
        QCOMPARE(with.pixelColor(inside.left() - 5, middle), blue);
        radio->clearFocus();
        focusAsByTab(radio, Qt::BacktabFocusReason);
        QCOMPARE(look(radio), with);
    }
}

void TestKeyboard::ringComesBackWithTheWindow()
{
    Window window;
    window.use(documents::standard("R32"));
    window.showPage(MainDialog::SettingPage, MainDialog::UserTab);
    auto *radio = Window::find<QRadioButton>(&window.dialog, "radioSummerTimeUse");
    focusAsByTab(radio);
    const QImage ringed = look(radio);
    {
        QDialog other;
        other.show();
        QVERIFY(QTest::qWaitForWindowActive(&other));
    }
    window.dialog.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window.dialog));
    QVERIFY(radio->hasFocus());
    QCOMPARE(look(radio), ringed);
}

void TestKeyboard::clickNeedsNoRing()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window.dialog));
    window.use(documents::standard("R32"));
    window.showPage(MainDialog::SettingPage, MainDialog::UserTab);
    auto *radio = Window::find<QRadioButton>(&window.dialog, "radioSummerTimeUse");
    Window::click(radio);
    QVERIFY(radio->hasFocus());
    const QImage clicked = look(radio);
    radio->clearFocus();
    QCOMPARE(clicked, look(radio));
}

// Left on the page that goes, it would go to the first control of the next one, or to Minimize.
void TestKeyboard::clickOnATabTakesTheFocus()
{
    Window window;
    window.use(documents::standard("R32"));
    window.dialog.setSideBarVisible(true);
    for (const auto &[from, control] : {std::make_pair(MainDialog::FunctionTab, "comboDefrostMode"),
                                        std::make_pair(MainDialog::UserTab, "comboDateYear"),
                                        std::make_pair(MainDialog::ServiceTab, "lineEditTelephone")}) {
        for (const char *tab :
             {"functionTabButton", "userTabButton", "serviceTabButton", "installationTabButton"}) {
            window.showPage(MainDialog::SettingPage, from);
            Window::find(&window.dialog, control)->setFocus();
            auto *button = Window::find(&window.dialog, tab);
            const QJsonDocument before = window.dialog.document();
            Window::click(button);
            QCOMPARE(QApplication::focusWidget(), button);
            QTest::keyClick(button, Qt::Key_Space);
            QCOMPARE(window.dialog.document(), before);
        }
    }
}

void TestKeyboard::startsAtNew()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window.dialog));
    const auto *bar = Window::find(&window.dialog, "toolbarGroupBox");
    QCOMPARE(QApplication::focusWidget(), Window::find(bar, "newButton"));
}

void TestKeyboard::windowButtonsArePressed()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window.dialog));
    for (const char *name : {"closeButton", "maximumButton"}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QCOMPARE(QApplication::focusWidget(), Window::find(&window.dialog, name));
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTRY_VERIFY(window.dialog.isMaximized());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTRY_VERIFY(!window.dialog.isMaximized());
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
    QCOMPARE(QApplication::focusWidget(), Window::find(&window.dialog, "minimizeButton"));
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
    QTRY_VERIFY(window.dialog.isMinimized());
}

void TestKeyboard::menuShowsItsFocus()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window.dialog));
    Window::click(&window.dialog, "languageCombobox");
    const auto *menu = window.dialog.findChild<LanguageMenu *>();
    for (const char *name : {"listWidget", "buttonModify", "newButton", "loadButton"}) {
        QVERIFY2(showsFocus(Window::find(menu, name)), name);
    }
}

void TestKeyboard::tabsAreChosen()
{
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window.dialog));
    const auto *start = Window::find(&window.dialog, "selectpage");
    Window::find(start, "newButton")->setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    const auto *steps = Window::find<QStackedWidget>(&window.dialog, "stackedWidget");
    QCOMPARE(steps->currentIndex(), int(MainDialog::ProductPage));
    window.use(documents::standard("R32"));
    window.showPage(MainDialog::SettingPage, MainDialog::FunctionTab);
    const auto *tabs = Window::find<QStackedWidget>(&window.dialog, "settingStackedWidget");
    Window::find(&window.dialog, "functionTabButton")->setFocus();
    for (const int tab : {MainDialog::UserTab, MainDialog::ServiceTab, MainDialog::InstallationTab}) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        QCOMPARE(tabs->currentIndex(), tab);
    }
}

void TestKeyboard::arrowsChooseAsClicksDo()
{
    QFETCH(QString, refrigerant);
    Window window;
    QVERIFY(QTest::qWaitForWindowActive(&window.dialog));
    int groups = 0;
    Tour tour(window, refrigerant);
    for (const Tour::Stop &stop : tour.stops()) {
        stop.show();
        const auto radios = window.dialog.findChildren<QRadioButton *>();
        for (QRadioButton *radio : radios) {
            const auto group = groupOf(radio);
            // Each group once, by its first radio.
            if (takesKeys(radio) && group.size() > 1 && group.first() == radio) {
                ++groups;
                compareChoices(window, radio, stop.show);
                if (QTest::currentTestFailed()) {
                    return;
                }
            }
        }
    }
    QVERIFY(groups > 40);
}

/// An arrow from the chosen radio, or from the first, does what a click on the next one does.
void TestKeyboard::compareChoices(Window &window, QRadioButton *radio, const std::function<void()> &show)
{
    const QJsonDocument before = window.dialog.document();
    const auto reload = [&] {
        window.dialog.setDocument(before);
        show();
    };
    reload();
    const auto radios = groupOf(radio);
    QWidget *start = radios.first();
    for (QWidget *one : radios) {
        start = qobject_cast<QRadioButton *>(one)->isChecked() ? one : start;
    }
    start->setFocus();
    const bool back = start == radios.last();
    const QWidget *neighbour = radios.at(radios.indexOf(start) + (back ? -1 : 1));
    const bool inRow = start->y() == neighbour->y();
    QTest::keyClick(start,
                    inRow ? (back ? Qt::Key_Left : Qt::Key_Right) : (back ? Qt::Key_Up : Qt::Key_Down));
    auto *next = qobject_cast<QRadioButton *>(QApplication::focusWidget());
    QVERIFY2(next != nullptr && next != start && radios.contains(next), qPrintable(start->objectName()));
    QVERIFY2(next->isChecked(), qPrintable(next->objectName()));
    const QJsonDocument byKey = window.dialog.document();
    reload();
    QVERIFY2(takesKeys(next), qPrintable(next->objectName()));
    Window::click(next);
    const QVariantMap differences = documents::changes(byKey, window.dialog.document());
    QVERIFY2(differences.isEmpty(), qPrintable(next->objectName() + ": " + differences.keys().join(' ')));
    reload();
}

void TestKeyboard::anyArrowChooses_data()
{
    QTest::addColumn<int>("page");
    QTest::addColumn<int>("tab");
    QTest::addColumn<QStringList>("choices");
    const auto add = [](const char *name, int page, int tab, const QStringList &choices) {
        QTest::newRow(name) << page << tab << choices;
    };
    add("beside each other", MainDialog::SettingPage, MainDialog::UserTab,
        {"radioSummerTimeNotuse", "radioSummerTimeUse"});
    add("below each other", MainDialog::DipSwitchPage, 0,
        {"radioElectricHeaterNotuse", "radioElectricHeater1", "radioElectricHeaterBoth"});
}

// How the choices of a group stand depends on the window and the language. At the ends nothing happens, and
// nothing scrolls.
void TestKeyboard::anyArrowChooses()
{
    QFETCH(int, page);
    QFETCH(int, tab);
    QFETCH(QStringList, choices);
    Window window;
    window.dialog.resize(974, 612);
    QVERIFY(QTest::qWaitForWindowActive(&window.dialog));
    window.use(documents::everything("R32"));
    window.showPage(page, tab);
    Tour::settle();
    const auto radio = [&](int index) {
        return Window::find<QRadioButton>(&window.dialog, choices.at(index).toLatin1());
    };
    const auto scrolled = [&window] {
        QList<int> values;
        for (const auto *bar : window.dialog.findChildren<QScrollBar *>()) {
            values.append(bar->isVisible() ? bar->value() : 0);
        }
        return values;
    };
    const int last = choices.size() - 1;
    for (const auto &[forth, back] :
         {std::pair(Qt::Key_Down, Qt::Key_Up), std::pair(Qt::Key_Right, Qt::Key_Left)}) {
        Window::click(radio(0));
        radio(0)->setFocus();
        const QList<int> before = scrolled();
        for (int index = 1; index <= last + 1; ++index) {
            QTest::keyClick(QApplication::focusWidget(), forth);
            QVERIFY2(radio(qMin(index, last))->hasFocus() && radio(qMin(index, last))->isChecked(),
                     qPrintable(QString::number(index)));
        }
        for (int index = last - 1; index >= -1; --index) {
            QTest::keyClick(QApplication::focusWidget(), back);
            QVERIFY2(radio(qMax(index, 0))->hasFocus() && radio(qMax(index, 0))->isChecked(),
                     qPrintable(QString::number(index)));
        }
        QCOMPARE(scrolled(), before);
    }
}

CALORA_TEST_MAIN(TestKeyboard)
#include "tst_keyboard.moc"
