#include "support/window.h"

#include "app/imagebutton.h"
#include "pages/completion/datasave.h"
#include "pages/completion/validation.h"

#include <QApplication>
#include <QMouseEvent>

#include <utility>

// The result page, and the data save page that nobody sees.

namespace {

constexpr auto completeImage = "QLabel{image: url(:/images/img_complete.png);}";
constexpr auto errorImage = "QLabel{image: url(:/images/img_error.png);}";

struct Shown {
    QString message;
    QString subMessage;
    QString image;

    explicit Shown(const QWidget *page)
        : message(Window::find<QLabel>(page, "messageLabel")->text())
        , subMessage(Window::find<QLabel>(page, "messageLabel2")->text())
        , image(Window::find<QLabel>(page, "imgLabel")->styleSheet())
    {
    }
    Shown(QString first, QString second, QString picture)
        : message(std::move(first))
        , subMessage(std::move(second))
        , image(std::move(picture))
    {
    }
    bool operator==(const Shown &other) const
    {
        return message == other.message && subMessage == other.subMessage && image == other.image;
    }
};

char *toString(const Shown &shown)
{
    return QTest::toString(QStringList{shown.message, shown.subMessage, shown.image}.join(" | "));
}

Shown complete(const QString &mark = QString())
{
    return {"Complete!" + mark, "This setup is complete. Be sure to save." + mark, completeImage};
}

// Until a language is in force the page has a text of its own for an incomplete setup.
Shown builtInError()
{
    return {"Setup is not complete",
            "Please go back to the settings provided with \n the image below to complete the setup",
            errorImage};
}

} // namespace

class TestValidation : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        window = std::make_unique<Window>();
        page = window->page<Validation>();
        messages::clear();
    }
    void cleanup() { window.reset(); }

    void looksAsTold();
    void showsPlaceholdersUntilAsked();
    void knowsItsTextsWithoutALanguage();
    void picturesExist();
    void buttonShowsTheFlags_data();
    void buttonShowsTheFlags();
    void languageChangeKeepsTheOpenResult_data();
    void languageChangeKeepsTheOpenResult();
    void languageChangeGoesByTheFlags();
    void resultStandsUntilSetAgain();
    void showingPaintsTheFourthStep();
    void savesNothing();
    void lostTabTakesTheStepBack();

    void dataSaveHasItsForm();
    void dataSaveShowsItsChoices_data();
    void dataSaveShowsItsChoices();
    void dataSaveChoicesDoNothing();
    void dataSaveIsNeverShown();

private:
    MainDialog &dialog() const { return window->dialog; }
    void setDone(const QVector<bool> &done) const
    {
        for (int step = 1; step <= 3; ++step) {
            dialog().setStepCompleted(done.at(step - 1), step);
        }
    }
    Shown error() const
    {
        return {dialog().languageValue("ErrorMessage"), dialog().languageValue("ErrorSubMessage"),
                errorImage};
    }

    std::unique_ptr<Window> window;
    Validation *page = nullptr;
};

void TestValidation::looksAsTold()
{
    QCOMPARE(Window::find<QLabel>(page, "messageLabel")->styleSheet(), QString("\ncolor: #777777;\n"));
    QCOMPARE(Window::find<QLabel>(page, "messageLabel2")->styleSheet(), QString("\ncolor: #383838;\n"));
}

void TestValidation::showsPlaceholdersUntilAsked()
{
    const Validation fresh;
    QCOMPARE(Shown(&fresh), Shown("Complete Error", "Message", ""));
}

void TestValidation::knowsItsTextsWithoutALanguage()
{
    Validation fresh;
    fresh.setResult(true);
    QCOMPARE(Shown(&fresh), complete());
    fresh.setResult(false);
    QCOMPARE(Shown(&fresh), builtInError());
    // The slot puts them back.
    window->speak("~");
    QVERIFY(Window::invoke(page, "initUi"));
    page->setResult(false);
    QCOMPARE(Shown(page), builtInError());
    page->setResult(true);
    QCOMPARE(Shown(page), complete());
}

void TestValidation::picturesExist()
{
    QVERIFY(!QPixmap(":/images/img_complete.png").isNull());
    QVERIFY(!QPixmap(":/images/img_error.png").isNull());
}

void TestValidation::buttonShowsTheFlags_data()
{
    QTest::addColumn<QVector<bool>>("done");
    QTest::addColumn<bool>("isComplete");
    QTest::newRow("nothing") << QVector<bool>{false, false, false} << false;
    QTest::newRow("without product") << QVector<bool>{false, true, true} << false;
    QTest::newRow("without dip switch") << QVector<bool>{true, false, true} << false;
    QTest::newRow("without setting") << QVector<bool>{true, true, false} << false;
    QTest::newRow("all") << QVector<bool>{true, true, true} << true;
}

void TestValidation::buttonShowsTheFlags()
{
    QFETCH(QVector<bool>, done);
    QFETCH(bool, isComplete);
    dialog().setSideBarVisible(true);
    setDone(done);
    page->setResult(!isComplete);
    Window::click(&dialog(), "validationButton");
    QVERIFY(page->isVisible());
    QCOMPARE(Shown(page), isComplete ? complete() : error());
    QCOMPARE(error().message, QString("Setup is not complete"));
}

void TestValidation::languageChangeKeepsTheOpenResult_data() { buttonShowsTheFlags_data(); }

void TestValidation::languageChangeKeepsTheOpenResult()
{
    QFETCH(QVector<bool>, done);
    QFETCH(bool, isComplete);
    dialog().setSideBarVisible(true);
    setDone(done);
    Window::click(&dialog(), "validationButton");
    const Shown before(page);
    window->speak("~");
    QVERIFY(page->isVisible());
    QCOMPARE(Shown(page), Shown(before.message + "~", before.subMessage + "~", before.image));
    QCOMPARE(Shown(page), isComplete ? complete("~") : error());
    window->speak();
    QCOMPARE(Shown(page), before);
}

void TestValidation::languageChangeGoesByTheFlags()
{
    page->setResult(true);
    window->speak();
    QCOMPARE(Shown(page), error());
    setDone({true, true, true});
    QCOMPARE(Shown(page), error());
    window->speak();
    QCOMPARE(Shown(page), complete());
}

void TestValidation::resultStandsUntilSetAgain()
{
    dialog().setSideBarVisible(true);
    setDone({true, true, true});
    Window::click(&dialog(), "validationButton");
    setDone({true, true, false});
    window->showPage(MainDialog::ValidationPage);
    QCOMPARE(Shown(page), complete());
    Window::click(&dialog(), "validationButton");
    QCOMPARE(Shown(page), error());
}

void TestValidation::showingPaintsTheFourthStep()
{
    auto *step = Window::find(&dialog(), "validationButton");
    dialog().setCurrentStep(1);
    QVERIFY(step->styleSheet().contains("btn_step_4_normal.png"));
    window->showPage(MainDialog::ValidationPage);
    QVERIFY(!step->styleSheet().contains("btn_step_4_normal.png"));
    QVERIFY(
        Window::find(&dialog(), "productSelectionButton")->styleSheet().contains("btn_step_1_normal.png"));
    // Every time it is shown.
    dialog().setCurrentStep(1);
    window->showPage(MainDialog::ValidationPage);
    QVERIFY(!step->styleSheet().contains("btn_step_4_normal.png"));
}

void TestValidation::savesNothing()
{
    dialog().openNewJsonFile("R32");
    dialog().setSideBarVisible(true);
    setDone({true, true, true});
    messages::clear();
    const auto seen = filedialogs::answer([this] { Window::click(&dialog(), "validationButton"); },
                                          QString());
    QVERIFY(seen.title.isEmpty());
    QVERIFY(dialog().members().settings.isNewFile);
    QCOMPARE(dialog().document(), documents::standard("R32"));
    QVERIFY(messages::all().isEmpty());
}

void TestValidation::lostTabTakesTheStepBack()
{
    dialog().openNewJsonFile("R32");
    dialog().setSideBarVisible(true);
    setDone({true, true, true});
    for (const int tab : {0, 1, 2, 3}) {
        dialog().setSettingTabValid(true, tab);
    }
    Window::click(&dialog(), "validationButton");
    QCOMPARE(Shown(page), complete());
    dialog().setSettingTabValid(false, MainDialog::UserTab);
    QVERIFY(Window::shownItself(&dialog(), "userValidationIcon"));
    QVERIFY(Window::shownItself(&dialog(), "labelErrorSetting"));
    messages::clear();
    Window::click(&dialog(), "saveButton");
    QVERIFY(messages::contain("save is failed validation"));
    Window::click(&dialog(), "validationButton");
    QCOMPARE(Shown(page), error());
    // Service has no say.
    dialog().setSettingTabValid(true, MainDialog::UserTab);
    dialog().setSettingTabValid(false, MainDialog::ServiceTab);
    Window::click(&dialog(), "validationButton");
    QCOMPARE(Shown(page), complete());
}

void TestValidation::dataSaveHasItsForm()
{
    const DataSave fresh;
    QCOMPARE(fresh.size(), QSize(754, 523));
    for (const auto &[label, file] :
         {std::pair<const char *, const char *>{"label_checkValidation", "checkvalidation"},
          {"label_fileCooking", "filecooking"}}) {
        const QPixmap picture(QStringLiteral(":/images/img_%1.png").arg(file));
        QVERIFY(!picture.isNull());
        QCOMPARE(Window::find<QLabel>(&fresh, label)->pixmap(Qt::ReturnByValue).toImage(), picture.toImage());
    }
}

void TestValidation::dataSaveShowsItsChoices_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("checkValidationButton") << "Check Validation";
    QTest::newRow("fileCookingButton") << "File Cooking";
}

void TestValidation::dataSaveShowsItsChoices()
{
    QFETCH(QString, text);
    window->showPage(MainDialog::DataSavePage);
    auto *button = Window::find<ImageButton>(&dialog(), QTest::currentDataTag());
    ImageButton same(button->parentWidget());
    same.resize(button->size());
    same.setFont(button->font());
    same.setText(text);
    same.setStandardPixmaps();
    const QSize size(button->size());
    for (const auto state : {QEvent::Leave, QEvent::Enter, QEvent::MouseButtonPress}) {
        QMouseEvent press(state, QPointF(5, 5), Qt::LeftButton, Qt::LeftButton, Qt::NoModifier);
        QEvent other(state);
        for (ImageButton *each : {button, &same}) {
            QApplication::sendEvent(each, state == QEvent::MouseButtonPress ? &press : &other);
        }
        QCOMPARE(button->grab(QRect(QPoint(), size)).toImage(), same.grab(QRect(QPoint(), size)).toImage());
    }
}

void TestValidation::dataSaveChoicesDoNothing()
{
    dialog().openNewJsonFile("R32");
    window->showPage(MainDialog::DataSavePage);
    messages::clear();
    for (const char *name : {"checkValidationButton", "fileCookingButton"}) {
        const auto seen = filedialogs::answer([&] { Window::click(&dialog(), name); }, QString());
        QVERIFY(seen.title.isEmpty());
    }
    auto *choices = window->page<DataSave>();
    QVERIFY(Window::invoke(choices, "clickedCheckValidationButton"));
    QVERIFY(Window::invoke(choices, "clickedFileCookingButton"));
    QVERIFY(messages::all().isEmpty());
    QVERIFY(choices->isVisible());
    QCOMPARE(dialog().document(), documents::standard("R32"));
    QVERIFY(!dialog().members().results.productDone && !dialog().members().results.settingDone);
    QVERIFY(dialog().members().settings.isNewFile);
}

void TestValidation::dataSaveIsNeverShown()
{
    auto *stack = Window::find<QStackedWidget>(&dialog(), "stackedWidget");
    QVector<int> seen;
    connect(stack, &QStackedWidget::currentChanged, this, [&](int index) { seen.append(index); });
    Window::click(&dialog(), "newButton");
    dialog().openNewJsonFile("R32");
    for (const char *name :
         {"productSelectionButton", "dipSwitchButton", "settingButton", "functionTabButton", "userTabButton",
          "serviceTabButton", "installationTabButton", "validationButton"}) {
        setDone({true, true, true});
        Window::click(&dialog(), name);
    }
    setDone({true, true, true});
    filedialogs::answer([this] { Window::click(&dialog(), "saveButton"); }, QString());
    Window::click(&dialog(), "maximumButton");
    Window::click(&dialog(), "languageCombobox");
    QCOMPARE(seen, (QVector<int>{1, 2, 3, 4}));
    QVERIFY(!window->page<DataSave>()->isVisible());
}

CALORA_TEST_MAIN(TestValidation)
#include "tst_validation.moc"
