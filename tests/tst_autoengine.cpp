#include "support/automode.h"

#include <QRandomGenerator>

#include <optional>

using automode::join;
using automode::limits;
using automode::mainZone;
using automode::seasonalPaths;
using automode::seasonalPlant;
using automode::seasonalRoot;

namespace {

// The boxes by their numbers; 13 to 20 are 5 to 12 for indoor air.
enum Box {
    HeatOutMin = 1,
    HeatOutMax,
    CoolOutMin,
    CoolOutMax,
    HMax,
    HMin,
    CMax,
    CMin,
    ZHMax,
    ZHMin,
    ZCMax,
    ZCMin
};
constexpr int indoor = 8;
constexpr int blankBox = -1000;

// The sanitizers make every choice many times slower.
#ifdef __SANITIZE_ADDRESS__
constexpr int share = 10;
#else
constexpr int share = 1;
#endif
constexpr int sequences = 250 / share;
constexpr int choices = 6;

/// By the number of the box.
using Values = QVector<int>;

/// `smaller` plus the margin is at most `larger`.
struct Order {
    int smaller;
    int larger;
    int margin;
    /// Between the two circuits.
    bool crossing;
};

std::vector<Order> makeOrders()
{
    std::vector<Order> orders{{HeatOutMin, HeatOutMax, 1, false},
                              {HeatOutMax, CoolOutMin, 5, false},
                              {CoolOutMin, CoolOutMax, 1, false}};
    for (const int kind : {0, indoor}) {
        for (const Order &order :
             {Order{HMin, HMax, 0, false}, Order{CMin, CMax, 0, false}, Order{ZHMin, ZHMax, 0, false},
              Order{ZCMin, ZCMax, 0, false}, Order{ZHMin, HMin, 0, true}, Order{ZHMax, HMax, 0, true},
              Order{CMin, ZCMin, 0, true}, Order{CMax, ZCMax, 0, true}}) {
            orders.push_back({order.smaller + kind, order.larger + kind, order.margin, order.crossing});
        }
    }
    return orders;
}

/// What the section promises.
const std::vector<Order> &promisedOrders()
{
    static const std::vector<Order> orders = makeOrders();
    return orders;
}

/// Those that bind a box, by its number.
const QVector<QVector<Order>> &ordersOfBoxes()
{
    static const QVector<QVector<Order>> orders = [] {
        QVector<QVector<Order>> ofBoxes(21);
        for (const Order &order : promisedOrders()) {
            ofBoxes[order.smaller].append(order);
            ofBoxes[order.larger].append(order);
        }
        return ofBoxes;
    }();
    return orders;
}

bool isMainZone(int box) { return (box >= ZHMax && box <= ZCMin) || box > 16; }

bool isOutdoor(int box) { return box <= CoolOutMax; }

/// The section told slowly: a box offers whatever lies within its limits and breaks no promised order. While
/// the main zone is off its boxes follow, so that orders between the circuits bind them alone.
class Model
{
public:
    Model(bool r32, bool mainZoneOff, bool fahrenheit, const MainDialog &dialog)
        : off(mainZoneOff)
        , step(fahrenheit ? 2 : 1)
    {
        const auto shown = [&dialog, fahrenheit](int celsius) {
            return fahrenheit ? dialog.celsiusToFahrenheit(celsius) : celsius;
        };
        for (int box = 1; box <= 20; ++box) {
            low[box] = shown(lowest(box, r32));
            high[box] = shown(highest(box, r32));
        }
    }

    Values offered(int box) const
    {
        Values list;
        for (int candidate = low.at(box); candidate <= high.at(box); candidate += step) {
            if (keepsOrders(box, candidate)) {
                list.append(candidate);
            }
        }
        return list;
    }

    void choose(int box, int chosen)
    {
        const bool leads = off && !isOutdoor(box) && !isMainZone(box);
        const bool follows = off && isMainZone(box);
        if (!follows) {
            value[box] = chosen;
        }
        if (leads) {
            value[box + 4] = chosen;
        }
    }

    Values value = Values(21);
    /// What the choices wrote: path -> value.
    QVariantMap written;
    bool off;

private:
    static int lowest(int box, bool r32)
    {
        if (box <= HeatOutMax) {
            return r32 ? -25 : -15;
        }
        if (box <= CoolOutMax) {
            return 10;
        }
        return box == HMax || box == HMin || box == ZHMax || box == ZHMin ? 20 : 16;
    }

    static int highest(int box, bool r32)
    {
        if (box <= HeatOutMax) {
            return r32 ? 35 : 24;
        }
        if (box <= CoolOutMax) {
            return r32 ? 46 : 43;
        }
        if (box > ZCMin) {
            return 30;
        }
        const int heatingTop = r32 ? 65 : 57;
        return box == HMax || box == HMin || box == ZHMax || box == ZHMin ? heatingTop : 27;
    }

    bool keepsOrders(int box, int candidate) const
    {
        for (const Order &order : ordersOfBoxes().at(box)) {
            if (order.crossing && off && !isMainZone(box)) {
                continue;
            }
            const bool tooSmall = order.larger == box && candidate < value.at(order.smaller) + order.margin;
            const bool tooLarge = order.smaller == box && candidate + order.margin > value.at(order.larger);
            if (tooSmall || tooLarge) {
                return false;
            }
        }
        return true;
    }

    Values low = Values(21);
    Values high = Values(21);
    int step;
};

} // namespace

// The range engine held against a slow model of what it promises, over random choices in the real boxes.
class TestAutoEngine : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        section = std::make_unique<automode::Section>();
        for (const char *name : automode::seasonalBoxes) {
            boxes.push_back(section->box(name));
        }
    }
    void cleanupTestCase() { section.reset(); }

    void ordersHold_data();
    void ordersHold();
    void ordersHoldWhenTheMainZoneComesIntoUse();
    void outdoorChainBreaksOnlyWhereTwoDegreesShareOne();
    void sharedFahrenheit_data();
    void sharedFahrenheit();
    void mainZoneSwitchedOffAndOnMayCross_data();
    void mainZoneSwitchedOffAndOnMayCross();
    void storedBelowTheLimitsMayCross();

private:
    QComboBox *box(int number) const { return boxes.at(static_cast<std::size_t>(number - 1)); }
    static int numberOf(const QString &text) { return text.chopped(2).toInt(); }
    Values shownValues() const
    {
        Values values(21);
        for (int number = 1; number <= 20; ++number) {
            values[number] = box(number)->currentIndex() < 0 ? blankBox
                                                             : numberOf(box(number)->currentText());
        }
        return values;
    }
    /// Takes a random item other than the present one by index, signals live, and tells its number; nothing
    /// when there is no other.
    std::optional<int> chooseAnother(int number, QRandomGenerator &random) const
    {
        QComboBox *combo = box(number);
        if (combo->count() < 2) {
            return std::nullopt;
        }
        const int index = (combo->currentIndex() + 1 + random.bounded(combo->count() - 1)) % combo->count();
        const int chosen = numberOf(combo->itemText(index));
        combo->setCurrentIndex(index);
        return chosen;
    }
    /// A random choice in the box must leave the screen as the model tells. Tells where it doesn't.
    QString chooseAndCompare(Model &model, int number, bool celsius, QRandomGenerator &random) const;
    QString difference(const Model &model, bool outdoor) const;
    static QString brokenOrder(const Values &values, bool outdoor);
    void load(const QJsonDocument &document, const QString &unit)
    {
        section->window.use(document, unit);
        section->page->refresh();
        messages::clear();
    }

    std::unique_ptr<automode::Section> section;
    std::vector<QComboBox *> boxes;
};

/// Where the screen differs from the model; empty when nowhere.
QString TestAutoEngine::difference(const Model &model, bool outdoor) const
{
    for (int number = outdoor ? 1 : 5; number <= 20; ++number) {
        // Both lists go by the same step, so that their ends and lengths tell whether they are equal.
        const QComboBox *combo = box(number);
        const Values list = model.offered(number);
        const bool equal = combo->count() == list.size()
            && (list.isEmpty()
                || (numberOf(combo->itemText(0)) == list.first()
                    && numberOf(combo->itemText(list.size() - 1)) == list.last()));
        if (!equal) {
            return QString("list of %1").arg(number);
        }
        if (numberOf(combo->currentText()) != model.value.at(number)) {
            return QString("value of %1").arg(number);
        }
    }
    return {};
}

QString TestAutoEngine::brokenOrder(const Values &values, bool outdoor)
{
    for (const Order &order : promisedOrders()) {
        if (isOutdoor(order.smaller) == outdoor
            && values.at(order.smaller) + order.margin > values.at(order.larger)) {
            return QString("%1 %2").arg(order.smaller).arg(order.larger);
        }
    }
    return {};
}

void TestAutoEngine::ordersHold_data()
{
    QTest::addColumn<QByteArray>("refrigerant");
    QTest::addColumn<QString>("unit");
    QTest::addColumn<QString>("mainZoneUse");
    QTest::addColumn<quint32>("seed");
    quint32 seed = 1;
    for (const char *refrigerant : {"R32", "R410"}) {
        for (const char *unit : {"CENTIGRADE", "FAHRENHEIT"}) {
            for (const char *use : {"SET", "CLR"}) {
                QTest::newRow(qPrintable(QString("%1 %2 %3").arg(refrigerant, unit, use)))
                    << QByteArray(refrigerant) << QString(unit) << QString(use) << seed++;
            }
        }
    }
}

// In °F only what has no margin: outdoors two °C may share one °F.
void TestAutoEngine::ordersHold()
{
    QFETCH(QByteArray, refrigerant);
    QFETCH(QString, unit);
    QFETCH(QString, mainZoneUse);
    QFETCH(quint32, seed);
    const bool celsius = unit == "CENTIGRADE";
    const bool off = mainZoneUse == "CLR";
    QRandomGenerator random(seed);
    const QJsonDocument start = section->loadAside(seasonalPlant(mainZoneUse), refrigerant);
    for (int sequence = 0; sequence < sequences; ++sequence) {
        load(start, unit);
        Model model(refrigerant == "R32", off, !celsius, section->window.dialog);
        model.value = shownValues();
        QCOMPARE(difference(model, celsius), QString());
        for (int choice = 0; choice < choices; ++choice) {
            const int number = random.bounded(celsius ? 1 : 5, 21);
            const QString fault = chooseAndCompare(model, number, celsius, random);
            QVERIFY2(fault.isEmpty(), qPrintable(QString("sequence %1, %2").arg(sequence).arg(fault)));
        }
        QCOMPARE(section->window.dialog.document(), documents::with(start, model.written));
    }
}

QString TestAutoEngine::chooseAndCompare(Model &model, int number, bool celsius,
                                         QRandomGenerator &random) const
{
    const std::optional<int> chosen = chooseAnother(number, random);
    if (!chosen) {
        return {};
    }
    model.choose(number, *chosen);
    const int saved = celsius ? *chosen : section->window.dialog.fahrenheitToCelsius(*chosen);
    model.written.insert(seasonalRoot + seasonalPaths[number - 1], saved);
    if (model.off && !isOutdoor(number) && !isMainZone(number)) {
        model.written.insert(seasonalRoot + seasonalPaths[number + 3], saved);
    }
    QString fault = difference(model, celsius);
    for (const bool outdoor : {true, false}) {
        if (celsius || !outdoor) {
            fault.append(brokenOrder(shownValues(), outdoor));
        }
    }
    if (!fault.isEmpty()) {
        fault.prepend(QString("%1 in box %2: ").arg(*chosen).arg(number));
    }
    return fault;
}

// As delivered, the main zone's values are those of the other circuit, and while it is off they follow.
void TestAutoEngine::ordersHoldWhenTheMainZoneComesIntoUse()
{
    QRandomGenerator random(100);
    const QJsonDocument start = section->loadAside(
        join({{{"IduFuncList.isSeasonalAuto", "SET"}}, mainZone("CLR")}));
    for (int sequence = 0; sequence < sequences / 2; ++sequence) {
        load(start, "CENTIGRADE");
        for (const bool off : {true, false}) {
            const QJsonDocument before = documents::with(section->window.dialog.document(),
                                                         mainZone(off ? "CLR" : "SET"));
            load(before, "CENTIGRADE");
            Model model(true, off, false, section->window.dialog);
            model.value = shownValues();
            QCOMPARE(difference(model, true), QString());
            for (int choice = 0; choice < choices; ++choice) {
                const int number = random.bounded(1, 21);
                if (off && isMainZone(number)) {
                    continue;
                }
                const QString fault = chooseAndCompare(model, number, true, random);
                QVERIFY2(fault.isEmpty(), qPrintable(QString("sequence %1, %2").arg(sequence).arg(fault)));
            }
            QCOMPARE(section->window.dialog.document(), documents::with(before, model.written));
        }
    }
}

// A box of the outdoor chain goes blank only when one of its values stands for two °C.
void TestAutoEngine::outdoorChainBreaksOnlyWhereTwoDegreesShareOne()
{
    const MainDialog &dialog = section->window.dialog;
    const auto shared = [&dialog](int fahrenheit) {
        const int celsius = dialog.fahrenheitToCelsius(fahrenheit);
        return dialog.celsiusToFahrenheit(celsius + 1) == fahrenheit;
    };
    QRandomGenerator random(200);
    const QJsonDocument start = section->loadAside(seasonalPlant("SET"));
    int breaks = 0;
    for (int sequence = 0; sequence < sequences / 2; ++sequence) {
        load(start, "FAHRENHEIT");
        bool blank = false;
        for (int choice = 0; choice < 12 && !blank; ++choice) {
            bool sharing = false;
            const Values before = shownValues();
            chooseAnother(random.bounded(1, 5), random);
            for (const Values &values : {before, shownValues()}) {
                for (int number = HeatOutMin; number <= CoolOutMax; ++number) {
                    blank = blank || values.at(number) == blankBox;
                    sharing = sharing || (values.at(number) != blankBox && shared(values.at(number)));
                }
            }
            QVERIFY2(!blank || sharing, qPrintable(QString("sequence %1").arg(sequence)));
        }
        breaks += blank ? 1 : 0;
    }
    QVERIFY(breaks > 0);
}

void TestAutoEngine::sharedFahrenheit_data()
{
    QTest::addColumn<QVariantMap>("values");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("item");
    QTest::addColumn<QStringList>("shown");
    QTest::addColumn<QStringList>("afterRefresh");
    const auto values = [](int heatMin, int heatMax, int coolMin, int coolMax) {
        return join({limits("heatOutTemp", heatMin, heatMax), limits("coolOutTemp", coolMin, coolMax)});
    };
    // 4 °C and 5 °C are 40 °F: above 4 °C the list starts at 5 °C, which then reads as 4 °C. The box that has
    // gone blank counts as 0 °F, or -19 °C, and takes that item at the next refresh.
    QTest::newRow("heating's upper end on the lower one")
        << values(4, 16, 30, 40) << int(HeatOutMax) << "40°F" << QStringList{"", "40°F", "86°F", "104°F"}
        << QStringList{"0°F", "40°F", "86°F", "104°F"};
    // 14 °C and 15 °C are 58 °F. 5 °C below the blank box heating has no list and keeps what it had.
    QTest::newRow("cooling's upper end on the lower one")
        << values(-10, 5, 14, 40) << int(CoolOutMax) << "58°F" << QStringList{"14°F", "40°F", "", "58°F"}
        << QStringList{"14°F", "40°F", "", "58°F"};
    // 10 °C is 50 °F, and 5 °C above it 58 °F, which reads as 14 °C: 4 °C above. Heating's lower end then
    // finds itself above the blank box.
    QTest::newRow("cooling 4 °C above heating")
        << values(-10, 10, 20, 40) << int(CoolOutMin) << "58°F" << QStringList{"14°F", "", "58°F", "104°F"}
        << QStringList{"", "0°F", "58°F", "104°F"};
    QTest::newRow("stored apart, shown alike")
        << values(4, 5, 30, 40) << 0 << "" << QStringList{"", "40°F", "86°F", "104°F"}
        << QStringList{"0°F", "40°F", "86°F", "104°F"};
}

void TestAutoEngine::sharedFahrenheit()
{
    QFETCH(QVariantMap, values);
    QFETCH(int, number);
    QFETCH(QString, item);
    QFETCH(QStringList, shown);
    QFETCH(QStringList, afterRefresh);
    const auto outdoor = [this] {
        QStringList texts;
        for (int each = HeatOutMin; each <= CoolOutMax; ++each) {
            texts.append(box(each)->currentText());
        }
        return texts;
    };
    section->load(join({seasonalPlant("CLR"), values}), "R32", "FAHRENHEIT");
    if (number != 0) {
        Window::choose(box(number), item);
    }
    QCOMPARE(outdoor(), shown);
    section->refreshTempRange(1);
    QCOMPARE(outdoor(), afterRefresh);
}

void TestAutoEngine::mainZoneSwitchedOffAndOnMayCross_data()
{
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("item");
    QTest::addColumn<QString>("written");
    QTest::addColumn<int>("blank");
    QTest::addColumn<int>("crossed");
    QTest::newRow("heating") << int(HMin) << "42°C"
                             << "heatWaterTempMainZone.min" << int(ZHMax) << int(ZHMin);
    QTest::newRow("cooling") << int(CMax) << "17°C"
                             << "coolWaterTempMainZone.max" << int(ZCMax) << int(ZCMin);
}

// While the main zone is off, a choice carries one of its two limits along in the document and leaves the
// other where it was. Back in use the two may stand crossed: the upper one then has no item.
void TestAutoEngine::mainZoneSwitchedOffAndOnMayCross()
{
    QFETCH(int, number);
    QFETCH(QString, item);
    QFETCH(QString, written);
    QFETCH(int, blank);
    QFETCH(int, crossed);
    section->load(seasonalPlant("CLR"));
    const QVariantMap changes = section->window.changes([&] { Window::choose(box(number), item); });
    QVERIFY(changes.contains(seasonalRoot + written));
    const QJsonDocument document = documents::with(section->window.dialog.document(), mainZone("SET"));
    load(document, "CENTIGRADE");
    QCOMPARE(box(blank)->currentText(), QString());
    // Its neighbour finds no list between its limits and the blank box, and keeps the whole one.
    messages::clear();
    section->page->refresh();
    QVERIFY(
        messages::contain("MainDialog::setRangeValueInComboBox ComboBox: \"" + box(crossed)->objectName()));
    QVERIFY(box(crossed)->currentIndex() >= 0);
    QCOMPARE(section->window.dialog.document(), document);
}

// A stored value below its list is shown as the last item, so that a lower end passes its upper one.
void TestAutoEngine::storedBelowTheLimitsMayCross()
{
    section->load(join({seasonalPlant("SET"), {{automode::root + "coolWaterControlBasis", "ENTRANCE"}}}));
    QCOMPARE(box(CMax)->currentText(), QString("20°C"));
    QCOMPARE(box(CMin)->currentText(), QString());
    QCOMPARE(box(ZCMax)->currentText(), QString());
    QCOMPARE(box(ZCMin)->currentText(), QString("27°C"));
}

CALORA_TEST_MAIN(TestAutoEngine)
#include "tst_autoengine.moc"
