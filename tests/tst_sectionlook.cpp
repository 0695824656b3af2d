#include "support/look.h"
#include "support/measure.h"

#include "widgets/palette.h"

#include <QGroupBox>
#include <QLayout>
#include <QMap>

namespace {

/// The Installation tab with all sections open.
void showInstallation(Window &window, const QJsonDocument &document)
{
    window.use(document);
    window.dialog.setSideBarVisible(true);
    window.showPage(MainDialog::SettingPage, MainDialog::InstallationTab);
    Tour(window, QStringLiteral("R32")).expandSections();
    Tour::settle();
}

} // namespace

// The open sections of the Installation tab: cards, rows, columns and marks.
class TestSectionLook : public QObject
{
    Q_OBJECT

private slots:
    void sectionsStandApartLikeCards();
    void coolingAndHeatingAreToldApart();
    void singleOptionsAreDivided();
    void secondChoicesStandInOneColumn_data() { look::everyLanguage(); }
    void secondChoicesStandInOneColumn();
    void sectionsColumnsAreNoNearMiss_data() { look::everyLanguage(); }
    void sectionsColumnsAreNoNearMiss();
    void bulletsStandAtTheFirstLine();
};

void TestSectionLook::sectionsStandApartLikeCards()
{
    Window window;
    showInstallation(window, documents::everything("R32"));
    int bottom = 0;
    for (const char *name : {"InstallationSystemSetting", "InstallationCool", "InstallationHeat",
                             "InstallationaAuto", "InstallationDWH"}) {
        const QWidget *section = Window::find(&window.dialog, name);
        QVERIFY(bottom == 0 || section->y() - bottom == 12);
        bottom = section->y() + section->height();
        QCOMPARE(Window::find(section, "frame")->geometry().left(), 0);
        QCOMPARE(Window::find(section, "frame")->width(), section->width());
    }
}

// All along their bodies, since they have the same captions.
void TestSectionLook::coolingAndHeatingAreToldApart()
{
    Window window;
    showInstallation(window, documents::everything("R32"));
    const auto edgeOf = [&window](const char *section) {
        QWidget *body = Window::find(Window::find(&window.dialog, section), "frame");
        const QImage edge = body->grab(QRect(2, 4, 1, body->height() - 12)).toImage();
        const QColor colour = edge.pixelColor(0, 0);
        for (int y = 0; y < edge.height(); ++y) {
            if (edge.pixelColor(0, y) != colour) {
                return QColor();
            }
        }
        return colour;
    };
    QCOMPARE(edgeOf("InstallationCool"), QColor(palette::cool.value));
    QCOMPARE(edgeOf("InstallationHeat"), QColor(palette::warm.value));
    QCOMPARE(edgeOf("InstallationDWH"), QColor(Qt::white));
}

// Each option of the tank has its hairline, those of one group of the document too.
void TestSectionLook::singleOptionsAreDivided()
{
    Window window;
    showInstallation(window, documents::everything("R32"));
    const QWidget *section = Window::find(&window.dialog, "InstallationDWH");
    QWidget *body = Window::find(section, "frame");
    const QWidget *above = Window::find(section, "groupBoxTankHeatingHysterisis");
    const QWidget *below = Window::find(section, "groupBoxUnderFloor");
    QVERIFY(above->isVisible() && below->isVisible());
    const int top = above->mapTo(body, QPoint(0, above->height())).y();
    const int height = below->mapTo(body, QPoint()).y() - top;
    const QImage gap = body->grab(QRect(body->width() / 2, top, 1, height)).toImage();
    int lines = 0;
    for (int y = 0; y < gap.height(); ++y) {
        lines += gap.pixelColor(0, y) == QColor(Qt::white) ? 0 : 1;
    }
    QCOMPARE(lines, 1);
}

// In a section the choices of all pairs, however long the words before them are; where the words of one are
// so long that even its caption gives way, that one alone isn't in line.
void TestSectionLook::secondChoicesStandInOneColumn()
{
    QFETCH(QString, language);
    Window window;
    look::speak(window, language);
    int measured = 0;
    for (const QSize &size : {QSize(974, 612), QSize(1440, 800)}) {
        look::resize(window, size);
        for (const char *refrigerant : {"R32", "R410"}) {
            showInstallation(window, documents::everything(refrigerant));
            const auto bodies = window.dialog.findChildren<QFrame *>("frame");
            for (const QFrame *body : bodies) {
                QMap<int, QStringList> columns;
                int start = 0;
                const auto groups = body->findChildren<QGroupBox *>();
                for (const QGroupBox *group : groups) {
                    const auto choices = group->findChildren<QRadioButton *>(QString(),
                                                                             Qt::FindDirectChildrenOnly);
                    if (!group->isVisible() || choices.size() != 2) {
                        continue;
                    }
                    start = std::max(start, look::placeOf(choices.first()).left());
                    if (look::placeOf(choices.first()).left() == start) {
                        columns[look::placeOf(choices.last()).left()].append(choices.last()->objectName());
                        ++measured;
                    }
                }
                QStringList told;
                for (const QStringList &names : qAsConst(columns)) {
                    told.append(names.join(' '));
                }
                QVERIFY2(columns.size() <= 1, qPrintable(told.join(" | ")));
            }
            const QStringList faults = measure::cutTexts(&window.dialog) + measure::misplaced(&window.dialog)
                + measure::needlessScrolling(&window.dialog);
            QVERIFY2(faults.isEmpty(), qPrintable(faults.join(", ")));
        }
    }
    QVERIFY(measured > 40);
}

// Sections follow each other: their second choices stand in one column or well apart.
void TestSectionLook::sectionsColumnsAreNoNearMiss()
{
    QFETCH(QString, language);
    Window window;
    look::speak(window, language);
    for (const char *refrigerant : {"R32", "R410"}) {
        showInstallation(window, documents::everything(refrigerant));
        QMap<int, QString> columns;
        for (const QFrame *body : window.dialog.findChildren<QFrame *>("frame")) {
            for (const QGroupBox *group : body->findChildren<QGroupBox *>()) {
                const auto choices = group->findChildren<QRadioButton *>(QString(),
                                                                         Qt::FindDirectChildrenOnly);
                // Three Italian words leave no room for the column.
                if (group->isVisible() && choices.size() > 1
                    && (choices.size() == 2 || language != "Italiano")) {
                    columns[look::placeOf(choices.at(1)).left()] = choices.at(1)->objectName();
                }
            }
        }
        QVERIFY(!columns.isEmpty());
        int before = columns.firstKey() - 100;
        for (auto column = columns.cbegin(); column != columns.cend(); ++column) {
            QVERIFY2(column.key() - before >= 40, qPrintable(column.value()));
            before = column.key();
        }
    }
}

void TestSectionLook::bulletsStandAtTheFirstLine()
{
    Window window;
    showInstallation(window, documents::everything("R32"));
    int twoLines = 0;
    const auto labels = window.dialog.findChildren<QLabel *>();
    for (QLabel *bullet : labels) {
        if (bullet->property("role") != QLatin1String("bullet") || !bullet->isVisible()) {
            continue;
        }
        const QImage image = bullet->grab().toImage();
        QRect dot;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                dot |= image.pixelColor(x, y).lightness() < 224 ? QRect(x, y, 1, 1) : QRect();
            }
        }
        QVERIFY(dot.width() >= 3 && dot.height() >= 3);
        const auto *caption = qobject_cast<const QLabel *>(
            bullet->parentWidget()->layout()->itemAt(1)->widget());
        const int left = look::placeOf(caption).left() - (look::placeOf(bullet).left() + dot.right() + 1);
        QVERIFY(left >= 8 && left <= 12);
        // Captions stand in the middle of their row.
        const int lines = caption->text().count('\n') + 1;
        const int first = look::placeOf(caption).center().y()
            - (lines - 1) * caption->fontMetrics().lineSpacing() / 2;
        QVERIFY2(qAbs(look::placeOf(bullet).top() + dot.center().y() - first) <= 3,
                 qPrintable(caption->text()));
        twoLines += lines == 2 ? 1 : 0;
    }
    QVERIFY(twoLines > 3);
}

CALORA_TEST_MAIN(TestSectionLook)
#include "tst_sectionlook.moc"
