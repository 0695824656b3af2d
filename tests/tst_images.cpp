#include "support/tour.h"

#include "app/imagebutton.h"
#include "languages/userlanguageeditpopup.h"

#include <QDir>
#include <QImageReader>
#include <QPainter>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <iterator>

namespace {

const auto states = {"normal", "over", "press"};
const auto statesWithDisable = {"normal", "over", "press", "disable"};

struct Use {
    QString picture;
    QStringList objects;
};

/// Pictures of the same name but for its state.
QList<Use> family(const QString &pattern, const std::initializer_list<const char *> &variants,
                  const QStringList &objects)
{
    QList<Use> uses;
    for (const char *variant : variants) {
        uses.append({pattern.arg(QLatin1String(variant)), objects});
    }
    return uses;
}

/// Every picture, and what shows it.
QList<Use> expectedUses()
{
    const QStringList hideButton{"hideButton"};
    const QStringList validationIcons{"functionValidationIcon", "userValidationIcon",
                                      "serviceValidationIcon",  "installationValidationIcon",
                                      "labelErrorProduct",      "labelErrorDipSwitch",
                                      "labelErrorSetting"};
    const QStringList imageButtons{"newButton", "openButton", "checkValidationButton", "fileCookingButton"};
    QList<Use> uses{
        {"launcher_ic.ico", {"MainDialog"}},
        {"Ic_sideprogressbar_error.png", validationIcons},
        {"btn_step_completed.png", {"productSelectionButton", "dipSwitchButton", "settingButton"}},
        {"btn_header_arrow_open.png", hideButton},
        {"btn_header_arrow_close.png", hideButton},
        {"btn_language_popup_edit_delete.png", {"ButtonRemove"}},
        {"btn_radiobtn_off.png", {"windowFrame", "radioSolarThermalKitUse"}},
        {"btn_radiobtn_on.png", {"windowFrame", "radioSolarThermalKitUse"}},
        {"btn_radiobtn_off_disable.png", {"windowFrame"}},
        {"btn_radiobtn_on_disable.png", {"windowFrame"}},
        {"btn_step2_switch_off.png", {"DipSwitch11", "DipSwitch21", "DipSwitch31"}},
        {"btn_step2_switch_on.png", {"DipSwitch23", "DipSwitch24", "DipSwitch26"}},
        {"ic_combo_arrow.png", {"windowFrame"}},
        {"ic_combo_arrow_disable.png", {"windowFrame"}},
        {"ic_language_arrow.png", {"labelLanguageArrow"}},
        {"ic_language_edit.png", {"buttonModify"}},
        {"ic_language_popup_search.png", {"pushButtonSearch"}},
        {"img_new.png", {"label_img_new"}},
        {"img_open.png", {"label_img_open"}},
        {"img_step1_awhp.png", {"label_img_awhp"}},
        {"img_step1_aquabox.png", {"label_img_aquabox"}},
        {"img_pcb_R32.png", {"labelPCB"}},
        {"img_pcb_R410.png", {"labelPCB"}},
        {"img_complete.png", {"imgLabel"}},
        {"img_error.png", {"imgLabel"}},
        {"img_checkvalidation.png", {"label_checkValidation"}},
        {"img_filecooking.png", {"label_fileCooking"}},
    };
    const QStringList steps{"productSelectionButton", "dipSwitchButton", "settingButton", "validationButton"};
    for (int step = 1; step <= steps.size(); ++step) {
        uses += family(QStringLiteral("btn_step_%1_").arg(step) + "%1.png", {"normal", "focus"},
                       {steps.at(step - 1)});
    }
    for (const char *slice : {"left", "middle", "right"}) {
        uses += family(QStringLiteral("btn_button_%1_") + slice + ".png", states, imageButtons);
    }
    return uses + family("btn_title_minimize_%1.png", states, {"windowFrame"})
        + family("btn_title_maximize_%1.png", states, {"maximumButton"})
        + family("btn_title_resize_%1.png", states, {"maximumButton"})
        + family("btn_title_close_%1.png", states, {"windowFrame"})
        + family("btn_language_%1.png", states, {"newButton", "loadButton"})
        + family("btn_language_popup_small_%1.png", statesWithDisable, {"openButton"})
        + family("btn_language_popup_close_%1.png", statesWithDisable, {"closeButton"})
        + family("btn_language_popup_save_%1.png", statesWithDisable, {"saveButton"});
}

/// In one format, so that equal pictures compare equal.
QImage plain(const QImage &image) { return image.convertToFormat(QImage::Format_ARGB32_Premultiplied); }

} // namespace

// Every picture that the window asks for is there, every picture that is there is asked for, and each is as
// large as its place.
class TestImages : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();

    void pathsResolve();
    void everyPictureIsUsed();
    void isShownByItsWidgets_data();
    void isShownByItsWidgets();
    void statesDiffer();
    void statesAreToldApartWithoutColour_data();
    void statesAreToldApartWithoutColour();
    void boardShowsNoPositions_data();
    void boardShowsNoPositions();
    void hasItsSize_data();
    void hasItsSize();
    void backgroundsFillTheirWidgets();
    void slicesJoin_data();
    void slicesJoin();
    void launcherHasItsSizes();

private:
    void collect(const QString &refrigerant);
    void collectFrom(const QWidget *top);
    void collectSheet(const QWidget *widget);
    void collectImageButton(ImageButton *button);
    void note(const QString &name, const QWidget *widget) { uses[name].insert(widget->objectName()); }
    void noteShown(const QPixmap &shown, const QWidget *widget);

    /// Picture -> the objects that have been seen to show it.
    QMap<QString, QSet<QString>> uses;
    QStringList misfits;
    QMap<QString, QImage> pictures;
};

void TestImages::initTestCase()
{
    const QDir folder(QStringLiteral(":/images"));
    const QStringList names = folder.entryList(QDir::Files);
    for (const QString &name : names) {
        pictures.insert(name, plain(QImage(folder.filePath(name))));
    }
    collect("R32");
    collect("R410");
}

void TestImages::collect(const QString &refrigerant)
{
    Window window;
    Tour tour(window, refrigerant);
    for (const Tour::Stop &stop : tour.stops()) {
        stop.show();
        Tour::settle();
        collectFrom(&window.dialog);
    }
    for (const int step : {1, 2, 3, 4}) {
        window.dialog.setStepCompleted(false, 1);
        window.dialog.setCurrentStep(step);
        collectFrom(&window.dialog);
    }
    for (const bool maximized : {true, false}) {
        QMetaObject::invokeMethod(&window.dialog, "updateMaximumButtonUi", Q_ARG(bool, maximized));
        collectFrom(&window.dialog);
    }
    Window::click(&window.dialog, "languageCombobox");
    collectFrom(&window.dialog);
    const QString launcher = QStringLiteral("launcher_ic.ico");
    if (window.dialog.windowIcon().pixmap(32).toImage()
        == QIcon(":/images/" + launcher).pixmap(32).toImage()) {
        note(launcher, &window.dialog);
    }
    UserLanguageEditPopup editor;
    editor.show();
    collectFrom(&editor);
    const auto imageButtons = window.dialog.findChildren<ImageButton *>();
    for (ImageButton *button : imageButtons) {
        collectImageButton(button);
    }
}

void TestImages::collectFrom(const QWidget *top)
{
    QList<const QWidget *> widgets{top};
    const auto children = top->findChildren<QWidget *>();
    for (const QWidget *child : children) {
        widgets.append(child);
    }
    for (const QWidget *widget : widgets) {
        collectSheet(widget);
        if (const auto *label = qobject_cast<const QLabel *>(widget)) {
            noteShown(label->pixmap(Qt::ReturnByValue), widget);
        } else if (const auto *button = qobject_cast<const QAbstractButton *>(widget)) {
            const QList<QSize> sizes = button->icon().availableSizes();
            noteShown(sizes.isEmpty() ? QPixmap() : button->icon().pixmap(sizes.first()), widget);
        }
    }
}

void TestImages::noteShown(const QPixmap &shown, const QWidget *widget)
{
    const QImage image = plain(shown.toImage());
    for (auto known = pictures.cbegin(); !image.isNull() && known != pictures.cend(); ++known) {
        if (image == *known) {
            note(known.key(), widget);
        }
    }
}

void TestImages::collectSheet(const QWidget *widget)
{
    static const QRegularExpression path("(background-image|image) *: *url\\(:/images/([^)]*)\\)");
    auto found = path.globalMatch(widget->styleSheet());
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        const QString name = match.captured(2);
        note(name, widget);
        // What the window's own sheet says is about other widgets.
        if (match.captured(1) == "background-image" && widget->objectName() != "windowFrame"
            && widget->isVisible() && pictures.value(name).size() != widget->size()) {
            misfits.append(name + " in " + widget->objectName());
        }
    }
}

// Slices are compared as they are painted: a transparent ground, and the text far from the slices' edges.
void TestImages::collectImageButton(ImageButton *button)
{
    const auto collectLook = [this, button] {
        QImage image(button->size(), QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        button->render(&image, {}, {}, QWidget::DrawChildren);
        for (const QRect &slice :
             {QRect(0, 0, 19, 38), QRect(19, 0, 1, 38), QRect(button->width() - 19, 0, 19, 38)}) {
            noteShown(QPixmap::fromImage(image.copy(slice)), button);
        }
    };
    collectLook();
    QEnterEvent enter(QPointF(5, 5), QPointF(5, 5), QPointF(5, 5));
    QApplication::sendEvent(button, &enter);
    collectLook();
    QTest::mousePress(button, Qt::LeftButton);
    collectLook();
}

void TestImages::pathsResolve()
{
    for (auto use = uses.cbegin(); use != uses.cend(); ++use) {
        QVERIFY2(!pictures.value(use.key()).isNull(), qPrintable(use.key()));
    }
}

void TestImages::everyPictureIsUsed()
{
    QStringList named;
    for (const Use &use : expectedUses()) {
        named.append(use.picture);
    }
    named.sort();
    QCOMPARE(QStringList(pictures.keys()), named);
    QCOMPARE(QStringList(uses.keys()), named);
}

void TestImages::isShownByItsWidgets_data()
{
    QTest::addColumn<QStringList>("objects");
    for (const Use &use : expectedUses()) {
        QTest::newRow(qPrintable(use.picture)) << use.objects;
    }
}

void TestImages::isShownByItsWidgets()
{
    QFETCH(QStringList, objects);
    const auto seen = uses.value(QTest::currentDataTag());
    for (const QString &object : objects) {
        QVERIFY2(seen.contains(object), qPrintable(object));
    }
}

void TestImages::statesDiffer()
{
    for (auto first = pictures.cbegin(); first != pictures.cend(); ++first) {
        const QString stem = first.key().section(QLatin1Char('_'), 0, -2);
        for (auto second = std::next(first); second != pictures.cend(); ++second) {
            if (second.key().section(QLatin1Char('_'), 0, -2) == stem) {
                QVERIFY2(*first != *second, qPrintable(first.key() + " and " + second.key()));
            }
        }
    }
}

void TestImages::statesAreToldApartWithoutColour_data()
{
    QTest::addColumn<QString>("first");
    QTest::addColumn<QString>("second");
    const auto row = [](const char *first, const char *second) {
        QTest::addRow("%s and %s", first, second) << QString(first) << QString(second);
    };
    row("btn_step2_switch_off", "btn_step2_switch_on");
    row("btn_radiobtn_off", "btn_radiobtn_on");
    row("btn_radiobtn_off_disable", "btn_radiobtn_on_disable");
    row("btn_header_arrow_open", "btn_header_arrow_close");
    row("btn_step_1_normal", "btn_step_2_normal");
    row("btn_step_1_focus", "btn_step_2_focus");
    row("btn_step_1_normal", "btn_step_1_focus");
    row("btn_step_1_normal", "btn_step_completed");
    row("btn_step_1_focus", "btn_step_completed");
    row("btn_title_maximize_normal", "btn_title_resize_normal");
    row("btn_title_close_normal", "btn_title_close_over");
    row("btn_title_close_over", "btn_title_close_press");
    row("img_pcb_R32", "img_pcb_R410");
    row("img_complete", "img_error");
}

// By lightness, on white: at least one pixel in fifty differs plainly.
void TestImages::statesAreToldApartWithoutColour()
{
    QFETCH(QString, first);
    QFETCH(QString, second);
    const auto grey = [this](const QString &name) {
        const QImage picture = pictures.value(name + ".png");
        QImage onWhite(picture.size(), QImage::Format_RGB32);
        onWhite.fill(Qt::white);
        QPainter(&onWhite).drawImage(0, 0, picture);
        return onWhite.convertToFormat(QImage::Format_Grayscale8);
    };
    const QImage one = grey(first);
    const QImage other = grey(second);
    QVERIFY(!one.isNull());
    QCOMPARE(one.size(), other.size());
    int differing = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            differing += qAbs(qGray(one.pixel(x, y)) - qGray(other.pixel(x, y))) > 8 ? 1 : 0;
        }
    }
    QVERIFY(differing * 50 >= one.width() * one.height());
}

void TestImages::boardShowsNoPositions_data()
{
    QTest::addColumn<QString>("board");
    QTest::addColumn<QRect>("block");
    // Between the mark ON and the numbers.
    QTest::newRow("R32") << "img_pcb_R32.png" << QRect(22, 153, 94, 6);
    QTest::newRow("R410") << "img_pcb_R410.png" << QRect(41, 64, 94, 6);
}

// Levers on it would be read as a second set of positions beside the drawn banks.
void TestImages::boardShowsNoPositions()
{
    QFETCH(QString, board);
    QFETCH(QRect, block);
    const QImage picture = pictures.value(board).copy(block).convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < block.height(); ++y) {
        for (int x = 0; x < block.width(); ++x) {
            QCOMPARE(picture.pixelColor(x, y), QColor(Qt::white));
        }
    }
}

void TestImages::hasItsSize_data()
{
    QTest::addColumn<QString>("names");
    QTest::addColumn<QSize>("size");
    QTest::newRow("sides of a button") << "^btn_button_\\w+_(left|right)\\.png$" << QSize(19, 38);
    QTest::newRow("middle of a button") << "^btn_button_\\w+_middle\\.png$" << QSize(1, 38);
    QTest::newRow("radio") << "^btn_radiobtn_" << QSize(18, 18);
    QTest::newRow("edit") << "^ic_language_edit" << QSize(16, 16);
    QTest::newRow("language button") << "^btn_language_(normal|over|press)" << QSize(77, 26);
    QTest::newRow("combo box arrow") << "^ic_combo_arrow" << QSize(16, 16);
}

void TestImages::hasItsSize()
{
    QFETCH(QString, names);
    QFETCH(QSize, size);
    const QStringList found = QStringList(pictures.keys()).filter(QRegularExpression(names));
    QVERIFY(!found.isEmpty());
    for (const QString &name : found) {
        QVERIFY2(pictures.value(name).size() == size, qPrintable(name));
    }
}

// A ground is neither scaled nor moved: one that is smaller repeats, one that is larger is cut.
void TestImages::backgroundsFillTheirWidgets() { QCOMPARE(misfits, QStringList()); }

void TestImages::slicesJoin_data()
{
    QTest::addColumn<QString>("state");
    for (const char *state : states) {
        QTest::newRow(state) << QString(state);
    }
}

void TestImages::slicesJoin()
{
    QFETCH(QString, state);
    const auto slice = [&](const char *side) {
        return pictures.value(QStringLiteral("btn_button_%1_%2.png").arg(state, QLatin1String(side)));
    };
    const QImage middle = slice("middle");
    QCOMPARE(slice("left").copy(18, 0, 1, 38), middle);
    QCOMPARE(slice("right").copy(0, 0, 1, 38), middle);
}

void TestImages::launcherHasItsSizes()
{
    QImageReader reader(QStringLiteral(":/images/launcher_ic.ico"));
    QList<int> sizes;
    for (int index = 0; index < reader.imageCount(); ++index) {
        QVERIFY(reader.jumpToImage(index));
        const QImage image = reader.read();
        QCOMPARE(image.width(), image.height());
        QVERIFY(image.hasAlphaChannel());
        sizes.append(image.width());
    }
    std::sort(sizes.begin(), sizes.end());
    QCOMPARE(sizes, (QList<int>{16, 32, 48, 64, 128, 256}));
}

CALORA_TEST_MAIN(TestImages)
#include "tst_images.moc"
