#include "support/editortest.h"
#include "support/faults.h"
#include "support/openedfiles.h"
#include "support/tour.h"

#include "languages/languageitem.h"
#include "languages/languagemenu.h"
#include "widgets/plaintext.h"

#include <QAbstractItemView>
#include <QAccessible>
#include <QPainter>
#include <QTemporaryDir>
#include <QTextDocument>

// A language file is somebody else's: whatever its texts are, they are shown letter for letter, no file is
// opened for them, and the tool starts.

namespace {

const QString ampersands = QStringLiteral("R&D && &x");

QString doubled(QString text) { return text.replace('&', "&&"); }

/// Without what lies behind it.
QImage picture(QWidget *widget)
{
    QImage image(widget->size(), QImage::Format_RGB32);
    image.fill(Qt::white);
    widget->render(&image, QPoint(), QRegion(), QWidget::RenderFlags());
    return image;
}

QString nameOf(QWidget *widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Name);
}

QStringList richLabels(const QWidget *window)
{
    QStringList names;
    for (const QLabel *label : window->findChildren<QLabel *>()) {
        if (label->textFormat() != Qt::PlainText) {
            names.append(label->parentWidget()->objectName() + '/' + label->objectName());
        }
    }
    return names;
}

/// Gives a widget of Qt's own, beside `shown`, the look of that.
void lookAlike(QWidget &reference, QWidget *shown)
{
    shown->grab(); // which lays it out
    for (const char *name : {"role", "level"}) {
        reference.setProperty(name, shown->property(name));
    }
    reference.setStyleSheet(shown->styleSheet());
    reference.setFont(shown->font());
    reference.setEnabled(shown->isEnabled());
    reference.resize(shown->size());
    reference.ensurePolished();
}

/// How many columns have ink.
int inkWidth(const QImage &image)
{
    int width = 0;
    for (int x = 0; x < image.width(); ++x) {
        int y = 0;
        while (y < image.height() && image.pixelColor(x, y) == QColor(Qt::white)) {
            ++y;
        }
        width += y < image.height() ? 1 : 0;
    }
    return width;
}

} // namespace

class TestPlainText : public EditorTest
{
    Q_OBJECT

private slots:
    void init() { languagefolder::restore(); }
    void cleanup() { close(); }

    void everyLabelIsPlain();
    void ampersandIsDrawnOnLabels();
    void ampersandIsDrawnOnButtons();
    void ampersandMakesNoShortcut();
    void ampersandMakesNoShortcutInTheEditor();
    void ampersandIsRead();
    void otherWindowsKeepTheirShortcuts();
    void hostileLanguage_data();
    void hostileLanguage();
    void hugeTexts();
    void hooksAreNotCut();

private:
    QStringList tour()
    {
        QStringList seen;
        Tour tour(*window, "R32");
        for (const Tour::Stop &stop : tour.stops()) {
            stop.show();
            Tour::settle();
            if (window->dialog.grab().isNull()) {
                seen.append(stop.name);
            }
        }
        return seen;
    }
    template <class W>
    QList<W *> all() const
    {
        return dialog().findChildren<W *>();
    }
    void speakAmpersands() const
    {
        window->speak([](const QString &) { return ampersands; });
    }
};

void TestPlainText::everyLabelIsPlain()
{
    open();
    tour();
    QCOMPARE(richLabels(&dialog()), QStringList());
    QVERIFY(all<QLabel>().size() > 300);
    QVERIFY(!dialog().members().languageMenuWidget->findChildren<LanguageItem *>().isEmpty());
    QCOMPARE(richLabels(editor.get()), QStringList());
    QCOMPARE(editor->findChildren<LetterItem *>().size(), languagefolder::textCount());
    for (const QWidget *widget : all<QWidget>()) {
        QVERIFY2(!Qt::mightBeRichText(widget->toolTip()), qPrintable(widget->toolTip()));
    }
}

// As one that has no buddy, which Qt draws letter for letter.
void TestPlainText::ampersandIsDrawnOnLabels()
{
    open();
    speakAmpersands();
    int count = 0;
    for (QLabel *label : all<QLabel>()) {
        if (label->buddy() == nullptr || label->text() != ampersands) {
            continue;
        }
        label->grab(); // which lays it out: its row may leave it less
        QLabel reference(label->parentWidget());
        reference.setTextFormat(Qt::PlainText);
        reference.setText(ampersands);
        reference.setAlignment(label->alignment());
        reference.setMargin(label->margin());
        reference.setContentsMargins(label->contentsMargins());
        reference.setWordWrap(label->wordWrap());
        reference.setMinimumSize(label->minimumSize());
        lookAlike(reference, label);
        const QByteArray name = label->objectName().toUtf8();
        if (!label->wordWrap()) {
            QVERIFY2(label->sizeHint() == reference.sizeHint(), name);
            QVERIFY2(label->minimumSizeHint() == reference.minimumSizeHint(), name);
        }
        QVERIFY2(label->heightForWidth(60) == reference.heightForWidth(60), name);
        QVERIFY2(picture(label) == picture(&reference), name);
        ++count;
    }
    QVERIFY2(count > 80, qPrintable(QString::number(count)));
}

// As one of Qt's own whose every "&" is doubled.
void TestPlainText::ampersandIsDrawnOnButtons()
{
    open();
    speakAmpersands();
    int count = 0;
    for (QRadioButton *radio : all<QRadioButton>()) {
        if (radio->text() == ampersands) {
            QRadioButton reference(doubled(ampersands), radio->parentWidget());
            reference.setAutoExclusive(false);
            reference.setChecked(radio->isChecked());
            lookAlike(reference, radio);
            QVERIFY2(radio->sizeHint() == reference.sizeHint(), qPrintable(radio->objectName()));
            QVERIFY2(picture(radio) == picture(&reference), qPrintable(radio->objectName()));
            ++count;
        }
    }
    QVERIFY2(count > 60, qPrintable(QString::number(count)));
    for (const char *name : {"newButton", "openButton", "saveButton"}) {
        auto *button = Window::find<QPushButton>(Window::find(&dialog(), "toolbarGroupBox"), name);
        QCOMPARE(button->text(), ampersands);
        QPushButton reference(doubled(ampersands), button->parentWidget());
        reference.setAutoDefault(button->autoDefault());
        lookAlike(reference, button);
        QVERIFY2(button->sizeHint() == reference.sizeHint(), name);
        QVERIFY2(picture(button) == picture(&reference), name);
    }
}

void TestPlainText::ampersandMakesNoShortcut()
{
    open();
    speakAmpersands();
    for (const QAbstractButton *button : all<QAbstractButton>()) {
        QVERIFY2(button->shortcut().isEmpty(), qPrintable(button->objectName()));
    }
    // A label's shortcut would give the focus to its buddy.
    Tour tour(*window, "R32");
    for (const Tour::Stop &stop : tour.stops()) {
        stop.show();
        Tour::settle();
        dialog().setFocus();
        const QWidget *focused = QApplication::focusWidget();
        const QJsonDocument document = dialog().document();
        for (const Qt::Key key : {Qt::Key_D, Qt::Key_X}) {
            QTest::keyClick(&dialog(), key, Qt::AltModifier);
            QVERIFY2(QApplication::focusWidget() == focused, qPrintable(stop.name));
        }
        QCOMPARE(dialog().document(), document);
    }
}

void TestPlainText::ampersandMakesNoShortcutInTheEditor()
{
    open();
    speakAmpersands();
    start(true);
    QCOMPARE(reference(0), ampersands);
    QVERIFY(QTest::qWaitForWindowActive(editor.get()));
    search()->setFocus();
    for (const Qt::Key key : {Qt::Key_D, Qt::Key_X}) {
        QTest::keyClick(editor.get(), key, Qt::AltModifier);
        QCOMPARE(QApplication::focusWidget(), search());
    }
    QCOMPARE(nameOf(Window::find<QLabel>(row(0), "labelReference")), ampersands);
}

// What a screen reader tells. A name that the form gives stays.
void TestPlainText::ampersandIsRead()
{
    open();
    auto *radio = Window::find<QRadioButton>(&dialog(), "radioButtonR32");
    auto *label = Window::find<QLabel>(&dialog(), "labelBrightness");
    QWidget *list = label->buddy();
    QVERIFY(list != nullptr);
    for (int round = 0; round < 2; ++round) {
        const QString english = nameOf(radio);
        const QString caption = list->accessibleName();
        speakAmpersands();
        QCOMPARE(nameOf(radio), ampersands);
        QCOMPARE(nameOf(label), ampersands);
        QCOMPARE(list->accessibleName(), ampersands);
        window->speak("~");
        QCOMPARE(nameOf(radio), QString("R32~"));
        QCOMPARE(nameOf(label), QString("Brightness~"));
        QCOMPARE(list->accessibleName(), caption);
        window->speak();
        QCOMPARE(nameOf(radio), english);
        QCOMPARE(list->accessibleName(), caption);
        list->setAccessibleName(round == 0 ? QString() : list->accessibleName());
    }
    list->setAccessibleName("given");
    speakAmpersands();
    QCOMPARE(list->accessibleName(), QString("given"));
}

void TestPlainText::otherWindowsKeepTheirShortcuts()
{
    open();
    speakAmpersands();
    QVERIFY(!QPushButton("&Open").shortcut().isEmpty());
}

void TestPlainText::hostileLanguage_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("FIFO") << "<img src=\"%1/pipe\">";
    QTest::newRow("endless device") << "<img src=\"/dev/zero\">";
    QTest::newRow("random device") << "<img src='file:///dev/random'>";
    QTest::newRow("network path") << "<img src=\"//host.invalid/share/a.png\">";
    QTest::newRow("picture") << "<p style=\"background-image: url(%1/a.png)\"><img src='%1/a.png'></p>";
    QTest::newRow("nested") << QString("<table><tr><td>").repeated(3000);
    QTest::newRow("document") << "<!DOCTYPE html><html><title>x</title><body><h1>y&lt;z&amp;";
    QTest::newRow("control characters") << QString("\x01\b\t\v\x1b[31m\x7f\r\n\r") + QChar(0) + "x";
    QTest::newRow("right to left") << QString(QChar(0x202e)) + QChar(0x2067)
            + QString::fromUtf8("שלום & مرحبا") + QChar(0x200f) + QChar(0x2066) + " <b>";
    QTest::newRow("marks") << QString("x") + QString(QChar(0x0301)).repeated(500);
}

void TestPlainText::hostileLanguage()
{
    QFETCH(QString, text);
    QTemporaryDir folder;
    const QString pipe = folder.filePath("pipe");
    testfiles::put(pipe, "x");
    const faults::Fault fifo = faults::pipe(pipe);
    QImage(":/images/img_new.png").save(folder.filePath("a.png"));
    if (text.contains("pipe") && !fifo.holds) {
        QSKIP("This machine makes no pipe");
    }
    text.replace("%1", folder.path());
    QJsonObject texts = QJsonDocument::fromJson(languagefolder::english()).object();
    for (auto each = texts.begin(); each != texts.end(); ++each) {
        each.value() = text;
    }
    testfiles::put(languagefolder::file("Hostile.json"), QJsonDocument(texts).toJson());
    testfiles::put(languagefolder::iniPath(), "Hostile");

    openedfiles::clear();
    open();
    QCOMPARE(tour(), QStringList());
    Window::click(&dialog(), "languageCombobox");
    QVERIFY(!dialog().grab().isNull() && !editor->grab().isNull());
    auto *list = Window::find<QComboBox>(&dialog(), "comboDefrostMode");
    list->showPopup();
    QVERIFY(!list->view()->grab().isNull());
    list->hidePopup();
    const QStringList opened = openedfiles::all();
#ifdef Q_OS_LINUX
    QVERIFY(opened.contains(languagefolder::file("Hostile.json")));
#endif
    for (const QString &path : opened) {
        QVERIFY2(!path.startsWith(folder.path()) && !path.startsWith("//") && !path.startsWith("/dev/"),
                 qPrintable(path));
    }

    for (const char *name : {"labelProductType", "labelBrightness", "radioButtonR32", "labelSlide1"}) {
        QCOMPARE(this->text(name), text);
    }
    QCOMPARE(reference(0), text);
    QVERIFY(Window::items(&dialog(), "comboBrightness").size() > 1);
}

// A megabyte, in a heading, a caption with a buddy, radios, items, a tab, a button and a result.
void TestPlainText::hugeTexts()
{
    QJsonObject texts = QJsonDocument::fromJson(languagefolder::english()).object();
    const QString words = QString("<b>word</b> & ").repeated(75000);
    const QString lines = QString("line\n").repeated(210000);
    const QString letters(1 << 20, 'x');
    const QStringList huge{words, lines, letters};
    int next = 0;
    for (const char *key :
         {"SubText", "Producttype", "BRIGHTNESS", "Use", "STEP1", "Function", "Open", "ErrorMessage"}) {
        texts.insert(key, huge.at(next++ % huge.size()));
    }
    testfiles::put(languagefolder::file("Huge.json"), QJsonDocument(texts).toJson());
    testfiles::put(languagefolder::iniPath(), "Huge");
    open();
    QCOMPARE(tour(), QStringList());
    QVERIFY(!editor->grab().isNull());
    QCOMPARE(text("labelProductType"), lines);
    QCOMPARE(dialog().size(), QSize(1440, 800));
}

// A "J" begins left of its line.
void TestPlainText::hooksAreNotCut()
{
    for (const QString &text :
         {QStringLiteral("Jasność"), QStringLiteral("Air\nJasność"), QStringLiteral("Air")}) {
        for (const int points : {10, 13, 15}) {
            QFont font(QStringLiteral("Noto Sans"), points, points == 10 ? QFont::Normal : QFont::Bold);
            PlainLabel label;
            label.setText(text);
            label.setFont(font);
            label.resize(label.sizeHint());
            QImage whole(label.size() + QSize(40, 0), QImage::Format_RGB32);
            whole.fill(Qt::white);
            QPainter painter(&whole);
            painter.setFont(font);
            painter.drawText(whole.rect().adjusted(20, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter, text);
            painter.end();
            QCOMPARE(inkWidth(picture(&label)), inkWidth(whole));
        }
    }
    PlainLabel plain;
    plain.setText(QStringLiteral("Air"));
    QCOMPARE(plain.indent(), -1);
}

CALORA_TEST_MAIN(TestPlainText)
#include "tst_plaintext.moc"
