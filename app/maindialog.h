#pragma once

#include "app/dialogstate.h"

#include <QDialog>

#include <memory>

class DipSwitchSettingStatus;
class FrameLess;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;
class QScrollArea;
class TabButton;
namespace Ui {
class MainDialog;
}

/// The one window: the wizard with its pages, the settings document, the language in force and the value
/// lists. Pages reach it, and through it each other, by the global pointer `mainDialog`.
class MainDialog : public QDialog
{
    Q_OBJECT

public:
    enum Page { SelectPage, ProductPage, DipSwitchPage, SettingPage, ValidationPage, DataSavePage };
    enum Tab { FunctionTab, UserTab, ServiceTab, InstallationTab };
    enum Unit { PlainNumber, Temperature, Kelvin };

    explicit MainDialog(QWidget *parent = nullptr);
    ~MainDialog() override;

    /// The members as they stand, for reading.
    const DialogState &members() const { return state; }

    // The settings document (document/documentfiles.cpp)
    QJsonDocument document() const;
    void setDocument(const QJsonDocument &document);
    /// The common part of New: clears steps and tabs and shows the product page. The document stays.
    void startNewDocument();
    /// Loads the default document of "R32" or "R410", in any case. False for any other text.
    bool openNewJsonFile(const QString &refrigerant);
    /// Asks for a file and loads it. False when none was chosen or it can't be opened.
    bool openJsonFile();
    /// Where the file dialogs start: the desktop.
    QString dialogDirectory() const;

    // Units, value lists and shared checks (document/valuelists.cpp)
    /// "CENTIGRADE" or "FAHRENHEIT"; any other text counts as °C.
    QString tempUnit() const;
    void setTempUnit(const QString &unit);
    bool isFahrenheit() const;
    /// By the table; 0 for what it doesn't hold. °F gives the lowest °C that shows it.
    int celsiusToFahrenheit(int celsius) const;
    int fahrenheitToCelsius(int fahrenheit) const;
    /// Fills the list with lower to upper (°C for temperatures, shown in the unit in force; K is never
    /// converted), signals blocked. lower > upper leaves the list as it is.
    void setRangeValueInComboBox(QComboBox *comboBox, int lower, int upper, int unit, int step);
    /// Selects the item of a document value, signals blocked. A value that isn't listed lands on an end of
    /// the list.
    void setComboByValue(QComboBox *comboBox, int value, int unit);
    /// Selects the item that shows the text of a language key, else item 0. Signals stay live.
    void setComboByKey(QComboBox *comboBox, const QString &key);
    /// Replaces the items, signals blocked; an index of -1 leaves the selection to the list.
    void setComboItems(QComboBox *comboBox, const QStringList &items, int index);
    /// As setComboItems, but -1 selects item 0.
    void refillComboItems(QComboBox *comboBox, const QStringList &items, int index);
    /// The number in an item text without its last two characters, or its last one; 0 when there is none.
    int textWithoutTwoChars(const QString &text) const;
    int textWithoutOneChar(const QString &text) const;
    /// The checks pass for what is hidden or disabled. Index 0 of a list stands for no choice; `third` may be
    /// null.
    bool checkValidationComboBox(const QComboBox *comboBox) const;
    bool checkValidationRadio(const QRadioButton *first, const QRadioButton *second,
                              const QRadioButton *third) const;
    bool checkValidationLineEdit(const QLineEdit *lineEdit) const;

    // Languages (languages/lookup.cpp)
    /// The text of a key; empty, with a warning in the log, when there is none.
    QString languageValue(const QString &key) const;
    /// The text of a key, or the key.
    QString languageTextOrKey(const QString &key) const;
    /// The first key in sorted order that has the text, or the text.
    QString languageKeyOrText(const QString &text) const;
    /// The first key in sorted order that has the text, or nothing.
    QString languageKey(const QString &text) const;
    QJsonDocument languageDocument() const;
    QMap<QString, QVariant> languageMap() const;
    /// Makes `document` the language in force without telling any page.
    void setLanguageDocument(const QJsonDocument &document);
    void setLanguageSnapshot(const QJsonDocument &document);
    QMap<QString, QVariant> languageSnapshotMap() const;
    void setLanguageSnapshotText(const QString &key, const QString &text);
    void clearLanguageSnapshot();
    /// Reads the name of the language from the file and applies that language to all pages.
    void loadLanguageData(const QString &iniPath);
    /// Copies a language file into the language folder and makes it the language in force.
    void loadLanguageAnotherPath(const QString &filePath);
    void loadDefaultLanguageJsonFile();
    /// Remembers the name for the next run and shows it.
    void saveLanguageName(const QString &name);
    QString languageIniPath() const;
    /// Sets every text of the window and of all pages from the language in force.
    void changeLanguage();
    /// The part of changeLanguage() that lies in the window itself.
    void changeOwnTexts();
    void rebuildLanguageMenu();
    void setLanguageMenuOpen(bool open);

    // Steps, tabs and sections (app/wizard.cpp)
    void setSideBarVisible(bool visible);
    void setRefrigerant(const QString &name);
    /// Paints the step buttons for step 1 to 4; any other number changes nothing.
    void setCurrentStep(int step);
    /// Marks step 1 to 3 as completed or not.
    void setStepCompleted(bool completed, int step);
    /// The result of tab 0 to 3, joined into step 3. The Service tab takes no part in the step.
    void setSettingTabValid(bool valid, int tab);
    /// The result of a section of the Installation tab; updateInstallationValid() joins the five.
    void setSystemSectionValid(bool valid);
    void setAutoSectionValid(bool valid);
    void setCoolSectionValid(bool valid);
    void setDwhSectionValid(bool valid);
    void setHeatSectionValid(bool valid);
    void updateInstallationValid();
    /// Whether steps 1 to 3 are complete, which Save requires.
    bool stepsDone() const;

signals:
    void changeInstallationLanguage();

private slots:
    void initUi();
    void saveJsonFile(const QString &saveFilePath);
    void initSettingPageUi();
    void initSettingFunctionUi();
    void initSettingInstallationUi();
    void initDipSwitchSettingStatusPageUi();
    void initSettingUserUi();
    void initDataSavePageUi();
    void initLanguageMenu();
    void initCFTable();
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
    bool loadJsonData(const QString &filePath);
    void languageMenu();
    void changeSelectTextInCombobox();
    QString defaultSavePath();
    QString defaultLoadPath();
    QString setTabButonStyleSheet(bool selected);
    void saveJsonData(const QString &path, const QJsonValue &value);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;
    bool focusNextPrevChild(bool next) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    QString jsonFilter() const;
    QString unitSuffix(int unit) const;
    QString languageFilePath(const QString &name) const;
    void selectTab(Tab tab);
    void styleTabs(Tab tab);
    void captionPage(int page);
    void joinTabs();
    void closeLanguageMenu();
    void prepareHidden();

    std::unique_ptr<Ui::MainDialog> ui;
    DialogState state;
    std::unique_ptr<FrameLess> frameLess;
    bool painted = false;
};

/// The one dialog; set by its constructor as soon as the form is built.
extern MainDialog *mainDialog;
