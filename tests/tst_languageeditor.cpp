#include "support/editortest.h"
#include "support/mouse.h"

#include <QPointer>
#include <QScrollBar>
#include <QSignalSpy>

// The language editor, its list and its rows.

class TestLanguageEditor : public EditorTest
{
    Q_OBJECT

private slots:
    void initTestCase() { mouse::moveTo(QPoint(2, 2)); }
    void init() { open(); }
    void cleanup() { close(); }

    void listIsOfTheClassOfTheForm();
    void formIsAsSettled();
    void buttonsHaveFourPictures_data();
    void buttonsHaveFourPictures();
    void rowIsAsSettled();
    void listOwnsItsRows();
    void showsEachKeyInOrder();
    void longTextsShowTheirStart();
    void rowsAreBuiltAtEachShow();
    void showsOddLanguages();
    void initUiClears();
    void filtersWhileTyping();
    void searchStartsAtTheTop();
    void filtersByTheNewText();
    void searchesOnReturnAndOnTheButton();
    void editGoesToTheSnapshot();
    void equalTextsShareTheFirstKey();
    void removeEmptiesTheScreenOnly();
    void tabKeepsTheRowInView();
    void returnPressesNoButton();
    void closeClearsTheSnapshot_data();
    void closeClearsTheSnapshot();
    void isDragged();
};

void TestLanguageEditor::listIsOfTheClassOfTheForm()
{
    QCOMPARE(list()->metaObject()->className(), "LanguageList");
}

void TestLanguageEditor::formIsAsSettled()
{
    QCOMPARE(editor->size(), QSize(734, 592));
    QCOMPARE(editor->minimumSize(), QSize(734, 592));
    QCOMPARE(editor->maximumSize(), QSize(734, 592));
    QCOMPARE(editor->windowTitle(), QString("Dialog"));
    QVERIFY((editor->windowFlags() & Qt::FramelessWindowHint) != 0);
    QCOMPARE(editor->styleSheet(),
             QString("QDialog{\n\tborder-radius :15px;\n\tbackground-color: "
                     "#ffffff;\n\tborder : 1px solid #000000;\n}"));
    window->speak("~");
    QCOMPARE(Window::find<QLabel>(editor.get(), "label_3")->text(), QString("Language Edit"));
    QCOMPARE(Window::find<QPushButton>(editor.get(), "openButton")->text(), QString("Open Folder"));
    QCOMPARE(Window::find<QPushButton>(editor.get(), "closeButton")->text(), QString("Close"));
    QCOMPARE(Window::find<QPushButton>(editor.get(), "saveButton")->text(), QString("Save"));
    QCOMPARE(search()->text(), QString());
    const QString around = search()->parentWidget()->styleSheet();
    QVERIFY(around.contains("border-radius: 15px") && around.contains("#d0d1d2"));
    const auto *button = Window::find<QPushButton>(editor.get(), "pushButtonSearch");
    QCOMPARE(button->text(), QString());
    QVERIFY(button->styleSheet().contains(":/images/ic_language_popup_search.png"));
    QCOMPARE(list()->verticalScrollBar()->width(), 6);
}

void TestLanguageEditor::buttonsHaveFourPictures_data()
{
    QTest::addColumn<QString>("picture");
    QTest::newRow("openButton") << "btn_language_popup_small";
    QTest::newRow("closeButton") << "btn_language_popup_close";
    QTest::newRow("saveButton") << "btn_language_popup_save";
}

void TestLanguageEditor::buttonsHaveFourPictures()
{
    QFETCH(QString, picture);
    const QString sheet = Window::find<QPushButton>(editor.get(), QTest::currentDataTag())->styleSheet();
    for (const char *state : {"normal", "over", "press", "disable"}) {
        const QString path = QStringLiteral(":/images/%1_%2.png").arg(picture, QLatin1String(state));
        QVERIFY2(sheet.contains(path), state);
        QVERIFY2(QFile::exists(path), state);
    }
}

void TestLanguageEditor::rowIsAsSettled()
{
    LetterItem item(nullptr);
    QCOMPARE(Window::find<QLabel>(&item, "labelReference")->text(), QString("Reference"));
    const auto *line = Window::find<QLineEdit>(&item, "lineEdit");
    QCOMPARE(line->styleSheet(), QString("QLineEdit{\nborder :none;\n}"));
    QVERIFY(!Window::find<QPushButton>(&item, "ButtonRemove")->icon().isNull());
    item.setData("<b>a</b>\nb", "c");
    QCOMPARE(Window::find<QLabel>(&item, "labelReference")->text(), QString("<b>a</b>\nb"));
    QCOMPARE(line->text(), QString("c"));
    QCOMPARE(item.editText(), QString("c"));
    // Its box is white.
    const QImage picture = row(0)->grab().toImage();
    QCOMPARE(picture.pixelColor(4, 4), QColor(Qt::white));
}

void TestLanguageEditor::listOwnsItsRows()
{
    auto other = std::make_unique<LanguageList>();
    other->addRow("one", new LetterItem(other.get()), "1");
    other->addRow("two", new LetterItem(other.get()), "2");
    QCOMPARE(other->count(), 2);
    const QPointer<LetterItem> second = qobject_cast<LetterItem *>(other->itemWidget(other->item(1)));
    QVERIFY(second);
    QCOMPARE(Window::find<QLabel>(second, "labelReference")->text(), QString("two"));
    QCOMPARE(second->editText(), QString("2"));
    QCOMPARE(other->item(1)->sizeHint(), second->size());
    other.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QVERIFY(!second);
}

void TestLanguageEditor::showsEachKeyInOrder()
{
    const QStringList keys = english().keys();
    QCOMPARE(list()->count(), languagefolder::textCount());
    QCOMPARE(keys.first(), QString("AIR"));
    for (int index = 0; index < keys.size(); ++index) {
        QCOMPARE(reference(index), english().value(keys.at(index)).toString());
        QCOMPARE(row(index)->editText(), reference(index));
        QVERIFY(!list()->isRowHidden(index));
    }
    QCOMPARE(reference(0), QString("Air"));
    QCOMPARE(reference(languagefolder::textCount() - 1), QString("Pulse / kWh"));
    // What a text breaks in two lines has room for both.
    for (int index = 0; index < keys.size(); ++index) {
        const auto *label = Window::find<QLabel>(row(index), "labelReference");
        QVERIFY2(label->heightForWidth(label->width()) <= row(index)->height(), qPrintable(label->text()));
    }
}

// Until somebody types in them.
void TestLanguageEditor::longTextsShowTheirStart()
{
    const QString text = QStringLiteral("one two three four five six seven eight nine ten ").repeated(4);
    QJsonObject texts{{"a", text}, {"b", "short"}};
    dialog().setLanguageDocument(QJsonDocument(texts));
    QVERIFY(Window::invoke(editor.get(), "addLanguageData"));
    auto *line = Window::find<QLineEdit>(row(0), "lineEdit");
    QVERIFY(line->fontMetrics().horizontalAdvance(text) > 2 * line->width());
    const auto firstShown = [line] {
        line->grab();
        return line->cursorPositionAt(QPoint(0, line->height() / 2));
    };
    QCOMPARE(firstShown(), 0);
    QTest::keyClick(line, Qt::Key_End);
    QTest::keyClick(line, Qt::Key_X);
    QCOMPARE(row(0)->editText(), text + "x");
    QVERIFY(firstShown() > 0);
    QVERIFY(Window::invoke(editor.get(), "addLanguageData"));
    line = Window::find<QLineEdit>(row(0), "lineEdit");
    line->grab();
    QCOMPARE(line->cursorPositionAt(QPoint(0, line->height() / 2)), 0);
}

void TestLanguageEditor::rowsAreBuiltAtEachShow()
{
    edit("AIR", "Luft");
    editor->hide();
    dialog().setLanguageDocument(QJsonDocument::fromJson(R"({"b": "2", "a": "1"})"));
    editor->show();
    QCOMPARE(shownTexts(), (QStringList{"1", "2"}));
    QCOMPARE(dialog().languageSnapshotMap().value("AIR").toString(), QString("Luft"));
    dialog().setLanguageDocument(QJsonDocument());
    QVERIFY(Window::invoke(editor.get(), "addLanguageData"));
    QCOMPARE(list()->count(), 0);
}

void TestLanguageEditor::showsOddLanguages()
{
    dialog().setLanguageDocument(
        QJsonDocument::fromJson(R"({"": "", "a.b": 5, "c d": [1], "é": "<i>x</i>", "n": null})"));
    QVERIFY(Window::invoke(editor.get(), "addLanguageData"));
    QCOMPARE(shownTexts(), (QStringList{"", "5", "", "", "<i>x</i>"}));
    for (const char *text : {"x", "<", "5", "zz"}) {
        Window::type(search(), QString::fromLatin1(text));
    }
    QVERIFY(shownTexts().isEmpty());
}

void TestLanguageEditor::initUiClears()
{
    const Texts before = dialog().languageMap();
    QVERIFY(Window::invoke(editor.get(), "initUi"));
    QCOMPARE(list()->count(), 0);
    QCOMPARE(messages::all(),
             QStringList{"MainDialog::loadDefaultLanguageJsonFile failed to open file: "
                         "\"/language/English.json\""});
    QCOMPARE(dialog().languageMap(), before);
    start(false);
    QVERIFY(Window::invoke(editor.get(), "initUi"));
    QCOMPARE(list()->count(), 0);
    QVERIFY(messages::all().isEmpty());
}

void TestLanguageEditor::filtersWhileTyping()
{
    Window::type(search(), "mOdBuS");
    QCOMPARE(shownTexts(), (QStringList{"Modbus address", "Modbus address"}));
    Window::type(search(), "xyz");
    QVERIFY(shownTexts().isEmpty());
    Window::type(search(), QString());
    QCOMPARE(shownTexts().size(), languagefolder::textCount());
    // The key isn't searched.
    Window::type(search(), "Celicious");
    QVERIFY(shownTexts().isEmpty());
    // Each key press filters.
    search()->clear();
    QTest::keyClicks(search(), "hysteresis b");
    QCOMPARE(shownTexts(), QStringList{"Hysteresis boost heater"});
    QTest::keyClick(search(), Qt::Key_Backspace);
    QTest::keyClick(search(), Qt::Key_Backspace);
    QCOMPARE(shownTexts(), (QStringList{"Hysteresis", "Hysteresis (TH on/off)", "Hysteresis boost heater"}));
}

void TestLanguageEditor::searchStartsAtTheTop()
{
    for (const bool byTyping : {true, false}) {
        Window::type(search(), QString());
        list()->verticalScrollBar()->setValue(list()->verticalScrollBar()->maximum());
        if (byTyping) {
            Window::type(search(), "e");
        } else {
            search()->setText("e");
            QTest::keyClick(search(), Qt::Key_Return);
        }
        QTest::qWait(0);
        QVERIFY(list()->verticalScrollBar()->maximum() > 0);
        QCOMPARE(list()->verticalScrollBar()->value(), 0);
    }
}

void TestLanguageEditor::filtersByTheNewText()
{
    edit("Thermostat", "Waermemelder");
    Window::type(search(), "WAERMEM");
    QCOMPARE(shownTexts(), QStringList{"Waermemelder"});
    Window::type(search(), "Thermostat");
    QVERIFY(shownTexts().isEmpty());
}

void TestLanguageEditor::searchesOnReturnAndOnTheButton()
{
    search()->setText("modbus");
    QCOMPARE(shownTexts().size(), languagefolder::textCount());
    QTest::keyClick(search(), Qt::Key_Return);
    QCOMPARE(shownTexts().size(), 2);
    QVERIFY(editor->isVisible());
    search()->setText("xyz");
    QCOMPARE(shownTexts().size(), 2);
    Window::click(editor.get(), "pushButtonSearch");
    QCOMPARE(shownTexts().size(), 0);
    search()->clear();
    QVERIFY(Window::invoke(editor.get(), "returnSearchText"));
    QCOMPARE(shownTexts().size(), languagefolder::textCount());
    // Rows that are built anew are all shown, whatever stands in the field.
    Window::type(search(), "xyz");
    QVERIFY(Window::invoke(editor.get(), "addLanguageData"));
    QCOMPARE(shownTexts().size(), languagefolder::textCount());
    QCOMPARE(search()->text(), QString("xyz"));
}

void TestLanguageEditor::editGoesToTheSnapshot()
{
    const Texts inForce = dialog().languageMap();
    QSignalSpy finished(rowOf("Always"), &LetterItem::editTextFinished);
    edit("Always", "Immer");
    Texts expected = english();
    expected.insert("Always", "Immer");
    QCOMPARE(dialog().languageSnapshotMap(), expected);
    QCOMPARE(dialog().languageMap(), inForce);
    QCOMPARE(reference(dialog().languageMap().keys().indexOf("Always")), QString("Always"));
    QCOMPARE(finished.size(), 0);
    edit("Always", QString());
    expected.insert("Always", "");
    QCOMPARE(dialog().languageSnapshotMap(), expected);
    // A text of two lines keeps its break.
    auto *line = Window::find<QLineEdit>(rowOf("Setting"), "lineEdit");
    QTest::keyClick(line, Qt::Key_End);
    QTest::keyClick(line, Qt::Key_X);
    expected.insert("Setting", "Operation\nsettingx");
    QCOMPARE(dialog().languageSnapshotMap(), expected);
}

void TestLanguageEditor::equalTextsShareTheFirstKey()
{
    edit("ModbusAddress", "Modbus-Adresse");
    QCOMPARE(dialog().languageSnapshotMap().value("Address").toString(), QString("Modbus-Adresse"));
    QCOMPARE(dialog().languageSnapshotMap().value("ModbusAddress").toString(), QString("Modbus address"));
    QCOMPARE(rowOf("Address")->editText(), QString("Modbus address"));
    edit("Outlet", "Austritt");
    QCOMPARE(dialog().languageSnapshotMap().value("EXIT").toString(), QString("Austritt"));
    QCOMPARE(dialog().languageSnapshotMap().value("Outlet").toString(), QString("Outlet"));
}

void TestLanguageEditor::removeEmptiesTheScreenOnly()
{
    edit("AIR", "Luft");
    Window::click(rowOf("AIR"), "ButtonRemove");
    QCOMPARE(rowOf("AIR")->editText(), QString());
    QCOMPARE(reference(0), QString("Air"));
    QCOMPARE(dialog().languageSnapshotMap().value("AIR").toString(), QString("Luft"));
    Window::click(rowOf("AIR_WATER"), "ButtonRemove");
    press("saveButton", languagefolder::file("Deutsch.json"));
    QCOMPARE(dialog().languageValue("AIR"), QString("Luft"));
    QCOMPARE(dialog().languageValue("AIR_WATER"), QString("Air+Water"));
}

void TestLanguageEditor::tabKeepsTheRowInView()
{
    Window::find<QLineEdit>(row(0), "lineEdit")->setFocus();
    for (int index = 1; index < 30; ++index) {
        // A line and a button each.
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(QApplication::focusWidget(), Window::find(row(index), "lineEdit"));
        QVERIFY(list()->viewport()->rect().contains(row(index)->geometry()));
    }
    for (int index = 28; index >= 0; --index) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backtab);
        QVERIFY(list()->viewport()->rect().contains(row(index)->geometry()));
    }
}

void TestLanguageEditor::returnPressesNoButton()
{
    const auto buttons = editor->findChildren<QPushButton *>();
    for (const QPushButton *button : buttons) {
        QVERIFY2(!button->autoDefault() && !button->isDefault(), qPrintable(button->objectName()));
    }
    const Texts snapshot = dialog().languageSnapshotMap();
    for (const char *name : {"openButton", "closeButton", "saveButton", "pushButtonSearch", "listWidget"}) {
        QTest::keyClick(Window::find(editor.get(), name), Qt::Key_Return);
        QTest::keyClick(Window::find(editor.get(), name), Qt::Key_Enter);
        QVERIFY2(editor->isVisible(), name);
    }
    QTest::keyClick(Window::find(rowOf("AIR"), "lineEdit"), Qt::Key_Return);
    QVERIFY(editor->isVisible());
    QCOMPARE(dialog().languageSnapshotMap(), snapshot);
    QCOMPARE(rowOf("AIR")->editText(), QString("Air"));
}

void TestLanguageEditor::closeClearsTheSnapshot_data()
{
    QTest::addColumn<bool>("byKey");
    QTest::newRow("button") << false;
    QTest::newRow("Esc") << true;
}

void TestLanguageEditor::closeClearsTheSnapshot()
{
    QFETCH(bool, byKey);
    edit("New", "Neu");
    if (byKey) {
        QTest::keyClick(search(), Qt::Key_Escape);
    } else {
        Window::click(editor.get(), "closeButton");
    }
    QVERIFY(!editor->isVisible());
    QVERIFY(dialog().languageSnapshotMap().isEmpty());
    QCOMPARE(dialog().languageMap(), english());
    QCOMPARE(ini(), QByteArray("English"));
    QVERIFY(messages::all().isEmpty());
}

void TestLanguageEditor::isDragged()
{
    mouse::place(*editor, QPoint(500, 300));
    const QRect before = editor->geometry();
    const auto *title = Window::find(editor.get(), "label_3");
    mouse::drag(title->mapToGlobal(title->rect().center()), QPoint(-60, 40));
    QTRY_COMPARE(editor->geometry(), before.translated(-60, 40));
    // A press in the search field belongs to it.
    mouse::drag(search()->mapToGlobal(search()->rect().center()), QPoint(30, 30));
    QCOMPARE(editor->geometry(), before.translated(-60, 40));
    mouse::moveTo(QPoint(2, 2));
}

CALORA_TEST_MAIN(TestLanguageEditor)
#include "tst_languageeditor.moc"
