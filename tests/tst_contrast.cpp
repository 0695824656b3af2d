#include "support/tour.h"

#include "languages/languagemenu.h"
#include "languages/userlanguageeditpopup.h"
#include "widgets/palette.h"

#include <QRegularExpression>
#include <QScrollArea>
#include <QScrollBar>
#include <QtMath>

namespace {

/// The relative luminance of a colour, from 0 for black to 1 for white.
double luminance(QRgb colour)
{
    const auto linear = [](int level) {
        const double part = level / 255.0;
        return part <= 0.04045 ? part / 12.92 : qPow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(qRed(colour)) + 0.7152 * linear(qGreen(colour)) + 0.0722 * linear(qBlue(colour));
}

double contrast(QRgb one, QRgb other)
{
    const double lighter = qMax(luminance(one), luminance(other));
    const double darker = qMin(luminance(one), luminance(other));
    return (lighter + 0.05) / (darker + 0.05);
}

/// The contrast of the strongest ink against the ground, which is the commonest colour.
double contrastIn(const QImage &picture)
{
    QHash<QRgb, int> counts;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            ++counts[picture.pixel(x, y)];
        }
    }
    QRgb ground = 0;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        ground = *count > counts.value(ground) ? count.key() : ground;
    }
    double best = 1;
    for (auto count = counts.cbegin(); count != counts.cend(); ++count) {
        best = qMax(best, contrast(count.key(), ground));
    }
    return best;
}

/// The place of the widget's text in the widget; empty for a widget that shows none.
QRect textPlace(const QWidget *widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(widget)) {
        return label->text().trimmed().isEmpty() ? QRect() : label->contentsRect();
    }
    if (const auto *radio = qobject_cast<const QRadioButton *>(widget)) {
        return radio->rect().adjusted(28, 2, -2, -2);
    }
    if (const auto *button = qobject_cast<const QPushButton *>(widget)) {
        const bool drawn = button->styleSheet().contains(QLatin1String("0%"));
        return button->text().isEmpty() || drawn ? QRect() : button->rect().adjusted(18, 6, -18, -6);
    }
    if (const auto *combo = qobject_cast<const QComboBox *>(widget)) {
        return combo->currentText().isEmpty() ? QRect() : combo->rect().adjusted(4, 4, -26, -4);
    }
    if (const auto *line = qobject_cast<const QLineEdit *>(widget)) {
        return line->text().isEmpty() ? QRect() : line->rect().adjusted(4, 4, -4, -4);
    }
    return widget->inherits("ImageButton") ? widget->rect().adjusted(19, 4, -19, -4) : QRect();
}

/// The dim look of what belongs to a disabled control, and the result's colour, are as they are on purpose. A
/// bullet tells nothing.
bool isFaintOnPurpose(const QWidget *widget)
{
    return !widget->isEnabled() || widget->styleSheet().contains(QLatin1String("30%"))
        || widget->objectName() == QLatin1String("messageLabel")
        || widget->property("role") == QLatin1String("bullet");
}

/// The widgets of the window whose text stands out too little.
QStringList faint(QWidget *window)
{
#ifdef Q_OS_WIN
    // Wine draws small texts so thin that hardly a pixel has their full colour.
    constexpr double required = 4.2;
#else
    constexpr double required = 4.5;
#endif
    const QImage picture = window->grab().toImage().convertToFormat(QImage::Format_RGB32);
    QStringList found;
    const auto widgets = window->findChildren<QWidget *>();
    for (const QWidget *widget : widgets) {
        const QRect place = textPlace(widget);
        const QRect seen = widget->visibleRegion().boundingRect();
        if (!widget->isVisible() || isFaintOnPurpose(widget) || place.isEmpty() || !seen.contains(place)) {
            continue;
        }
        const double reached = contrastIn(picture.copy(place.translated(widget->mapTo(window, QPoint()))));
        if (reached < required) {
            found.append(QStringLiteral("%1: %2").arg(widget->objectName()).arg(reached));
        }
    }
    return found;
}

/// Scrolls the shown page on by most of what is seen of it; false at its end.
bool scrolledOn(const Window &window)
{
    const auto areas = window.dialog.findChildren<QScrollArea *>();
    for (const QScrollArea *area : areas) {
        QScrollBar *bar = area->verticalScrollBar();
        if (area->isVisible() && bar->value() < bar->maximum()) {
            bar->setValue(bar->value() + bar->pageStep() / 2);
            return true;
        }
    }
    return false;
}

} // namespace

// A text that isn't disabled stands out from its ground by 4.5 to 1. The tabs' colours are given, and the
// tests of the tabs hold them.
class TestContrast : public QObject
{
    Q_OBJECT

private slots:
    void knowsContrast();
    void textsStandOut_data();
    void textsStandOut();
    void editorStandsOut();
    void editorsClearButtonStandsOut();
    void findsFaintTexts();
    void paletteStandsOut_data();
    void paletteStandsOut();
    void popupAndEditorHaveThePalettesFocus();
    void controlsHaveThePalettesEdge_data();
    void controlsHaveThePalettesEdge();
};

void TestContrast::knowsContrast()
{
    QCOMPARE(contrast(qRgb(0, 0, 0), qRgb(255, 255, 255)), 21.0);
    QCOMPARE(qRound(contrast(qRgb(0x76, 0x76, 0x76), qRgb(255, 255, 255)) * 100), 454);
    QCOMPARE(contrast(qRgb(9, 9, 9), qRgb(9, 9, 9)), 1.0);
}

void TestContrast::textsStandOut_data()
{
    QTest::addColumn<QString>("refrigerant");
    QTest::newRow("R32") << "R32";
    QTest::newRow("R410") << "R410";
}

void TestContrast::textsStandOut()
{
    QFETCH(QString, refrigerant);
    Window window;
    Tour tour(window, refrigerant);
    for (const Tour::Stop &stop : tour.stops()) {
        stop.show();
        Tour::settle();
        do {
            QVERIFY2(faint(&window.dialog).isEmpty(),
                     qPrintable(stop.name + ": " + faint(&window.dialog).join(", ")));
        } while (scrolledOn(window));
    }
    Window::click(&window.dialog, "languageCombobox");
    QCOMPARE(faint(&window.dialog), QStringList());
}

void TestContrast::editorStandsOut()
{
    Window window;
    UserLanguageEditPopup editor;
    editor.show();
    QVERIFY(QTest::qWaitForWindowExposed(&editor));
    QCOMPARE(faint(&editor), QStringList());
}

void TestContrast::editorsClearButtonStandsOut()
{
    const QImage disc(":/images/btn_language_popup_edit_delete.png");
    QCOMPARE(disc.size(), QSize(16, 16));
    QVERIFY(contrast(disc.pixel(8, 3), qRgb(255, 255, 255)) >= 4.5);
}

void TestContrast::findsFaintTexts()
{
    Window window;
    Window::find(&window.dialog, "labelVersion")->setStyleSheet("color: #8a8a8a");
    Window::find<QPushButton>(&window.dialog, "saveButton")->setStyleSheet("color: #eeeeee");
    const QStringList found = faint(&window.dialog);
    QCOMPARE(found.size(), 2);
    QVERIFY(found.at(0).startsWith("saveButton") || found.at(1).startsWith("saveButton"));
}

// On paper and on the ground: 4.5 to 1 for what is read, 3 to 1 for what has to be seen.
void TestContrast::paletteStandsOut_data()
{
    QTest::addColumn<QString>("colour");
    QTest::addColumn<double>("required");
    QTest::newRow("accent") << "#A50034" << 4.5;
    QTest::newRow("open") << palette::open.value << 3.0;
    QTest::newRow("done") << palette::done.value << 3.0;
    QTest::newRow("focus") << palette::focus.value << 3.0;
    QTest::newRow("edge") << palette::edge.value << 3.0;
    QTest::newRow("text") << palette::text.value << 4.5;
    QTest::newRow("quiet") << palette::quiet.value << 4.5;
}

void TestContrast::paletteStandsOut()
{
    QFETCH(QString, colour);
    QFETCH(double, required);
    const QRgb value = QColor(colour).rgb();
    QVERIFY(contrast(value, qRgb(255, 255, 255)) >= required);
    QVERIFY(contrast(value, QColor(palette::ground.value).rgb()) >= required);
    // The marks of what is open are told from the accent by their shade.
    if (colour == palette::open.value) {
        QVERIFY(contrast(value, QColor(palette::accent.value).rgb()) > 1.5);
    }
}

// Their style sheets are their own, out of reach of the window's.
void TestContrast::popupAndEditorHaveThePalettesFocus()
{
    Window window;
    UserLanguageEditPopup editor;
    QWidget *menu = window.dialog.members().languageMenuWidget;
    const QRegularExpression ring(QStringLiteral(":focus \\{[^}]*border: 2px solid (#\\w+)"));
    QStringList colours;
    for (const QWidget *above : {menu, static_cast<QWidget *>(&editor)}) {
        for (const QWidget *part : above->findChildren<QWidget *>()) {
            const QRegularExpressionMatch rule = ring.match(part->styleSheet());
            if (rule.hasMatch()) {
                colours.append(rule.captured(1));
            }
        }
    }
    QCOMPARE(colours, QStringList({palette::focus.value, palette::focus.value, palette::focus.value}));
}

// The edge of each control, and the two pixels of blue that it has with the keyboard.
void TestContrast::controlsHaveThePalettesEdge_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<QString>("control");
    QTest::newRow("list") << "userTabButton"
                          << "comboDateYear";
    QTest::newRow("line") << "serviceTabButton"
                          << "lineEditOfficeName";
    QTest::newRow("languages") << "userTabButton"
                               << "languageCombobox";
}

void TestContrast::controlsHaveThePalettesEdge()
{
    QFETCH(QString, button);
    QFETCH(QString, control);
    Window window;
    window.use(documents::standard("R32"));
    window.showPage(MainDialog::SettingPage);
    Window::click(&window.dialog, qPrintable(button));
    const QWidget *frame = Window::find(&window.dialog, "windowFrame");
    auto *widget = Window::find(frame, qPrintable(control));
    QVERIFY(QTest::qWaitForWindowActive(&window.dialog));
    widget->clearFocus();
    const auto colourAt = [widget](int x) {
        return widget->grab().toImage().pixelColor(x, widget->height() / 2);
    };
    QCOMPARE(colourAt(0), QColor(palette::edge.value));
    QCOMPARE(colourAt(1), QColor(Qt::white));
    widget->setFocus(Qt::TabFocusReason);
    QCOMPARE(colourAt(0), QColor(palette::focus.value));
    QCOMPARE(colourAt(1), QColor(palette::focus.value));
    QCOMPARE(colourAt(2), QColor(Qt::white));
}

CALORA_TEST_MAIN(TestContrast)
#include "tst_contrast.moc"
