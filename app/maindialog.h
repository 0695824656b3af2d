#pragma once

#include "app/dialogstate.h"
#include "document/valuelists.h"

#include <QDialog>

#include <memory>

class FrameLess;
class QKeySequence;
class QPushButton;
namespace Ui {
class MainDialog;
}

/// The one window: the wizard with its pages, the settings document, the language in force and the value
/// lists. Pages reach it, and through it each other, by the global pointer `mainDialog`.
class MainDialog
    : public QDialog
    , public ValueLists
{
    Q_OBJECT

public:
    enum Page { SelectPage, ProductPage, DipSwitchPage, SettingPage, ValidationPage, DataSavePage };
    enum Tab { FunctionTab, UserTab, ServiceTab, InstallationTab };
    enum Unit { PlainNumber = Units::PlainNumber, Temperature = Units::Temperature, Kelvin = Units::Kelvin };

    explicit MainDialog(QWidget *parent = nullptr);
    ~MainDialog() override;

    /// The members as they stand, for reading.
    const DialogState &members() const { return state; }

    // The settings document (document/settings.h, app/documentfiles.cpp)
    QJsonDocument document() const { return state.settings.document; }
    void setDocument(const QJsonDocument &document) { state.settings.document = document; }
    /// The common part of New: clears steps and tabs and shows the product page. The document stays.
    void startNewDocument();
    /// Loads the default document of "R32" or "R410", in any case. False for any other text.
    bool openNewJsonFile(const QString &refrigerant);
    /// Asks for a file and loads it. False when none was chosen or it can't be opened.
    bool openJsonFile();
    /// Where the file dialogs start: the desktop.
    QString dialogDirectory() const;

    // Units (document/units.h)
    QString tempUnit() const { return state.units.tempUnit; }
    void setTempUnit(const QString &unit) { state.units.tempUnit = unit; }
    bool isFahrenheit() const { return state.units.isFahrenheit(); }
    int celsiusToFahrenheit(int celsius) const { return state.units.celsiusToFahrenheit(celsius); }
    int fahrenheitToCelsius(int fahrenheit) const { return state.units.fahrenheitToCelsius(fahrenheit); }
    int celsius(int shown) const { return state.units.celsius(shown); }

    // Value lists and shared checks, besides those of ValueLists
    /// Selects the item that shows the text of a language key, else item 0. Signals stay live.
    void setComboByKey(QComboBox *comboBox, const QString &key)
    {
        selectText(comboBox, key.isEmpty() ? key : languageTextOrKey(key));
    }

    // Languages (languages/language.h, languages/languages.h)
    QString languageValue(const QString &key) const { return state.languages.inForce.value(key); }
    QString languageTextOrKey(const QString &key) const { return state.languages.inForce.textOrKey(key); }
    QString languageKeyOrText(const QString &text) const { return state.languages.inForce.keyOrText(text); }
    QString languageKey(const QString &text) const { return state.languages.inForce.key(text); }
    QJsonDocument languageDocument() const { return state.languages.inForce.document; }
    QMap<QString, QVariant> languageMap() const { return state.languages.inForce.map; }
    /// Makes `document` the language in force without telling any page.
    void setLanguageDocument(const QJsonDocument &document) { state.languages.inForce.set(document); }
    void setLanguageSnapshot(const QJsonDocument &document) { state.languages.snapshot.set(document); }
    QMap<QString, QVariant> languageSnapshotMap() const { return state.languages.snapshot.map; }
    void setLanguageSnapshotText(const QString &key, const QString &text)
    {
        state.languages.snapshot.map.insert(key, text);
    }
    void loadLanguageData(const QString &iniPath) { state.languages.load(iniPath); }
    void loadLanguageAnotherPath(const QString &filePath) { state.languages.loadAnotherPath(filePath); }
    void loadDefaultLanguageJsonFile() { state.languages.loadDefault(); }
    void saveLanguageName(const QString &name) { state.languages.saveName(name); }
    QString languageIniPath() const { return state.languages.iniPath; }
    /// Sets every text of the window and of all pages from the language in force.
    void changeLanguage();
    /// The part of changeLanguage() that lies in the window itself.
    void changeOwnTexts();
    void rebuildLanguageMenu() { initLanguageMenu(); }
    void setLanguageMenuOpen(bool open) { state.languageMenuOpen = open; }

    // Steps, tabs and sections (rules/results.h, app/wizard.cpp)
    void setSideBarVisible(bool visible);
    void setRefrigerant(const QString &name) { state.refrigerant = name; }
    /// Paints the step buttons for step 1 to 4; any other number changes nothing.
    void setCurrentStep(int step);
    /// Marks step 1 to 3 as completed or not.
    void setStepCompleted(bool completed, int step);
    /// The result of tab 0 to 3, joined into step 3.
    void setSettingTabValid(bool valid, int tab);
    /// The result of a section of the Installation tab; updateInstallationValid() joins the five.
    void setSystemSectionValid(bool valid) { state.results.systemSectionValid = valid; }
    void setAutoSectionValid(bool valid) { state.results.autoSectionValid = valid; }
    void setCoolSectionValid(bool valid) { state.results.coolSectionValid = valid; }
    void setDwhSectionValid(bool valid) { state.results.dwhSectionValid = valid; }
    void setHeatSectionValid(bool valid) { state.results.heatSectionValid = valid; }
    void updateInstallationValid();
    bool stepsDone() const { return state.results.stepsDone(); }

signals:
    void changeInstallationLanguage();

private slots:
    void initUi();
    void saveJsonFile(const QString &saveFilePath) { state.settings.save(saveFilePath); }
    void initSettingPageUi();
    void initSettingFunctionUi();
    void initSettingInstallationUi();
    void initDipSwitchSettingStatusPageUi();
    void initSettingUserUi();
    void initDataSavePageUi() {}
    void initLanguageMenu();
    void initCFTable() { state.units.cfTable = Units::makeTable(); }
    void clickedFunctionTabButton();
    void clickedUserTabButton();
    void clickedServiceTabButton();
    void clickedInstallationTabButton();
    void on_minimizeButton_clicked();
    void on_maximumButton_clicked();
    void on_closeButton_clicked();
    void updateMaximumButtonUi(bool maximized);
    void on_productSelectionButton_clicked();
    void on_dipSwitchButton_clicked();
    void on_settingButton_clicked();
    void on_validationButton_clicked();
    void on_newButton_clicked();
    void on_openButton_clicked();
    void on_saveButton_clicked();
    bool loadJsonData(const QString &filePath) { return state.settings.load(filePath); }
    void languageMenu();
    void changeSelectTextInCombobox() {}
    QString defaultSavePath();
    QString defaultLoadPath() { return {}; }
    QString setTabButonStyleSheet(bool selected);
    void saveJsonData(const QString &path, const QJsonValue &value) { state.settings.setValue(path, value); }

protected:
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *object, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void initLanguages();
    QString jsonFilter() const;
    void selectTab(Tab tab);
    void styleTabs(Tab tab);
    void captionPage(int page);
    void showWhetherSaveSaves();
    void joinTabs();
    void closeLanguageMenu();
    void prepareHidden();
    void forgetShownPages();
    void addShortcut(const QKeySequence &keys, QPushButton *button);

    std::unique_ptr<Ui::MainDialog> ui;
    DialogState state;
    std::unique_ptr<FrameLess> frameLess;
    bool painted = false;
};

/// The one dialog; set by its constructor as soon as the form is built.
extern MainDialog *mainDialog;
