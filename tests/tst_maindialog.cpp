#include "support/window.h"

#include "app/tabbutton.h"
#include "languages/languagemenu.h"
#include "pages/completion/datasave.h"
#include "pages/completion/validation.h"
#include "pages/installation/installationaauto.h"
#include "pages/installation/installationcool.h"
#include "pages/installation/installationdwh.h"
#include "pages/installation/installationheat.h"
#include "pages/installation/installationsystemsetting.h"
#include "pages/operation/settingfunction.h"
#include "pages/operation/settingservice.h"
#include "pages/operation/settinguser.h"
#include "pages/product/dipswitchsettingstatus.h"
#include "pages/product/productselection.h"
#include "pages/product/select.h"

#include <QApplication>
#include <QGraphicsDropShadowEffect>
#include <QGroupBox>
#include <QMouseEvent>
#include <QScrollArea>
#include <QTimer>
#include <QVBoxLayout>

// The window itself: its build, its title bar, its event filter and its keys.

class TestMainDialog : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        window = std::make_unique<Window>();
        messages::clear();
    }
    void cleanup() { window.reset(); }

    void hasItsSizesAndLook();
    void hasItsShadow();
    void isTheGlobalDialog();
    void holdsItsBars();
    void stacksItsPages();
    void stacksItsTabs();
    void placesScrollPages_data();
    void placesScrollPages();
    void placesTheSectionsInOrder();
    void showsErrorMarks_data();
    void showsErrorMarks();
    void startsWithNothingDone();
    void namesTheTabs();
    void emptySlotsDoNothing();
    void settersSetTheirMember();
    void maximizesAndBack();
    void stylesTheMaximumButton_data();
    void stylesTheMaximumButton();
    void minimizes();
    void windowButtonsCloseThePopup_data();
    void windowButtonsCloseThePopup();
    void closesAtOnce();
    void languageBoxTogglesThePopup();
    void pressOnTheLabelInTheBoxOpensThePopup();
    void filterEatsPresses_data();
    void filterEatsPresses();
    void keysDoNothing_data();
    void keysDoNothing();
    void noButtonIsDefault();
    void staysWithinItsSizes();

private:
    MainDialog &dialog() const { return window->dialog; }
    const DialogState &members() const { return window->dialog.members(); }
    template <class W = QWidget>
    W *find(const char *name) const
    {
        return Window::find<W>(&window->dialog, name);
    }
    LanguageMenu *popup() const { return members().languageMenuWidget; }
    bool popupIsOpen() const
    {
        if (members().languageMenuOpen != popup()->isVisible()) {
            qFatal("The popup and its flag disagree");
        }
        return popup()->isVisible();
    }

    std::unique_ptr<Window> window;
};

void TestMainDialog::hasItsSizesAndLook()
{
    QCOMPARE(dialog().objectName(), QString("MainDialog"));
    QCOMPARE(dialog().size(), QSize(1440, 800));
    QCOMPARE(dialog().minimumSize(), QSize(974, 612));
    QCOMPARE(dialog().maximumSize(), QSize(1920, 1080));
    QCOMPARE(dialog().styleSheet(),
             QString("QDialog#MainDialog {\n\tborder: none;\n\tbackground-color: #f2f2f2;\n}"));
    QCOMPARE(dialog().windowTitle(), QString("Calora configurator"));
    const QIcon icon(":/images/launcher_ic.ico");
    QVERIFY(!icon.isNull() && !icon.availableSizes().isEmpty());
    QCOMPARE(dialog().windowIcon().pixmap(32).toImage(), icon.pixmap(32).toImage());
    QCOMPARE(find<QLabel>("labelVersion")->text(),
             QString("Orvo Heating Configurator SW ver. 1.0 / RMC SW ver. 3.03.1b"));
    QVERIFY(dialog().parentWidget() == nullptr);
}

void TestMainDialog::hasItsShadow()
{
    auto *shadow = qobject_cast<QGraphicsDropShadowEffect *>(dialog().graphicsEffect());
    QVERIFY(shadow != nullptr);
    QCOMPARE(shadow->blurRadius(), 2.0);
    QCOMPARE(shadow->color(), QColor(0, 0, 0, 30));
    QCOMPARE(shadow->offset(), QPointF(2, 2));
    // The one effect went from the path bar to the dialog.
    QVERIFY(find("pathGroupBox")->graphicsEffect() == nullptr);
}

void TestMainDialog::isTheGlobalDialog() { QCOMPARE(mainDialog, &dialog()); }

void TestMainDialog::holdsItsBars()
{
    const QVector<std::pair<const char *, QStringList>> bars{
        {"titleFrame", {"minimizeButton", "maximumButton", "closeButton"}},
        {"toolbarGroupBox",
         {"newButton", "openButton", "saveButton", "labelVersion", "labelLanguage", "languageCombobox"}},
        {"languageCombobox", {"labelCurrentLanguage"}},
        {"pathGroupBox", {"pathLabel"}},
        {"sideGroupBox",
         {"productSelectionButton", "dipSwitchButton", "settingButton", "validationButton",
          "labelErrorProduct", "labelErrorDipSwitch", "labelErrorSetting", "labelSlide1", "labelSlide2",
          "labelSlide3", "labelSlide4"}},
    };
    for (const auto &[bar, names] : bars) {
        for (const QString &name : names) {
            // Found in the bar, and the first of its name in the whole window.
            QCOMPARE(find(bar)->findChild<QWidget *>(name), dialog().findChild<QWidget *>(name));
            QVERIFY(find(bar)->findChild<QWidget *>(name) != nullptr);
        }
    }
    QVERIFY(qobject_cast<QGroupBox *>(find("languageCombobox")) != nullptr);
}

void TestMainDialog::stacksItsPages()
{
    auto *stack = find<QStackedWidget>("stackedWidget");
    const QStringList names{"selectpage",  "productselectpage", "dipswitchsettingpage",
                            "settingpage", "validationpage",    "datasavepage"};
    const QVector<QWidget *> pages{window->page<Select>(),
                                   window->page<ProductSelection>(),
                                   window->page<DipSwitchSettingStatus>(),
                                   find("settingStackedWidget"),
                                   window->page<Validation>(),
                                   window->page<DataSave>()};
    QCOMPARE(stack->count(), 6);
    for (int index = 0; index < 6; ++index) {
        QCOMPARE(stack->widget(index)->objectName(), names.at(index));
        QVERIFY(stack->widget(index)->isAncestorOf(pages.at(index)));
    }
    QCOMPARE(find("select"), pages.at(0));
    QCOMPARE(find("productSelection"), pages.at(1));
    QCOMPARE(find("validation"), pages.at(4));
    QCOMPARE(find("datasave"), pages.at(5));
}

void TestMainDialog::stacksItsTabs()
{
    auto *stack = find<QStackedWidget>("settingStackedWidget");
    const QStringList names{"functionpage", "userpage", "servicepage", "installationpage"};
    const QVector<QWidget *> pages{window->page<SettingFunction>(), window->page<SettingUser>(),
                                   window->page<SettingService>(), window->page<InstallationSystemSetting>()};
    QCOMPARE(stack->count(), 4);
    for (int index = 0; index < 4; ++index) {
        QCOMPARE(stack->widget(index)->objectName(), names.at(index));
        QVERIFY(stack->widget(index)->isAncestorOf(pages.at(index)));
    }
    QCOMPARE(find("serviceWidget"), pages.at(2));
}

void TestMainDialog::placesScrollPages_data()
{
    QTest::addColumn<QString>("page");
    QTest::newRow("dipswitchSettingScrollArea") << "DipSwitchSettingStatus";
    QTest::newRow("functionScrollArea") << "SettingFunction";
    QTest::newRow("userScrollArea") << "SettingUser";
    QTest::newRow("installationScrollArea") << "InstallationSystemSetting";
}

void TestMainDialog::placesScrollPages()
{
    QFETCH(QString, page);
    auto *area = find<QScrollArea>(QTest::currentDataTag());
    auto *layout = qobject_cast<QVBoxLayout *>(area->widget()->layout());
    QVERIFY(layout != nullptr);
    QCOMPARE(QString(layout->itemAt(0)->widget()->metaObject()->className()), page);
    QCOMPARE(layout->itemAt(0)->widget()->parentWidget(), area->widget());
}

void TestMainDialog::placesTheSectionsInOrder()
{
    const auto *layout = find<QScrollArea>("installationScrollArea")->widget()->layout();
    const QVector<QWidget *> sections{window->page<InstallationSystemSetting>(),
                                      window->page<InstallationCool>(), window->page<InstallationHeat>(),
                                      window->page<InstallationaAuto>(), window->page<InstallationDWH>()};
    for (int index = 0; index < sections.size(); ++index) {
        QCOMPARE(layout->itemAt(index)->widget(), sections.at(index));
    }
}

void TestMainDialog::showsErrorMarks_data()
{
    QTest::addColumn<bool>("atStart");
    for (const char *name : {"functionValidationIcon", "userValidationIcon", "serviceValidationIcon",
                             "installationValidationIcon"}) {
        // The lists of the Function tab are filled with signals live, so its check has run already.
        QTest::newRow(name) << (qstrcmp(name, "functionValidationIcon") != 0);
    }
    for (const char *name : {"labelErrorProduct", "labelErrorDipSwitch", "labelErrorSetting"}) {
        QTest::newRow(name) << false;
    }
}

void TestMainDialog::showsErrorMarks()
{
    const auto *mark = find<QLabel>(QTest::currentDataTag());
    const QPixmap picture(":/images/Ic_sideprogressbar_error.png");
    QVERIFY(!picture.isNull());
    QCOMPARE(mark->pixmap(Qt::ReturnByValue).toImage(), picture.toImage());
    QTEST(Window::shownItself(&dialog(), QTest::currentDataTag()), "atStart");
}

// Only the Function tab has reported by then.
void TestMainDialog::startsWithNothingDone()
{
    QCOMPARE(find<QStackedWidget>("stackedWidget")->currentIndex(), 0);
    QCOMPARE(find<QStackedWidget>("settingStackedWidget")->currentIndex(), 0);
    QVERIFY(!Window::visible(&dialog(), "sideGroupBox"));
    QCOMPARE(find<QLabel>("pathLabel")->text(), QString());
    QVERIFY(!members().results.productDone && !members().results.dipSwitchDone
            && !members().results.settingDone);
    QVERIFY(members().results.functionValid);
    QVERIFY(!members().results.userValid && !members().results.serviceValid
            && !members().results.installationValid);
    QVERIFY(!members().results.systemSectionValid && !members().results.autoSectionValid
            && !members().results.coolSectionValid && !members().results.dwhSectionValid
            && !members().results.heatSectionValid);
    QVERIFY(members().settings.isNewFile && !members().languageMenuOpen && !members().settings.saveValidated);
    QCOMPARE(members().settings.filePath, QString());
    QCOMPARE(members().units.tempUnit, QString());
    QCOMPARE(members().refrigerant, QString("None"));
    QVERIFY(members().settings.document.isNull() && members().languages.snapshot.document.isNull());
    QVERIFY(members().menu.isHidden() && members().menu.parent() == nullptr);
    QVERIFY(!popup()->isVisible());
}

void TestMainDialog::namesTheTabs()
{
    // By their looks: each tab paints what a button of that text would.
    const QVector<std::pair<const char *, QString>> tabs{{"functionTabButton", "Function"},
                                                         {"userTabButton", "User"},
                                                         {"serviceTabButton", "Service"},
                                                         {"installationTabButton", "Installation"}};
    window->showPage(MainDialog::SettingPage);
    for (const auto &[name, text] : tabs) {
        auto *tab = find<TabButton>(name);
        const QImage shown = tab->grab().toImage();
        tab->setText(QString());
        QVERIFY(tab->grab().toImage() != shown);
        tab->setText(text);
        QCOMPARE(tab->grab().toImage(), shown);
    }
}

void TestMainDialog::emptySlotsDoNothing()
{
    QVERIFY(Window::invoke(&dialog(), "initDataSavePageUi"));
    QCOMPARE(find<QStackedWidget>("stackedWidget")->count(), 6);
    QVERIFY(messages::all().isEmpty());
}

void TestMainDialog::settersSetTheirMember()
{
    dialog().setRefrigerant("R32");
    QCOMPARE(members().refrigerant, QString("R32"));
    dialog().setSideBarVisible(true);
    QVERIFY(Window::visible(&dialog(), "sideGroupBox"));
    dialog().setSideBarVisible(false);
    QVERIFY(!Window::visible(&dialog(), "sideGroupBox"));
    dialog().setTempUnit("FAHRENHEIT");
    QCOMPARE(dialog().tempUnit(), QString("FAHRENHEIT"));
}

void TestMainDialog::maximizesAndBack()
{
    auto *button = find<QPushButton>("maximumButton");
    const QString normal = button->styleSheet();
    QVERIFY(normal.contains("btn_title_maximize_normal.png"));
    Window::click(button);
    QTRY_VERIFY(dialog().isMaximized());
    QTRY_COMPARE(dialog().width(), 1920);
    QVERIFY(button->styleSheet().contains("btn_title_resize_normal.png"));
    Window::click(button);
    QTRY_VERIFY(!dialog().isMaximized());
    QTRY_COMPARE(dialog().size(), QSize(1440, 800));
    QCOMPARE(button->styleSheet(), normal);
}

void TestMainDialog::stylesTheMaximumButton_data()
{
    QTest::addColumn<bool>("maximized");
    QTest::addColumn<QString>("look");
    QTest::newRow("normal") << false << "maximize";
    QTest::newRow("maximized") << true << "resize";
}

void TestMainDialog::stylesTheMaximumButton()
{
    QFETCH(bool, maximized);
    QFETCH(QString, look);
    QVERIFY(QMetaObject::invokeMethod(&dialog(), "updateMaximumButtonUi", Q_ARG(bool, maximized)));
    QVERIFY(!dialog().isMaximized());
    const QString rule =
        "QPushButton%1 {border : none;outline : none;background-image: url(:/images/btn_title_%2_%3.png);}";
    QCOMPARE(find("maximumButton")->styleSheet(),
             rule.arg("", look, "normal") + rule.arg("::hover", look, "over")
                 + rule.arg("::pressed", look, "press"));
}

void TestMainDialog::minimizes()
{
    Window::click(find("minimizeButton"));
    QTRY_VERIFY(dialog().isMinimized());
}

void TestMainDialog::windowButtonsCloseThePopup_data()
{
    QTest::addColumn<QString>("slot");
    QTest::newRow("minimize") << "on_minimizeButton_clicked";
    QTest::newRow("maximize") << "on_maximumButton_clicked";
}

void TestMainDialog::windowButtonsCloseThePopup()
{
    QFETCH(QString, slot);
    Window::click(find("languageCombobox"));
    QVERIFY(popupIsOpen());
    QVERIFY(Window::invoke(&dialog(), qPrintable(slot)));
    QVERIFY(popup()->isHidden());
    QVERIFY(!members().languageMenuOpen);
    // The flag goes with a popup that is seen.
    dialog().setLanguageMenuOpen(true);
    QVERIFY(Window::invoke(&dialog(), qPrintable(slot)));
    QVERIFY(members().languageMenuOpen);
}

void TestMainDialog::closesAtOnce()
{
    window->use(documents::standard("R32"));
    bool inTime = true;
    QTimer::singleShot(0, find("closeButton"), [this] { Window::click(find("closeButton")); });
    QTimer late;
    connect(&late, &QTimer::timeout, this, [&] {
        inTime = false;
        QCoreApplication::exit(1);
    });
    late.start(5000);
    QCOMPARE(QApplication::exec(), 0);
    QVERIFY(inTime);
}

void TestMainDialog::languageBoxTogglesThePopup()
{
    auto *box = find("languageCombobox");
    QVERIFY(!popupIsOpen());
    Window::click(box);
    QVERIFY(popupIsOpen());
    QCOMPARE(popup()->pos(),
             QPoint(find("labelLanguage")->x() - 10,
                    find("toolbarGroupBox")->height() + find("titleFrame")->height()));
    QCOMPARE(popup()->parentWidget(), &dialog());
    // Above what lies there.
    QCOMPARE(dialog().childAt(popup()->geometry().center())->window(), &dialog());
    QVERIFY(popup()->isAncestorOf(dialog().childAt(popup()->pos() + QPoint(5, 5)))
            || dialog().childAt(popup()->pos() + QPoint(5, 5)) == popup());
    Window::click(box);
    QVERIFY(!popupIsOpen());
    Window::click(box);
    QVERIFY(popupIsOpen());
}

void TestMainDialog::pressOnTheLabelInTheBoxOpensThePopup()
{
    Window::click(find("labelCurrentLanguage"));
    QVERIFY(popupIsOpen());
    Window::click(find("labelCurrentLanguage"));
    QVERIFY(!popupIsOpen());
}

void TestMainDialog::filterEatsPresses_data()
{
    QTest::addColumn<bool>("open");
    QTest::addColumn<bool>("onTheBox");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("eaten");
    QTest::addColumn<bool>("openAfter");
    const auto row = [](const char *name, bool open, bool onTheBox, int type, bool eaten, bool openAfter) {
        QTest::newRow(name) << open << onTheBox << type << eaten << openAfter;
    };
    row("press on the box", false, true, QEvent::MouseButtonPress, true, true);
    row("press on the box while open", true, true, QEvent::MouseButtonPress, true, false);
    row("press elsewhere", false, false, QEvent::MouseButtonPress, false, false);
    row("press elsewhere while open", true, false, QEvent::MouseButtonPress, true, false);
    row("release on the box", false, true, QEvent::MouseButtonRelease, false, false);
    row("release on the box while open", true, true, QEvent::MouseButtonRelease, false, true);
    row("double click on the box", false, true, QEvent::MouseButtonDblClick, false, false);
    row("move while open", true, false, QEvent::MouseMove, false, true);
}

void TestMainDialog::filterEatsPresses()
{
    QFETCH(bool, open);
    QFETCH(bool, onTheBox);
    QFETCH(int, type);
    if (open) {
        Window::click(find("languageCombobox"));
    }
    QMouseEvent event(static_cast<QEvent::Type>(type), QPointF(3, 3), Qt::RightButton, Qt::RightButton,
                      Qt::NoModifier);
    auto &filter = static_cast<QObject &>(dialog());
    QTEST(filter.eventFilter(find(onTheBox ? "languageCombobox" : "saveButton"), &event), "eaten");
    QTEST(popupIsOpen(), "openAfter");
}

void TestMainDialog::keysDoNothing_data()
{
    QTest::addColumn<int>("key");
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("Enter") << int(Qt::Key_Enter);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
}

void TestMainDialog::keysDoNothing()
{
    QFETCH(int, key);
    const QJsonDocument before = documents::standard("R32");
    window->use(before);
    for (const char *name : {"MainDialog", "newButton", "openButton", "saveButton"}) {
        QWidget *target = name == dialog().objectName() ? &dialog() : find(name);
        target->setFocus();
        QTest::keyClick(target, static_cast<Qt::Key>(key));
        QVERIFY(dialog().isVisible());
        QCOMPARE(find<QStackedWidget>("stackedWidget")->currentIndex(), 0);
        QCOMPARE(dialog().document(), before);
    }
    // On the product page too, with a radio in focus.
    Window::click(find("newButton"));
    auto *radio = find<QRadioButton>("radioButtonR32");
    radio->setFocus();
    QTest::keyClick(radio, static_cast<Qt::Key>(key));
    QVERIFY(dialog().isVisible());
    QVERIFY(!radio->isChecked());
    QCOMPARE(dialog().document(), before);
}

void TestMainDialog::noButtonIsDefault()
{
    const auto buttons = dialog().findChildren<QPushButton *>();
    QVERIFY(buttons.size() >= 10);
    for (const QPushButton *button : buttons) {
        QVERIFY2(!button->isDefault(), qPrintable(button->objectName()));
    }
    for (const char *name : {"newButton", "openButton", "saveButton", "productSelectionButton",
                             "dipSwitchButton", "settingButton", "validationButton"}) {
        find(name)->setFocus();
        QVERIFY2(!find<QPushButton>(name)->isDefault() && !find<QPushButton>(name)->autoDefault(), name);
    }
}

void TestMainDialog::staysWithinItsSizes()
{
    // What lies in the window needs no more than its least size.
    Window::click(find("newButton"));
    const QSize needed = dialog().layout()->totalMinimumSize();
    QVERIFY2(needed.width() <= 974 && needed.height() <= 612,
             qPrintable(QStringLiteral("%1 x %2").arg(needed.width()).arg(needed.height())));
    for (const int page : {0, 1, 2, 3, 4, 5}) {
        window->showPage(page);
        dialog().resize(10, 10);
        QTRY_COMPARE(dialog().size(), QSize(974, 612));
        dialog().resize(4000, 4000);
        QTRY_COMPARE(dialog().size(), QSize(1920, 1080));
    }
}

CALORA_TEST_MAIN(TestMainDialog)
#include "tst_maindialog.moc"
