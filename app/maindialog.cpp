#include "app/maindialog.h"

#include "app/accessible.h"
#include "app/captioncolumn.h"
#include "app/frameless.h"
#include "app/pagearea.h"
#include "app/radiogroups.h"
#include "app/radioring.h"
#include "app/windowshadow.h"
#include "languages/languagemenu.h"
#include "pages/installation/installationaauto.h"
#include "pages/installation/installationcool.h"
#include "pages/installation/installationdwh.h"
#include "pages/installation/installationheat.h"
#include "pages/installation/installationsystemsetting.h"
#include "pages/operation/settingfunction.h"
#include "pages/operation/settinguser.h"
#include "pages/product/dipswitchsettingstatus.h"
#include "ui_maindialog.h"
#include "widgets/jsonlist.h"

#include <QAction>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMoveEvent>
#include <QWindow>

#include <algorithm>

namespace {

QWidget *contentOf(QScrollArea *area, int sideMargin = 0, int margin = 0)
{
    auto *content = new QWidget(area);
    area->setWidget(content);
    auto *layout = new QVBoxLayout(content);
    layout->setContentsMargins(sideMargin, margin, sideMargin, margin);
    layout->addStretch();
    return content;
}

/// Makes the next page of a scroll area's content, where it stays: moved there, it would be styled again.
template <typename PageClass>
PageClass *addPage(QWidget *content)
{
    constexpr int cards = 1040;
    constexpr int margin = 16;
    auto *page = new PageClass(content);
    auto *layout = static_cast<QVBoxLayout *>(content->layout());
    page->setMaximumWidth(cards + 2 * (margin - layout->contentsMargins().left()));
    layout->insertWidget(layout->count() - 1, page);
    return page;
}

} // namespace

MainDialog *mainDialog = nullptr;

MainDialog::MainDialog(QWidget *parent)
    // As a dialog by its type it would belong to another window, and task bars would leave it out.
    : QDialog(parent, Qt::Window)
    , ValueLists(state.units)
    , ui(std::make_unique<Ui::MainDialog>())
{
    accessible::install();
    // FrameLess sets it too. With children there already, that would style each of them once more.
    setWindowFlag(Qt::FramelessWindowHint);
    ui->setupUi(this);
    mainDialog = this;

    auto *shadow = new WindowShadow(this);
    shadow->setBlurRadius(2);
    shadow->setColor(QColor(0, 0, 0, 30));
    shadow->setOffset(2, 2);
    ui->pathGroupBox->setGraphicsEffect(shadow);
    // An effect belongs to one widget: this takes it from the path bar.
    setGraphicsEffect(shadow);

    frameLess = std::make_unique<FrameLess>(this, true);
    new JsonList(this);
    ui->languageCombobox->installEventFilter(this);
    updateMaximumButtonUi(isMaximized());
    initCFTable();
    initUi();
    new RadioRing(this);
    new CaptionColumn(ui->stackedWidget,
                      {ui->layout_productselectpage, ui->dipswitchSettingScrollArea->widget()->layout(),
                       ui->layout_tabRow, ui->functionScrollArea->widget()->layout(),
                       ui->userScrollArea->widget()->layout(), ui->layout_servicepage,
                       ui->installationScrollArea->widget()->layout()});
    // Each widget has asked to be styled soon, shown or not. What is shown is styled then, the rest is
    // prepared after the first paint.
    QCoreApplication::removePostedEvents(nullptr, QEvent::PolishRequest);
}

MainDialog::~MainDialog() = default;

void MainDialog::initUi()
{
    setWindowTitle(QStringLiteral("Calora configurator"));
    setWindowIcon(QIcon(QStringLiteral(":/images/launcher_ic.ico")));
    initDipSwitchSettingStatusPageUi();
    initSettingPageUi();
    initLanguageMenu();
    initSettingUserUi();
    connect(ui->stackedWidget, &QStackedWidget::currentChanged, this, &MainDialog::captionPage);
    ui->settingStackedWidget->setCurrentIndex(FunctionTab);
    ui->stackedWidget->setCurrentIndex(SelectPage);
    ui->pathLabel->clear();
    for (QLabel *mark : {ui->labelErrorDipSwitch, ui->labelErrorProduct, ui->labelErrorSetting}) {
        mark->hide();
    }
    ui->sideGroupBox->hide();
    ui->newButton->setFocus(); // not the first button of the title bar
    addShortcut(QKeySequence::New, ui->newButton);
    addShortcut(QKeySequence::Open, ui->openButton);
    addShortcut(QKeySequence::Save, ui->saveButton);
    ui->labelVersion->setText(QStringLiteral("Orvo Heating Configurator SW ver. 1.0 / RMC SW ver. 3.03.1b"));
    initLanguages();
}

/// Does what a click on the button does, once for each press of the keys, whatever the button's text.
void MainDialog::addShortcut(const QKeySequence &keys, QPushButton *button)
{
    auto *action = new QAction(this);
    action->setShortcut(keys);
    action->setAutoRepeat(false);
    connect(action, &QAction::triggered, this, &MainDialog::closeLanguageMenu);
    connect(action, &QAction::triggered, button, &QPushButton::click);
    addAction(action);
}

// The pages connect to the language signal in the order in which they stand here; it is the order they are
// served in.

void MainDialog::initDipSwitchSettingStatusPageUi()
{
    QWidget *content = contentOf(ui->dipswitchSettingScrollArea);
    auto *page = addPage<DipSwitchSettingStatus>(content);
    // It scrolls in itself.
    static_cast<QVBoxLayout *>(content->layout())->setStretchFactor(page, 1);
    connect(this, &MainDialog::changeInstallationLanguage, page, &DipSwitchSettingStatus::changeLanguage);
    connect(ui->productSelection, &ProductSelection::buttonClicked, page,
            &DipSwitchSettingStatus::changeImage);
}

void MainDialog::initSettingPageUi()
{
    connect(ui->functionTabButton, &TabButton::clicked, this, &MainDialog::clickedFunctionTabButton);
    connect(ui->userTabButton, &TabButton::clicked, this, &MainDialog::clickedUserTabButton);
    connect(ui->serviceTabButton, &TabButton::clicked, this, &MainDialog::clickedServiceTabButton);
    connect(ui->installationTabButton, &TabButton::clicked, this, &MainDialog::clickedInstallationTabButton);
    ui->functionTabButton->setSelected(true);
    styleTabs(FunctionTab);
    initSettingFunctionUi();
    initSettingInstallationUi();
}

void MainDialog::initSettingFunctionUi()
{
    auto *page = addPage<SettingFunction>(contentOf(ui->functionScrollArea));
    connect(this, &MainDialog::changeInstallationLanguage, page, &SettingFunction::changeLanguage);
}

void MainDialog::initSettingInstallationUi()
{
    QWidget *content = contentOf(ui->installationScrollArea, 16, 12);
    content->layout()->setSpacing(12); // as between the cards of a page
    auto *system = addPage<InstallationSystemSetting>(content);
    auto *cool = addPage<InstallationCool>(content);
    auto *heat = addPage<InstallationHeat>(content);
    auto *automatic = addPage<InstallationaAuto>(content);
    auto *hotWater = addPage<InstallationDWH>(content);

    connect(this, &MainDialog::changeInstallationLanguage, cool, &InstallationCool::changeLanguage);
    connect(this, &MainDialog::changeInstallationLanguage, heat, &InstallationHeat::changeLanguage);
    connect(this, &MainDialog::changeInstallationLanguage, automatic, &InstallationaAuto::changeLanguage);
    connect(this, &MainDialog::changeInstallationLanguage, hotWater, &InstallationDWH::changeLanguage);
    connect(this, &MainDialog::changeInstallationLanguage, system,
            &InstallationSystemSetting::changeLanguage);

    connect(system, &InstallationSystemSetting::refreshInstallationPageSignal, cool,
            &InstallationCool::refresh);
    connect(system, &InstallationSystemSetting::refreshInstallationPageSignal, heat,
            &InstallationHeat::refresh);
    connect(system, &InstallationSystemSetting::refreshInstallationPageSignal, automatic,
            &InstallationaAuto::refresh);
    connect(system, &InstallationSystemSetting::refreshInstallationPageSignal, hotWater,
            &InstallationDWH::refresh);
    connect(cool, &InstallationCool::refreshInstallationPageSignal, automatic, &InstallationaAuto::refresh);
    connect(heat, &InstallationHeat::refreshInstallationPageSignal, automatic, &InstallationaAuto::refresh);
}

void MainDialog::initSettingUserUi()
{
    auto *page = addPage<SettingUser>(contentOf(ui->userScrollArea));
    connect(this, &MainDialog::changeInstallationLanguage, page, &SettingUser::changeLanguage);
}

void MainDialog::on_minimizeButton_clicked()
{
    closeLanguageMenu();
    showMinimized();
}

void MainDialog::on_maximumButton_clicked()
{
    closeLanguageMenu();
    const bool maximize = !isMaximized();
    updateMaximumButtonUi(maximize);
    if (maximize) {
        showMaximized();
    } else {
        showNormal();
    }
}

void MainDialog::on_closeButton_clicked() { QCoreApplication::quit(); }

void MainDialog::updateMaximumButtonUi(bool maximized)
{
    const QString name = maximized ? QStringLiteral("resize") : QStringLiteral("maximize");
    const QString rule = QStringLiteral("QPushButton%1 {border : none;outline : none;"
                                        "background-image: url(:/images/btn_title_%2_%3.png);}");
    ui->maximumButton->setStyleSheet(rule.arg(QString(), name, QStringLiteral("normal"))
                                     + rule.arg(QStringLiteral("::hover"), name, QStringLiteral("over"))
                                     + rule.arg(QStringLiteral("::pressed"), name, QStringLiteral("press")));
}

void MainDialog::closeLanguageMenu()
{
    if (state.languageMenuWidget->isVisible()) {
        state.languageMenuOpen = false;
        state.languageMenuWidget->hide();
    }
}

// Qt may have measured what a window manager puts around the window while it was made, and would find no
// edge to resize. It measures anew with a move.
void MainDialog::changeEvent(QEvent *event)
{
    QDialog::changeEvent(event);
    if (event->type() == QEvent::ActivationChange && windowHandle() != nullptr) {
        QMoveEvent unmoved(windowHandle()->position(), windowHandle()->position());
        QCoreApplication::sendEvent(windowHandle(), &unmoved);
    }
}

bool MainDialog::eventFilter(QObject *object, QEvent *event)
{
    const bool press = event->type() == QEvent::MouseButtonPress;
    if (state.languageMenuOpen && press) {
        state.languageMenuOpen = false;
        state.languageMenuWidget->hide();
        return true;
    }
    if (!state.languageMenuOpen && press && object == ui->languageCombobox) {
        state.languageMenuOpen = true;
        state.languageMenuWidget->move(ui->labelLanguage->x() - 10,
                                       ui->toolbarGroupBox->height() + ui->titleFrame->height());
        state.languageMenuWidget->show();
        state.languageMenuWidget->raise();
        return true;
    }
    return QDialog::eventFilter(object, event);
}

bool MainDialog::focusNextPrevChild(bool next)
{
    radiogroups::placeTabStops(this);
    return QDialog::focusNextPrevChild(next);
}

// Return presses no button and Esc leaves the dialog open: the tool ends through its close button or the
// window system. What turns a page turns the one shown, wherever the focus is.
void MainDialog::keyPressEvent(QKeyEvent *event)
{
    const auto areas = findChildren<PageArea *>();
    if (std::any_of(areas.begin(), areas.end(),
                    [event](PageArea *area) { return area->isVisible() && area->turn(event->key()); })) {
        return;
    }
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    QDialog::keyPressEvent(event);
}

void MainDialog::paintEvent(QPaintEvent *event)
{
    QDialog::paintEvent(event);
    if (!painted) {
        painted = true;
        QMetaObject::invokeMethod(this, &MainDialog::prepareHidden, Qt::QueuedConnection);
    }
}

void MainDialog::prepareHidden()
{
    ui->stackedWidget->preparePages();
    ui->settingStackedWidget->preparePages();
    state.languageMenuWidget->prepareRows();
}
