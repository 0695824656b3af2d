// The wizard: moving between steps and tabs, and how the pages' results join into step marks.

#include "app/maindialog.h"
#include "pages/style.h"
#include "ui_maindialog.h"

#include <QDebug>

#include <array>

namespace {

QString stepRule(const QString &selector, int step, const QString &look)
{
    return QStringLiteral("QPushButton%1 {border : none;outline : none;"
                          "background-image: url(:/images/btn_step_%2_%3.png);}")
        .arg(selector, QString::number(step), look);
}

QString hoverRule(int step)
{
    return QStringLiteral("QPushButton::hover {border: none; outline: none;"
                          "background-image: url(:/images/btn_step_%1_focus.png);}")
        .arg(step);
}

QString normalStyle(int step)
{
    return stepRule(QString(), step, QStringLiteral("normal")) + hoverRule(step);
}

QString focusStyle(int step) { return stepRule(QString(), step, QStringLiteral("focus")) + hoverRule(step); }

QString completedStyle()
{
    return QStringLiteral("QPushButton {border : none;outline : none;"
                          "background-image: url(:/images/btn_step_completed.png);}");
}

} // namespace

void MainDialog::setSideBarVisible(bool visible) { ui->sideGroupBox->setVisible(visible); }

void MainDialog::setCurrentStep(int step)
{
    if (step < 1 || step > 4) {
        return;
    }
    const std::array<std::pair<QPushButton *, bool>, 4> steps{
        {{ui->productSelectionButton, state.results.productDone},
         {ui->dipSwitchButton, state.results.dipSwitchDone},
         {ui->settingButton, state.results.settingDone},
         {ui->validationButton, false}}};
    int number = 0;
    for (const auto &[button, done] : steps) {
        ++number;
        if (!done) {
            style::apply(button, number == step ? focusStyle(number) : normalStyle(number));
        }
    }
}

void MainDialog::setStepCompleted(bool completed, int step)
{
    struct Step {
        QPushButton *button;
        bool &done;
        QLabel *errorMark;
    };
    const std::array<Step, 3> steps{
        {{ui->productSelectionButton, state.results.productDone, ui->labelErrorProduct},
         {ui->dipSwitchButton, state.results.dipSwitchDone, ui->labelErrorDipSwitch},
         {ui->settingButton, state.results.settingDone, ui->labelErrorSetting}}};
    if (step < 1 || step > 3) {
        return;
    }
    const Step &target = steps.at(static_cast<std::size_t>(step - 1));
    if (completed) {
        style::apply(target.button, completedStyle());
    } else if (step != 1) {
        // Step 1 keeps its style.
        style::apply(target.button, focusStyle(step));
    }
    target.done = completed;
    target.errorMark->setVisible(!completed);
    showWhetherSaveSaves();
}

void MainDialog::showWhetherSaveSaves()
{
    style::mark(ui->saveButton, "saves", stepsDone() && !state.settings.filePath.isEmpty());
}

void MainDialog::setSettingTabValid(bool valid, int tab)
{
    struct TabResult {
        bool &valid;
        QLabel *icon;
    };
    const std::array<TabResult, 4> tabs{{{state.results.functionValid, ui->functionValidationIcon},
                                         {state.results.userValid, ui->userValidationIcon},
                                         {state.results.serviceValid, ui->serviceValidationIcon},
                                         {state.results.installationValid, ui->installationValidationIcon}}};
    if (tab >= FunctionTab && tab <= InstallationTab) {
        const TabResult &target = tabs.at(static_cast<std::size_t>(tab));
        target.valid = valid;
        target.icon->setVisible(!valid);
    }
    joinTabs();
}

void MainDialog::joinTabs()
{
    state.results.joinTabs();
    setStepCompleted(state.results.settingDone, 3);
}

void MainDialog::updateInstallationValid()
{
    state.results.joinSections();
    ui->installationValidationIcon->setVisible(!state.results.installationValid);
    joinTabs();
}

QString MainDialog::setTabButonStyleSheet(bool selected)
{
    return selected ? QStringLiteral("TabButton {color: #333333;}")
                    : QStringLiteral("TabButton {color: #777777;}");
}

void MainDialog::styleTabs(Tab tab)
{
    int number = FunctionTab;
    for (TabButton *button :
         {ui->functionTabButton, ui->userTabButton, ui->serviceTabButton, ui->installationTabButton}) {
        style::apply(button, setTabButonStyleSheet(number == tab));
        ++number;
    }
}

void MainDialog::selectTab(Tab tab)
{
    ui->functionTabButton->setSelected(tab == FunctionTab);
    ui->userTabButton->setSelected(tab == UserTab);
    ui->serviceTabButton->setSelected(tab == ServiceTab);
    ui->installationTabButton->setSelected(tab == InstallationTab);
    styleTabs(tab);
    ui->settingStackedWidget->setCurrentIndex(tab);
}

void MainDialog::clickedFunctionTabButton() { selectTab(FunctionTab); }

void MainDialog::clickedUserTabButton() { selectTab(UserTab); }

void MainDialog::clickedServiceTabButton() { selectTab(ServiceTab); }

void MainDialog::clickedInstallationTabButton() { selectTab(InstallationTab); }

void MainDialog::on_productSelectionButton_clicked()
{
    if (!state.settings.filePath.isEmpty()) {
        ui->stackedWidget->setCurrentIndex(ProductPage);
    }
}

void MainDialog::on_dipSwitchButton_clicked()
{
    if (!state.settings.filePath.isEmpty() && state.results.productDone) {
        ui->stackedWidget->setCurrentIndex(DipSwitchPage);
    }
}

// Oddity 40: the tabs are coloured as for the Function tab though the shown tab stays: the highlight may
// disagree with it.
void MainDialog::on_settingButton_clicked()
{
    if (state.settings.filePath.isEmpty()) {
        return;
    }
    if (!state.results.productDone || !state.results.dipSwitchDone) {
        qDebug() << "MainDialog::on_dipSwitchButton_clicked product selection validate fail";
        return;
    }
    ui->stackedWidget->setCurrentIndex(SettingPage);
    styleTabs(FunctionTab);
}

// A completed step's button doesn't tell whether its page is the one that is shown; its caption does.
void MainDialog::captionPage(int page)
{
    int captioned = ProductPage;
    for (QLabel *caption : {ui->labelSlide1, ui->labelSlide2, ui->labelSlide3, ui->labelSlide4}) {
        QFont font = caption->font();
        font.setBold(captioned == page);
        caption->setFont(font);
        style::mark(caption, "here", captioned == page);
        ++captioned;
    }
}

void MainDialog::on_validationButton_clicked()
{
    ui->validation->setResult(stepsDone());
    ui->stackedWidget->setCurrentIndex(ValidationPage);
}
