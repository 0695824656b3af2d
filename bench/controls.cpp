// Each control's slot on every page, and the lists of the auto mode.

#include "bench/rows.h"
#include "pages/installation/installationaauto.h"
#include "pages/installation/installationcool.h"
#include "pages/installation/installationheat.h"
#include "pages/installation/installationsystemsetting.h"
#include "support/window.h"

#include <QMetaMethod>

namespace bench {

namespace {

enum class Kind { Plain, FarReaching, Header };

struct Slot {
    QString name;
    Kind kind;
    Numbers times;
};

/// Gives the control its next state without telling anyone.
void step(QWidget *control)
{
    control->blockSignals(true);
    if (auto *combo = qobject_cast<QComboBox *>(control)) {
        combo->setCurrentIndex(combo->count() > 1 ? (combo->currentIndex() + 1) % combo->count() : 0);
    } else if (auto *radio = qobject_cast<QRadioButton *>(control)) {
        radio->setChecked(true);
    }
    control->blockSignals(false);
}

/// Calls the slot with what the control shows, as its signal does.
void call(QObject *page, const QMetaMethod &slot, const QWidget *control)
{
    const auto *combo = qobject_cast<const QComboBox *>(control);
    const auto *edit = qobject_cast<const QLineEdit *>(control);
    if (slot.parameterCount() == 0) {
        slot.invoke(page);
    } else if (slot.parameterType(0) == QMetaType::Int) {
        slot.invoke(page, Q_ARG(int, combo->currentIndex()));
    } else {
        slot.invoke(page, Q_ARG(QString, combo != nullptr ? combo->currentText() : edit->text()));
    }
}

QString captions(const Window &window)
{
    QString texts;
    const auto labels = window.dialog.findChildren<QLabel *>();
    for (const QLabel *label : labels) {
        texts += label->text() + QLatin1Char('\n');
    }
    const auto buttons = window.dialog.findChildren<QRadioButton *>();
    for (const QRadioButton *button : buttons) {
        texts += button->text() + QLatin1Char('\n');
    }
    return texts;
}

/// Measures every slot on_<control>_<signal> that the class of the page declares.
class Slots
{
public:
    explicit Slots(Window &shownWindow)
        : window(shownWindow)
    {
        const auto count = [this] { ++refreshes; };
        QObject::connect(window.page<InstallationSystemSetting>(),
                         &InstallationSystemSetting::refreshInstallationPageSignal, count);
        QObject::connect(window.page<InstallationCool>(), &InstallationCool::refreshInstallationPageSignal,
                         count);
        QObject::connect(window.page<InstallationHeat>(), &InstallationHeat::refreshInstallationPageSignal,
                         count);
    }

    void measure(QWidget *page)
    {
        const QMetaObject *meta = page->metaObject();
        for (int index = meta->methodOffset(); index < meta->methodCount(); ++index) {
            const QMetaMethod slot = meta->method(index);
            const QString name = QString::fromLatin1(slot.name());
            auto *control = page->findChild<QWidget *>(name.section(QLatin1Char('_'), 1, -2));
            if (name.startsWith(QLatin1String("on_")) && control != nullptr) {
                measure(page, slot, control);
            }
        }
    }

    std::vector<Slot> measured;

private:
    void measure(QWidget *page, const QMetaMethod &slot, QWidget *control)
    {
        const QString before = captions(window);
        refreshes = 0;
        step(control);
        call(page, slot, control);
        const bool far = refreshes > 0 || captions(window) != before;
        const auto prepare = [&] {
            QCoreApplication::processEvents();
            step(control);
        };
        const Numbers times = timedRuns([&] { call(page, slot, control); }, prepare);
        const Kind kind = qobject_cast<QPushButton *>(control) != nullptr ? Kind::Header
            : far                                                         ? Kind::FarReaching
                                                                          : Kind::Plain;
        const QString owner = QString::fromLatin1(page->metaObject()->className());
        measured.push_back({owner + QLatin1Char(' ') + control->objectName(), kind, times});
    }

    Window &window;
    int refreshes = 0;
};

/// The slowest of a kind.
Row slowest(const std::vector<Slot> &measured, Kind kind, const QString &what, double atMost)
{
    const Slot *found = nullptr;
    int count = 0;
    for (const Slot &slot : measured) {
        if (slot.kind == kind) {
            ++count;
            if (found == nullptr || median(slot.times) > median(found->times)) {
                found = &slot;
            }
        }
    }
    if (found == nullptr) {
        qFatal("No slot for: %s", qPrintable(what));
    }
    return {QStringLiteral("%1, slowest of %2: %3").arg(what, QString::number(count), found->name),
            QStringLiteral("one frame"), ratios(found->times, frame), atMost};
}

/// A plant with most of what the pages can offer.
QJsonDocument plant()
{
    QVariantMap values{{"product", "awhp"},
                       {"SettingInfo.func.silentTimer.set", "SET"},
                       {"SettingInfo.installation.sensorDefine.settemp_select", "AIR"},
                       {"SettingInfo.installation.circuitMainZone.enableMainZone", "SET"}};
    for (const char *flag : {"is_hotwater", "is_timer_hotwater", "is_cool", "isSeasonalAuto", "is_heater1",
                             "isIduAirTempSW", "is_waterthermoonoff", "is_200Combination"}) {
        values.insert(QStringLiteral("IduFuncList.") + QLatin1String(flag), "SET");
    }
    return documents::with(documents::standard(QStringLiteral("R32")), values);
}

/// The pages of a step or tab: the widgets that declare slots by control.
std::vector<QWidget *> pagesShown(const Window &window)
{
    std::vector<QWidget *> pages;
    const auto widgets = window.dialog.findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const auto names = Window::ownSlots(widget);
        const bool hasControls = std::any_of(names.begin(), names.end(), [](const QString &name) {
            return name.startsWith(QLatin1String("on_"));
        });
        if (widget->isVisible() && hasControls) {
            pages.push_back(widget);
        }
    }
    return pages;
}

} // namespace

std::vector<Row> controlRows(Window &window)
{
    struct Stop {
        int step;
        int tab;
    };
    Slots controls(window);
    // The product page comes last, since it loads documents.
    for (const Stop stop :
         {Stop{MainDialog::DipSwitchPage, -1}, Stop{MainDialog::SettingPage, MainDialog::FunctionTab},
          Stop{MainDialog::SettingPage, MainDialog::UserTab},
          Stop{MainDialog::SettingPage, MainDialog::ServiceTab},
          Stop{MainDialog::SettingPage, MainDialog::InstallationTab}, Stop{MainDialog::ProductPage, -1}}) {
        window.use(plant());
        window.showPage(stop.step, stop.tab);
        const auto headers = window.dialog.findChildren<QPushButton *>(QStringLiteral("hideButton"));
        for (QPushButton *header : headers) {
            if (header->isVisible()) {
                header->click();
            }
        }
        for (QWidget *page : pagesShown(window)) {
            controls.measure(page);
        }
    }
    window.use(plant());
    auto *automatic = window.page<InstallationaAuto>();
    const auto recompute = [automatic] {
        for (const int group : {1, 2, 3}) {
            QMetaObject::invokeMethod(automatic, "refreshTempRange", Q_ARG(int, group));
        }
    };
    return {slowest(controls.measured, Kind::Plain, QStringLiteral("a control's slot"), 0.15),
            slowest(controls.measured, Kind::FarReaching,
                    QStringLiteral("a slot that refreshes sections or changes texts"), 1),
            slowest(controls.measured, Kind::Header,
                    QStringLiteral("a header that opens or closes its section"), 1),
            {QStringLiteral("one full recomputation of the auto mode lists"), QStringLiteral("one frame"),
             ratios(timedRuns(recompute), frame), 0.25}};
}

} // namespace bench
