#include "app/maindialog.h"

#include "app/frameless.h"
#include "app/jsonlist.h"
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

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QKeyEvent>

MainDialog *mainDialog = nullptr;

MainDialog::MainDialog(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::MainDialog>())
{
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
    ui->labelVersion->setText(QStringLiteral("Orvo Heating Configurator SW ver. 1.0 / RMC SW ver. 3.03.1b"));
    state.languageIniPath = QCoreApplication::applicationDirPath() + QStringLiteral("/language/language.ini");
    loadLanguageData(state.languageIniPath);
}

void MainDialog::placeInScrollArea(QScrollArea *area, std::initializer_list<QWidget *> pages, int margin)
{
    auto *content = new QWidget(area);
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(margin, margin, margin, margin);
    for (QWidget *page : pages) {
        layout->addWidget(page);
    }
    layout->addStretch();
    area->setWidget(content);
    content->setLayout(layout);
}

// The pages connect to the language signal in the order in which they are made here; it is the order they are
// served in.

void MainDialog::initDipSwitchSettingStatusPageUi()
{
    auto *page = new DipSwitchSettingStatus;
    placeInScrollArea(ui->dipswitchSettingScrollArea, {page});
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
    ui->functionTabButton->setText(tr("Function"));
    ui->userTabButton->setText(tr("User"));
    ui->serviceTabButton->setText(tr("Service"));
    ui->installationTabButton->setText(tr("Installation"));
    ui->functionTabButton->setSelected(true);
    styleTabs(FunctionTab);
    initSettingFunctionUi();
    initSettingInstallationUi();
}

void MainDialog::initSettingFunctionUi()
{
    auto *page = new SettingFunction;
    placeInScrollArea(ui->functionScrollArea, {page});
    connect(this, &MainDialog::changeInstallationLanguage, page, &SettingFunction::changeLanguage);
}

void MainDialog::initSettingInstallationUi()
{
    auto *cool = new InstallationCool;
    auto *heat = new InstallationHeat;
    auto *automatic = new InstallationaAuto;
    auto *hotWater = new InstallationDWH;
    auto *system = new InstallationSystemSetting;
    placeInScrollArea(ui->installationScrollArea, {system, cool, heat, automatic, hotWater}, 16);

    connect(this, &MainDialog::changeInstallationLanguage, cool, &InstallationCool::changeLanguage);
    connect(this, &MainDialog::changeInstallationLanguage, heat, &InstallationHeat::changeLanguage);
    connect(this, &MainDialog::changeInstallationLanguage, automatic, &InstallationaAuto::changeLanguage);
    connect(this, &MainDialog::changeInstallationLanguage, hotWater, &InstallationDWH::changeLanguage);
    connect(this, &MainDialog::changeInstallationLanguage, system,
            &InstallationSystemSetting::changeLanguage);

    const auto refresh = &InstallationSystemSetting::refreshInstallationPageSignal;
    connect(system, refresh, cool, &InstallationCool::refresh);
    connect(system, refresh, heat, &InstallationHeat::refresh);
    connect(system, refresh, automatic, &InstallationaAuto::refresh);
    connect(system, refresh, hotWater, &InstallationDWH::refresh);
    connect(cool, &InstallationCool::refreshInstallationPageSignal, automatic, &InstallationaAuto::refresh);
    connect(heat, &InstallationHeat::refreshInstallationPageSignal, automatic, &InstallationaAuto::refresh);
}

void MainDialog::initSettingUserUi()
{
    auto *page = new SettingUser;
    placeInScrollArea(ui->userScrollArea, {page});
    connect(this, &MainDialog::changeInstallationLanguage, page, &SettingUser::changeLanguage);
}

void MainDialog::initDataSavePageUi() {}

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

void MainDialog::setLanguageMenuOpen(bool open) { state.languageMenuOpen = open; }

void MainDialog::closeLanguageMenu()
{
    if (state.languageMenuWidget->isVisible()) {
        state.languageMenuOpen = false;
        state.languageMenuWidget->hide();
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
// window system.
void MainDialog::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Escape) {
        event->ignore();
        return;
    }
    QDialog::keyPressEvent(event);
}
