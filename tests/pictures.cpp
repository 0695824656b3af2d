// Takes pictures of all that the tool can show, so that one can look before reading: every page of both
// default documents at each size, what opens above the pages, and the states of the buttons.

#include "support/modal.h"
#include "support/mouse.h"
#include "support/tour.h"

#include "app/paintedbutton.h"
#include "languages/languagemenu.h"
#include "languages/userlanguageeditpopup.h"
#include "pages/operation/settinguser.h"

#include <QAbstractItemView>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QJsonDocument>
#include <QPainter>
#include <QScreen>
#include <QScrollArea>

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace {

const QColor ground(242, 242, 242);

/// Where the pictures go.
class Album
{
public:
    Album(const QString &target, QJsonDocument texts)
        : language(std::move(texts))
        , folder(target)
    {
    }

    void add(const QString &name, const QPixmap &picture)
    {
        const QString path = folder.filePath(name + QStringLiteral(".png"));
        if (!picture.save(path)) {
            static_cast<void>(std::fprintf(stderr, "pictures: can't write %s\n", qPrintable(path)));
            saved = false;
        }
    }

    /// Gives the window its size and the language of these pictures.
    void prepare(Window &window, const QSize &size) const
    {
        window.dialog.resize(size);
        mouse::place(window.dialog, QPoint(0, 0));
        if (!language.isEmpty()) {
            window.dialog.setLanguageDocument(language);
            window.dialog.changeLanguage();
        }
    }

    bool isSaved() const { return saved; }

private:
    QJsonDocument language;
    QDir folder;
    bool saved = true;
};

// Pages

struct Round {
    const char *mark;
    QSize size;
    const char *unit;
};

const std::array rounds{Round{"", QSize(1440, 800), "CENTIGRADE"},
                        Round{"-small", QSize(974, 612), "FAHRENHEIT"},
                        Round{"-large", QSize(1920, 1080), "CENTIGRADE"}};

/// The page on the ground that the window shows through it.
QPixmap wholePage(QWidget *page)
{
    QPixmap picture(page->size());
    picture.fill(ground);
    page->render(&picture, {}, {}, QWidget::DrawChildren);
    return picture;
}

/// The window, and the whole of a page that is higher than its place in the window.
void takeWindow(Album &album, const QString &name, MainDialog &dialog)
{
    album.add(name, dialog.grab());
    const auto areas = dialog.findChildren<QScrollArea *>();
    for (const QScrollArea *area : areas) {
        if (area->isVisible() && area->widget() != nullptr
            && area->widget()->height() > area->viewport()->height()) {
            album.add(name + QStringLiteral("-whole"), wholePage(area->widget()));
        }
    }
}

void takePages(Album &album, const QString &refrigerant, const Round &round)
{
    Window window;
    album.prepare(window, round.size);
    Tour tour(window, refrigerant, round.unit);
    for (const Tour::Stop &stop : tour.stops()) {
        stop.show();
        Tour::settle();
        takeWindow(album, refrigerant.toLower() + round.mark + QLatin1Char('-') + stop.name, window.dialog);
    }
}

// What opens above the pages

QPixmap onScreen(const QRect &place)
{
    return QGuiApplication::primaryScreen()->grabWindow(0, place.x(), place.y(), place.width(),
                                                        place.height());
}

/// What the screen shows in the window's place, and in that of a list that reaches out of it.
QPixmap onScreen(const QWidget &window)
{
    QTest::qWait(100);
    const QRect own = window.frameGeometry();
    const QWidget *list = QApplication::activePopupWidget();
    const QRect above = list == nullptr ? own : list->frameGeometry();
    const QRect place = own | above;
    QPixmap picture(place.size());
    picture.fill(Qt::white);
    QPainter painter(&picture);
    for (const QRect &part : {own, above}) {
        painter.drawPixmap(part.topLeft() - place.topLeft(), onScreen(part));
    }
    return picture;
}

QPoint middleOf(const QWidget *widget) { return widget->mapToGlobal(widget->rect().center()); }

void leaveAll() { mouse::moveTo(QPoint(1900, 1060)); }

void takeLanguageMenu(Album &album, const Window &window)
{
    Window::click(&window.dialog, "languageCombobox");
    album.add("popup-languages", onScreen(window.dialog));
    const auto rows = window.dialog.findChildren<QWidget *>("buttonModify");
    const auto row = std::find_if(rows.begin(), rows.end(), [](const QWidget *each) {
        return each->visibleRegion().boundingRect() == each->rect();
    });
    mouse::moveTo(middleOf(*row) - QPoint(80, 0));
    album.add("popup-languages-over", onScreen(window.dialog));
    leaveAll();
    QTest::mouseClick(Window::find(&window.dialog, "languageCombobox"), Qt::LeftButton);
}

void takeList(Album &album, const Window &window, const char *name)
{
    auto *list = Window::find<QComboBox>(window.page<SettingUser>(), name);
    mouse::moveTo(middleOf(list));
    mouse::press();
    mouse::release();
    album.add(QStringLiteral("popup-") + name, onScreen(window.dialog));
    mouse::moveTo(list->view()->viewport()->mapToGlobal(QPoint(40, 40)));
    album.add(QStringLiteral("popup-%1-over").arg(name), onScreen(window.dialog));
    list->hidePopup();
    leaveAll();
}

/// Where it opens, above the window.
void takeEditorInPlace(Album &album, const Window &window)
{
    Window::click(&window.dialog, "languageCombobox");
    modal::drive<UserLanguageEditPopup>(
        [&] { Window::click(window.dialog.findChild<LanguageMenu *>(), "newButton"); },
        [&](const UserLanguageEditPopup *) { album.add("editor-in-place", onScreen(window.dialog)); });
}

void takeFileDialog(Album &album, const QString &name, const QWidget *owner, const char *button)
{
    modal::drive<QFileDialog>([&] { Window::click(owner, button); },
                              [&](const QFileDialog *dialog) { album.add(name, onScreen(*dialog)); });
}

void takeEditor(Album &album, Window &window)
{
    window.dialog.setLanguageSnapshot(window.dialog.languageDocument());
    UserLanguageEditPopup editor;
    editor.setNewLanguage(true);
    editor.show();
    mouse::place(editor, QPoint(0, 0));
    album.add("editor", onScreen(editor));
    for (const char *text : {"pump", "xyz"}) {
        Window::type(Window::find<QLineEdit>(&editor, "searchLineEdit"), text);
        album.add(QStringLiteral("editor-search-") + text, onScreen(editor));
    }
    takeFileDialog(album, QStringLiteral("file-editor-openButton"), &editor, "openButton");
}

// States of buttons: a row for each button, and a column for normal, over, press, focus and disabled

QPixmap partOf(QWidget &window, const QWidget *widget)
{
    Tour::settle();
    constexpr int edge = 8;
    const QRect place(widget->mapTo(&window, QPoint()), widget->size());
    return window.grab(place.adjusted(-edge, -edge, edge, edge));
}

QPixmap pressed(QWidget &window, QWidget *widget)
{
    if (auto *button = qobject_cast<QAbstractButton *>(widget)) {
        button->setDown(true);
        const QPixmap picture = partOf(window, widget);
        button->setDown(false);
        return picture;
    }
    if (dynamic_cast<PaintedButton *>(widget) == nullptr) {
        return {};
    }
    QTest::mousePress(widget, Qt::LeftButton);
    const QPixmap picture = partOf(window, widget);
    // What a click does is no matter here.
    const QSignalBlocker blocker(widget);
    QTest::mouseRelease(widget, Qt::LeftButton);
    return picture;
}

QList<QPixmap> statesOf(QWidget &window, QWidget *widget)
{
    QList<QPixmap> pictures{partOf(window, widget)};
    mouse::moveTo(middleOf(widget));
    pictures.append(partOf(window, widget));
    pictures.append(pressed(window, widget));
    leaveAll();
    if (widget->focusPolicy() != Qt::NoFocus) {
        widget->setFocus(Qt::TabFocusReason);
        widget->window()->setAttribute(Qt::WA_KeyboardFocusChange); // as the Tab key does
    }
    pictures.append(partOf(window, widget));
    widget->clearFocus();
    widget->setEnabled(false);
    pictures.append(partOf(window, widget));
    widget->setEnabled(true);
    return pictures;
}

void takeStates(Album &album, const QString &name, QWidget &window, const QWidgetList &widgets)
{
    if (QWidget *focused = window.focusWidget()) {
        focused->clearFocus();
    }
    // As after a Tab, which shows the focus more plainly than a click does.
    window.setAttribute(Qt::WA_KeyboardFocusChange);
    QList<QList<QPixmap>> rows;
    QSize sheet;
    for (QWidget *widget : widgets) {
        rows.append(statesOf(window, widget));
        const QSize size = rows.last().first().size();
        sheet = QSize(qMax(sheet.width(), size.width()), sheet.height() + size.height());
    }
    const int column = sheet.width();
    QPixmap picture(5 * column, sheet.height());
    picture.fill(ground);
    QPainter painter(&picture);
    int y = 0;
    for (const auto &row : rows) {
        for (int state = 0; state < row.size(); ++state) {
            painter.drawPixmap(state * column, y, row.at(state));
        }
        y += row.first().height();
    }
    album.add(QStringLiteral("states-") + name, picture);
}

/// The widgets of these names, each the first that is shown.
QWidgetList shown(const QWidget *window, const QStringList &names)
{
    QWidgetList widgets;
    for (const QString &name : names) {
        const auto all = window->findChildren<QWidget *>(name);
        const auto found = std::find_if(all.begin(), all.end(),
                                        [](const QWidget *each) { return each->isVisible(); });
        if (found == all.end()) {
            qFatal("No %s is shown", qPrintable(name));
        }
        widgets.append(*found);
    }
    return widgets;
}

void showTab(Window &window, const char *button)
{
    window.showPage(MainDialog::SettingPage);
    Window::click(&window.dialog, button);
}

void takeAllStates(Album &album, Window &window)
{
    MainDialog &dialog = window.dialog;
    dialog.setStepCompleted(false, 2);
    takeStates(
        album, "window", dialog,
        shown(&dialog, {"minimizeButton", "maximumButton", "closeButton", "saveButton", "languageCombobox"}));
    takeStates(
        album, "steps", dialog,
        shown(&dialog, {"productSelectionButton", "dipSwitchButton", "settingButton", "validationButton"}));
    showTab(window, "userTabButton");
    takeStates(album, "controls", dialog,
               shown(&dialog,
                     {"functionTabButton", "userTabButton", "radioSummerTimeNotuse", "radioSummerTimeUse",
                      "comboDateYear"}));
    showTab(window, "serviceTabButton");
    takeStates(album, "line", dialog, shown(&dialog, {"lineEditOfficeName"}));
    showTab(window, "installationTabButton");
    takeStates(album, "section", dialog, shown(&dialog, {"hideButton"}));
    Window::click(&dialog, "languageCombobox");
    QWidget *menu = dialog.findChild<LanguageMenu *>();
    takeStates(album, "languages", *menu, shown(menu, {"newButton", "loadButton", "buttonModify"}));
    QTest::mouseClick(Window::find(&dialog, "languageCombobox"), Qt::LeftButton);
    UserLanguageEditPopup editor;
    editor.show();
    takeStates(album, "editor", editor,
               shown(&editor,
                     {"searchLineEdit", "pushButtonSearch", "lineEdit", "ButtonRemove", "openButton",
                      "closeButton", "saveButton"}));
}

void takeWhatOpens(Album &album, Window &window)
{
    window.showPage(MainDialog::DataSavePage);
    album.add("data-save", onScreen(window.dialog));
    showTab(window, "userTabButton");
    takeLanguageMenu(album, window);
    for (const char *list : {"comboDateYear", "comboDateMonth", "comboScreenSaverTimer"}) {
        takeList(album, window, list);
    }
    showTab(window, "installationTabButton");
    album.add("installation-closed", onScreen(window.dialog));
    takeEditorInPlace(album, window);
    takeEditor(album, window);
    for (const int step : {1, 2, 3}) {
        window.dialog.setStepCompleted(true, step);
    }
    takeStates(album, "save", window.dialog, shown(&window.dialog, {"saveButton"}));
    const auto *tools = Window::find(&window.dialog, "toolbarGroupBox");
    takeFileDialog(album, QStringLiteral("file-openButton"), tools, "openButton");
    takeFileDialog(album, QStringLiteral("file-saveButton"), tools, "saveButton");
}

void takeAll(Album &album)
{
    for (const char *refrigerant : {"R32", "R410"}) {
        for (const Round &round : rounds) {
            takePages(album, QLatin1String(refrigerant), round);
        }
    }
    Window window;
    album.prepare(window, QSize(974, 612));
    leaveAll();
    takeStates(album, "start", window.dialog,
               shown(Window::find(&window.dialog, "selectpage"), {"newButton", "openButton"}));
    Tour tour(window, QStringLiteral("R32"));
    // A new document.
    tour.stops().at(1).show();
    window.use(documents::everything(QStringLiteral("R32")));
    takeAllStates(album, window);
    takeWhatOpens(album, window);
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_Use96Dpi);
    const QApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() < 2 || arguments.size() > 3 || !QDir().mkpath(arguments.at(1))) {
        static_cast<void>(std::fputs("usage: pictures FOLDER [LANGUAGE FILE]\n", stderr));
        return 2;
    }
    QFile language(arguments.value(2));
    const bool translated = arguments.size() == 3 && language.open(QIODevice::ReadOnly);
    prepareApplication();
    QApplication::setCursorFlashTime(0); // or it depends on the moment whether the cursor shows
    Album album(arguments.at(1), translated ? QJsonDocument::fromJson(language.readAll()) : QJsonDocument());
    takeAll(album);
    return album.isSaved() ? 0 : 1;
}
